#pragma once

#include <optional>
#include <span>
#include <string>

#include "core/job_state.h"
#include "core/units.h"
#include "reporter/failure.h"
#include "tools/tool_table.h"

namespace halvane {

/// Makes `Module1` a freshly started program in which `units` are chosen and that has opened the
/// job file `file`: nothing of another file comes through. Gives what stopped it.
std::optional<ReportFailure> OpenAfresh(const std::string& file, LengthUnit units);

/// The names in the job. No tool stores any, and one may be as long as the file, so they are put
/// aside while the job is copied.
class Names {
 public:
  /// Puts the names of the job aside, or those put aside back into the job.
  void Swap();

 private:
  TaggedField analyst_;
  TaggedField job_;
  std::string workstation_;
  TaskArray<std::string> tasks_;
};

/// Runs `action` with each tool and its place in `tools`, `Module1` being the job each time as it
/// stands when this is called: nothing that one tool stores comes through to the next.
template <typename Action>
void ForEachTool(std::span<const ToolRow* const> tools, const Action& action) {
  // Lives on, so that the arrays keep their memory from job to job.
  static JobState opened;
  static Names names;
  for (std::size_t i = 0; i < tools.size(); ++i) {
    if (tools.size() > 1) {
      names.Swap();
      if (i == 0) opened = Module1;
      if (i > 0) Module1 = opened;
      names.Swap();
    }
    action(*tools[i], i);
  }
}

}  // namespace halvane
