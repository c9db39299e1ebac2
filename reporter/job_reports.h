#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "core/units.h"
#include "reporter/job_command.h"
#include "reporter/report_writer.h"

namespace halvane {

/// Opens a job file and appends the report of each tool on it to `out`. Every report is
/// that of a freshly started program in which `units` are chosen, that opens the file and then the
/// tool: nothing of another file or tool comes through.
///
/// Gives a sentence for each failure, with the file's name in it: none when all went well, one when
/// the file could not be read, one for each tool whose computation failed. A tool that has no
/// report on a job is no failure.
std::vector<std::string> AppendReports(std::string& out, ReportWriter& writer, const JobSource& job,
                                       LengthUnit units, std::span<const ToolRow* const> tools);

/// Writes the reports of some tools on each job.
class ReportCommand : public JobCommand {
 public:
  /// `several`: more than one report was asked for, so each has to say what it is on.
  ReportCommand(std::vector<const ToolRow*> tools, LengthUnit units, ReportFormat format,
                bool several);

  void Begin(std::string& out) override { writer_->Begin(out); }
  [[nodiscard]] std::unique_ptr<JobWorker> MakeWorker() const override;
  void Take(std::string& out, JobResult& result) override;
  bool End(std::string& out) override {
    writer_->End(out);
    return false;
  }

 private:
  std::vector<const ToolRow*> tools_;
  LengthUnit units_;
  ReportFormat format_;
  bool several_;
  std::unique_ptr<ReportWriter> writer_;  ///< of what stands around the jobs
  bool hasReports_ = false;               ///< of a job before
};

}  // namespace halvane
