#pragma once

#include "reporter/summary_writer.h"

namespace halvane {

/// Summaries as a table of equally wide characters. All rows are kept until the end, since the
/// widest one decides where the columns begin; of each column only that width is in memory.
class TextSummary : public SummaryWriter {
 public:
  explicit TextSummary(SummaryTools tools);

  /// Appends the cells of the row as they are kept.
  void Row(std::string& out, const JobSummary& summary) override;
  void Keep(std::string_view row) override;
  void BeginKept(std::string& out) override;
  void Kept(std::string& out, std::string_view row) override;
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

  static Cells CellsOf(std::string_view keptRow);
  [[nodiscard]] Cells Headings() const;
  void Widen(const Cells& cells);
  void AppendLine(std::string& out, const Cells& cells) const;

  SummaryTools tools_;
  std::vector<Column> columns_;
};

}  // namespace halvane
