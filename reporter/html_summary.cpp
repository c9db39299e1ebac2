#include "reporter/html_summary.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "reporter/html_text.h"

namespace halvane {
namespace {

// The colours are those of the charts that end the reports.
constexpr std::string_view kStyle =
    R"html(body { margin: 18pt; background: #fff; color: #1f2933; font: 10pt/1.3 sans-serif; }
table { border-collapse: collapse; }
th, td { padding: 3pt 8pt; border-bottom: 1px solid #cfd8dc; text-align: left;
  vertical-align: top; overflow-wrap: break-word; }
thead th { position: sticky; top: 0; background: #eceff1; }
small { display: block; color: #52606d; font-weight: normal; }
tbody th { font-weight: normal; }
td.failure { color: #9b1c1c; }
.bar { display: block; width: 90pt; margin-top: 2pt; background: #eceff1; }
.bar span { display: block; height: 5pt; background: #9aa5b1; print-color-adjust: exact;
  -webkit-print-color-adjust: exact; }
.green .bar span { background: #9fd3b4; }
.yellowgreen .bar span { background: #d5e3a0; }
.yellow .bar span { background: #f3e28a; }
.orange .bar span { background: #f3c58a; }
.red .bar span { background: #e99c91; }
@media print {
  body { margin: 0; }
  tr { break-inside: avoid; }
}
)html";
constexpr std::string_view kTableHead = R"html(<table>
<thead>
<tr><th scope="col">File</th><th scope="col">Analyst</th><th scope="col">Job</th>)html"
                                        R"html(<th scope="col">Workstation</th>)html";

std::string_view ClassOf(ZoneColour colour) {
  switch (colour) {
    case ZoneColour::Green: return "green";
    case ZoneColour::YellowGreen: return "yellowgreen";
    case ZoneColour::Yellow: return "yellow";
    case ZoneColour::Orange: return "orange";
    case ZoneColour::Red: return "red";
    case ZoneColour::None: break;
  }
  return {};
}

/// "1.54 Yellow/Green", "9, action level 3".
std::string WordsOf(const Headline& headline, const ToolHeadline& tool) {
  std::string words = ShownValue(headline.values.front(), tool.columns.front());
  for (std::size_t i = 1; i < tool.columns.size(); ++i) {
    const std::string value = ShownValue(headline.values[i], tool.columns[i]);
    const bool isText = std::holds_alternative<std::string_view>(headline.values[i]);
    if (!isText) words.append(", ").append(tool.columns[i].heading);
    if (!value.empty()) words.append(" ").append(value);
  }
  return words;
}

/// How much of the bar is filled, in per cent.
int FilledPart(const Headline& headline, double fullBar) {
  const Headline::Value& first = headline.values.front();
  const auto* whole = std::get_if<int>(&first);
  const double value = whole != nullptr ? *whole : std::get<double>(first);
  return static_cast<int>(std::lround(std::clamp(value / fullBar, 0.0, 1.0) * 100));
}

void AppendFailure(std::string& out, const ReportFailure& failure, std::size_t columns) {
  out += "<td class=\"failure\"";
  if (columns > 1) out += " colspan=\"" + PlainText(static_cast<int>(columns)) + "\"";
  out += '>';
  AppendHtml(out, failure.message);
  out += "</td>";
}

void AppendCell(std::string& out, const SummaryCell& cell, const ToolHeadline& tool) {
  if (cell.reason) {
    AppendFailure(out, *cell.reason, 1);
    return;
  }
  const std::string_view name = ClassOf(cell.headline.colour);
  out += name.empty() ? "<td>" : "<td class=\"" + std::string(name) + "\">";
  AppendHtml(out, WordsOf(cell.headline, tool));
  out += "<span class=\"bar\"><span style=\"width: ";
  out += PlainText(FilledPart(cell.headline, tool.fullBar));
  out += "%\"></span></span></td>";
}

}  // namespace

void HtmlSummary::Begin(std::string& out) {
  AppendPageHead(out, "Halvane Tools job summary", kStyle);
  out += kTableHead;
  for (const ToolRow* tool : tools_) {
    out += "<th scope=\"col\">";
    AppendHtml(out, tool->headline->columns.front().heading);
    out += "<small>bar: 0 to " + PlainText(tool->headline->fullBar) + "</small></th>";
  }
  out += "</tr>\n</thead>\n<tbody>\n";
}

void HtmlSummary::Row(std::string& out, const JobSummary& summary) {
  constexpr std::size_t kTexts = 3;
  out += "<tr><th scope=\"row\">";
  AppendHtml(out, summary.file);
  out += "</th>";
  if (summary.failure) {
    AppendFailure(out, *summary.failure, kTexts + tools_.size());
  } else {
    for (const std::string* text : {&summary.analyst, &summary.job, &summary.workstation}) {
      out += "<td>";
      AppendHtml(out, *text);
      out += "</td>";
    }
    for (std::size_t i = 0; i < tools_.size(); ++i) {
      AppendCell(out, summary.cells[i], *tools_[i]->headline);
    }
  }
  out += "</tr>\n";
}

void HtmlSummary::End(std::string& out) {
  out += "</tbody>\n</table>\n";
  out += kPageFoot;
}

}  // namespace halvane
