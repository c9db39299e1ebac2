#include "tests/forms/posture_form_support.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <algorithm>

#include "app/tool_forms.h"
#include "core/job_file.h"
#include "shell/frm_hand_main.h"
#include "widgets/layout.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

/// Where a click hits the round or square of an option or a box.
QPoint HitPlace(const QWidget& control) { return {8, control.height() / 2}; }

bool IsTwoState(const QAbstractButton& button) {
  return button.isCheckable() && button.objectName().startsWith("SS");
}

/// What stands on a button, or beside a box.
QString CaptionOf(const QAbstractButton& button) {
  if (!button.text().isEmpty()) return button.text();
  QStringList captions;
  for (const auto* label : button.parentWidget()->findChildren<QLabel*>()) {
    const QRect place = label->geometry();
    const int middle = button.geometry().center().y();
    if (place.top() <= middle && middle <= place.bottom()) captions.append(label->text());
  }
  return captions.join(" and ");
}

}  // namespace

PostureFormTest::PostureFormTest(Tool which) : tool(RowOf(which)) {}

PostureFormTest::~PostureFormTest() = default;

void PostureFormTest::Show() {
  own_ = MakeToolForm(tool.tool, nullptr);
  form = own_.get();
  form->load();
  ShowActive(*form);
}

void PostureFormTest::Reload(const JobState& job) {
  Module1 = job;
  form->load();
}

QLineEdit& PostureFormTest::Box(int index) const {
  return The<QLineEdit>(ElementName("Text1", index));
}

void PostureFormTest::Click(const QString& name) const {
  auto& control = The(name);
  QTest::mouseClick(&control, Qt::LeftButton, {}, HitPlace(control));
}

void PostureFormTest::Press(const QString& name, Qt::Key key) const {
  The(name).setFocus();
  QTest::keyClick(QApplication::focusWidget(), key);
}

void PostureFormTest::ClickTab(int tab) const {
  auto& bar = *The<QTabWidget>("SSTab1").tabBar();
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
}

QStringList PostureFormTest::On() const {
  QStringList names;
  for (const auto* button : form->findChildren<QAbstractButton*>()) {
    if (IsTwoState(*button) && button->isChecked()) names.append(button->objectName());
  }
  names.sort();
  return names;
}

QStringList PostureFormTest::ControlLines() const {
  QStringList lines;
  const auto add = [&lines](const QWidget& control, const QString& caption) {
    lines.append(
        QStringList{FrameOfControl(control), control.objectName(), caption, control.toolTip()}.join(
            "|"));
  };
  for (const auto* button : form->findChildren<QAbstractButton*>()) {
    if (IsTwoState(*button)) add(*button, CaptionOf(*button));
  }
  for (const auto* list : form->findChildren<QComboBox*>()) {
    QStringList entries;
    for (int i = 0; i < list->count(); ++i) entries.append(list->itemText(i));
    add(*list, entries.join(","));
  }
  lines.sort();
  return lines;
}

QStringList PostureFormTest::FramesIn(Half half) const {
  std::vector<std::pair<QPoint, QString>> frames;
  for (const auto* frame : form->findChildren<QGroupBox*>()) {
    const QPoint place = frame->mapTo(form, QPoint(0, 0));
    const bool right = place.x() + frame->width() / 2 > form->width() / 2;
    if (right == (half == Half::Right) && frame->title() != "Hand") {
      frames.emplace_back(place, frame->title());
    }
  }
  std::sort(frames.begin(), frames.end(), [](const auto& one, const auto& other) {
    return std::pair(one.first.y(), one.first.x()) < std::pair(other.first.y(), other.first.x());
  });
  QStringList titles;
  for (const auto& frame : frames) titles.append(frame.second);
  return titles;
}

QString PostureFormTest::Report() const {
  return The<RichTextBox>("RichTextBox1")
      .document()
      ->toRawText()
      .replace(QChar(QChar::ParagraphSeparator), '\n');
}

QString PostureFormTest::LaunchButton() const {
  return ElementName("SSCommand2", static_cast<int>(tool.tool));
}

void PostureFormTest::Launch(const std::vector<std::function<void()>>& showings) {
  const auto window = IdleMainWindow();
  {
    ModalSteps steps;
    for (const auto& showing : showings) {
      steps.Then<ToolForm>(tool.tool == Tool::Rula ? "frmRULA" : "frmREBA", [&](ToolForm& shown) {
        form = &shown;
        showing();
      });
    }
    QTest::mouseClick(&Find<QWidget>(*window, LaunchButton()), Qt::LeftButton);
  }
  form = nullptr;
}

void PostureFormTest::ExpectLaunchEndsTheProgram(const JobState& job) {
  const auto window = IdleMainWindow();
  Module1 = job;
  const std::size_t ends = platform.ends().size();
  const std::string name = "job" + std::to_string(ends);
  Module1.JobFileName = folder.File(name + ".qjt");
  Module1.JobDirty = kTrue;
  const ModalSteps none;
  platform.WillAnswer(Answer::Ok);
  QTest::mouseClick(&Find<QWidget>(*window, LaunchButton()), Qt::LeftButton);
  const std::string copy = folder.File(name + ".rescue.qjt");
  ASSERT_EQ(platform.messages().size(), ends + 1);
  EXPECT_EQ(platform.messages().back(),
            (ShownMessage{"Halvane Tools",
                          "Subscript out of range.\n\nHalvane Tools has to end.\n\n"
                          "A copy of the job was saved as\n" +
                              QString::fromStdString(copy),
                          {Answer::Ok}}));
  EXPECT_EQ(platform.ends(), std::vector<int>(ends + 1, 1));
  EXPECT_EQ(BytesOf(copy), JobFileBytes(Module1));
}

QStringList Instead(QStringList names, const QString& off, const QString& on) {
  names.removeAll(off);
  if (!on.isEmpty()) names.append(on);
  names.sort();
  return names;
}

QString FrameOfControl(const QWidget& control) {
  for (const QWidget* parent = control.parentWidget(); parent != nullptr;
       parent = parent->parentWidget()) {
    if (const auto* frame = qobject_cast<const QGroupBox*>(parent)) return frame->title();
  }
  return {};
}

}  // namespace halvane
