#include <QTabBar>
#include <QTabWidget>

#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"
#include "core/number_text.h"

namespace halvane {
namespace {

constexpr int kTurns = 3;

void Measure(Tool tool, const std::string& tasks) {
  OpenedTool opened(static_cast<int>(ReadsAs(tasks)));
  OpenedTool::BeQuiet();
  for (int turn = 0; turn < kTurns; ++turn) {
    PrintSample("opening", opened.Open(tool));
    opened.OpenFor(tool, [](ToolForm& form) {
      QTabBar& bar = *form.findChild<QTabWidget*>("SSTab1")->tabBar();
      FinishTurn();
      PrintSample("report",
                  SecondsOf(form, [&bar] { Click(bar, bar.tabRect(bar.count() - 1).center()); }));
      Click(bar, bar.tabRect(0).center());
      FinishTurn();
      form.close();
    });
  }
}

}  // namespace
}  // namespace halvane

/// long_list TOOL TASKS: opening and report of a tool whose job has so many tasks.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
