#pragma once

#include <optional>

#include "reporter/job_command.h"
#include "reporter/kept_rows.h"
#include "reporter/summary_writer.h"

namespace halvane {

/// Writes one line a job, with the headline of each tool.
class SummaryCommand : public JobCommand {
 public:
  /// `sortBy`: one of `tools` by which the worst jobs come first, so that all rows are kept until
  /// the end; null: the lines stand in the order of the jobs.
  SummaryCommand(SummaryTools tools, LengthUnit units, ReportFormat format, const ToolRow* sortBy);

  void Begin(std::string& out) override { writer_->Begin(out); }
  [[nodiscard]] std::unique_ptr<JobWorker> MakeWorker() const override;
  void Take(std::string& out, JobResult& result) override;
  bool End(std::string& out) override;
  [[nodiscard]] bool writesAsItGoes() const override { return !keeps_; }

 private:
  SummaryTools tools_;
  LengthUnit units_;
  ReportFormat format_;
  std::optional<std::size_t> sortColumn_;  ///< place of the tool
  std::unique_ptr<SummaryWriter> writer_;
  bool keeps_ = false;
  KeptRows kept_;
  bool isEnding_ = false;
};

}  // namespace halvane
