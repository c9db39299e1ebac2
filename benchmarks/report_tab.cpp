#include <QTabBar>
#include <QTabWidget>

#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"
#include "core/job_state.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kTurns = 21;

class Report {
 public:
  explicit Report(ToolForm& form)
      : form_(form), bar_(*form.findChild<QTabWidget*>("SSTab1")->tabBar()) {}

  void Show(const std::string& when) {
    const double seconds =
        SecondsOf(form_, [this] { Click(bar_, bar_.tabRect(bar_.count() - 1).center()); });
    PrintSample(QString::fromStdString(when), seconds);
    Click(bar_, bar_.tabRect(0).center());
    FinishTurn();
  }

 private:
  ToolForm& form_;
  QTabBar& bar_;
};

void Measure(Tool tool, const std::string& when) {
  OpenedTool opened(kTasks);
  if (when == "quiet") OpenedTool::BeQuiet();
  opened.OpenFor(tool, [](ToolForm& form) {
    FinishTurn();
    Report report(form);
    report.Show("first");
    for (int turn = 0; turn < kTurns; ++turn) report.Show("later");
    for (int turn = 0; turn < kTurns; ++turn) {
      Module1.JobName = "Job " + std::to_string(turn);
      report.Show("changed");
    }
    form.close();
  });
}

}  // namespace
}  // namespace halvane

/// report_tab TOOL [quiet]: from the click on the tool's report tab to its painted pane, later with
/// all as in the report before, then with another name of the job each time.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
