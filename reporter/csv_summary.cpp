#include "reporter/csv_summary.h"

#include <algorithm>

#include "core/number_text.h"
#include "reporter/file_text.h"
#include "reporter/printable_text.h"

namespace halvane {
namespace {

/// What the text of a formula begins with in the usual spreadsheets.
constexpr std::string_view kFormulaStarts = "=+-@";

/// As RFC 4180 has it, whatever the system.
constexpr std::string_view kCsvLineEnd = "\r\n";

bool NeedsQuotes(std::string_view text) {
  if (text.empty()) return false;
  return text.front() == ' ' || text.back() == ' ' ||
         std::ranges::any_of(text, [](char c) { return c == ',' || c == ';' || c == '"'; });
}

void AppendQuoted(std::string& out, std::string_view text) {
  out += '"';
  for (const char c : text) {
    if (c == '"') out += '"';
    out += c;
  }
  out += '"';
}

void AppendCell(std::string& out, std::string_view text) {
  if (NeedsQuotes(text)) {
    AppendQuoted(out, text);
  } else {
    out += text;
  }
}

void AppendPrintable(std::string& out, std::string_view text) {
  // A spreadsheet passes over blanks in front of a formula.
  const std::size_t start = text.find_first_not_of(' ');
  const bool likeFormula =
      start != std::string_view::npos && kFormulaStarts.find(text[start]) != std::string_view::npos;
  if (likeFormula) {
    AppendCell(out, std::string(1, '\'').append(text));
  } else {
    AppendCell(out, text);
  }
}

void AppendValue(std::string& out, const Headline::Value& value) {
  if (const auto* whole = std::get_if<int>(&value)) {
    out += PlainText(*whole);
  } else if (const auto* number = std::get_if<double>(&value)) {
    out += PlainText(*number);
  } else {
    AppendCsvText(out, std::get<std::string_view>(value));
  }
}

/// Appends the cells of a tool, each behind a comma; empty where it has no headline.
void AppendCells(std::string& out, const SummaryCell& cell, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    out += ',';
    if (!cell.reason) AppendValue(out, cell.headline.values[i]);
  }
}

/// "ctd: The job has no task, so the tool has no report on it.; si: Overflow".
std::string ReasonsOf(const JobSummary& summary, const SummaryTools& tools) {
  if (summary.failure) return summary.failure->message;
  std::string reasons;
  for (std::size_t i = 0; i < tools.size(); ++i) {
    if (!summary.cells[i].reason) continue;
    if (!reasons.empty()) reasons += "; ";
    reasons.append(tools[i]->key).append(": ").append(summary.cells[i].reason->message);
  }
  return reasons;
}

}  // namespace

void AppendCsvText(std::string& out, std::string_view text) {
  if (IsPrintableAscii(text)) {
    AppendPrintable(out, text);
  } else {
    AppendPrintable(out, PrintableText(text));
  }
}

void CsvSummary::Begin(std::string& out) {
  out += "file,analyst,job,workstation";
  for (const ToolRow* tool : tools_) {
    for (const HeadlineColumn& column : tool->headline->columns) {
      out += ',';
      out += tool->key;
      out += '_';
      out += column.key;
    }
  }
  out += ",reasons,file_shown";
  out += kCsvLineEnd;
}

void CsvSummary::Row(std::string& out, const JobSummary& summary) {
  AppendCell(out, EscapedFileNameOnOneLine(summary.file));
  for (const std::string* text : {&summary.analyst, &summary.job, &summary.workstation}) {
    out += ',';
    AppendCsvText(out, *text);
  }
  for (std::size_t i = 0; i < tools_.size(); ++i) {
    const std::size_t count = tools_[i]->headline->columns.size();
    if (summary.failure) {
      out.append(count, ',');
    } else {
      AppendCells(out, summary.cells[i], count);
    }
  }
  out += ',';
  AppendCsvText(out, ReasonsOf(summary, tools_));
  out += ',';
  AppendCsvText(out, summary.file);
  out += kCsvLineEnd;
}

}  // namespace halvane
