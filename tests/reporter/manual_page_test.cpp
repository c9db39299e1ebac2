#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

const char* const kPage = "docs/man/halvane-report.1";

TEST(ManualPage, HasNoWarnings) {
  if (!HasProgram("mandoc")) GTEST_SKIP() << "there is no mandoc";
  const ProgramRun run = RunProgram("mandoc", {"-T", "lint", "-W", "warning", SourcePath(kPage)});
  EXPECT_EQ(run.status, 0) << run.output << run.error;
}

TEST(ManualPage, NamesEveryOption) {
  const std::string page = BytesOf(SourcePath(kPage));
  const std::string help = RunReport({"--help"}).output;
  int options = 0;
  for (std::size_t at = help.find("--"); at != std::string::npos; at = help.find("--", at + 2)) {
    const std::size_t end = help.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at + 2);
    const std::string name = help.substr(at + 2, end - at - 2);
    EXPECT_NE(page.find("Fl Fl " + name), std::string::npos) << name;
    ++options;
  }
  EXPECT_GE(options, 9);
}

/// The command that has `part`, as a reader of the page sees it and copies it.
std::string ExampleWith(const std::string& part) {
  const std::string page =
      RunProgram("mandoc", {"-T", "ascii", "-O", "width=1000", SourcePath(kPage)}).output;
  const std::string mark = " $ ";
  for (std::size_t at = page.find(mark); at != std::string::npos; at = page.find(mark, at + 1)) {
    const std::size_t start = at + mark.size();
    std::string command = page.substr(start, page.find('\n', start) - start);
    if (command.find(part) != std::string::npos) return command;
  }
  ADD_FAILURE() << "no example with " << part;
  return {};
}

TEST(ManualPage, ExampleOfABatchEngineSumsUpEveryJobInOrder) {
  const bool isThere =
      RunProgram("sh", {"-c", "parallel --version | grep -q 'GNU parallel'"}).status == 0;
  if (!isThere || !HasProgram("mandoc")) GTEST_SKIP() << "there is no GNU parallel or no mandoc";
  const std::string command = ExampleWith("parallel --pipe -N 500 --keep-order halvane-report");
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.File("jobs/line 4"));
  const std::string bytes = BytesOf(SourcePath("docs/samples/packing-line.qjt"));
  for (char name = 'a'; name <= 'z'; ++name) {
    WriteBytes(folder.File(std::string("jobs/") + (name % 2 == 0 ? "line 4/" : "") + name + ".qjt"),
               bytes);
  }
  const std::string path = std::filesystem::path(HALVANE_REPORT).parent_path().string();
  // At once, and in pieces so small that there are several calls.
  for (const std::string count : {"500", "5"}) {
    std::string asked = command;
    asked.replace(asked.find("500"), 3, count);
    const ProgramRun run = RunProgram("env",
                                      {"HOME=" + folder.path(), "PARALLEL=", "LC_ALL=C", "sh", "-c",
                                       "PATH=\"$1:$PATH\"; " + asked, "sh", path},
                                      folder.path());
    EXPECT_EQ(run.status, 0) << run.error;
    const ProgramRun alone =
        RunProgram(HALVANE_REPORT, {"--summary", "--format", "json", "jobs"}, folder.path());
    EXPECT_EQ(BytesOf(folder.File("summary.jsonl")), alone.output) << count;
    EXPECT_EQ(std::count(alone.output.begin(), alone.output.end(), '\n'), 26);
  }
}

TEST(ManualPage, ExampleOfManyMachinesIsThatOfTheirPage) {
  if (!HasProgram("mandoc")) GTEST_SKIP() << "there is no mandoc";
  // There it stands in three lines.
  std::string page = BytesOf(SourcePath("docs/many-machines.md"));
  for (const std::string lineEnd : {"|\n  ", "\\\n    "}) {
    const std::size_t at = page.find(lineEnd);
    ASSERT_NE(at, std::string::npos) << lineEnd;
    page.replace(at, lineEnd.size(), lineEnd[0] == '|' ? "| " : "");
  }
  EXPECT_NE(page.find("\n" + ExampleWith("--sshloginfile") + "\n"), std::string::npos) << page;
}

TEST(ManualPage, NamesEveryTool) {
  const std::string page = BytesOf(SourcePath(kPage));
  for (const ToolRow& row : Tools()) {
    EXPECT_NE(page.find(std::string(" ").append(row.key)), std::string::npos) << row.key;
  }
}

}  // namespace
}  // namespace halvane
