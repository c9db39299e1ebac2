#pragma once

#include "reporter/summary_writer.h"

namespace halvane {

/// Summaries as one page that needs nothing else: a table without a script, a bar in each cell that
/// shows the headline's first value in the colour of its zone.
class HtmlSummary : public SummaryWriter {
 public:
  explicit HtmlSummary(SummaryTools tools) : tools_(std::move(tools)) {}

  void Begin(std::string& out) override;
  void Row(std::string& out, const JobSummary& summary) override;
  void End(std::string& out) override;

 private:
  SummaryTools tools_;
};

}  // namespace halvane
