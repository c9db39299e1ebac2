#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"
#include "tools/task_list/task_tree.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kTurns = 41;
/// So many tasks of a list stand in its window on any screen.
constexpr int kOnView = 3;

void Measure(Tool tool, const std::string& /*argument*/) {
  OpenedTool opened(kTasks);
  opened.OpenFor(tool, [](ToolForm& form) {
    auto& tree = *form.findChild<TaskTree*>();
    tree.scrollToTop();
    FinishTurn();
    for (int turn = 0; turn < kTurns; ++turn) {
      const int place = 1 + turn % kOnView;
      const QPoint row = tree.visualItemRect(tree.topLevelItem(place)).center();
      const double seconds = SecondsOf(form, [&] { Click(*tree.viewport(), row); });
      Require(tree.SelectedTask() == place + 1, "no task was selected");
      PrintSample("task", seconds);
    }
    form.close();
  });
}

}  // namespace
}  // namespace halvane

/// task_select TOOL: a click on a task of the tool's list.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
