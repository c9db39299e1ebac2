#include "reporter/json_writer.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "core/number_text.h"

namespace halvane {
namespace {

// Lines are put together directly, since building a tree of values for each file takes several
// times as long as reading the file. The library writes what needs thought: doubles, and characters
// beyond the common ones.

/// What the library makes of a value, text that is no well-formed UTF-8 replaced.
template <typename T>
std::string ByLibrary(const T& value) {
  using nlohmann::json;
  return json(value).dump(-1, ' ', false, json::error_handler_t::replace);
}

bool IsCommon(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

/// The escape of the other characters that reports are full of.
std::string_view EscapeOf(char c) {
  switch (c) {
    case '\r': return "\\r";
    case '\n': return "\\n";
    case '\t': return "\\t";
    case '"': return "\\\"";
    case '\\': return "\\\\";
    default: return {};
  }
}

void AppendString(std::string& out, std::string_view text) {
  out += '"';
  while (!text.empty()) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), IsCommon);
    out.append(text.begin(), end);
    text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
    if (text.empty()) break;
    const std::string_view escape = EscapeOf(text.front());
    if (escape.empty()) {
      const std::string rest = ByLibrary(text);
      out.append(rest, 1, rest.size() - 2);  // without its quotes
      break;
    }
    out += escape;
    text.remove_prefix(1);
  }
  out += '"';
}

/// Appends the opening of a member: its name, which needs no escapes, and the colon.
void AppendName(std::string& out, std::string_view name) {
  out += '"';
  out += name;
  out += "\":";
}

void AppendBoolean(std::string& out, bool value) { out += value ? "true" : "false"; }

/// Appends `[...]` or `{...}` with a comma between what `append` makes of each element.
template <typename Range, typename Append>
void AppendList(std::string& out, char open, char close, const Range& elements,
                const Append& append) {
  out += open;
  bool isFirst = true;
  for (const auto& element : elements) {
    if (!isFirst) out += ',';
    isFirst = false;
    append(element);
  }
  out += close;
}

void AppendField(std::string& out, const TaggedField& field) {
  const auto& value = field.value();
  if (const auto* integer = std::get_if<Integer>(&value)) {
    out += PlainText(*integer);
  } else if (const auto* number = std::get_if<double>(&value)) {
    out += ByLibrary(*number);
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    AppendString(out, *text);
  } else {
    out += "null";
  }
}

void AppendValue(std::string& out, const WorkingValue& result) {
  if (const auto* field = std::get_if<TaggedField>(&result.value)) {
    AppendField(out, *field);
  } else {
    AppendList(out, '[', ']', std::get<std::vector<TaggedField>>(result.value),
               [&out](const TaggedField& element) { AppendField(out, element); });
  }
}

void AppendResults(std::string& out, const std::vector<WorkingValue>& results) {
  AppendList(out, '{', '}', results, [&out](const WorkingValue& result) {
    AppendName(out, result.name);
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
  AppendString(out, run.text);
  out += ",\"size\":";
  out += PlainText(run.format.size);
  out += ",\"bold\":";
  AppendBoolean(out, run.format.bold);
  out += ",\"underline\":";
  AppendBoolean(out, run.format.underline);
  out += '}';
}

void AppendParagraph(std::string& out, const Paragraph& paragraph) {
  out += "{\"alignment\":";
  AppendString(out, NameOf(paragraph.format.alignment));
  out += ",\"tabs\":";
  AppendList(out, '[', ']', paragraph.format.tabStops,
             [&out](int stop) { out += PlainText(stop); });
  out += ",\"runs\":";
  AppendList(out, '[', ']', paragraph.runs, [&out](const Run& run) { AppendRun(out, run); });
  out += '}';
}

void AppendReport(std::string& out, const RichText& report) {
  out += "{\"text\":";
  AppendString(out, report.text());
  out += ",\"paragraphs\":";
  AppendList(out, '[', ']', report.paragraphs(),
             [&out](const Paragraph& paragraph) { AppendParagraph(out, paragraph); });
  out += ",\"pictures\":";
  AppendList(out, '[', ']', report.pictures(),
             [&out](const std::string& name) { AppendString(out, name); });
  out += '}';
}

void BeginLine(std::string& out, std::string_view file, const ToolRow& tool) {
  out += "{\"file\":";
  AppendString(out, file);
  out += ",\"tool\":";
  AppendString(out, tool.key);
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
  out += ",\"results\":null,\"report\":null,\"error\":{\"kind\":";
  AppendString(out, failure.kind);
  out += ",\"message\":";
  AppendString(out, failure.message);
  out += "}}\n";
}

void JsonWriter::FileFailed(std::string& out, std::string_view file,
                            std::span<const ToolRow* const> tools, const ReportFailure& failure) {
  for (const ToolRow* tool : tools) ToolFailed(out, file, *tool, failure);
}

}  // namespace halvane
