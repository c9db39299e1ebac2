#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
constexpr int kTurns = 21;

void Measure(Tool tool, const std::string& when) {
  OpenedTool opened(kTasks);
  if (when == "quiet") OpenedTool::BeQuiet();
  PrintSample("first", opened.Open(tool));
  for (int turn = 0; turn < kTurns; ++turn) PrintSample("later", opened.Open(tool));
}

}  // namespace
}  // namespace halvane

/// tool_opening TOOL [quiet]: from the launch button to the painted tool, as soon as the button
/// stands or after the main window has stood unused for a while.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
