#include "reporter/text_summary.h"

#include <algorithm>

#include "core/job_text_encoding.h"
#include "reporter/output.h"
#include "reporter/printable_text.h"

namespace halvane {
namespace {

constexpr std::size_t kGap = 2;
/// A longer text is cut, so that one job can't push the columns of all off the screen.
constexpr std::size_t kLongestText = 40;
constexpr std::string_view kCut = "...";

std::string Shortened(std::string_view text) {
  std::string printable = PrintableText(text);
  if (CharacterCount(printable) <= kLongestText) return printable;
  return std::string(FirstCharacters(printable, kLongestText - kCut.size())).append(kCut);
}

// How a row is kept: each cell with a mark in front, and behind it what no printable text holds.
constexpr char kNumberMark = '#';
constexpr char kTextMark = ' ';
constexpr char kCellEnd = '\n';

template <typename Cells>
void AppendKept(std::string& out, const Cells& cells) {
  for (const auto& cell : cells) {
    out += cell.isNumber ? kNumberMark : kTextMark;
    out.append(cell.text) += kCellEnd;
  }
}

}  // namespace

TextSummary::TextSummary(SummaryTools tools) : tools_(std::move(tools)) {
  const Cells headings = Headings();
  columns_.resize(headings.size());
  Widen(headings);
}

/// A row of two cells is a file that could not be read, and why.
void TextSummary::Row(std::string& out, const JobSummary& summary) {
  Cells cells{{PrintableText(summary.file)}};
  if (summary.failure) {
    cells.push_back({PrintableText(summary.failure->message)});
    AppendKept(out, cells);
    return;
  }
  for (const std::string* text : {&summary.analyst, &summary.job, &summary.workstation}) {
    cells.push_back({Shortened(*text)});
  }
  for (std::size_t i = 0; i < tools_.size(); ++i) {
    const auto columns = tools_[i]->headline->columns;
    const SummaryCell& cell = summary.cells[i];
    for (std::size_t j = 0; j < columns.size(); ++j) {
      if (cell.reason) {
        cells.push_back({j == 0 ? Shortened(ShortMessage(*cell.reason)) : ""});
      } else {
        const Headline::Value& value = cell.headline.values[j];
        cells.push_back(
            {ShownValue(value, columns[j]), !std::holds_alternative<std::string_view>(value)});
      }
    }
  }
  AppendKept(out, cells);
}

void TextSummary::Keep(std::string_view row) { Widen(CellsOf(row)); }

TextSummary::Cells TextSummary::Headings() const {
  Cells headings{{"File"}, {"Analyst"}, {"Job"}, {"Workstation"}};
  for (const ToolRow* tool : tools_) {
    for (const HeadlineColumn& column : tool->headline->columns) {
      headings.push_back({std::string(column.heading)});
    }
  }
  return headings;
}

TextSummary::Cells TextSummary::CellsOf(std::string_view keptRow) {
  Cells cells;
  while (!keptRow.empty()) {
    const std::size_t end = keptRow.find(kCellEnd);
    cells.push_back({std::string(keptRow.substr(1, end - 1)), keptRow.front() == kNumberMark});
    keptRow.remove_prefix(end + 1);
  }
  return cells;
}

void TextSummary::Widen(const Cells& cells) {
  // A reason beside a file's name is in nobody's way.
  const std::size_t count = cells.size() == columns_.size() ? columns_.size() : 1;
  for (std::size_t i = 0; i < count; ++i) {
    columns_[i].width = std::max(columns_[i].width, CharacterCount(cells[i].text));
    columns_[i].isNumber = columns_[i].isNumber || cells[i].isNumber;
  }
}

void TextSummary::AppendLine(std::string& out, const Cells& cells) const {
  std::size_t blanks = 0;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const std::size_t width = CharacterCount(cells[i].text);
    const std::size_t rest = columns_[i].width - std::min(width, columns_[i].width);
    out.append(blanks + (cells[i].isNumber ? rest : 0), ' ');
    out += cells[i].text;
    blanks = kGap + (cells[i].isNumber ? 0 : rest);
  }
  out += kLineEnd;
}

void TextSummary::BeginKept(std::string& out) {
  Cells headings = Headings();
  for (std::size_t i = 0; i < headings.size(); ++i) headings[i].isNumber = columns_[i].isNumber;
  AppendLine(out, headings);
}

void TextSummary::Kept(std::string& out, std::string_view row) { AppendLine(out, CellsOf(row)); }

}  // namespace halvane
