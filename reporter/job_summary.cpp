#include "reporter/job_summary.h"

#include "core/job_state.h"
#include "reporter/failure_cause.h"
#include "reporter/opened_job.h"

namespace halvane {
namespace {

/// Gives what stopped the tool, a job that it has no report on included.
std::optional<ReportFailure> ReadHeadline(Headline& headline, const ToolHeadline& tool) {
  return Try([&]() -> std::optional<ReportFailure> {
    if (!tool.compute()) return kNoReport;
    headline = tool.read();
    return std::nullopt;
  });
}

}  // namespace

std::vector<std::string> Summarise(JobSummary& summary, const JobSource& job, LengthUnit units,
                                   std::span<const ToolRow* const> tools) {
  summary.file = job.name;
  summary.failure = OpenAfresh(job.path, units);
  if (summary.failure) {
    summary.analyst.clear();
    summary.job.clear();
    summary.workstation.clear();
    summary.cells.clear();
    return {Complaint(job.name, *summary.failure)};
  }
  summary.analyst = NameFrom(Module1.JobAnalyst);
  summary.job = NameFrom(Module1.JobName);
  summary.workstation = NameFrom(Module1.JobWorkstationId);

  std::vector<std::string> complaints;
  summary.cells.resize(tools.size());
  ForEachTool(tools, [&](const ToolRow& tool, std::size_t place) {
    SummaryCell& cell = summary.cells[place];
    cell.reason = ReadHeadline(cell.headline, *tool.headline);
    if (cell.reason && cell.reason->kind != kNoReport.kind) {
      ExplainFailure(*cell.reason, tool, OpenedState(), job.path,
                     [&tool] { tool.headline->compute(); });
      complaints.push_back(Complaint(job.name, tool.key, *cell.reason));
    }
  });
  return complaints;
}

std::optional<double> RankOf(const JobSummary& summary, std::size_t column) {
  if (summary.failure || summary.cells[column].reason) return std::nullopt;
  const Headline::Value& value = summary.cells[column].headline.values.front();
  if (const auto* whole = std::get_if<int>(&value)) return *whole;
  return std::get<double>(value);
}

}  // namespace halvane
