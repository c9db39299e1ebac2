#include <gtest/gtest.h>
#include <sys/stat.h>

#include <nlohmann/json.hpp>

#include "tests/reporter/running_program.h"
#include "tests/support/test_support.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

using Json = nlohmann::ordered_json;
using Arguments = std::vector<std::string>;

TEST(FilesFrom, EachJobIsWrittenAsItIsDone) {
  RunningProgram program({"--files-from", "-", "--tool", "si"});
  const std::vector<std::pair<std::string, double>> jobs{
      {"packing-line.qjt", 18.0}, {"board-assembly.qjt", 1.5}, {"packing-line.qjt", 18.0}};
  // The line of a job comes while the program waits for the next name.
  for (const auto& [name, score] : jobs) {
    program.Write(name + "\n");
    const Json line = Json::parse(program.ReadLine());
    EXPECT_EQ(line["file"], name);
    EXPECT_EQ(line["tool"], "si");
    EXPECT_EQ(line["results"]["SiStrainIndexScore"], score);
  }
  const ProgramRun run = program.Finish();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.error, "");
}

TEST(FilesFrom, SummaryIsOneObjectALine) {
  RunningProgram program({"--files-from=-", "--summary", "--tool", "si", "--tool", "rula"});
  program.Write("packing-line.qjt\n");
  const Json line = Json::parse(program.ReadLine());
  EXPECT_EQ(line["job"], "Carton packing, end of line");
  EXPECT_EQ(line["tools"], Json::parse(R"({"si":{"score":18.0,"risk_level":"High","error":null},
                                           "rula":{"grand_score":7,"error":null}})"));
  EXPECT_EQ(program.Finish().status, 0);
}

TEST(FilesFrom, CheckIsOneObjectALine) {
  RunningProgram program({"--files-from", "-", "--check"});
  program.Write("packing-line.qjt\n");
  EXPECT_EQ(program.ReadLine(),
            "{\"version\":1,\"file\":\"packing-line.qjt\",\"verdict\":\"good\",\"problems\":[],"
            "\"error\":null}\n");
  EXPECT_EQ(program.Finish().status, 0);
}

TEST(FilesFrom, OtherFormatsAreThereForTheAsking) {
  RunningProgram program({"--files-from", "-", "--summary", "--tool", "rula", "--format", "csv"});
  program.Write("packing-line.qjt\n");
  EXPECT_EQ(program.ReadLine(),
            "file,analyst,job,workstation,rula_grand_score,reasons,file_shown\r\n");
  EXPECT_EQ(program.ReadLine(),
            "packing-line.qjt,Line 4 review,\"Carton packing, end of "
            "line\",L4-P2,7,,packing-line.qjt\r\n");
  EXPECT_EQ(program.Finish().output, "");
}

/// A program that has the whole input at once.
ProgramRun RunWith(const Arguments& arguments, std::string_view input) {
  RunningProgram program(arguments);
  program.Write(input);
  return program.Finish();
}

TEST(FilesFrom, LinesAreTakenAsTheyStand) {
  const TemporaryFolder folder;
  const std::string bytes = BytesOf(SourcePath("docs/samples/packing-line.qjt"));
  const std::vector<std::string> names{"a b.qjt",   "-x.qjt", "caf\xE9.qjt",
                                       "tail .qjt", "[a,b]",  "--summary"};
  std::string input;
  for (const std::string& name : names) {
    WriteBytes(folder.File(name), bytes);
    input += folder.File(name) + "\n";
  }
  // The last line may lack its end, and empty ones are none.
  input = "\n" + input + "\n" + folder.File(names.front());
  const ProgramRun run = RunWith({"--files-from", "-", "--tool", "si"}, input);
  EXPECT_EQ(run.status, 0) << run.error;
  EXPECT_EQ(std::count(run.output.begin(), run.output.end(), '\n'),
            static_cast<std::ptrdiff_t>(names.size() + 1));
}

TEST(FilesFrom, ListsOfOtherSystemsAreTaken) {
  const ProgramRun run = RunWith({"--files-from", "-", "--tool", "si"},
                                 "\xEF\xBB\xBFpacking-line.qjt\r\n\r\nboard-assembly.qjt\r\n");
  EXPECT_EQ(run.status, 0) << run.error;
  EXPECT_EQ(std::count(run.output.begin(), run.output.end(), '\n'), 2);
}

TEST(FilesFrom, NamesThatAZeroByteEndsAreTakenAsTheyStand) {
  const TemporaryFolder folder;
  const std::string bytes = BytesOf(SourcePath("docs/samples/packing-line.qjt"));
  std::string input;
  for (const std::string name : {"line\nfeed.qjt", "re\r", "\xEF\xBB\xBF.qjt", "caf\xE9.qjt"}) {
    WriteBytes(folder.File(name), bytes);
    input += folder.File(name) + '\0';
  }
  const ProgramRun run = RunWith({"--files-from", "-", "-0", "--tool", "si"}, input);
  EXPECT_EQ(run.status, 0) << run.error;
  EXPECT_EQ(std::count(run.output.begin(), run.output.end(), '\n'), 4);
  EXPECT_NE(run.output.find("caf\\\\xE9.qjt"), std::string::npos) << run.output;
}

TEST(FilesFrom, CheckWritesNamesThatAZeroByteEnds) {
  const TemporaryFolder folder;
  const std::string path = folder.File("a\nb.qjt");
  WriteBytes(path, EmptyJobWith(6, "9"));
  const ProgramRun run = RunReport({"--check", "--null", path});
  EXPECT_EQ(run.output, path + std::string(1, '\0') +
                            "6: warning: RulaControlState(0): \"9\": is outside its range, 0 to 4; "
                            "rula fails\n");
}

TEST(FilesFrom, ListIsAFileOrAPipe) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("list"), "packing-line.qjt\nboard-assembly.qjt\n");
  const ProgramRun file = RunReport({"--files-from", folder.File("list"), "--tool", "si"});
  EXPECT_EQ(file.status, 0) << file.error;
  EXPECT_EQ(std::count(file.output.begin(), file.output.end(), '\n'), 2);
  const ProgramRun pipe = RunProgram("bash",
                                     {"-c", "exec \"$1\" --files-from <(cat \"$2\") --tool si",
                                      "bash", HALVANE_REPORT, folder.File("list")},
                                     SourcePath("docs/samples"));
  EXPECT_EQ(pipe.output, file.output) << pipe.error;
  const ProgramRun gone = RunReport({"--files-from", folder.File("gone"), "--tool", "si"});
  EXPECT_EQ(gone.status, 2);
  EXPECT_EQ(gone.output, "");
  EXPECT_EQ(gone.error, "halvane-report: --files-from: " + folder.File("gone") +
                            ": No such file or directory\n");
}

TEST(PipedJobs, AreReadAsFilesAre) {
  const std::string file = RunReport({"--tool", "si", "packing-line.qjt"}).output;
  const auto run = [](const std::string& command) {
    return RunProgram("bash", {"-c", command, "bash", HALVANE_REPORT}, SourcePath("docs/samples"));
  };
  for (const std::string command :
       {"cat packing-line.qjt | \"$1\" --tool si -", "\"$1\" --tool si - < packing-line.qjt",
        "\"$1\" --tool si <(cat packing-line.qjt)",
        "cat packing-line.qjt | \"$1\" --tool si /dev/stdin"}) {
    const ProgramRun piped = run(command);
    EXPECT_EQ(piped.status, 0) << piped.error;
    EXPECT_EQ(piped.output, file) << command;
  }
  const ProgramRun check = run("printf x | \"$1\" --check -");
  EXPECT_EQ(check.status, 1);
  EXPECT_EQ(check.output,
            "-:1: refused: constant 1: the file ends where this field should stand\n");
}

TEST(PipedJobs, PipeInAFolderIsNotWaitedFor) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkfifo(folder.File("a.qjt").c_str(), 0600), 0);
  const ProgramRun run = RunReport({"--check", folder.path(), folder.File("a.qjt")});
  EXPECT_EQ(run.status, 1);
  const std::string complaint =
      "halvane-report: File error: " + folder.File("a.qjt") + ": not a regular file\n";
  EXPECT_EQ(run.error, complaint + complaint);
}

TEST(FilesFrom, FoldersAreWalked) {
  const ProgramRun run =
      RunWith({"--files-from", "-", "--check"}, SourcePath("docs/samples") + "\n");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(std::count(run.output.begin(), run.output.end(), '\n'), 3);
}

struct InputRow {
  std::string label;
  std::string input;
  std::string error;
};

TEST(FilesFrom, WhatIsNoNameIsToldAndTheRestDone) {
  const std::vector<InputRow> rows = {
      {"no such file", "gone.qjt\npacking-line.qjt\n",
       "halvane-report: File error: gone.qjt: No such file or directory\n"},
      {"zero bytes", std::string("packing-line.qjt\0x\0\npacking-line.qjt\n", 37),
       "halvane-report: standard input: a line holds a zero byte; file names are expected one a "
       "line, or with --null\n"},
      {"endless line", std::string(70000, 'x') + "\npacking-line.qjt\n",
       "halvane-report: standard input: a line is longer than any file name\n"},
      {"too long for the system", std::string(5000, 'x') + "\npacking-line.qjt\n",
       "halvane-report: File error: " + std::string(5000, 'x') + ": File name too long\n"},
  };
  for (const InputRow& row : rows) {
    const ProgramRun run = RunWith({"--files-from", "-", "--check"}, row.input);
    EXPECT_EQ(run.status, 1) << row.label;
    EXPECT_EQ(run.error, row.error) << row.label;
    EXPECT_TRUE(
        run.output.ends_with("{\"version\":1,\"file\":\"packing-line.qjt\",\"verdict\":\"good\","
                             "\"problems\":[],\"error\":null}\n"))
        << row.label;
  }
}

TEST(FilesFrom, EndlessLineFillsNoMemory) {
  constexpr std::size_t kMegabyte = 1'000'000;
  const std::string part(kMegabyte, 'x');
  RunningProgram program({"--files-from", "-", "--check"});
  program.Write(part);
  program.WaitUntilTaken();
  const std::size_t before = program.memory();
  for (int i = 0; i < 60; ++i) program.Write(part);
  program.WaitUntilTaken();
  EXPECT_LT(program.memory(), before + 10 * kMegabyte);
  EXPECT_EQ(program.Finish().error,
            "halvane-report: standard input: a line is longer than any file name\n");
}

TEST(FilesFrom, EmptyInputIsNoJob) {
  const ProgramRun run = RunWith({"--files-from", "-"}, "");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.error, "");
}

TEST(FilesFrom, InputThatCannotBeReadIsTold) {
  const ProgramRun run =
      RunProgram("sh", {"-c", "exec \"$1\" --files-from - --check < .", "sh", HALVANE_REPORT});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.error, "halvane-report: standard input: Is a directory\n");
}

TEST(FilesFrom, OutputThatIsClosedEndsTheWork) {
  const ProgramRun run = RunProgram(
      "sh",
      {"-c", "yes packing-line.qjt | { \"$1\" --files-from - --summary; echo $? >&2; } | head -n 2",
       "sh", HALVANE_REPORT},
      SourcePath("docs/samples"));
  EXPECT_EQ(std::count(run.output.begin(), run.output.end(), '\n'), 2);
  EXPECT_EQ(run.error, "141\n");
}

}  // namespace
}  // namespace halvane
