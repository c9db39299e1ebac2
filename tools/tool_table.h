#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "core/rich_text.h"
#include "tools/headline.h"
#include "tools/working_value.h"

namespace halvane {

/// The six tools. The first five stand in the order of the launch buttons; the last has no button.
enum class Tool { Ocra, Ctd, StrainIndex, Reba, Rula, Hal };

/// What the rest of the program knows of a tool, in one row.
struct ToolRow {
  Tool tool;
  std::string_view key;            ///< name on the reporter's command line
  std::string_view buttonCaption;  ///< launch button; empty: no button
  std::string_view buttonTip;      ///< tool tip of the launch button
  std::string_view title;          ///< of the tool's form
  std::string_view helpTopic;      ///< page of the help file

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
