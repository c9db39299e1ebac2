#pragma once

#include "reporter/summary_writer.h"

namespace halvane {

/// Summaries as a table of equally wide characters. All rows are kept until the end, since the
/// widest one decides where the columns begin.
class TextSummary : public SummaryWriter {
 public:
  explicit TextSummary(SummaryTools tools) : tools_(std::move(tools)) {}

  void Row(std::string& out, const JobSummary& summary) override;
  void End(std::string& out) override;
  [[nodiscard]] bool writesAsItGoes() const override { return false; }

 private:
  struct Cell {
    std::string text;
    bool isNumber = false;
  };
  using Cells = std::vector<Cell>;
  struct Column {
    std::size_t width = 0;
    bool isNumber = false;  ///< one of its cells at least is
  };

  [[nodiscard]] Cells Headings() const;
  [[nodiscard]] std::vector<Column> Columns(const Cells& headings) const;

  SummaryTools tools_;
  std::vector<Cells> rows_;  ///< one of two cells: a file that could not be read, and why
};

}  // namespace halvane
