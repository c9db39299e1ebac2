#include "reporter/html_summary.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/number_text.h"
#include "reporter/html_text.h"

namespace halvane {
namespace {

// The colours are those of the charts that end the reports.
constexpr std::string_view kStyle =
    R"html(body { margin: 18pt; background: var(--paper); }
caption { padding: 4pt 0 10pt; color: var(--quiet); text-align: left; }
th, td { padding: 3pt 8pt; border-bottom: 1px solid var(--line); }
tbody th, td { overflow-wrap: anywhere; }
thead th { position: sticky; top: 0; min-width: 60pt; background: var(--ground); }
small { display: block; color: var(--quiet); font-weight: normal; }
.bar { display: block; margin-top: 2pt; background: var(--ground); }
.bar span { display: block; box-sizing: border-box; height: 5pt; border-right: 1px solid var(--ink);
  background: #9aa5b1; print-color-adjust: exact; -webkit-print-color-adjust: exact; }
.green .bar span { background: #9fd3b4; }
.yellowgreen .bar span { background: #d5e3a0; }
.yellow .bar span { background: #f3e28a; }
.orange .bar span { background: #f3c58a; }
.red .bar span { background: #e99c91; }
@media print {
  @page { size: landscape; }
  body { margin: 0; font-size: 8pt; }
  thead th { position: static; }
  th, td { padding: 2pt 4pt; }
}
)html";
// What a column takes at least and what is beside them all, in points.
constexpr int kLeastColumn = 60 + 2 * 8;
constexpr int kBesideColumns = 2 * 18 + 12;
// On a narrow screen a job is a block; its head, which stays for screen readers, is not seen.
constexpr std::string_view kNarrowStyle =
    R"html(
  body { margin: 9pt; }
  table, caption, tbody, tr, th, td { display: block; }
  thead { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); }
  tbody tr { padding: 6pt 0; border-bottom: 1px solid var(--line); }
  tbody th, td { padding: 1pt 0; border: 0; }
  tbody th { font-weight: bold; }
  td::before { color: var(--quiet); }
  .bar { max-width: 300pt; }
)html";
constexpr std::string_view kNarrowStyleEnd = "  td[colspan]::before { content: none; }\n}\n";
constexpr std::string_view kTableStart =
    R"html(<table>
<caption>One line a job. A bar shows the first value of a tool in the colour of its zone.</caption>
<thead>
<tr>)html";
constexpr std::string_view kFileHeading = "File";
constexpr std::array<std::string_view, 3> kTextHeadings{"Analyst", "Job", "Workstation"};

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

/// What heads the columns stands in front of each value here, silent since its head is spoken.
std::string NarrowStyle(const SummaryTools& tools) {
  const auto columns = static_cast<int>(1 + kTextHeadings.size() + tools.size());
  std::string style = "@media screen and (max-width: ";
  style += PlainText(columns * kLeastColumn + kBesideColumns) + "pt) {";
  style += kNarrowStyle;
  int column = 1;
  const auto label = [&](std::string_view heading) {
    style += "  td:nth-child(" + PlainText(++column) + ")::before { content: \"";
    style.append(heading) += ": \" / \"\"; }\n";
  };
  for (const std::string_view heading : kTextHeadings) label(heading);
  for (const ToolRow* tool : tools) label(tool->headline->columns.front().heading);
  return style.append(kNarrowStyleEnd);
}

void AppendHead(std::string& out, std::string_view heading, std::string_view below = {}) {
  out += "<th scope=\"col\">";
  AppendHtml(out, heading);
  if (!below.empty()) out.append("<small>").append(below).append("</small>");
  out += "</th>";
}

}  // namespace

void HtmlSummary::Begin(std::string& out) {
  AppendPageHead(out, "Halvane Tools job summary", std::string(kStyle) + NarrowStyle(tools_));
  out += kTableStart;
  AppendHead(out, kFileHeading);
  for (const std::string_view heading : kTextHeadings) AppendHead(out, heading);
  for (const ToolRow* tool : tools_) {
    AppendHead(out, tool->headline->columns.front().heading,
               "bar: 0 to " + PlainText(tool->headline->fullBar));
  }
  out += "</tr>\n</thead>\n<tbody>\n";
}

void HtmlSummary::Row(std::string& out, const JobSummary& summary) {
  out += "<tr><th scope=\"row\">";
  AppendHtml(out, summary.file);
  out += "</th>";
  if (summary.failure) {
    AppendFailure(out, *summary.failure, kTextHeadings.size() + tools_.size());
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
