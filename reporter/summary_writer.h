#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "reporter/job_summary.h"
#include "reporter/report_writer.h"

namespace halvane {

/// Puts summaries into one format. Each function appends to `out`, in the order of the calls.
class SummaryWriter {
 public:
  SummaryWriter() = default;
  virtual ~SummaryWriter() = default;
  SummaryWriter(const SummaryWriter&) = delete;
  SummaryWriter& operator=(const SummaryWriter&) = delete;

  /// Before the first job.
  virtual void Begin(std::string& /*out*/) {}
  virtual void Row(std::string& out, const JobSummary& summary) = 0;
  /// Behind the last job.
  virtual void End(std::string& /*out*/) {}

  // What is kept until the last row is there. `Row` may be that of other writers like this one.

  /// Looks at a row that is to be kept.
  virtual void Keep(std::string_view /*row*/) {}
  /// Before the first kept row is written.
  virtual void BeginKept(std::string& /*out*/) {}
  /// A row that `Row` has made before, in whatever order they are wanted.
  virtual void Kept(std::string& out, std::string_view row) { out += row; }

  /// Whether each row is written when it comes, rather than kept until the end.
  [[nodiscard]] virtual bool writesAsItGoes() const { return true; }
};

/// The tools, which all have a headline, in the order of their cells.
using SummaryTools = std::vector<const ToolRow*>;

std::unique_ptr<SummaryWriter> MakeSummaryWriter(ReportFormat format, const SummaryTools& tools);

/// A value of a headline as people read it: rounded as in the tool's report.
std::string ShownValue(const Headline::Value& value, const HeadlineColumn& column);

}  // namespace halvane
