#include "benchmarks/opened_tool.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <optional>
#include <utility>

#include "app/tool_forms.h"
#include "benchmarks/action.h"
#include "benchmarks/benchmark_jobs.h"
#include "benchmarks/cpu_seconds.h"
#include "shell/tool_form.h"

namespace halvane {
namespace {

constexpr int kQuietMilliseconds = 1000;
/// Longer than any pause between two pieces of work that the program does ahead.
constexpr int kPauseMilliseconds = 200;
/// A timer that is no call in the queue of events.
constexpr int kNextMilliseconds = 1;
/// More than an event loop without events takes in such a time, and less than a piece of work.
constexpr double kIdleSeconds = 0.002;

/// Calls what is to be done with a form when it has been painted for the first time since it was
/// shown, or when all that another job changes has been.
class ShowWatch : public QObject {
 public:
  explicit ShowWatch(OpenedTool::Use use) : use_(std::move(use)) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* form = qobject_cast<ToolForm*>(watched);
    if (form != nullptr && event->type() == QEvent::Show) {
      isExpected_ = true;
      connect(form, &ToolForm::finished, this, [this, form](int result) {
        // One that was hidden is shown again.
        if (result == ToolForm::Reload && form->isVisible()) UseAgain(*form);
      });
    }
    if (form != nullptr && event->type() == QEvent::Paint && isExpected_) {
      isExpected_ = false;
      // What is painted reaches the screen at the end of the turn.
      QTimer::singleShot(0, this, [this, form] { use_(*form); });
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  /// The form stays on the screen, and what does not change is not painted. A call that waits in
  /// one queue with the painting of the job would be made before it, and the painting counted with
  /// what is done next.
  void UseAgain(ToolForm& form) {
    QTimer::singleShot(kNextMilliseconds, this, [this, &form] {
      // The same turn of the loop may still be that of the job before.
      if (form.result() == ToolForm::Reload) return UseAgain(form);
      FinishTurn();
      use_(form);
    });
  }

  OpenedTool::Use use_;
  bool isExpected_ = false;
};

/// Which of the launch buttons opens a tool; nothing where none does.
std::optional<int> LaunchButtonOf(Tool tool) {
  int button = 0;
  for (const ToolName& name : kToolNames) {
    if (name.buttonCaption.empty()) continue;
    if (name.tool == tool) return button;
    ++button;
  }
  return std::nullopt;
}

void RunEventsFor(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace

OpenedTool::OpenedTool(int tasks) : main_(MakeToolForm), watch_(main_) {
  main_.show();
  watch_.WaitForPaint();
  FillJob(tasks, 1);
  // The opening panel goes at once.
  main_.findChild<QTimer*>("Timer1")->stop();
  main_.Timer1_Timer();
}

OpenedTool::~OpenedTool() = default;

void OpenedTool::BeQuiet() {
  RunEventsFor(kQuietMilliseconds);
  BeIdle();
}

void OpenedTool::BeIdle() {
  double before = 0;
  do {
    before = CpuSeconds();
    RunEventsFor(kPauseMilliseconds);
  } while (CpuSeconds() - before > kIdleSeconds);
}

double OpenedTool::Open(Tool tool) {
  double end = 0;
  const double start = CpuSeconds();
  OpenFor(tool, [&end](ToolForm& form) {
    end = CpuSeconds();
    form.close();
  });
  return end - start;
}

void OpenedTool::OpenFor(Tool tool, const Use& use) {
  const ShowWatch watch(use);
  if (const auto button = LaunchButtonOf(tool)) {
    main_.SSCommand2_Click(*button);
    return;
  }
  if (!withoutButton_) withoutButton_ = MakeToolForm(tool, &main_);
  do {
    withoutButton_->load();
  } while (withoutButton_->exec() == ToolForm::Reload);
}

}  // namespace halvane
