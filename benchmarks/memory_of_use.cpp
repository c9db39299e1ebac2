// memory_of_use [EVENTS [SEED]]: a user without a plan in the real main window, 60,000 events if
// not given, more than a hurried user makes in two days. The same seed makes the same choices.
// Every 5,000 events all tools are closed, the job is made an empty one and each tool is opened
// once; then a line "EVENTS RESIDENT HEAP" tells what the program holds, in KiB. Last comes "growth
// RESIDENT HEAP", from the 10,000th event on.
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <QTimerEvent>
#include <QWheelEvent>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "app/tool_forms.h"
#include "benchmarks/benchmark_jobs.h"
#include "benchmarks/memory.h"
#include "benchmarks/paint_watch.h"
#include "benchmarks/quick_platform.h"
#include "core/job_file.h"
#include "core/job_state.h"
#include "shell/frm_hand_main.h"
#include "shell/halvane_application.h"
#include "shell/tool_form.h"
#include "tests/monkey/dice.h"

namespace halvane {
namespace {

constexpr int kEvents = 60000;
constexpr int kStep = 5000;
constexpr int kSettled = 10000;
constexpr int kTasks = 40;
constexpr int kTools = 5;
/// Now and then the user rests, and what waits for a moment without keys has its turn.
constexpr int kEventsToOneRest = 1000;
constexpr int kRestMilliseconds = 1200;
constexpr int kWheelStep = 120;

struct UserKey {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  const char* text;
};
constexpr std::array<UserKey, 18> kKeys{{
    {Qt::Key_4, {}, "4"},
    {Qt::Key_8, {}, "8"},
    {Qt::Key_0, {}, "0"},
    {Qt::Key_Period, {}, "."},
    {Qt::Key_N, {}, "n"},
    {Qt::Key_Backspace, {}, "\b"},
    {Qt::Key_Tab, {}, "\t"},
    {Qt::Key_Tab, {}, "\t"},
    {Qt::Key_Return, {}, "\r"},
    {Qt::Key_Escape, {}, "\x1b"},
    {Qt::Key_Up, {}, ""},
    {Qt::Key_Down, {}, ""},
    {Qt::Key_Home, {}, ""},
    {Qt::Key_End, {}, ""},
    {Qt::Key_Space, {}, " "},
    {Qt::Key_F2, {}, ""},
    {Qt::Key_A, Qt::ControlModifier, "\x01"},
    {Qt::Key_Tab, Qt::ControlModifier, "\t"},
}};

/// Answers by the dice. The end of the program is where the user starts it again.
class RandomAnswers : public QuickPlatform {
 public:
  explicit RandomAnswers(Dice& dice) : dice_(dice) {}

  Answer ShowMessage(QWidget* /*parent*/, const QString& /*title*/, const QString& /*text*/,
                     const std::vector<Answer>& buttons) override {
    return dice_.Of(buttons);
  }
  QString ChooseFileToOpen(QWidget* /*parent*/, const QString& /*filter*/) override {
    return dice_.OneIn(5) ? QString() : JobFile();
  }
  QString ChooseFileToSave(QWidget* /*parent*/, const QString& /*filter*/) override {
    return dice_.OneIn(5) ? QString() : JobFile();
  }
  void EndProgram(int exitStatus) override {
    if (exitStatus != 0) ++failures_;
    // Copies of jobs would be looked through at each failure that follows.
    for (const std::string& folder : RescueFolders()) {
      QDir copies(QString::fromStdString(folder), "*.rescue.qjt");
      for (const QString& name : copies.entryList()) copies.remove(name);
    }
    Module1 = JobState{};
    if (QWidget* form = QApplication::activeModalWidget()) form->close();
  }

  [[nodiscard]] int failures() const { return failures_; }

 private:
  Dice& dice_;
  int failures_ = 0;
};

/// Makes one event whenever the program has nothing else to do, in whatever loop it is.
class User : public QObject {
 public:
  User(FrmHandMain& window, Dice& dice, int events)
      : window_(window), dice_(dice), events_(events), timer_(startTimer(0)) {}

  [[nodiscard]] MemoryHeld growth() const {
    return {last_.resident - first_.resident, last_.heap - first_.heap};
  }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    killTimer(timer_);
    // Another timer, since one does not fire inside of what it has called.
    const bool rests = event_ % kEventsToOneRest == 0 && toolsToSee_ < 0;
    timer_ = startTimer(rests ? kRestMilliseconds : 0);
    if (toolsToSee_ >= 0) return Tidy();
    ++event_;
    if (event_ % kStep == 0) {
      toolsToSee_ = kTools;
    } else {
      Act();
    }
  }

 private:
  static QWindow* WindowOf(const QWidget& widget) { return widget.window()->windowHandle(); }

  void Press(const UserKey& key) {
    QWindow* window = QGuiApplication::focusWindow();
    if (window == nullptr) return;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      qt_handleKeyEvent(window, type, key.key, key.modifiers, key.text);
    }
  }

  void SendMouse(QWidget& widget, QPoint at, QEvent::Type type, Qt::MouseButtons buttons,
                 Qt::MouseButton button) {
    QWindow* window = WindowOf(widget);
    if (window == nullptr) return;
    const QPoint global = widget.mapToGlobal(at);
    // Apart in time, or two clicks would be one double click.
    time_ += QApplication::doubleClickInterval() + 1;
    qt_handleMouseEvent(window, widget.window()->mapFromGlobal(global), global, buttons, button,
                        type, Qt::NoModifier, time_);
  }

  void Click(QWidget& widget, QPoint at) {
    const QPointer<QWidget> clicked(&widget);
    SendMouse(widget, at, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    QWidget* released = clicked == nullptr ? QApplication::activeWindow() : clicked.data();
    if (released == nullptr) return;
    SendMouse(*released, at, QEvent::MouseButtonRelease, Qt::NoButton, Qt::LeftButton);
  }

  QPoint SomePlaceIn(const QWidget& widget) {
    return {dice_.Below(std::max(widget.width(), 1)), dice_.Below(std::max(widget.height(), 1))};
  }

  void Act() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
      UsePopup(*popup);
    } else if (QWidget* front = QApplication::activeModalWidget()) {
      UseWindow(*front);
    } else if (dice_.OneIn(4)) {
      Press(dice_.Of(kKeys));
    } else {
      UseWindow(window_);
    }
  }

  void UsePopup(QWidget& popup) {
    const std::array<UserKey, 3> keys{
        {{Qt::Key_Down, {}, ""}, {Qt::Key_Return, {}, "\r"}, {Qt::Key_Escape, {}, "\x1b"}}};
    if (dice_.OneIn(4)) return Click(popup, SomePlaceIn(popup));
    Press(dice_.Of(keys));
  }

  void UseWindow(QWidget& window) {
    if (!window.isActiveWindow()) window.activateWindow();
    auto* form = qobject_cast<ToolForm*>(&window);
    if (form == nullptr && &window != &window_) {
      window.close();
      return;
    }
    const int choice = dice_.Below(100);
    if (choice < 45) return Press(dice_.Of(kKeys));
    if (form != nullptr && choice < 55) return ClickTab(*form);
    if (form != nullptr && choice < 58) return ChooseMenuItem(*form);
    if (form != nullptr && choice < 60) {
      form->resize(form->size() + QSize(dice_.Below(9) - 4, dice_.Below(9) - 4));
      return;
    }
    if (form != nullptr && choice < 62) return form->mnuFileExit_Click();
    UseControl(window);
  }

  void UseControl(QWidget& window) {
    QList<QWidget*> controls;
    for (auto* widget : window.findChildren<QWidget*>()) {
      const bool isControl = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                             qobject_cast<QLineEdit*>(widget) != nullptr ||
                             qobject_cast<QSlider*>(widget) != nullptr ||
                             qobject_cast<QComboBox*>(widget) != nullptr ||
                             widget->objectName() == "qt_scrollarea_viewport";
      if (isControl && widget->window() == &window && widget->isVisible() && widget->isEnabled()) {
        controls.append(widget);
      }
    }
    if (controls.isEmpty()) return;
    QWidget& control = *dice_.Of(controls);
    if (!dice_.OneIn(6)) return Click(control, SomePlaceIn(control));
    const QPoint at = control.rect().center();
    QCoreApplication::postEvent(
        &control, new QWheelEvent(at, control.mapToGlobal(at), {},
                                  QPoint(0, dice_.OneIn(2) ? kWheelStep : -kWheelStep),
                                  Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false));
  }

  void ClickTab(ToolForm& form) {
    auto* bar = form.findChild<QTabBar*>();
    if (bar == nullptr) return;
    Click(*bar, bar->tabRect(dice_.Below(bar->count())).center());
  }

  void ChooseMenuItem(ToolForm& form) {
    QList<QAction*> items;
    for (auto* item : form.findChildren<QAction*>()) {
      if (item->objectName().startsWith("mnu") && item->isEnabled() && item->menu() == nullptr) {
        items.append(item);
      }
    }
    dice_.Of(items)->trigger();
  }

  /// Closes what is open, then opens and closes each tool with an empty job, a step at a time.
  void Tidy() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
      popup->close();
    } else if (QWidget* front = QApplication::activeModalWidget()) {
      front->close();
    } else if (toolsToSee_ > 0) {
      JobReset();
      Module1.JobDirty = kFalse;
      --toolsToSee_;
      window_.SSCommand2_Click(toolsToSee_);
    } else {
      toolsToSee_ = -1;
      Tell();
    }
  }

  void Tell() {
    last_ = MemoryNow();
    if (event_ <= kSettled) first_ = last_;
    std::printf("%d %ld %ld\n", event_, last_.resident, last_.heap);
    std::fflush(stdout);
    if (event_ >= events_) QCoreApplication::exit();
  }

  FrmHandMain& window_;
  Dice& dice_;
  int events_;
  int event_ = 0;
  int toolsToSee_ = kTools;  ///< that are still to be opened before the next line
  int time_ = 1;
  int timer_;
  MemoryHeld first_;
  MemoryHeld last_;
};

void Use(int events, int seed) {
  Dice dice(static_cast<std::uint64_t>(seed));
  RandomAnswers platform(dice);
  FillJob(kTasks, 1);
  Module1.JobFileName = platform.JobFile().toStdString();
  WriteJobFile();
  FrmHandMain window(MakeToolForm);
  PaintWatch watch(window);
  window.show();
  watch.WaitForPaint();
  window.Timer1_Timer();
  const User user(window, dice, events);
  QCoreApplication::exec();
  const MemoryHeld growth = user.growth();
  std::printf("growth %ld %ld\n", growth.resident, growth.heap);
  std::fprintf(stderr, "%d failures ended the program\n", platform.failures());
}

}  // namespace
}  // namespace halvane

int main(int argc, char** argv) {
  const halvane::HalvaneApplication application(argc, argv);
  halvane::HalvaneApplication::setQuitOnLastWindowClosed(false);
  const int events = argc > 1 ? std::atoi(argv[1]) : halvane::kEvents;
  halvane::Use(events, argc > 2 ? std::atoi(argv[2]) : 1);
  return 0;
}
