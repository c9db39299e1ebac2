#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "core/job_state.h"
#include "core/units.h"
#include "reporter/failure.h"
#include "tools/tool_table.h"

namespace halvane {

/// Makes `Module1` a freshly started program in which `units` are chosen and that has opened the
/// job file `file`: nothing of another file comes through. Gives what stopped it.
std::optional<ReportFailure> OpenAfresh(const std::string& file, LengthUnit units);

/// The text of a name of the job. A long one is taken out of the job, for who runs nothing on it
/// afterwards that looks at names.
std::string NameFrom(TaggedField& name);
std::string NameFrom(std::string& name);

/// The long names of a job, of which one may be as long as its file. They are put aside while the
/// job is copied, so that there is one of each: no tool of the program stores a name.
class LongNames {
 public:
  /// Moves them out of `Module1`, which is left without them.
  void PutAside();
  /// Moves them back to where they were.
  void PutBack();

 private:
  std::vector<std::pair<int, TaggedField>> names_;  ///< by the number of the name in the job
};

/// Keeps the job of `Module1`, and makes `Module1` that job again after a tool has run on it. What
/// no tool stores is not copied but stays in `Module1`, so whatever else becomes of the job between
/// the two has to be undone.
void KeepOpenedState();
void TakeOpenedState();

/// The job that is kept, with what stayed in `Module1` and without its long names.
JobState OpenedState();

/// Runs `action` with each tool and its place in `tools`, `Module1` being the job each time as it
/// stands when this is called: nothing that one tool stores comes through to the next.
template <typename Action>
void ForEachTool(std::span<const ToolRow* const> tools, const Action& action) {
  for (std::size_t i = 0; i < tools.size(); ++i) {
    i == 0 ? KeepOpenedState() : TakeOpenedState();
    action(*tools[i], i);
  }
}

}  // namespace halvane
