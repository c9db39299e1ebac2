#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <vector>

#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

using Json = nlohmann::ordered_json;

std::string Expected(const std::string& name) {
  return BytesOf(SourcePath("tests/reporter/expected/" + name));
}

std::vector<Json> ParsedLines(const std::string& output) {
  std::vector<Json> lines;
  std::istringstream stream(output);
  for (std::string line; std::getline(stream, line);) lines.push_back(Json::parse(line));
  return lines;
}

struct OutputRow {
  std::string expected;
  std::vector<std::string> arguments;
};

TEST(ReportProgram, PrintsWholeReportsInEveryFormat) {
  const std::vector<std::string> samples{"board-assembly.qjt", "packing-line.qjt",
                                         "parcel-sorting.qjt"};
  const std::vector<OutputRow> rows = {
      {"packing-line.txt", {"--tool", "si", "packing-line.qjt"}},
      {"samples.txt", {"--tool", "si"}},
      {"samples.json", {"--tool", "si", "--format", "json"}},
      {"samples.html", {"--tool", "si", "--format", "html"}},
      {"tasks.txt", {"--tool", "ocra", "--tool", "ctd", "packing-line.qjt"}},
      {"tasks.json",
       {"--tool", "ocra", "--tool", "ctd", "--units", "english", "--format", "json",
        "packing-line.qjt"}},
      {"tasks.html", {"--tool", "ocra", "--tool", "ctd", "--format", "html", "packing-line.qjt"}},
  };
  for (const OutputRow& row : rows) {
    std::vector<std::string> arguments = row.arguments;
    if (row.expected.starts_with("samples")) {
      arguments.insert(arguments.end(), samples.begin(), samples.end());
    }
    const ProgramRun run = RunReport(arguments);
    EXPECT_EQ(run.output, Expected(row.expected)) << row.expected;
    EXPECT_GT(run.output.size(), 1000U) << row.expected;
    EXPECT_EQ(run.error, "") << row.expected;
    EXPECT_EQ(run.status, 0) << row.expected;
  }
}

TEST(ReportProgram, JobWithoutATaskHasNoCtdReportAndIsNoFailure) {
  const TemporaryFolder folder;
  const std::string empty = folder.File("empty.qjt");
  WriteBytes(empty, EmptyJobText());
  const ProgramRun json = RunReport({"--tool", "ctd", "--tool", "ocra", "--format", "json", empty});
  EXPECT_EQ(json.status, 0);
  EXPECT_EQ(json.error, "");
  const std::vector<Json> lines = ParsedLines(json.output);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0]["error"]["kind"], "NoReport");
  EXPECT_TRUE(lines[0]["results"].is_null());
  EXPECT_TRUE(lines[0]["report"].is_null());
  EXPECT_TRUE(lines[1]["error"].is_null());
  const ProgramRun text = RunReport({"--tool", "ctd", empty});
  EXPECT_EQ(text.status, 0);
  EXPECT_EQ(text.output, "The job has no task, so the tool has no report on it.\n");
}

TEST(ReportProgram, HandActivityLevelHasNoButtonButItsReport) {
  const ProgramRun text = RunReport({"--tool", "hal", "board-assembly.qjt", "packing-line.qjt"});
  EXPECT_EQ(text.status, 0);
  EXPECT_EQ(text.error, "");
  EXPECT_EQ(text.output, Expected("hal.txt"));
  const ProgramRun json = RunReport({"--tool", "hal", "--format", "json", "packing-line.qjt"});
  const std::vector<Json> lines = ParsedLines(json.output);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0]["results"],
            (Json{{"HalForceMode", -1}, {"HalLimits", {4.0, 2.6666666666666665}}}));
}

TEST(ReportProgram, UnitsChangeWhatTheHandSpanMeans) {
  const std::vector<std::pair<std::string, double>> rows{{"metric", 7.007437825263731},
                                                         {"english", 4.708760899804947}};
  for (const auto& [units, grandScore] : rows) {
    const ProgramRun run =
        RunReport({"--tool", "ctd", "--format", "json", "--units", units, "packing-line.qjt"});
    const double reported = ParsedLines(run.output).at(0)["results"]["CtdGrandScore"];
    EXPECT_NEAR(reported, grandScore, 1e-12) << units;
  }
}

TEST(ReportProgram, LocaleChangesNothing) {
  const ProgramRun run =
      RunProgram("env", {"LC_ALL=de_DE.UTF-8", "LANGUAGE=de", HALVANE_REPORT, "--tool", "si",
                         SourcePath("docs/samples/packing-line.qjt")});
  EXPECT_EQ(run.output, Expected("packing-line.txt"));
  EXPECT_EQ(run.status, 0);
}

TEST(ReportProgram, BadFileInBetweenDoesNotStopTheOthers) {
  const TemporaryFolder folder;
  const std::string bad = folder.File("bad.qjt");
  WriteBytes(bad, EmptyJobWith(8, "x"));
  const ProgramRun run = RunReport(
      {"--tool", "si", "--format", "json", "board-assembly.qjt", bad, "packing-line.qjt"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.error, "halvane-report: " + bad +
                           ": Type mismatch: line 8, field RulaControlState(2): \"x\"\n");
  const std::vector<Json> lines = ParsedLines(run.output);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0]["results"]["SiStrainIndexScore"], 1.5);
  EXPECT_EQ(lines[1]["error"]["kind"], "TypeMismatch");
  EXPECT_EQ(lines[1]["error"]["message"],
            "Type mismatch: line 8, field RulaControlState(2): \"x\"");
  EXPECT_TRUE(lines[1]["report"].is_null());
  EXPECT_EQ(lines[2]["results"]["SiStrainIndexScore"], 18.0);
}

TEST(ReportProgram, BadFileHasNoReportInText) {
  const ProgramRun run = RunReport({"--tool", "si", "packing-line.qjt", "gone.qjt"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.error, "halvane-report: File error: gone.qjt: No such file or directory\n");
  EXPECT_EQ(run.output, "===== packing-line.qjt: si =====\n\n" + Expected("packing-line.txt"));
}

TEST(ReportProgram, BadFileIsASectionOfThePage) {
  const ProgramRun run = RunReport({"--tool", "si", "--format", "html", "gone.qjt"});
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(
      run.output.find("<h2>gone.qjt</h2>\n<section>\n<p class=\"failure\">File error: gone.qjt: "
                      "No such file or directory</p>\n"),
      std::string::npos)
      << run.output;
  EXPECT_TRUE(run.output.ends_with("</body>\n</html>\n"));
}

const std::string kGapReason = "has no rating: one band ends at 29 and the next begins at 30";
const std::string kGapMessage =
    "Subscript out of range: line 49, field SiDutyCyclePercent: \"29.5\" " + kGapReason;

TEST(ReportProgram, EachFileIsOpenedByAFreshProgram) {
  // 29.5 per cent rates nothing, so it needs a rating that an earlier computation left.
  const TemporaryFolder folder;
  const std::string gap = folder.File("gap.qjt");
  WriteBytes(gap, EmptyJobWith(49, "29.5,100,10,10,0,0,0"));
  const ProgramRun run =
      RunReport({"--tool", "si", "--format", "json", "packing-line.qjt", gap, "packing-line.qjt"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.error, "halvane-report: " + gap + ": si: " + kGapMessage + "\n");
  const std::vector<Json> lines = ParsedLines(run.output);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[1]["error"], (Json{{"kind", "SubscriptOutOfRange"},
                                     {"message", kGapMessage},
                                     {"line", 49},
                                     {"field", "SiDutyCyclePercent"},
                                     {"value", "29.5"},
                                     {"reason", kGapReason}}));
  EXPECT_TRUE(lines[1]["results"].is_null());
  EXPECT_EQ(lines[2], lines[0]);
}

TEST(ReportProgram, WithoutAToolEachReports) {
  const ProgramRun run = RunReport({"--format", "json", "packing-line.qjt"});
  std::vector<std::string> expected;
  for (const ToolRow& row : Tools()) expected.emplace_back(row.key);
  std::vector<std::string> reported;
  for (const Json& line : ParsedLines(run.output)) {
    reported.push_back(line["tool"]);
    EXPECT_TRUE(line["error"].is_null()) << line;
  }
  EXPECT_EQ(reported, expected);
  EXPECT_EQ(run.status, 0);
}

TEST(ReportProgram, NamesWithBlanksAndAnyBytesAreOpened) {
  const TemporaryFolder folder;
  const std::string bytes = BytesOf(SourcePath("docs/samples/packing-line.qjt"));
  const std::vector<std::string> names{"line 4 review.qjt", "caf\u00E9 \u7DDA.qjt", "caf\xE9.qjt",
                                       "-x.qjt", "[a,b]"};
  std::vector<std::string> arguments{"--tool", "si", "--format", "json", "--"};
  for (const std::string& name : names) {
    WriteBytes(folder.File(name), bytes);
    arguments.push_back(name);
  }
  const ProgramRun run = RunProgram(HALVANE_REPORT, arguments, folder.path());
  EXPECT_EQ(run.status, 0) << run.error;
  const std::vector<Json> lines = ParsedLines(run.output);
  ASSERT_EQ(lines.size(), names.size());
  EXPECT_EQ(lines[0]["file"], "line 4 review.qjt");
  EXPECT_EQ(lines[1]["file"], "caf\u00E9 \u7DDA.qjt");
  EXPECT_EQ(lines[2]["file"], "caf\\xE9.qjt");
  EXPECT_EQ(lines[3]["file"], "-x.qjt");
  EXPECT_EQ(lines[4]["file"], "[a,b]");
  for (const Json& line : lines) EXPECT_EQ(line["results"]["SiStrainIndexScore"], 18.0);
}

TEST(ReportProgram, MarkupInTheJobIsTextOnThePage) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("a.qjt"),
             EmptyJobWith(4, "<script>alert('x')</script>,\"a & 'b'\",\"\",0,8"));
  const ProgramRun run =
      RunProgram(HALVANE_REPORT, {"--tool", "si", "--format", "html", "a.qjt"}, folder.path());
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.output.find("<p>Analyst: &lt;script&gt;alert(&#39;x&#39;)&lt;/script&gt;</p>"),
            std::string::npos);
  EXPECT_NE(run.output.find("<p>Job Name: a &amp; &#39;b&#39;</p>"), std::string::npos);
  EXPECT_EQ(run.output.find("<script"), std::string::npos);
}

TEST(ReportProgram, HelpAndVersionGoToStandardOutput) {
  const ProgramRun help = RunReport({"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.output.find("Usage: halvane-report [OPTIONS] [FILE...]"), std::string::npos);
  EXPECT_EQ(help.error, "");
  const ProgramRun version = RunReport({"--version"});
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.output, "halvane-report " HALVANE_VERSION "\n");
  EXPECT_EQ(version.error, "");
}

struct WrongRow {
  std::string label;
  std::vector<std::string> arguments;
  std::string complaint;
};

TEST(ReportProgram, WrongUseIsStatus2) {
  const std::vector<WrongRow> rows = {
      {"no file", {}, "FILE is required"},
      {"unknown tool", {"--tool", "nope", "packing-line.qjt"}, "--tool: there is no tool \"nope\""},
      {"unknown format",
       {"--format", "pdf", "packing-line.qjt"},
       "--format: there is no format \"pdf\""},
  };
  for (const WrongRow& row : rows) {
    const ProgramRun run = RunReport(row.arguments);
    EXPECT_EQ(run.status, 2) << row.label;
    EXPECT_EQ(run.output, "") << row.label;
    EXPECT_EQ(run.error, "halvane-report: " + row.complaint +
                             "\nRun \"halvane-report --help\" for the options.\n")
        << row.label;
  }
}

TEST(ReportProgram, OutputThatTakesNoMoreIsStatus1) {
  struct Row {
    std::string label;
    OutputTo output;
    std::string reason;
  };
  const std::vector<Row> outputs = {{"full", OutputTo::FullDevice, "No space left on device"}};
  const std::vector<std::vector<std::string>> commands{
      {"--tool", "si", "packing-line.qjt"}, {"--format", "json", "gone.qjt"}, {"--version"}};
  for (const Row& row : outputs) {
    for (const auto& command : commands) {
      const ProgramRun run = RunReport(command, row.output);
      EXPECT_EQ(run.status, 1) << row.label << " " << command.front();
      EXPECT_EQ(run.error, "halvane-report: standard output: " + row.reason + "\n")
          << row.label << " " << command.front();
    }
  }
}

TEST(ReportProgram, NamesCannotSteerTheTerminal) {
  const ProgramRun run = RunReport({"--tool", "si", "gone\x1B[31m\n.qjt"});
  EXPECT_EQ(run.error,
            "halvane-report: File error: gone\uFFFD[31m\uFFFD.qjt: No such file or directory\n");
}

}  // namespace
}  // namespace halvane
