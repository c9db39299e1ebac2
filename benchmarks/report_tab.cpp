#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "app/tool_forms.h"
#include "benchmarks/benchmark_jobs.h"
#include "benchmarks/paint_watch.h"
#include "shell/halvane_application.h"
#include "shell/tool_form.h"
#include "tools/tool_table.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kWarmUp = 3;
constexpr int kTurns = 41;

void Click(QTabBar& bar, int tab) {
  const QPointF place = bar.tabRect(tab).center();
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QCoreApplication::postEvent(
        &bar, new QMouseEvent(type, place, bar.mapToGlobal(place), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier));
  }
}

/// Seconds from the click on a tool's report tab until its pane is painted, the median of many.
double ReportTabSeconds(Tool tool) {
  FillJob(kTasks, 1);
  const auto form = MakeToolForm(tool, nullptr);
  form->load();
  auto* tabs = form->findChild<QTabWidget*>("SSTab1");
  const int report = tabs->count() - 1;
  PaintWatch input(*tabs->widget(0));
  PaintWatch pane(*form->findChild<RichTextBox*>()->viewport());
  form->show();
  input.WaitForPaint();
  std::vector<double> seconds;
  for (int turn = 0; turn < kWarmUp + kTurns; ++turn) {
    QElapsedTimer timer;
    timer.start();
    Click(*tabs->tabBar(), report);
    pane.WaitForPaint();
    if (turn >= kWarmUp) seconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e9);
    Click(*tabs->tabBar(), 0);
    input.WaitForPaint();
  }
  std::nth_element(seconds.begin(), seconds.begin() + kTurns / 2, seconds.end());
  return seconds[kTurns / 2];
}

}  // namespace
}  // namespace halvane

/// report_tab TOOL: prints the seconds from the click on the tool's report tab to the painted pane.
int main(int argc, char** argv) {
  halvane::HalvaneApplication application(argc, argv);
  for (const halvane::ToolRow& row : halvane::Tools()) {
    if (argc != 2 || row.key != argv[1]) continue;
    std::printf("%.9f\n", halvane::ReportTabSeconds(row.tool));
    return 0;
  }
  return 2;
}
