#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/rich_text.h"
#include "reporter/failure.h"
#include "tools/tool_table.h"
#include "tools/working_value.h"

namespace halvane {

enum class ReportFormat {
  Text,
  Json,
  Html,
  Csv,  ///< of summaries alone
};

/// Puts the reports of a job into one format. Each function appends to `out`, in the order of the
/// calls.
class ReportWriter {
 public:
  ReportWriter() = default;
  virtual ~ReportWriter() = default;
  ReportWriter(const ReportWriter&) = delete;
  ReportWriter& operator=(const ReportWriter&) = delete;

  /// Before the first report.
  virtual void Begin(std::string& /*out*/) {}
  /// Before the reports on the job in `file`, which was read.
  virtual void BeginJob(std::string& /*out*/, std::string_view /*file*/) {}
  /// A tool's report on the job in `file`, and the working values that it left.
  virtual void Report(std::string& out, std::string_view file, const ToolRow& tool,
                      const RichText& report, const std::vector<WorkingValue>& results) = 0;
  /// The tool has no report on this job, which is no failure; the job was read.
  virtual void NoReport(std::string& out, std::string_view file, const ToolRow& tool,
                        const ReportFailure& reason) = 0;
  /// A tool's computation failed.
  virtual void ToolFailed(std::string& out, std::string_view file, const ToolRow& tool,
                          const ReportFailure& failure) = 0;
  /// A file could not be read, so none of the tools has a report.
  virtual void FileFailed(std::string& out, std::string_view file,
                          std::span<const ToolRow* const> tools, const ReportFailure& failure) = 0;
  /// Behind the reports on a job.
  virtual void EndJob(std::string& /*out*/) {}
  /// What stands between the reports of one job and those of the next.
  [[nodiscard]] virtual std::string_view betweenJobs() const { return {}; }
  /// Behind the last report.
  virtual void End(std::string& /*out*/) {}
};

/// `several`: more than one report was asked for, so each has to say what it is on.
std::unique_ptr<ReportWriter> MakeReportWriter(ReportFormat format, bool several);

}  // namespace halvane
