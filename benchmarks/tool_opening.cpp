#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/tool_forms.h"
#include "benchmarks/benchmark_jobs.h"
#include "benchmarks/paint_watch.h"
#include "core/tool_names.h"
#include "shell/frm_hand_main.h"
#include "shell/halvane_application.h"
#include "shell/tool_form.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kTurns = 41;
constexpr QSize kStart{960, 620};
constexpr int kSteps = 300;
constexpr int kStepWidth = 2;
constexpr int kQuietMilliseconds = 2000;
constexpr int kTurnMilliseconds = 20;

/// What the program's processors have done so far, in seconds.
double CpuSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

/// Notes when the tool that the main window opens has been painted, and closes it.
class OpeningWatch : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* form = qobject_cast<ToolForm*>(watched);
    if (form != nullptr && event->type() == QEvent::Paint) {
      // What is painted reaches the screen at the end of the turn.
      QTimer::singleShot(0, form, [this, form] {
        end_ = CpuSeconds();
        form->close();
      });
    }
    return QObject::eventFilter(watched, event);
  }

  [[nodiscard]] double end() const { return end_; }

 private:
  double end_ = 0;
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

/// Lets the program stand unused for a while.
void BeQuiet() {
  QElapsedTimer time;
  time.start();
  while (time.elapsed() < kQuietMilliseconds) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, kTurnMilliseconds);
  }
}

/// Seconds of work from a launch button until the tool is painted.
double LaunchSeconds(FrmHandMain& window, int button) {
  OpeningWatch watch;
  qApp->installEventFilter(&watch);
  const double start = CpuSeconds();
  window.SSCommand2_Click(button);
  return watch.end() - start;
}

/// Seconds of work from the command that opens a tool until it is painted.
double OpeningSeconds(Tool tool) {
  const double start = CpuSeconds();
  const auto form = MakeToolForm(tool, nullptr);
  form->load();
  PaintWatch watch(*form);
  form->show();
  watch.WaitForPaint();
  const double seconds = CpuSeconds() - start;
  form->hide();
  return seconds;
}

/// Seconds of work for each step of a window that is dragged wider and higher by its corner.
std::vector<double> ResizingSeconds(Tool tool) {
  const auto form = MakeToolForm(tool, nullptr);
  form->load();
  PaintWatch watch(*form);
  form->show();
  watch.WaitForPaint();
  std::vector<double> steps;
  for (int step = 0; step < kSteps; ++step) {
    const double start = CpuSeconds();
    form->resize(kStart + QSize(kStepWidth * step, step));
    watch.WaitForPaint();
    steps.push_back(CpuSeconds() - start);
  }
  return steps;
}

void Print(std::vector<double> seconds) {
  std::sort(seconds.begin(), seconds.end());
  std::printf("%.9f %.9f\n", seconds[seconds.size() / 2], seconds[seconds.size() * 9 / 10]);
}

void Measure(Tool tool, bool afterQuiet) {
  FrmHandMain main(MakeToolForm);
  PaintWatch watch(main);
  main.show();
  watch.WaitForPaint();
  FillJob(kTasks, 1);
  const std::optional<int> button = LaunchButtonOf(tool);
  const auto open = [&] { return button ? LaunchSeconds(main, *button) : OpeningSeconds(tool); };
  main.Timer1_Timer();
  if (afterQuiet) BeQuiet();
  std::printf("%.9f\n", open());
  if (afterQuiet) return;
  std::vector<double> later;
  for (int turn = 0; turn < kTurns; ++turn) later.push_back(open());
  Print(later);
  Print(ResizingSeconds(tool));
}

}  // namespace
}  // namespace halvane

/// tool_opening TOOL: prints the seconds of work for the first opening of the tool, then the median
/// and the 90th percentile of later ones, then those of the steps of a resized window.
/// tool_opening TOOL quiet: prints those of the first opening after the main window has stood for a
/// while, and no more.
int main(int argc, char** argv) {
  const halvane::HalvaneApplication application(argc, argv);
  const bool afterQuiet = argc == 3 && std::string_view(argv[2]) == "quiet";
  for (const halvane::ToolRow& row : halvane::Tools()) {
    if ((argc != 2 && !afterQuiet) || row.key != argv[1]) continue;
    halvane::Measure(row.tool, afterQuiet);
    return 0;
  }
  return 2;
}
