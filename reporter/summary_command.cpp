#include "reporter/summary_command.h"

#include <algorithm>

namespace halvane {
namespace {

/// Of those that were kept, to be written in pieces.
constexpr int kRowsAtOnce = 100;

}  // namespace

SummaryCommand::SummaryCommand(SummaryTools tools, LengthUnit units, ReportFormat format,
                               const ToolRow* sortBy)
    : tools_(std::move(tools)), units_(units), writer_(MakeSummaryWriter(format, tools_)) {
  const auto place = std::ranges::find(tools_, sortBy);
  if (place != tools_.end()) sortColumn_ = static_cast<std::size_t>(place - tools_.begin());
  keeps_ = sortColumn_ || !writer_->writesAsItGoes();
}

JobOutcome SummaryCommand::Do(std::string& out, const JobSource& job) {
  auto complaints = Summarise(summary_, job, units_, tools_);
  if (keeps_) {
    std::string row;
    writer_->Row(row, summary_);
    kept_.Add(sortColumn_ ? RankOf(summary_, *sortColumn_) : std::nullopt, std::move(row));
  } else {
    writer_->Row(out, summary_);
  }
  const bool failed = !complaints.empty();
  return {failed, std::move(complaints)};
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
