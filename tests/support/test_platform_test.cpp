#include "tests/support/test_platform.h"

#include <gtest/gtest-spi.h>

namespace halvane {
namespace {

// The macros below run their statement in a function of its own, which reaches no local variable.

void AskUnasked() { TestPlatform().ShowMessage(nullptr, "title", "Go on?", {Answer::Yes}); }

void AnswerWhatIsNotOnOffer() {
  TestPlatform platform;
  platform.WillAnswer(Answer::Cancel);
  platform.ShowMessage(nullptr, "title", "Go on?", {Answer::Yes, Answer::No});
}

void LeaveAnAnswer() { TestPlatform().WillAnswer(Answer::No); }
void LeaveAFileToOpen() { TestPlatform().WillOpen("a.qjt"); }
void LeaveAFileToSave() { TestPlatform().WillSave("b.qjt"); }
void LeaveAPrinter() { TestPlatform().WillChoosePrinter(true); }
void OpenUnasked() { TestPlatform().ChooseFileToOpen(nullptr, "*"); }
void SaveUnasked() { TestPlatform().ChooseFileToSave(nullptr, "*"); }
void LeaveAProgram() { TestPlatform().WillStartProgram(true); }
void StartUnasked() { TestPlatform().StartProgram({"viewer", {}}); }
void PrintUnasked() { TestPlatform().ChoosePrinter(nullptr); }

TEST(TestPlatform, FailsATestThatQueuedNothing) {
  EXPECT_NONFATAL_FAILURE(AskUnasked(), "nothing is queued for the message: Go on?");
  EXPECT_NONFATAL_FAILURE(OpenUnasked(), "nothing is queued for the file to open");
  EXPECT_NONFATAL_FAILURE(SaveUnasked(), "nothing is queued for the file to save");
  EXPECT_NONFATAL_FAILURE(PrintUnasked(), "nothing is queued for the printer");
  EXPECT_NONFATAL_FAILURE(StartUnasked(), "nothing is queued for the start of viewer");
}

TEST(TestPlatform, RefusesAnAnswerThatWasNotOnOffer) {
  EXPECT_NONFATAL_FAILURE(AnswerWhatIsNotOnOffer(), "Cancel is not on offer");
}

TEST(TestPlatform, FailsATestThatLeavesAnswersOver) {
  EXPECT_NONFATAL_FAILURE(LeaveAnAnswer(), "1 queued answers were not asked for");
  EXPECT_NONFATAL_FAILURE(LeaveAFileToOpen(), "a.qjt was not opened");
  EXPECT_NONFATAL_FAILURE(LeaveAFileToSave(), "b.qjt was not saved");
  EXPECT_NONFATAL_FAILURE(LeaveAPrinter(), "no printer was asked for");
  EXPECT_NONFATAL_FAILURE(LeaveAProgram(), "no program was started");
}

TEST(TestPlatform, IsInUseAsLongAsItLives) {
  Platform& before = ThePlatform();
  {
    const TestPlatform platform;
    EXPECT_EQ(&ThePlatform(), &platform);
  }
  EXPECT_EQ(&ThePlatform(), &before);
}

}  // namespace
}  // namespace halvane
