#include "tests/reporter/result_pages.h"

#include <nlohmann/json.hpp>

#include "core/job_state.h"
#include "reporter/failure.h"
#include "reporter/json_text.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

using Json = nlohmann::ordered_json;

const Json kNumber{{"type", {"number", "null"}}};
const Json kText{{"type", {"string", "null"}}};
const Json kError{{"$ref", "#/definitions/error"}};

Json OneOf(const Json& a, const Json& b) { return {{"oneOf", Json::array({a, b})}}; }
const Json kNull{{"type", "null"}};

/// An object that has all of these members and no other.
Json Object(const Json& members) {
  Json names = Json::array();
  for (const auto& [name, member] : members.items()) names.push_back(name);
  return {{"type", "object"},
          {"required", names},
          {"additionalProperties", false},
          {"properties", members}};
}

Json ListOf(const Json& element) { return {{"type", "array"}, {"items", element}}; }

/// The members that every line begins with.
Json LineWith(const Json& members) {
  Json all{{"version", {{"const", kJsonVersion}}},
           {"file",
            {{"type", "string"},
             {"description",
              "the file's name, as \\xE9 where a byte "
              "of it is no UTF-8"}}}};
  all.update(members);
  return Object(all);
}

Json Described(Json member, std::string_view unit, std::string_view meaning) {
  member["description"] = std::string(meaning) + (unit.empty() ? "" : "; in ") + std::string(unit);
  return member;
}

bool IsList(const WorkingValue& value) {
  return std::holds_alternative<std::vector<TaggedField>>(value.value);
}

Json ResultsOf(const ToolRow& tool) {
  Json members = Json::object();
  for (const WorkingValue& value : tool.workingValues()) {
    const Json kind = IsList(value) ? ListOf(kNumber) : kNumber;
    members[std::string(value.name)] = Described(kind, value.unit, value.meaning);
  }
  return Object(members);
}

Json HeadlineOf(const ToolRow& tool) {
  const Headline headline = tool.headline->read();
  Json members = Json::object();
  std::size_t place = 0;
  for (const HeadlineColumn& column : tool.headline->columns) {
    const bool isText = std::holds_alternative<std::string_view>(headline.values[place++]);
    members[std::string(column.key)] = Described(isText ? kText : kNumber, {}, column.heading);
  }
  members["error"] = kError;
  return Object(members);
}

Json ErrorSchema() {
  Json kinds = Json::array({"NotAJobFile", kNoReport.kind});
  for (int kind = 0; kind <= static_cast<int>(FailureKind::OutOfMemory); ++kind) {
    kinds.push_back(KindName(static_cast<FailureKind>(kind)));
  }
  const Json failure =
      Object({{"kind", {{"enum", kinds}}},
              {"message", {{"type", "string"}, {"description", "all of it, for people"}}},
              {"line", {{"type", {"integer", "null"}}, {"minimum", 1}}},
              {"field", Described(kText, {}, "field of the job file, or a result")},
              {"value", Described(kText, {}, "as it stands in the file")},
              {"reason", kText}});
  return OneOf(kNull, failure);
}

Json ReportSchema() {
  const Json run = Object({{"text", {{"type", "string"}}},
                           {"size", {{"type", "integer"}, {"description", "in points"}}},
                           {"bold", {{"type", "boolean"}}},
                           {"underline", {{"type", "boolean"}}}});
  const Json paragraph =
      Object({{"alignment", {{"enum", {"left", "center", "right"}}}},
              {"tabs", Described(ListOf({{"type", "integer"}}), "twips", "tab stops")},
              {"runs", ListOf(run)}});
  const Json report = Object({{"text", {{"type", "string"}}},
                              {"paragraphs", ListOf(paragraph)},
                              {"pictures", ListOf({{"type", "string"}})}});
  Json lines = Json::array();
  for (const ToolRow& tool : Tools()) {
    lines.push_back(LineWith({{"tool", {{"const", tool.key}}},
                              {"results", OneOf(kNull, ResultsOf(tool))},
                              {"report", OneOf(kNull, report)},
                              {"error", kError}}));
  }
  return {{"description", "one report"}, {"oneOf", lines}};
}

Json SummarySchema() {
  Json cells = Json::object();
  for (const ToolRow& tool : Tools()) cells[std::string(tool.key)] = HeadlineOf(tool);
  const Json tools{
      {"type", {"object", "null"}}, {"additionalProperties", false}, {"properties", cells}};
  Json line = LineWith({{"analyst", kText},
                        {"job", kText},
                        {"workstation", kText},
                        {"tools", tools},
                        {"error", kError}});
  line["description"] = "one job, with --summary";
  return line;
}

Json CheckSchema() {
  const Json problem = Object({{"warning", {{"type", "boolean"}}},
                               {"line", {{"type", {"integer", "null"}}}},
                               {"field", {{"type", "string"}}},
                               {"found", {{"type", "string"}}},
                               {"message", {{"type", "string"}}}});
  Json line = LineWith({{"verdict", {{"enum", {"good", "read in part", "refused"}}}},
                        {"problems", ListOf(problem)},
                        {"error", kError}});
  line["description"] = "one file, with --check";
  return line;
}

}  // namespace

std::string JsonSchema() {
  Module1 = JobState{};
  const Json schema{{"$schema", "http://json-schema.org/draft-07/schema#"},
                    {"title", "A line of halvane-report --format json"},
                    {"oneOf", Json::array({ReportSchema(), SummarySchema(), CheckSchema()})},
                    {"definitions", {{"error", ErrorSchema()}}}};
  return schema.dump(1) + "\n";
}

std::string ResultPage() {
  Module1 = JobState{};
  std::string page =
      "# Results\n\n"
      "The members of `results` in `halvane-report --format json`, tool by tool, made from the "
      "tools' "
      "own tables by\n`make_result_pages`. A list has an element a number from 0 on; one by task "
      "has "
      "the task at its number, and\nelement 0 is none. Line by line the output is described by\n"
      "`halvane-report.schema.json`.\n";
  for (const ToolRow& tool : Tools()) {
    page.append("\n## `").append(tool.key).append("`: ").append(tool.title);
    page += "\n\n| Name | Kind | Unit | Meaning |\n|---|---|---|---|\n";
    for (const WorkingValue& value : tool.workingValues()) {
      page.append("| `").append(value.name).append("` | ");
      page.append(IsList(value) ? "list" : "number").append(" | ").append(value.unit);
      page.append(" | ").append(value.meaning).append(" |\n");
    }
  }
  return page;
}

}  // namespace halvane
