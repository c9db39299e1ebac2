#include <QTabBar>
#include <QTabWidget>

#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kTurns = 21;

void Measure(Tool tool, const std::string& when) {
  OpenedTool opened(kTasks);
  if (when == "quiet") OpenedTool::BeQuiet();
  opened.OpenFor(tool, [](ToolForm& form) {
    auto* tabs = form.findChild<QTabWidget*>("SSTab1");
    QTabBar& bar = *tabs->tabBar();
    FinishTurn();
    for (int turn = 0; turn <= kTurns; ++turn) {
      const double seconds =
          SecondsOf(form, [&bar] { Click(bar, bar.tabRect(bar.count() - 1).center()); });
      PrintSample(turn == 0 ? "first" : "later", seconds);
      Click(bar, bar.tabRect(0).center());
      FinishTurn();
    }
    form.close();
  });
}

}  // namespace
}  // namespace halvane

/// report_tab TOOL [quiet]: from the click on the tool's report tab to its painted pane.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
