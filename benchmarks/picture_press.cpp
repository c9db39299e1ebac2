#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kTurns = 5;

void Measure(Tool tool, const std::string& /*argument*/) {
  OpenedTool opened(kTasks);
  opened.OpenFor(tool, [](ToolForm& form) {
    OnEveryPage(form, [&form](const QString& page) {
      const auto pictures = UsableOnView<RibbonButton>(form);
      // A user looks at them first.
      OpenedTool::BeIdle();
      for (int turn = 0; turn < kTurns; ++turn) {
        for (RibbonButton* picture : pictures) {
          // One that another has hidden is on another page.
          if (!picture->isVisible()) continue;
          const double seconds =
              SecondsOf(form, [picture] { Click(*picture, picture->rect().center()); });
          PrintSample(page + ", " + picture->objectName(), seconds);
        }
      }
    });
    form.close();
  });
}

}  // namespace
}  // namespace halvane

/// picture_press TOOL: a click on each picture button of the tool.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
