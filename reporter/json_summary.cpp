#include "reporter/json_summary.h"

#include "core/number_text.h"
#include "reporter/json_text.h"

namespace halvane {
namespace {

void AppendValue(std::string& out, const Headline::Value& value) {
  if (const auto* whole = std::get_if<int>(&value)) {
    out += PlainText(*whole);
  } else if (const auto* number = std::get_if<double>(&value)) {
    AppendJsonNumber(out, *number);
  } else if (const auto text = std::get<std::string_view>(value); !text.empty()) {
    AppendJsonString(out, text);
  } else {
    out += "null";
  }
}

void AppendCell(std::string& out, const ToolRow& tool, const SummaryCell& cell) {
  AppendJsonName(out, tool.key);
  out += '{';
  std::size_t number = 0;
  for (const HeadlineColumn& column : tool.headline->columns) {
    AppendJsonName(out, column.key);
    if (cell.reason) {
      out += "null";
    } else {
      AppendValue(out, cell.headline.values[number]);
    }
    ++number;
    out += ',';
  }
  AppendJsonName(out, "error");
  if (cell.reason) {
    AppendJsonFailure(out, *cell.reason);
  } else {
    out += "null";
  }
  out += '}';
}

void AppendTexts(std::string& out, const JobSummary& summary) {
  out += ",\"analyst\":";
  AppendJsonString(out, summary.analyst);
  out += ",\"job\":";
  AppendJsonString(out, summary.job);
  out += ",\"workstation\":";
  AppendJsonString(out, summary.workstation);
}

}  // namespace

void JsonSummary::Row(std::string& out, const JobSummary& summary) {
  BeginJsonLine(out, summary.file);
  if (summary.failure) {
    out += R"(,"analyst":null,"job":null,"workstation":null,"tools":null,"error":)";
    AppendJsonFailure(out, *summary.failure);
  } else {
    AppendTexts(out, summary);
    out += ",\"tools\":";
    std::size_t number = 0;
    AppendJsonList(out, '{', '}', tools_,
                   [&](const ToolRow* tool) { AppendCell(out, *tool, summary.cells[number++]); });
    out += ",\"error\":null";
  }
  out += "}\n";
}

}  // namespace halvane
