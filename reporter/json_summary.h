#pragma once

#include "reporter/summary_writer.h"

namespace halvane {

/// Summaries for programs: one JSON object a line for each job. Numbers have all their digits.
class JsonSummary : public SummaryWriter {
 public:
  explicit JsonSummary(SummaryTools tools) : tools_(std::move(tools)) {}

  void Row(std::string& out, const JobSummary& summary) override;

 private:
  SummaryTools tools_;
};

}  // namespace halvane
