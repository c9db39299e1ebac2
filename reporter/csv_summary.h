#pragma once

#include "reporter/summary_writer.h"

namespace halvane {

/// Summaries for spreadsheets and scripts: a line of headings, then one line a job, whatever its
/// texts hold. Numbers have all their digits. The reason why a tool has no headline stands in its
/// first cell, the one why a file could not be read in the last cell of the line.
class CsvSummary : public SummaryWriter {
 public:
  explicit CsvSummary(SummaryTools tools) : tools_(std::move(tools)) {}

  void Begin(std::string& out) override;
  void Row(std::string& out, const JobSummary& summary) override;

 private:
  SummaryTools tools_;
};

/// Appends a text as one cell: in quotes where it holds a comma, a quote or blanks at its ends, and
/// with an apostrophe in front where a spreadsheet would take it for a formula. What is no
/// well-formed UTF-8 and control characters come out as U+FFFD.
void AppendCsvText(std::string& out, std::string_view text);

}  // namespace halvane
