#include "reporter/summary_command.h"

#include <algorithm>

namespace halvane {

SummaryCommand::SummaryCommand(SummaryTools tools, LengthUnit units, ReportFormat format,
                               const ToolRow* sortBy)
    : tools_(std::move(tools)), units_(units), writer_(MakeSummaryWriter(format, tools_)) {
  const auto place = std::ranges::find(tools_, sortBy);
  if (place != tools_.end()) sortColumn_ = static_cast<std::size_t>(place - tools_.begin());
}

JobOutcome SummaryCommand::Do(std::string& out, const JobSource& job) {
  auto complaints = Summarise(summary_, job, units_, tools_);
  if (sortColumn_) {
    kept_.push_back(summary_);
  } else {
    writer_->Row(out, summary_);
  }
  const bool failed = !complaints.empty();
  return {failed, std::move(complaints)};
}

void SummaryCommand::End(std::string& out) {
  if (sortColumn_) {
    std::ranges::stable_sort(kept_, [this](const JobSummary& a, const JobSummary& b) {
      return IsWorse(a, b, *sortColumn_);
    });
    for (const JobSummary& summary : kept_) writer_->Row(out, summary);
    kept_.clear();
  }
  writer_->End(out);
}

}  // namespace halvane
