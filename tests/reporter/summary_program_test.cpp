#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

using Json = nlohmann::ordered_json;
using Arguments = std::vector<std::string>;

std::string Expected(const std::string& name) {
  return BytesOf(SourcePath("tests/reporter/expected/" + name));
}

/// A summary by five tools, whatever others there are.
Arguments SummaryOf(const Arguments& more) {
  Arguments arguments{"--summary", "--tool", "ocra", "--tool", "ctd", "--tool",
                      "si",        "--tool", "reba", "--tool", "rula"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

TEST(SummaryProgram, PrintsWholeSummariesInEveryFormat) {
  for (const std::string format : {"text", "csv", "json", "html"}) {
    const ProgramRun run = RunReport(SummaryOf({"--format", format, "."}));
    EXPECT_EQ(run.output, Expected("summary." + (format == "text" ? "txt" : format))) << format;
    EXPECT_GT(run.output.size(), 400U) << format;
    EXPECT_EQ(run.error, "") << format;
    EXPECT_EQ(run.status, 0) << format;
  }
  EXPECT_EQ(RunReport(SummaryOf({"."})).output, Expected("summary.txt"));
}

TEST(SummaryProgram, WithoutAToolEachHasItsColumns) {
  const ProgramRun run = RunReport({"--summary", "--format", "json", "packing-line.qjt"});
  std::vector<std::string> keys;
  const Json line = Json::parse(run.output);
  for (const auto& [key, cell] : line["tools"].items()) keys.push_back(key);
  EXPECT_EQ(keys, (std::vector<std::string>{"ocra", "ctd", "si", "reba", "rula", "hal"}));
}

TEST(SummaryProgram, ColumnsStandInTheOrderAskedFor) {
  const ProgramRun run = RunReport({"--summary", "--format", "csv", "--tool", "reba", "--tool",
                                    "rula", "--tool", "si", "packing-line.qjt"});
  EXPECT_EQ(run.output.substr(0, run.output.find('\n')),
            "file,analyst,job,workstation,reba_grand_score,reba_action_level,rula_grand_score,"
            "si_score,si_risk_level,reasons,file_shown\r");
}

/// The first cells of the lines behind the headings.
std::string FilesOf(const std::string& csv) {
  std::istringstream lines(csv);
  std::string files;
  std::string line;
  std::getline(lines, line);
  while (std::getline(lines, line)) files += line.substr(0, line.find(',')) + " ";
  return files;
}

TEST(SummaryProgram, WorstComesFirstByTheToolAskedFor) {
  const auto sorted = [](const std::string& tool) {
    return FilesOf(RunReport(SummaryOf({"--format", "csv", "--sort", tool, "board-assembly.qjt",
                                        "packing-line.qjt", "parcel-sorting.qjt"}))
                       .output);
  };
  EXPECT_EQ(sorted("si"), "parcel-sorting.qjt packing-line.qjt board-assembly.qjt ");
  EXPECT_EQ(sorted("ctd"), "parcel-sorting.qjt board-assembly.qjt packing-line.qjt ");
}

TEST(SummaryProgram, UnitsCount) {
  const auto score = [](const std::string& units) {
    const ProgramRun run = RunReport(
        {"--summary", "--tool", "ctd", "--format", "json", "--units", units, "packing-line.qjt"});
    return Json::parse(run.output)["tools"]["ctd"]["grand_score"].get<double>();
  };
  EXPECT_NEAR(score("metric"), 7.007437825263731, 1e-12);
  EXPECT_NEAR(score("english"), 4.708760899804947, 1e-12);
}

TEST(SummaryProgram, SummarySaysWhatTheReportsSay) {
  const std::vector<std::pair<std::string, std::string>> values = {{"ocra", "OcraRiskIndex"},
                                                                   {"ctd", "CtdGrandScore"},
                                                                   {"si", "SiStrainIndexScore"},
                                                                   {"rula", "RulaGrandScore"},
                                                                   {"reba", "RebaGrandScore"}};
  for (const std::string file : {"board-assembly.qjt", "packing-line.qjt", "parcel-sorting.qjt"}) {
    const Json summary =
        Json::parse(RunReport({"--summary", "--format", "json", file}).output)["tools"];
    for (const auto& [tool, value] : values) {
      const Json report = Json::parse(RunReport({"--tool", tool, "--format", "json", file}).output);
      EXPECT_EQ(summary[tool].front(), report["results"][value]) << file << " " << tool;
    }
  }
}

TEST(SummaryProgram, JobThatAToolCannotComputeShowsWhyAndTheRestStands) {
  const TemporaryFolder folder;
  const std::string gap = folder.File("gap.qjt");
  WriteBytes(gap, EmptyJobWith(49, "29.5,100,10,10,0,0,0"));
  const ProgramRun run = RunReport(SummaryOf({"--format", "csv", gap, "packing-line.qjt"}));
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.error,
            "halvane-report: " + gap +
                ": si: Subscript out of range: line 49, field SiDutyCyclePercent: \"29.5\" has no "
                "rating: one band ends at 29 and the next begins at 30\n");
  EXPECT_NE(run.output.find(
                gap +
                ",,,,0,Green,,,,1,0,1,\"ctd: The job has no task, so the tool has no report on "
                "it.; si: Subscript out of range: line 49, field SiDutyCyclePercent: "
                "\"\"29.5\"\" has no rating: one band ends at 29 and the next begins at 30\"," +
                gap + "\r\n"),
            std::string::npos)
      << run.output;
  EXPECT_NE(run.output.find("packing-line.qjt,Line 4 review"), std::string::npos);
}

TEST(SummaryProgram, JobWithoutATaskIsNoFailure) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("empty.qjt"), EmptyJobText());
  const ProgramRun run =
      RunReport({"--summary", "--tool", "ctd", "--format", "json", folder.File("empty.qjt")});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  EXPECT_EQ(Json::parse(run.output)["tools"]["ctd"]["error"]["kind"], "NoReport");
}

TEST(SummaryProgram, HostileTextsHarmNeitherSheetNorPageNorTerminal) {
  const TemporaryFolder folder;
  const std::string file = folder.File("=cmd.qjt");
  WriteBytes(file,
             EmptyJobWith(4, "\"=HYPERLINK('x')\",<script>alert(1)</script>,\"@\x1B[2J\",0,8"));
  const auto run = [&](const std::string& format) {
    return RunProgram(HALVANE_REPORT,
                      {"--summary", "--tool", "rula", "--format", format, "=cmd.qjt"},
                      folder.path())
        .output;
  };
  EXPECT_EQ(run("csv"),
            "file,analyst,job,workstation,rula_grand_score,reasons,file_shown\r\n"
            "=cmd.qjt,'=HYPERLINK('x'),<script>alert(1)</script>,'@\uFFFD[2J,1,,'=cmd.qjt\r\n");
  EXPECT_EQ(run("html").find("<script"), std::string::npos);
  EXPECT_NE(run("html").find("<td>&lt;script&gt;alert(1)&lt;/script&gt;</td>"), std::string::npos);
  EXPECT_EQ(run("text").find('\x1B'), std::string::npos);
  EXPECT_EQ(Json::parse(run("json"))["analyst"], "=HYPERLINK('x')");
}

TEST(SummaryProgram, BadNamesAreToldAndTheRestDone) {
  const TemporaryFolder folder;
  const std::string path = folder.path();
  ASSERT_EQ(mkfifo(folder.File("pipe.qjt").c_str(), 0600), 0);
  std::filesystem::create_directory(folder.File("empty"));
  WriteBytes(folder.File("z.qjt"), EmptyJobText());
  WriteBytes(folder.File("caf\xE9.qjt"), EmptyJobText());
  const ProgramRun run = RunProgram(HALVANE_REPORT,
                                    {"--summary", "--tool", "rula", "--format", "csv", "gone.qjt",
                                     "pipe.qjt", "empty", "/dev/null", "", "caf\xE9.qjt", "z.qjt"},
                                    path);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.error,
            "halvane-report: File error: gone.qjt: No such file or directory\n"
            "halvane-report: File error: pipe.qjt: not a regular file\n"
            "halvane-report: empty: there is no job file (.qjt) in this folder\n"
            "halvane-report: File error: /dev/null: not a regular file\n"
            "halvane-report: File error: : No such file or directory\n");
  EXPECT_TRUE(run.output.ends_with("caf\\xE9.qjt,,,,1,,caf\uFFFD.qjt\r\nz.qjt,,,,1,,z.qjt\r\n"))
      << run.output;
}

TEST(SummaryProgram, FolderWithoutRightsIsToldAndTheRestDone) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.File("closed"));
  std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
  WriteBytes(folder.File("closed/a.qjt"), EmptyJobText());
  WriteBytes(folder.File("z.qjt"), EmptyJobText());
  std::filesystem::permissions(folder.File("z.qjt"), std::filesystem::perms(0644));
  std::filesystem::permissions(folder.File("closed"), std::filesystem::perms::none);
  ProgramRun run{};
  {
    // Made by the test itself, the files of the program's own streams are open to nobody else.
    const RightsOfNobody rights;
    run = RunProgram(HALVANE_REPORT, {"--summary", "--tool", "rula", "--format", "csv", "."},
                     folder.path());
  }
  std::filesystem::permissions(folder.File("closed"), std::filesystem::perms::owner_all);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.error, "halvane-report: File error: ./closed/: Permission denied\n");
  EXPECT_TRUE(run.output.ends_with("\n./z.qjt,,,,1,,./z.qjt\r\n")) << run.output;
}

TEST(SummaryProgram, OutputThatTakesNoMoreIsStatus1) {
  for (const std::string format : {"text", "csv", "json", "html"}) {
    const ProgramRun full = RunReport({"--summary", "--format", format, "."}, OutputTo::FullDevice);
    EXPECT_EQ(full.status, 1) << format;
    EXPECT_EQ(full.error, "halvane-report: standard output: No space left on device\n") << format;
    // As of any program whose reader has gone: quietly, by the signal.
    const ProgramRun closed =
        RunReport({"--summary", "--format", format, "."}, OutputTo::ClosedPipe);
    EXPECT_EQ(closed.status, 128 + SIGPIPE) << format;
    EXPECT_EQ(closed.error, "") << format;
  }
}

TEST(SummaryProgram, LinesOfManyProgramsInOnePipeStayWhole) {
  const std::string line = RunReport({"--summary", "--format", "json", "packing-line.qjt"}).output;
  const ProgramRun run = RunProgram("sh",
                                    {"-c",
                                     "yes packing-line.qjt | head -n 10000 | xargs -P 4 -n 2500 "
                                     "\"$1\" --summary --format json | cat",
                                     "sh", HALVANE_REPORT},
                                    SourcePath("docs/samples"));
  EXPECT_EQ(run.error, "");
  std::istringstream lines(run.output);
  int count = 0;
  int torn = 0;
  for (std::string found; std::getline(lines, found); ++count) torn += found + "\n" == line ? 0 : 1;
  EXPECT_EQ(count, 10000);
  EXPECT_EQ(torn, 0);
}

TEST(SummaryProgram, ReportOfEachJobInAFolderHasItsHeading) {
  const ProgramRun run = RunReport({"--tool", "si", "."});
  EXPECT_NE(run.output.find("===== ./board-assembly.qjt: si =====\n"), std::string::npos);
  EXPECT_NE(run.output.find("\n===== ./packing-line.qjt: si =====\n"), std::string::npos);
  EXPECT_EQ(RunReport({"--tool", "si", "packing-line.qjt"}).output.find("====="),
            std::string::npos);
}

TEST(CheckProgram, TellsOfBadFilesAndIsSilentOnGoodOnes) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("bad.qjt"), EmptyJobWith(8, "x"));
  WriteBytes(folder.File("good.qjt"), EmptyJobText());
  WriteBytes(folder.File("odd.qjt"), EmptyJobWith(6, "9"));
  const auto check = [&folder](const Arguments& files) {
    Arguments arguments{"--check"};
    arguments.insert(arguments.end(), files.begin(), files.end());
    return RunProgram(HALVANE_REPORT, arguments, folder.path());
  };
  const ProgramRun good = check({"good.qjt"});
  EXPECT_EQ(good.status, 0);
  EXPECT_EQ(good.output + good.error, "");
  const ProgramRun odd = check({"good.qjt", "odd.qjt"});
  EXPECT_EQ(odd.status, 0);
  EXPECT_EQ(
      odd.output,
      "odd.qjt:6: warning: RulaControlState(0): \"9\": is outside its range, 0 to 4; rula fails\n");
  EXPECT_EQ(odd.error, "");
  const ProgramRun all = check({"gone.qjt", "."});
  EXPECT_EQ(all.status, 1);
  EXPECT_EQ(all.output,
            "./bad.qjt:8: read in part: RulaControlState(2): \"x\": is no number\n"
            "./odd.qjt:6: warning: RulaControlState(0): \"9\": is outside its range, 0 to 4; rula "
            "fails\n");
  EXPECT_EQ(all.error, "halvane-report: File error: gone.qjt: No such file or directory\n");
  const ProgramRun json = check({"--format", "json", "gone.qjt", "good.qjt"});
  EXPECT_EQ(json.status, 1);
  EXPECT_EQ(
      json.output,
      "{\"version\":1,\"file\":\"gone.qjt\",\"verdict\":\"refused\",\"problems\":[],\"error\":{"
      "\"kind\":"
      "\"FileError\",\"message\":\"File error: gone.qjt: No such file or directory\",\"line\":null,"
      "\"field\":null,\"value\":null,\"reason\":null}}\n"
      "{\"version\":1,\"file\":\"good.qjt\",\"verdict\":\"good\",\"problems\":[],\"error\":null}"
      "\n");
}

}  // namespace
}  // namespace halvane
