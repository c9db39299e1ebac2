#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include "app/tool_forms.h"
#include "benchmarks/benchmark_jobs.h"
#include "benchmarks/paint_watch.h"
#include "shell/halvane_application.h"
#include "shell/tool_form.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kWarmUp = 3;
constexpr int kTurns = 41;
constexpr QSize kStart{960, 620};
constexpr int kSteps = 300;
constexpr int kStepWidth = 2;

/// What the program's processors have done so far, in seconds.
double CpuSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
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

void Measure(Tool tool) {
  FillJob(kTasks, 1);
  // The main window stands when a tool is opened, and has made fonts and style known.
  QWidget main;
  PaintWatch watch(main);
  main.show();
  watch.WaitForPaint();
  const double first = OpeningSeconds(tool);
  std::vector<double> later;
  for (int turn = 0; turn < kWarmUp + kTurns; ++turn) {
    const double seconds = OpeningSeconds(tool);
    if (turn >= kWarmUp) later.push_back(seconds);
  }
  std::printf("%.9f\n", first);
  Print(later);
  Print(ResizingSeconds(tool));
}

}  // namespace
}  // namespace halvane

/// tool_opening TOOL: prints the seconds of work for the first opening of the tool, then the median
/// and the 90th percentile of later ones, then those of the steps of a resized window.
int main(int argc, char** argv) {
  const halvane::HalvaneApplication application(argc, argv);
  for (const halvane::ToolRow& row : halvane::Tools()) {
    if (argc != 2 || row.key != argv[1]) continue;
    halvane::Measure(row.tool);
    return 0;
  }
  return 2;
}
