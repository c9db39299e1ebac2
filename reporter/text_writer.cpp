#include "reporter/text_writer.h"

#include <algorithm>
#include <cstddef>

#include "core/job_text_encoding.h"
#include "reporter/output.h"
#include "reporter/printable_text.h"

namespace halvane {
namespace {

/// One column of characters in size 10.
constexpr int kTwipsPerColumn = 120;
/// Tab stops behind the last one of a paragraph.
constexpr std::size_t kDefaultTabColumns = 720 / kTwipsPerColumn;
/// The page that titles are centred on: 6 inches between its margins.
constexpr std::size_t kPageColumns = 6 * 1440 / kTwipsPerColumn;

std::size_t ColumnOf(int twips) {
  return static_cast<std::size_t>(std::max(0, twips + kTwipsPerColumn / 2) / kTwipsPerColumn);
}

/// The texts of a paragraph between its tabs.
using Cells = std::vector<std::string>;

Cells CellsOf(const Paragraph& paragraph) {
  Cells cells(1);
  for (const Run& run : paragraph.runs) {
    if (!run.picture.empty()) {
      cells.back() += "[picture: " + run.picture + "]";
      continue;
    }
    std::string_view text = run.text;
    while (true) {
      const std::size_t length = text.find(kTab);
      cells.back() += PrintableText(text.substr(0, length));
      if (length == std::string_view::npos) break;
      cells.emplace_back();
      text.remove_prefix(length + 1);
    }
  }
  return cells;
}

/// The column that the tab behind cell `number` goes to; `end` is where that cell ends.
std::size_t StopBehind(const ParagraphFormat& format, std::size_t number, std::size_t end) {
  if (number < format.tabStops.size()) return ColumnOf(format.tabStops[number]);
  return (end / kDefaultTabColumns + 1) * kDefaultTabColumns;
}

/// Lines with tabs that follow each other, as a table. Characters here are wider than on the
/// printed page, so a text can pass a stop that it does not reach there. A column then begins
/// behind the widest text before it, in every line, so that columns stay columns.
class Table {
 public:
  void Add(const Paragraph& paragraph) { rows_.push_back({&paragraph, CellsOf(paragraph)}); }

  /// Appends the lines and begins anew.
  void AppendTo(std::string& out) {
    const std::vector<std::size_t> starts = Starts();
    for (const Row& row : rows_) {
      std::size_t column = 0;
      for (std::size_t i = 0; i < row.cells.size(); ++i) {
        out.append(starts[i] - column, ' ');
        out += row.cells[i];
        column = starts[i] + CharacterCount(row.cells[i]);
      }
      out += kLineEnd;
    }
    rows_.clear();
  }

 private:
  struct Row {
    const Paragraph* paragraph;
    Cells cells;
  };

  /// Where each column begins.
  [[nodiscard]] std::vector<std::size_t> Starts() const {
    std::vector<std::size_t> starts(1, 0);
    while (true) {
      const std::size_t before = starts.size() - 1;
      std::size_t start = 0;
      for (const Row& row : rows_) {
        // A text without a tab behind it is in nobody's way.
        if (row.cells.size() <= before + 1) continue;
        const std::size_t end = starts[before] + CharacterCount(row.cells[before]);
        start = std::max({start, end + 1, StopBehind(row.paragraph->format, before, end)});
      }
      if (start == 0) return starts;
      starts.push_back(start);
    }
  }

  std::vector<Row> rows_;
};

std::size_t Indent(Alignment alignment, std::size_t width) {
  const std::size_t room = kPageColumns - std::min(width, kPageColumns);
  switch (alignment) {
    case Alignment::Center: return room / 2;
    case Alignment::Right: return room;
    case Alignment::Left: break;
  }
  return 0;
}

void AppendLine(std::string& out, const Paragraph& paragraph) {
  const std::string text = CellsOf(paragraph).front();
  if (!text.empty()) out.append(Indent(paragraph.format.alignment, CharacterCount(text)), ' ');
  out += text;
  out += kLineEnd;
}

bool HasTab(const Paragraph& paragraph) {
  return std::any_of(paragraph.runs.begin(), paragraph.runs.end(),
                     [](const Run& run) { return run.text.find(kTab) != std::string::npos; });
}

}  // namespace

void TextWriter::AppendHeading(std::string& out, std::string_view file, const ToolRow& tool) {
  if (!withHeadings_) return;
  if (!isFirst_) out += kLineEnd;
  isFirst_ = false;
  out += "===== " + PrintableText(file) + ": " + std::string(tool.key) + " =====";
  out += kLineEnd;
  out += kLineEnd;
}

std::string_view TextWriter::betweenJobs() const { return withHeadings_ ? kLineEnd : ""; }

void TextWriter::Report(std::string& out, std::string_view file, const ToolRow& tool,
                        const RichText& report, const std::vector<WorkingValue>& /*results*/) {
  AppendHeading(out, file, tool);
  Table table;
  for (const Paragraph& paragraph : report.paragraphs()) {
    if (HasTab(paragraph)) {
      table.Add(paragraph);
      continue;
    }
    table.AppendTo(out);
    AppendLine(out, paragraph);
  }
  table.AppendTo(out);
}

void TextWriter::NoReport(std::string& out, std::string_view file, const ToolRow& tool,
                          const ReportFailure& reason) {
  AppendHeading(out, file, tool);
  out += reason.message;
  out += kLineEnd;
}

}  // namespace halvane
