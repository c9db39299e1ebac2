#include "reporter/json_writer.h"

#include <nlohmann/json.hpp>

namespace halvane {
namespace {

using Json = nlohmann::ordered_json;

std::string_view NameOf(Alignment alignment) {
  switch (alignment) {
    case Alignment::Center: return "center";
    case Alignment::Right: return "right";
    case Alignment::Left: break;
  }
  return "left";
}

Json JsonOf(const TaggedField& field) {
  return std::visit(
      [](const auto& value) -> Json {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::monostate>) {
          return nullptr;
        } else {
          return value;
        }
      },
      field.value());
}

Json JsonOf(const Paragraph& paragraph) {
  Json runs = Json::array();
  for (const Run& run : paragraph.runs) {
    runs.push_back({{"text", run.text},
                    {"size", run.format.size},
                    {"bold", run.format.bold},
                    {"underline", run.format.underline}});
  }
  return {{"alignment", NameOf(paragraph.format.alignment)},
          {"tabs", paragraph.format.tabStops},
          {"runs", std::move(runs)}};
}

Json JsonOf(const RichText& report) {
  Json paragraphs = Json::array();
  for (const Paragraph& paragraph : report.paragraphs()) paragraphs.push_back(JsonOf(paragraph));
  return {{"text", report.text()},
          {"paragraphs", std::move(paragraphs)},
          {"pictures", report.pictures()}};
}

void AppendLine(std::string& out, const Json& object) {
  out += object.dump(-1, ' ', false, Json::error_handler_t::replace);
  out += '\n';
}

}  // namespace

void JsonWriter::Report(std::string& out, std::string_view file, const ToolRow& tool,
                        const RichText& report, const std::vector<WorkingValue>& results) {
  Json values = Json::object();
  for (const WorkingValue& result : results) {
    values.emplace(std::string(result.name), JsonOf(result.value));
  }
  AppendLine(out, {{"file", file},
                   {"tool", tool.key},
                   {"results", std::move(values)},
                   {"report", JsonOf(report)},
                   {"error", nullptr}});
}

void JsonWriter::ToolFailed(std::string& out, std::string_view file, const ToolRow& tool,
                            const ReportFailure& failure) {
  AppendLine(out, {{"file", file},
                   {"tool", tool.key},
                   {"results", nullptr},
                   {"report", nullptr},
                   {"error", {{"kind", failure.kind}, {"message", failure.message}}}});
}

void JsonWriter::FileFailed(std::string& out, std::string_view file,
                            std::span<const ToolRow* const> tools, const ReportFailure& failure) {
  for (const ToolRow* tool : tools) ToolFailed(out, file, *tool, failure);
}

}  // namespace halvane
