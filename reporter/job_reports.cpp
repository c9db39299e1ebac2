#include "reporter/job_reports.h"

#include <optional>

#include "reporter/failure_cause.h"
#include "reporter/opened_job.h"

namespace halvane {

std::vector<std::string> AppendReports(std::string& out, ReportWriter& writer, const JobSource& job,
                                       LengthUnit units, std::span<const ToolRow* const> tools) {
  if (const auto failure = OpenAfresh(job.path, units)) {
    writer.FileFailed(out, job.name, tools, *failure);
    return {Complaint(job.name, *failure)};
  }
  writer.BeginJob(out, job.name);
  std::vector<std::string> complaints;
  ForEachTool(tools, [&](const ToolRow& tool, std::size_t /*place*/) {
    RichText report;
    bool hasReport = false;
    auto failure = Try([&]() -> std::optional<ReportFailure> {
      hasReport = tool.WriteReport(report);
      return std::nullopt;
    });
    if (failure) {
      ExplainFailure(*failure, tool, OpenedState(), job.path, [&tool] {
        RichText again;
        tool.WriteReport(again);
      });
    }
    if (!failure && !hasReport) {
      writer.NoReport(out, job.name, tool, kNoReport);
    } else if (failure) {
      writer.ToolFailed(out, job.name, tool, *failure);
      complaints.push_back(Complaint(job.name, tool.key, *failure));
    } else {
      writer.Report(out, job.name, tool, report, tool.workingValues());
    }
  });
  writer.EndJob(out);
  return complaints;
}

ReportCommand::ReportCommand(std::vector<const ToolRow*> tools, LengthUnit units,
                             ReportFormat format, bool several)
    : tools_(std::move(tools)), units_(units), writer_(MakeReportWriter(format, several)) {}

JobOutcome ReportCommand::Do(std::string& out, const JobSource& job) {
  auto complaints = AppendReports(out, *writer_, job, units_, tools_);
  const bool failed = !complaints.empty();
  return {failed, std::move(complaints)};
}

}  // namespace halvane
