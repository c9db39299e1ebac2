#pragma once

#include <array>
#include <string>

#include "core/rich_text.h"
#include "reporter/report_writer.h"
#include "tools/tool_table.h"

namespace halvane {

/// Tools as the writers see them, one that works and one that fails. They make tests
/// independent of which tools the program has.
extern const std::array<ToolRow, 2> kTestTools;
inline const ToolRow& kGoodTool = kTestTools[0];
inline const ToolRow& kFailingTool = kTestTools[1];

/// A tool that has no report on any job.
extern const ToolRow kSilentTool;
/// A tool whose report is the number of the units in use.
extern const ToolRow kUnitsTool;

/// A report of one line.
RichText OneLine(std::string_view text, Alignment alignment = Alignment::Left,
                 const std::vector<int>& tabStops = {});

}  // namespace halvane
