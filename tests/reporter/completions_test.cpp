#include "tests/reporter/completions.h"

#include <gtest/gtest.h>

#include "reporter/near_name.h"
#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

const std::string kBash = "packaging/completions/halvane-report.bash";
const std::string kZsh = "packaging/completions/_halvane-report";
const std::string kFish = "packaging/completions/halvane-report.fish";

TEST(Completions, AreThoseOfTheOptions) {
  EXPECT_TRUE(BytesOf(SourcePath(kBash)) == BashCompletion()) << "make_result_pages bash";
  EXPECT_TRUE(BytesOf(SourcePath(kZsh)) == ZshCompletion()) << "make_result_pages zsh";
  EXPECT_TRUE(BytesOf(SourcePath(kFish)) == FishCompletion()) << "make_result_pages fish";
}

/// What bash offers behind these words.
std::string OfferedByBash(const std::string& words) {
  const ProgramRun run =
      RunProgram("bash", {"--norc", "-c",
                          "source \"$1\"; COMP_WORDS=(halvane-report " + words +
                              "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _halvane_report; "
                              "echo \"${COMPREPLY[*]}\"",
                          "bash", SourcePath(kBash)});
  EXPECT_EQ(run.error, "");
  return run.output;
}

TEST(Completions, OfBashNameToolsFormatsAndOptions) {
  EXPECT_EQ(OfferedByBash("--tool ''"), "ocra ctd si reba rula hal\n");
  EXPECT_EQ(OfferedByBash("--tool r"), "reba rula\n");
  EXPECT_EQ(OfferedByBash("--tool = r"), "reba rula\n");
  EXPECT_EQ(OfferedByBash("--summary --sort o"), "ocra\n");
  EXPECT_EQ(OfferedByBash("--format h"), "html\n");
  EXPECT_EQ(OfferedByBash("--fo"), "--format\n");
  EXPECT_EQ(OfferedByBash("job"), "\n");
}

TEST(Completions, OfFishNameTools) {
  if (!HasProgram("fish")) GTEST_SKIP() << "there is no fish";
  const TemporaryFolder home;
  const ProgramRun run = RunProgram(
      "env", {"HOME=" + home.path(), "fish", "--no-config", "-c",
              "source " + SourcePath(kFish) + "; complete -C 'halvane-report --tool r'"});
  EXPECT_EQ(run.output, "reba\tTool to report on\nrula\tTool to report on\n") << run.error;
}

TEST(Completions, OfZshNameTools) {
  if (!HasProgram("zsh")) GTEST_SKIP() << "there is no zsh";
  // What the shell is told; to press Tab it needs a terminal.
  const ProgramRun run = RunProgram(
      "zsh", {"-f", "-c", "_arguments() { print -rl -- \"$@\" }; source " + SourcePath(kZsh)});
  EXPECT_EQ(run.error, "");
  EXPECT_NE(run.output.find(":tool:(ocra ctd si reba rula hal)\n"), std::string::npos)
      << run.output;
  EXPECT_NE(run.output.find("\n--summary["), std::string::npos) << run.output;
}

TEST(Hints, AreForSlips) {
  const std::vector<std::string> names{"--format", "--files-from", "--tool", "--null"};
  EXPECT_EQ(HintFor("--formatt", names), "; did you mean \"--format\"?");
  EXPECT_EQ(HintFor("--tolo", names), "; did you mean \"--tool\"?");
  EXPECT_EQ(HintFor("--colour", names), "");
  EXPECT_EQ(HintFor(std::string(100000, 'x'), names), "");
  EXPECT_EQ(HintFor("sii", std::vector<std::string>{"si", "rula"}), "; did you mean \"si\"?");
  EXPECT_EQ(HintFor("xyz", std::vector<std::string>{"si", "rula"}), "");
  EXPECT_EQ(HintFor("x", {}), "");
}

}  // namespace
}  // namespace halvane
