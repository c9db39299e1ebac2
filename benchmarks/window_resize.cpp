#include <QTabBar>
#include <QTabWidget>

#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr QSize kStart{960, 620};
constexpr QSize kStep{4, 2};
constexpr int kSteps = 75;

/// Drags the window wider and higher by its corner, from the least size to the whole screen.
void Drag(ToolForm& form, const QString& page) {
  form.resize(kStart);
  FinishTurn();
  for (int step = 1; step <= kSteps; ++step) {
    PrintSample(page, SecondsOf(form, [&] { form.resize(kStart + step * kStep); }));
  }
}

void Measure(Tool tool, const std::string& /*argument*/) {
  OpenedTool opened(kTasks);
  opened.OpenFor(tool, [](ToolForm& form) {
    OnEveryPage(form, [&form](const QString& page) { Drag(form, page); });
    if (auto* tabs = form.findChild<QTabWidget*>("SSTab1")) {
      const int report = tabs->count() - 1;
      Click(*tabs->tabBar(), tabs->tabBar()->tabRect(report).center());
      FinishTurn();
      Drag(form, tabs->tabText(report));
    }
    form.close();
  });
}

}  // namespace
}  // namespace halvane

/// window_resize TOOL: a step of the tool's window that is dragged larger by its corner, on each of
/// its pages.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
