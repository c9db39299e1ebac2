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
  return FirstCharacters(printable, kLongestText - kCut.size()).append(kCut);
}

}  // namespace

void TextSummary::Row(std::string& /*out*/, const JobSummary& summary) {
  Cells cells{{PrintableText(summary.file)}};
  if (summary.failure) {
    cells.push_back({PrintableText(summary.failure->message)});
    rows_.push_back(std::move(cells));
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
  rows_.push_back(std::move(cells));
}

TextSummary::Cells TextSummary::Headings() const {
  Cells headings{{"File"}, {"Analyst"}, {"Job"}, {"Workstation"}};
  for (const ToolRow* tool : tools_) {
    for (const HeadlineColumn& column : tool->headline->columns) {
      headings.push_back({std::string(column.heading)});
    }
  }
  return headings;
}

std::vector<TextSummary::Column> TextSummary::Columns(const Cells& headings) const {
  std::vector<Column> columns(headings.size());
  const auto widen = [&columns](const Cells& cells) {
    // A reason beside a file's name is in nobody's way.
    const std::size_t count = cells.size() == columns.size() ? columns.size() : 1;
    for (std::size_t i = 0; i < count; ++i) {
      columns[i].width = std::max(columns[i].width, CharacterCount(cells[i].text));
      columns[i].isNumber = columns[i].isNumber || cells[i].isNumber;
    }
  };
  widen(headings);
  for (const Cells& cells : rows_) widen(cells);
  return columns;
}

void TextSummary::End(std::string& out) {
  Cells headings = Headings();
  const std::vector<Column> columns = Columns(headings);
  for (std::size_t i = 0; i < headings.size(); ++i) headings[i].isNumber = columns[i].isNumber;
  const auto append = [&](const Cells& cells) {
    std::size_t blanks = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const std::size_t width = CharacterCount(cells[i].text);
      const std::size_t rest = columns[i].width - std::min(width, columns[i].width);
      out.append(blanks + (cells[i].isNumber ? rest : 0), ' ');
      out += cells[i].text;
      blanks = kGap + (cells[i].isNumber ? 0 : rest);
    }
    out += kLineEnd;
  };
  append(headings);
  for (const Cells& cells : rows_) append(cells);
  rows_.clear();
}

}  // namespace halvane
