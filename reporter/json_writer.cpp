#include "reporter/json_writer.h"

#include <optional>

#include "core/number_text.h"
#include "reporter/json_text.h"

namespace halvane {
namespace {

std::optional<double> NumberIn(const std::string& text) {
  try {
    return WholeTextAsNumber(text);
  } catch (const RuntimeFailure&) {
    return std::nullopt;
  }
}

/// A result can be a text that was typed or read and that no computation has taken as a number; who
/// reads it here expects numbers.
void AppendNumberIn(std::string& out, const std::string& text) {
  if (const auto number = NumberIn(text)) {
    AppendJsonNumber(out, *number);
  } else {
    out += "null";
  }
}

void AppendField(std::string& out, const TaggedField& field) {
  const auto& value = field.value();
  if (const auto* integer = std::get_if<Integer>(&value)) {
    out += PlainText(*integer);
  } else if (const auto* number = std::get_if<double>(&value)) {
    AppendJsonNumber(out, *number);
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    AppendNumberIn(out, *text);
  } else {
    out += "null";
  }
}

void AppendValue(std::string& out, const WorkingValue& result) {
  if (const auto* field = std::get_if<TaggedField>(&result.value)) {
    AppendField(out, *field);
  } else {
    AppendJsonList(out, '[', ']', std::get<std::vector<TaggedField>>(result.value),
                   [&out](const TaggedField& element) { AppendField(out, element); });
  }
}

void AppendResults(std::string& out, const std::vector<WorkingValue>& results) {
  AppendJsonList(out, '{', '}', results, [&out](const WorkingValue& result) {
    AppendJsonName(out, result.name);
    AppendValue(out, result);
  });
}

std::string_view NameOf(Alignment alignment) {
  switch (alignment) {
    case Alignment::Center: return "center";
    case Alignment::Right: return "right";
    case Alignment::Left: break;
  }
  return "left";
}

void AppendRun(std::string& out, const Run& run) {
  out += "{\"text\":";
  AppendJsonString(out, run.text);
  out += ",\"size\":";
  out += PlainText(run.format.size);
  out += ",\"bold\":";
  AppendJsonBoolean(out, run.format.bold);
  out += ",\"underline\":";
  AppendJsonBoolean(out, run.format.underline);
  out += '}';
}

void AppendParagraph(std::string& out, const Paragraph& paragraph) {
  out += "{\"alignment\":";
  AppendJsonString(out, NameOf(paragraph.format.alignment));
  out += ",\"tabs\":";
  AppendJsonList(out, '[', ']', paragraph.format.tabStops,
                 [&out](int stop) { out += PlainText(stop); });
  out += ",\"runs\":";
  AppendJsonList(out, '[', ']', paragraph.runs, [&out](const Run& run) { AppendRun(out, run); });
  out += '}';
}

void AppendReport(std::string& out, const RichText& report) {
  out += "{\"text\":";
  AppendJsonString(out, report.text());
  out += ",\"paragraphs\":";
  AppendJsonList(out, '[', ']', report.paragraphs(),
                 [&out](const Paragraph& paragraph) { AppendParagraph(out, paragraph); });
  out += ",\"pictures\":";
  AppendJsonList(out, '[', ']', report.pictures(),
                 [&out](const std::string& name) { AppendJsonString(out, name); });
  out += '}';
}

void BeginLine(std::string& out, std::string_view file, const ToolRow& tool) {
  BeginJsonLine(out, file);
  out += ",\"tool\":";
  AppendJsonString(out, tool.key);
}

}  // namespace

void JsonWriter::Report(std::string& out, std::string_view file, const ToolRow& tool,
                        const RichText& report, const std::vector<WorkingValue>& results) {
  BeginLine(out, file, tool);
  out += ",\"results\":";
  AppendResults(out, results);
  out += ",\"report\":";
  AppendReport(out, report);
  out += ",\"error\":null}\n";
}

void JsonWriter::NoReport(std::string& out, std::string_view file, const ToolRow& tool,
                          const ReportFailure& reason) {
  ToolFailed(out, file, tool, reason);
}

void JsonWriter::ToolFailed(std::string& out, std::string_view file, const ToolRow& tool,
                            const ReportFailure& failure) {
  BeginLine(out, file, tool);
  out += ",\"results\":null,\"report\":null,\"error\":";
  AppendJsonFailure(out, failure);
  out += "}\n";
}

void JsonWriter::FileFailed(std::string& out, std::string_view file,
                            std::span<const ToolRow* const> tools, const ReportFailure& failure) {
  for (const ToolRow* tool : tools) ToolFailed(out, file, *tool, failure);
}

}  // namespace halvane
