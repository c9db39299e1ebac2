#pragma once

#include <string>

#include "reporter/summary_writer.h"

namespace halvane {

/// Two tools with headlines, which make tests independent of those that the program has: "index"
/// has a number with two decimals and a zone, its bar is full at 8; "grade" has a whole score and a
/// whole level, its bar is full at 10.
extern const ToolRow kIndexTool;
extern const ToolRow kGradeTool;
SummaryTools SampleTools();

/// A job in a.qjt with the headlines 1.5 in the zone "Yellow" and 9, 3.
JobSummary SampleSummary();
/// A file that could not be read.
JobSummary UnreadableSummary();

/// What a writer makes of the summaries, from begin to end.
std::string Written(SummaryWriter& writer, const std::vector<JobSummary>& summaries);

}  // namespace halvane
