#pragma once

#include "core/runtime_failure.h"
#include "tools/tool_table.h"

namespace halvane {

/// What a failure came out of.
struct Situation {
  Tool tool;
  bool isOdd;             ///< the job was opened from a file with values that no user can give
  bool savedInABadPlace;  ///< the job's file name is no place for a file
};

/// Whether the requirements let the program end on this failure there. What they do not name is a
/// finding, however rare.
bool IsAllowed(FailureKind kind, const Situation& situation);

}  // namespace halvane
