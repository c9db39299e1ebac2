#include "reporter/json_writer.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <vector>

#include "core/job_file.h"
#include "core/job_state.h"
#include "tests/reporter/run_program.h"
#include "tests/reporter/sample_report.h"

namespace halvane {
namespace {

using Json = nlohmann::ordered_json;

std::string LineOf(const RichText& report, const std::vector<WorkingValue>& results = {},
                   std::string_view file = "a.qjt") {
  std::string line;
  JsonWriter().Report(line, file, kGoodTool, report, results);
  return line;
}

TEST(ReportJson, LineHasItsMembersInOrder) {
  RichText report;
  report.SetFont({.size = 12, .bold = true, .underline = true});
  report.SetAlignment(Alignment::Center);
  report.Append("Title\r\n");
  report.SetFont({});
  report.SetAlignment(Alignment::Right);
  report.SetTabCount(2);
  report.SetTab(0, 500);
  report.Append("a\tb");
  report.AppendPicture("x/y");
  EXPECT_EQ(LineOf(report, {{"Rating", Integer{3}}, {"Percent", 0.0}}),
            R"({"version":1,"file":"a.qjt","tool":"good","results":{"Rating":3,"Percent":0.0},)"
            R"("report":{"text":"Title\r\na\tb)"
            "\uFFFC"
            R"(","paragraphs":[{"alignment":"center","tabs":[],)"
            R"("runs":[{"text":"Title","size":12,"bold":true,"underline":true}]},)"
            R"({"alignment":"right","tabs":[500,0],"runs":[)"
            R"({"text":"a\tb","size":10,"bold":false,"underline":false},)"
            "{\"text\":\"\uFFFC\""
            R"(,"size":10,"bold":false,"underline":false}]}],)"
            R"("pictures":["x/y"]},"error":null})"
            "\n");
}

struct ValueRow {
  std::string_view label;
  TaggedField value;
  std::string_view expected;
};

TEST(ReportJson, ResultsAreNumbers) {
  const std::vector<ValueRow> rows = {
      {"nothing", {}, "null"},
      {"integer", Integer{-32768}, "-32768"},
      {"whole double", 5.0, "5.0"},
      {"zero", 0.0, "0.0"},
      {"third", 1.0 / 3, "0.3333333333333333"},
      {"large", 1e300, "1e+300"},
      {"text of a number", "3.0", "3.0"},
      {"other text", "a\"b", "null"},
      {"text beyond a double", "1E999", "null"},
  };
  for (const ValueRow& row : rows) {
    const std::string line = LineOf(OneLine(""), {{"Value", row.value}});
    EXPECT_NE(line.find("\"results\":{\"Value\":" + std::string(row.expected) + "},"),
              std::string::npos)
        << row.label << ": " << line;
  }
}

TEST(ReportJson, ResultWithElementsIsAnArray) {
  const std::vector<TaggedField> elements{Integer{1}, {}, 2.5, "x"};
  EXPECT_NE(LineOf(OneLine(""), {{"Values", elements}, {"None", std::vector<TaggedField>{}}})
                .find(R"("results":{"Values":[1,null,2.5,null],"None":[]},)"),
            std::string::npos);
}

struct TextRow {
  std::string_view label;
  std::string text;
};

TEST(ReportJson, EveryTextReadsBack) {
  const std::vector<TextRow> rows = {
      {"empty", ""},
      {"plain", "Line 4 review"},
      {"quote and backslash", R"(say "C:\jobs\")"},
      {"controls", std::string("a\0b\x01\x1B[31m\b\f\x7F z", 14)},
      {"beyond ASCII", "caf\u00E9 \u7DDA \U0001F4E6 \u2028"},
      {"escapes behind it", "\u00E9\t\"x\"\\"},
      {"markup", "<script>alert('x')</script>"},
  };
  for (const TextRow& row : rows) {
    const Json line = Json::parse(LineOf(OneLine(row.text), {}, row.text));
    EXPECT_EQ(line["file"], row.text) << row.label;
    EXPECT_EQ(line["report"]["text"], row.text) << row.label;
  }
}

TEST(ReportJson, LineIsOneLineWhateverIsInTheJob) {
  const std::string line = LineOf(OneLine("a\r\nb\nc\rd"), {}, "x\ny.qjt");
  EXPECT_EQ(line.find('\n'), line.size() - 1);
  EXPECT_EQ(line.find('\r'), std::string::npos);
}

TEST(ReportJson, BytesOfAFileNameThatAreNoUtf8AreEscaped) {
  const Json line = Json::parse(LineOf(OneLine(""), {}, "caf\xE9 \xFF.qjt"));
  EXPECT_EQ(line["file"], "caf\\xE9 \\xFF.qjt");
}

TEST(ReportJson, FailureOfAToolHasNeitherResultsNorReport) {
  std::string line;
  JsonWriter().ToolFailed(line, "a.qjt", kFailingTool, {"Overflow", "Overflow: \"9\""});
  EXPECT_EQ(line, R"({"version":1,"file":"a.qjt","tool":"failing","results":null,"report":null,)"
                  R"("error":{"kind":"Overflow","message":"Overflow: \"9\"",)"
                  R"("line":null,"field":null,"value":null,"reason":null}})"
                  "\n");
}

TEST(ReportJson, JobWithoutAReportSaysSoInItsError) {
  std::string line;
  JsonWriter().NoReport(line, "a.qjt", kGoodTool, {"NoReport", "no task"});
  EXPECT_EQ(line, R"({"version":1,"file":"a.qjt","tool":"good","results":null,"report":null,)"
                  R"("error":{"kind":"NoReport","message":"no task",)"
                  R"("line":null,"field":null,"value":null,"reason":null}})"
                  "\n");
}

TEST(ReportJson, FileThatCannotBeReadHasALineForEachTool) {
  const std::vector<const ToolRow*> tools{&kFailingTool, &kGoodTool};
  std::string lines;
  JsonWriter().FileFailed(lines, "a.qjt", tools, {"FileError", "gone"});
  EXPECT_EQ(lines, R"({"version":1,"file":"a.qjt","tool":"failing","results":null,"report":null,)"
                   R"("error":{"kind":"FileError","message":"gone",)"
                   R"("line":null,"field":null,"value":null,"reason":null}})"
                   "\n"
                   R"({"version":1,"file":"a.qjt","tool":"good","results":null,"report":null,)"
                   R"("error":{"kind":"FileError","message":"gone",)"
                   R"("line":null,"field":null,"value":null,"reason":null}})"
                   "\n");
}

/// What a reader of the JSON would build: the pane again.
std::vector<Paragraph> ParagraphsFrom(const Json& report) {
  std::vector<Paragraph> paragraphs;
  auto picture = report["pictures"].begin();
  for (const Json& paragraph : report["paragraphs"]) {
    Paragraph built;
    const std::string alignment = paragraph["alignment"];
    built.format.alignment = alignment == "center"  ? Alignment::Center
                             : alignment == "right" ? Alignment::Right
                                                    : Alignment::Left;
    built.format.tabStops = paragraph["tabs"].get<std::vector<int>>();
    for (const Json& run : paragraph["runs"]) {
      Run builtRun{run["text"], {run["size"], run["bold"], run["underline"]}, {}};
      if (builtRun.text == kPictureCharacter) builtRun.picture = *picture++;
      built.runs.push_back(builtRun);
    }
    paragraphs.push_back(built);
  }
  return paragraphs;
}

TEST(ReportJson, ParsedBackGivesTheReportAgain) {
  Module1 = JobState{};
  Module1.JobFileName = SourcePath("docs/samples/board-assembly.qjt");
  ASSERT_EQ(OpenJobFile(), OpenOutcome::Opened);
  RichText report;
  RowOf(Tool::StrainIndex).WriteReport(report);

  const Json parsed = Json::parse(LineOf(report))["report"];
  EXPECT_EQ(parsed["text"], report.text());
  std::vector<Paragraph> written = report.paragraphs();
  // Line ends stand in the text alone, what pictures show in the pane.
  for (Paragraph& paragraph : written) {
    paragraph.lineEnd.clear();
    for (auto& run : paragraph.runs) run.sense.clear();
  }
  EXPECT_EQ(ParagraphsFrom(parsed), written);
  EXPECT_EQ(written.size(), 25U);
}

}  // namespace
}  // namespace halvane
