#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/units.h"
#include "reporter/failure.h"
#include "reporter/job_source.h"
#include "tools/tool_table.h"

namespace halvane {

/// What a tool says of a job, or why it says nothing.
struct SummaryCell {
  Headline headline;
  std::optional<ReportFailure> reason;  ///< why there is no headline
};

/// One line of a summary.
struct JobSummary {
  std::string file;
  std::string analyst;
  std::string job;
  std::string workstation;
  std::vector<SummaryCell> cells;        ///< by tool
  std::optional<ReportFailure> failure;  ///< why the file could not be read; all else is empty then
};

/// Makes `summary` that of a job file. Every cell is that of a freshly started program in
/// which `units` are chosen, that opens the file and then the tool.
///
/// Gives a sentence for each failure, as `AppendReports` does.
std::vector<std::string> Summarise(JobSummary& summary, const JobSource& job, LengthUnit units,
                                   std::span<const ToolRow* const> tools);

/// How bad a job is by the cell `column`; nothing for one without a headline.
std::optional<double> RankOf(const JobSummary& summary, std::size_t column);

}  // namespace halvane
