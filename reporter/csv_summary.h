#pragma once

#include "reporter/summary_writer.h"

namespace halvane {

/// Summaries for spreadsheets and scripts, as RFC 4180 has them: a line of headings, then one line
/// a job, whatever its texts hold. Numbers have all their digits. A column has one kind: the cells
/// of a tool without a headline are empty, and why stands in a column of reasons. The file's name
/// stands twice, first for programs, as it is, last for people, as all other texts.
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
