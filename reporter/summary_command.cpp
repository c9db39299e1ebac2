#include "reporter/summary_command.h"

#include <algorithm>

namespace halvane {
namespace {

/// Of those that were kept, to be written in pieces.
constexpr int kRowsAtOnce = 100;

class SummaryWorker : public JobWorker {
 public:
  SummaryWorker(const SummaryTools& tools, LengthUnit units, ReportFormat format,
                std::optional<std::size_t> sortColumn)
      : tools_(tools),
        units_(units),
        sortColumn_(sortColumn),
        writer_(MakeSummaryWriter(format, tools)) {}

  JobResult Do(const JobSource& job) override {
    JobResult result;
    result.outcome.complaints = Summarise(summary_, job, units_, tools_);
    result.outcome.failed = !result.outcome.complaints.empty();
    if (sortColumn_) result.rank = RankOf(summary_, *sortColumn_);
    writer_->Row(result.text, summary_);
    return result;
  }

 private:
  const SummaryTools& tools_;
  LengthUnit units_;
  std::optional<std::size_t> sortColumn_;
  std::unique_ptr<SummaryWriter> writer_;
  JobSummary summary_;  ///< of the job under way; a member, so that it keeps its memory
};

}  // namespace

SummaryCommand::SummaryCommand(SummaryTools tools, LengthUnit units, ReportFormat format,
                               const ToolRow* sortBy)
    : tools_(std::move(tools)),
      units_(units),
      format_(format),
      writer_(MakeSummaryWriter(format, tools_)) {
  const auto place = std::ranges::find(tools_, sortBy);
  if (place != tools_.end()) sortColumn_ = static_cast<std::size_t>(place - tools_.begin());
  keeps_ = sortColumn_ || !writer_->writesAsItGoes();
}

std::unique_ptr<JobWorker> SummaryCommand::MakeWorker() const {
  return std::make_unique<SummaryWorker>(tools_, units_, format_, sortColumn_);
}

void SummaryCommand::Take(std::string& out, JobResult& result) {
  if (!keeps_) {
    out += result.text;
    return;
  }
  writer_->Keep(result.text);
  kept_.Add(result.rank, std::move(result.text));
}

bool SummaryCommand::End(std::string& out) {
  if (!isEnding_) writer_->BeginKept(out);
  isEnding_ = true;
  for (int rows = 0; rows < kRowsAtOnce; ++rows) {
    const auto row = kept_.Next();
    if (!row) {
      writer_->End(out);
      return false;
    }
    writer_->Kept(out, *row);
  }
  return true;
}

}  // namespace halvane
