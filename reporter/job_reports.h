#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/units.h"
#include "reporter/report_writer.h"

namespace halvane {

/// Opens the job file `file` and appends the report of each tool on it to `out`. Every report is
/// that of a freshly started program in which `units` are chosen, that opens the file and then the
/// tool: nothing of another file or tool comes through.
///
/// Gives a sentence for each failure, with the file's name in it: none when all went well, one when
/// the file could not be read, one for each tool whose computation failed. A tool that has no
/// report on a job is no failure.
std::vector<std::string> AppendReports(std::string& out, ReportWriter& writer,
                                       const std::string& file, LengthUnit units,
                                       std::span<const ToolRow* const> tools);

}  // namespace halvane
