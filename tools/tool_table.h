#pragma once

#include <span>
#include <vector>

#include "core/rich_text.h"
#include "core/tool_names.h"
#include "tools/headline.h"
#include "tools/working_value.h"

namespace halvane {

/// A tool without its screen, in one row: what it is called and what it does.
struct ToolRow : ToolName {
  /// How it computes, and its line in a summary.
  const ToolHeadline* headline;
  /// Writes the report of the last computation.
  void (*print)(RichText& RichTextBox1);
  /// The working values that a computation leaves.
  std::vector<WorkingValue> (*workingValues)();

  /// Does what opening the tool and its report tab does, form load included, on the present job,
  /// without a screen. False, with nothing written, for a job that the tool has no report on.
  bool WriteReport(RichText& RichTextBox1) const;
};

/// All tools; a row stands at the number of its `Tool`.
std::span<const ToolRow> Tools();
const ToolRow& RowOf(Tool tool);

}  // namespace halvane
