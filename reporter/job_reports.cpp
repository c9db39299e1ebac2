#include "reporter/job_reports.h"

#include <algorithm>
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

namespace {

class ReportWorker : public JobWorker {
 public:
  ReportWorker(std::span<const ToolRow* const> tools, LengthUnit units, ReportFormat format,
               bool several)
      : tools_(tools), units_(units), format_(format), several_(several) {}

  JobResult Do(const JobSource& job) override {
    JobResult result;
    // Jobs are much alike, and room that grows as it is filled costs time.
    result.text.reserve(std::min(lastSize_, kMostRoom));
    const auto writer = MakeReportWriter(format_, several_);
    result.outcome.complaints = AppendReports(result.text, *writer, job, units_, tools_);
    result.outcome.failed = !result.outcome.complaints.empty();
    lastSize_ = result.text.size();
    return result;
  }

 private:
  static constexpr std::size_t kMostRoom = std::size_t{1} << 16;  ///< that a long job leaves behind

  std::span<const ToolRow* const> tools_;
  LengthUnit units_;
  ReportFormat format_;
  bool several_;
  std::size_t lastSize_ = 0;  ///< of the text of a job
};

}  // namespace

ReportCommand::ReportCommand(std::vector<const ToolRow*> tools, LengthUnit units,
                             ReportFormat format, bool several)
    : tools_(std::move(tools)),
      units_(units),
      format_(format),
      several_(several),
      writer_(MakeReportWriter(format, several)) {}

std::unique_ptr<JobWorker> ReportCommand::MakeWorker() const {
  return std::make_unique<ReportWorker>(tools_, units_, format_, several_);
}

void ReportCommand::Take(std::string& out, JobResult& result) {
  if (result.text.empty()) return;
  if (hasReports_) out += writer_->betweenJobs();
  hasReports_ = true;
  out += result.text;
}

}  // namespace halvane
