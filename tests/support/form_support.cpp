#include "tests/support/form_support.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <utility>

#include "app/tool_forms.h"
#include "shell/frm_hand_main.h"
#include "shell/tool_form.h"
#include "tools/strain_index/frm_si.h"

void PrintTo(const QString& text, std::ostream* stream) {
  *stream << '"' << text.toStdString() << '"';
}

void PrintTo(const QStringList& texts, std::ostream* stream) {
  *stream << "[\"" << texts.join("\", \"").toStdString() << "\"]";
}

namespace halvane {
namespace {

constexpr int kTickMilliseconds = 1;
/// About ten seconds without the window that a step waits for.
constexpr int kMostIdleTicks = 10000;

QWidget* TopmostWindow() {
  QWidget* popup = QApplication::activePopupWidget();
  return popup != nullptr ? popup : QApplication::activeModalWidget();
}

}  // namespace

std::string NamesOf(const QList<QObject*>& objects) {
  QStringList names;
  for (const QObject* object : objects) {
    if (!object->objectName().isEmpty()) names.append(object->objectName());
  }
  names.sort();
  return names.join(", ").toStdString();
}

void Choose(QAction& item) {
  ASSERT_TRUE(item.isEnabled()) << item.text().toStdString();
  QMetaObject::invokeMethod(
      &item, [&item] { item.trigger(); }, Qt::QueuedConnection);
  QCoreApplication::sendPostedEvents(&item, QEvent::MetaCall);
}

void Choose(const QObject& form, const QString& item) { Choose(Find<QAction>(form, item)); }

void ShowActive(QWidget& window) {
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

QRect HandleOf(const QSlider& slider) {
  QStyleOptionSlider option;
  option.initFrom(&slider);
  option.orientation = slider.orientation();
  option.minimum = slider.minimum();
  option.maximum = slider.maximum();
  option.sliderPosition = slider.sliderPosition();
  option.tickPosition = slider.tickPosition();
  return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                        &slider);
}

void MoveMouse(QWidget& widget, QPoint to, Qt::MouseButtons buttons) {
  QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, buttons,
                   Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &move);
}

QStringList TextsOf(const QMenu& menu) {
  QStringList texts;
  for (const QAction* item : menu.actions()) {
    texts.append(item->isSeparator() ? QString("-") : item->text());
  }
  return texts;
}

ModalSteps::ModalSteps() { ScheduleTick(); }

void ModalSteps::ScheduleTick() {
  // A new timer each time, since one does not fire while its own handler is still in a nested loop.
  QTimer::singleShot(kTickMilliseconds, &life_, [this] {
    ScheduleTick();
    Tick();
  });
}

ModalSteps::~ModalSteps() {
  for (const Step& step : steps_) {
    ADD_FAILURE() << "no step was made in " << step.window.toStdString();
  }
}

void ModalSteps::Tick() {
  QWidget* top = TopmostWindow();
  if (top == nullptr) return;
  const bool expected =
      !steps_.empty() && (top->objectName() == steps_.front().window ||
                          top->metaObject()->className() == steps_.front().window);
  if (!expected) {
    if (++idleTicks_ < kMostIdleTicks) return;
    ADD_FAILURE() << "unexpected window " << top->objectName().toStdString() << " of class "
                  << top->metaObject()->className();
    top->close();
    return;
  }
  idleTicks_ = 0;
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  try {
    step.action(*top);
  } catch (const std::exception& failure) {
    ADD_FAILURE() << "in " << step.window.toStdString() << ": " << failure.what();
    top->close();
  }
}

QWidget& VisibleToolForm() {
  QList<QWidget*> forms;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && qobject_cast<ToolForm*>(window) != nullptr) forms.append(window);
  }
  if (forms.size() != 1) {
    throw std::runtime_error(std::to_string(forms.size()) + " tool forms are visible");
  }
  return *forms.front();
}

ShellTest::ShellTest() {
  Module1 = JobState{};
  platform.SetDocumentsFolder(QString::fromStdString(folder.path()));
}

ShellTest::~ShellTest() = default;

QString ShellTest::File(const char* name) const {
  return QString::fromStdString(folder.File(name));
}

std::unique_ptr<FrmHandMain> ShellTest::IdleMainWindow() {
  auto window = std::make_unique<FrmHandMain>(MakeToolForm);
  ShowActive(*window);
  auto& timer = Find<QTimer>(*window, "Timer1");
  timer.start(0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !timer.isActive(); }));
  return window;
}

std::unique_ptr<FrmSI> ShellTest::LoadedStrainIndex() {
  auto form = std::make_unique<FrmSI>(nullptr);
  form->load();
  ShowActive(*form);
  return form;
}

}  // namespace halvane
