#include <gtest/gtest.h>

#include <chrono>
#include <csignal>

#include "tests/reporter/running_program.h"

namespace halvane {
namespace {

constexpr int kEndedByCtrlC = 128 + SIGINT;

TEST(Interruption, WhatIsDoneIsWrittenAndCounted) {
  RunningProgram program({"--files-from", "-", "--summary", "--tool", "rula", "--format", "html"});
  program.Write("packing-line.qjt\nboard-assembly.qjt\n");
  while (program.ReadLine().find("board-assembly.qjt") == std::string::npos) {
    if (testing::Test::HasFailure()) return;
  }
  program.Write("half-a-na");
  program.WaitUntilTaken();
  // It waits for the rest of the name, and need not.
  program.Interrupt();
  const ProgramRun run = program.End();
  EXPECT_EQ(run.status, kEndedByCtrlC);
  EXPECT_EQ(run.output, "</tbody>\n</table>\n</main>\n</body>\n</html>\n");
  EXPECT_EQ(run.error, "halvane-report: interrupted; done so far: 2 jobs\n");
}

TEST(Interruption, EndThatASystemAsksForCompletesThePageToo) {
  RunningProgram program({"--files-from", "-", "--summary", "--tool", "rula", "--format", "html"});
  program.Write("packing-line.qjt\n");
  while (program.ReadLine().find("packing-line.qjt") == std::string::npos) {
    if (testing::Test::HasFailure()) return;
  }
  program.Interrupt(SIGTERM);
  const ProgramRun run = program.End();
  EXPECT_EQ(run.status, 128 + SIGTERM);
  EXPECT_EQ(run.output, "</tbody>\n</table>\n</main>\n</body>\n</html>\n");
  EXPECT_EQ(run.error, "halvane-report: terminated; done so far: 1 job\n");
}

TEST(Interruption, RowsThatWaitForTheEndAreWritten) {
  for (const std::vector<std::string>& order :
       {std::vector<std::string>{}, std::vector<std::string>{"--sort", "rula"}}) {
    std::vector<std::string> arguments{"--files-from", "-",        "--summary", "--tool",
                                       "rula",         "--format", "text"};
    arguments.insert(arguments.end(), order.begin(), order.end());
    RunningProgram program(arguments);
    program.Write("board-assembly.qjt\npacking-line.qjt\ngone.qjt\n");
    // Its turn has come when it is complained of.
    program.WaitForError("gone.qjt");
    program.Interrupt();
    const ProgramRun run = program.End();
    EXPECT_EQ(run.status, kEndedByCtrlC);
    const std::size_t board = run.output.find("board-assembly.qjt");
    const std::size_t packing = run.output.find("packing-line.qjt");
    ASSERT_NE(board, std::string::npos) << run.output;
    ASSERT_NE(packing, std::string::npos) << run.output;
    EXPECT_EQ(packing < board, !order.empty());
    EXPECT_TRUE(run.error.ends_with("halvane-report: interrupted; done so far: 3 jobs\n"))
        << run.error;
  }
}

TEST(Interruption, ProgramThatIsToIgnoreItDoes) {
  RunningProgram program({"--files-from", "-", "--summary", "--tool", "rula"},
                         {.ignoresInterruption = true});
  program.Write("packing-line.qjt\n");
  program.ReadLine();
  program.Interrupt();
  program.Write("packing-line.qjt\n");
  program.ReadLine();
  const ProgramRun run = program.Finish();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
}

double Seconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Gives the program one job after the other for as long as `goesOn`, and reads the lines.
template <typename Condition>
void Feed(RunningProgram& program, const Condition& goesOn) {
  const double start = Seconds();
  while (goesOn(Seconds() - start) && !testing::Test::HasFailure()) {
    program.Write("packing-line.qjt\n");
    program.ReadLine();
  }
}

const std::vector<std::string> kStream{"--files-from", "-", "--check", "--format", "json"};

TEST(ProgressOfTheProgram, StandsOnATerminalAfterASecond) {
  RunningProgram program(kStream, {.errorIsTerminal = true});
  double shownAfter = 0;
  Feed(program, [&](double seconds) {
    shownAfter = seconds;
    return program.error().find(" done") == std::string::npos && seconds < 60;
  });
  EXPECT_GE(shownAfter, 0.9);
  EXPECT_LT(shownAfter, 60);
  program.Write("gone.qjt\n");
  const ProgramRun run = program.Finish();
  EXPECT_NE(run.error.find("\r\x1B[K"), std::string::npos);
  EXPECT_NE(run.error.find(" jobs done"), std::string::npos) << run.error;
  // The bar has gone before the complaint.
  EXPECT_NE(run.error.find(" jobs done\r\x1B[Khalvane-report: File error: gone.qjt"),
            std::string::npos)
      << run.error;
  EXPECT_EQ(run.output.find('\x1B'), std::string::npos);
}

TEST(ProgressOfTheProgram, IsNotWrittenIntoAFile) {
  RunningProgram program(kStream);
  Feed(program, [](double seconds) { return seconds < 1.3; });
  EXPECT_EQ(program.Finish().error, "");
}

TEST(ProgressOfTheProgram, IsNotWrittenBetweenTheLinesOfATerminal) {
  RunningProgram program(kStream, {.errorIsTerminal = true, .outputIsTerminal = true});
  Feed(program, [](double seconds) { return seconds < 1.3; });
  EXPECT_EQ(program.Finish().error, "");
}

}  // namespace
}  // namespace halvane
