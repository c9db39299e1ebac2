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
  const ToolHeadline* headline = nullptr;
  /// What opening the tool does to the job, its form's load included, without the form. False for a
  /// job that the tool has no report on.
  bool (*open)() = nullptr;
  /// Computes the job and writes the report, as the form does when its report is to be shown.
  void (*report)(RichText& RichTextBox1) = nullptr;
  /// The working values that a computation leaves.
  std::vector<WorkingValue> (*workingValues)() = nullptr;

  /// Does what opening the tool and its report tab does on the present job. False, with nothing
  /// written, for a job that the tool has no report on.
  bool WriteReport(RichText& RichTextBox1) const;
};

/// All tools; a row stands at the number of its `Tool`.
std::span<const ToolRow> Tools();
const ToolRow& RowOf(Tool tool);

}  // namespace halvane
