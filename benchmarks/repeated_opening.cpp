#include <fstream>
#include <string>

#include "benchmarks/action.h"
#include "benchmarks/opened_tool.h"
#include "core/number_text.h"

namespace halvane {
namespace {

constexpr int kTasks = 40;
/// From here on nothing is made for the first time.
constexpr int kFirstCounted = 50;
constexpr int kOpenings = 500;

/// The memory of the program, each page of it counted: what other files tell is up to date now and
/// then.
double KibibytesInUse() {
  std::ifstream memory("/proc/self/smaps_rollup");
  std::string word;
  while (memory >> word && word != "Rss:") {
  }
  double kibibytes = 0;
  memory >> kibibytes;
  return kibibytes;
}

void Measure(Tool tool, const std::string& openings) {
  const int count = openings.empty() ? kOpenings : static_cast<int>(ReadsAs(openings));
  OpenedTool opened(kTasks);
  double before = 0;
  for (int turn = 1; turn <= count; ++turn) {
    opened.Open(tool);
    if (turn == kFirstCounted) before = KibibytesInUse();
  }
  PrintSample("growth", KibibytesInUse() - before);
}

}  // namespace
}  // namespace halvane

/// repeated_opening TOOL [OPENINGS]: by how much the memory has grown from the 50th opening of a
/// tool to the last, 500 if no other number is given.
int main(int argc, char** argv) { return halvane::RunOnTool(argc, argv, halvane::Measure); }
