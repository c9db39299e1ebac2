#include <gtest/gtest.h>

#include <array>
#include <string>

#include "core/job_file.h"
#include "core/job_text_reader.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

/// Opens `bytes` as a freshly started program does.
class JobFileReading : public testing::Test {
 protected:
  OpenOutcome Open(std::string_view bytes) {
    Module1 = JobState{};
    return OpenOverPresentJob(bytes);
  }
  OpenOutcome OpenOverPresentJob(std::string_view bytes) {
    Module1.JobFileName = folder_.File("job.qjt");
    WriteBytes(Module1.JobFileName, bytes);
    return OpenJobFile();
  }
  /// The job that `bytes` gives after writing it, to compare all fields at once.
  std::string BytesAfterOpening(std::string_view bytes) {
    EXPECT_EQ(Open(bytes), OpenOutcome::Opened);
    return JobFileBytes(Module1);
  }

  const TemporaryFolder folder_;
};

TEST_F(JobFileReading, EmptyJobReadsAsTheFreshProgram) {
  EXPECT_EQ(Open(EmptyJobText()), OpenOutcome::Opened);
  JobState expected;
  expected.JobFileName = Module1.JobFileName;
  EXPECT_EQ(Module1, expected);
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(JobFileReading, FileReadWholeIsClosedAndTheJobUnchanged) {
  Module1 = JobState{};
  Module1.JobDirty = kTrue;
  OpenOverPresentJob(EmptyJobText());
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_FALSE(Module1.JobFileOpen);
}

TEST_F(JobFileReading, LineEndsOfEveryKindSeparate) {
  const std::string written = EmptyJobText("1") + UntouchedTaskText(1);
  for (const std::string_view lineEnd : {"\n", "\r", ","}) {
    std::string text;
    for (const char c : written) {
      if (c == '\n') continue;
      if (c == '\r') {
        text += lineEnd;
      } else {
        text += c;
      }
    }
    EXPECT_EQ(BytesAfterOpening(text), written);
  }
}

TEST_F(JobFileReading, LastLineNeedsNoEnd) {
  std::string text = EmptyJobText();
  text.resize(text.size() - 2);
  EXPECT_EQ(BytesAfterOpening(text), EmptyJobText());
}

TEST_F(JobFileReading, WhatFollowsTheLastTaskIsNotRead) {
  EXPECT_EQ(BytesAfterOpening(EmptyJobText() + "more, \"text"), EmptyJobText());
}

TEST_F(JobFileReading, WhatFollowsTheLastTaskDoesNotDecideTheEncoding) {
  const std::string utf8 = EmptyJobWith(4, "\"Łódź\",\"\",\"\",0,8");
  Open(utf8 + "caf\xE9");
  EXPECT_EQ(Module1.JobAnalyst, TaggedField("Łódź"));
  const std::string codePage = EmptyJobWith(4, "\"J\xF6rg\",\"\",\"\",0,8");
  Open(codePage + "Łódź");
  EXPECT_EQ(Module1.JobAnalyst, TaggedField("Jörg"));
  // Where the job cannot be read to its end, all of the file counts.
  EXPECT_EQ(FailureOf([&] { Open(EmptyJobWith(4, "\"Ł\",\"\xE9\",\"\",x,8")); }), "TypeMismatch");
  EXPECT_EQ(Module1.JobAnalyst, TaggedField("Å\xC2\x81"));
}

TEST_F(JobFileReading, ConstantsOfTheFirstLineAreNotLookedAt) {
  EXPECT_EQ(BytesAfterOpening(EmptyJobWith(1, "\"qjt\",,\"x\",99999,2.5")), EmptyJobText());
}

TEST_F(JobFileReading, NumberTakesAPointWithOrWithoutAZero) {
  Open(EmptyJobWith(3, "8,.5,0"));
  EXPECT_EQ(Module1.JobCycleTime, 0.5);
  Open(EmptyJobWith(3, "8,0.5,0"));
  EXPECT_EQ(Module1.JobCycleTime, 0.5);
  EXPECT_EQ(JobFileBytes(Module1), EmptyJobWith(3, "8,0.5,0"));
}

TEST_F(JobFileReading, CommaAndLineBreakInATextSurvive) {
  const std::string text = EmptyJobWith(4, "\"Ann, A.\",\"two\r\nlines\",\"a\rb\nc\",0,8");
  EXPECT_EQ(BytesAfterOpening(text), text);
  EXPECT_EQ(Module1.JobAnalyst, TaggedField("Ann, A."));
  EXPECT_EQ(Module1.JobName, TaggedField("two\r\nlines"));
  EXPECT_EQ(Module1.JobWorkstationId, "a\rb\nc");
}

TEST_F(JobFileReading, QuoteAndCommaInATextShiftEveryLaterField) {
  Module1 = JobState{};
  Module1.JobAnalyst = "6\" wide, 2\" deep";
  Module1.JobName = "name";
  Module1.JobWorkstationId = "workstation";
  Module1.Hand = 1;
  Module1.HalActivityLevel = Integer{5};
  Module1.OcraElbowGesture = 4;
  Module1.JobFileName = folder_.File("job.qjt");
  WriteJobFile();
  Module1 = JobState{};
  Module1.JobFileName = folder_.File("job.qjt");
  // The name would have to be the number of the hand.
  EXPECT_EQ(FailureOf(OpenJobFile), "TypeMismatch");
  EXPECT_EQ(Module1.JobAnalyst, TaggedField("6"));
  EXPECT_EQ(Module1.JobName, TaggedField("2\" deep\""));
  EXPECT_EQ(Module1.JobWorkstationId, "name");
  EXPECT_EQ(Module1.Hand, 0);
}

TEST_F(JobFileReading, QuotesThatLeaveFieldsOfTheRightKindShiftSilently) {
  Module1 = JobState{};
  Module1.JobWorkstationId = "a\",1,\"b";
  Module1.JobFileName = folder_.File("job.qjt");
  WriteJobFile();
  Module1 = JobState{};
  Module1.JobFileName = folder_.File("job.qjt");
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened);
  EXPECT_EQ(Module1.JobWorkstationId, "a");
  EXPECT_EQ(Module1.Hand, 1);
  EXPECT_EQ(Module1.JobDurationPerDay, TaggedField("b"));
  EXPECT_EQ(Module1.HalExertionFrequency, TaggedField(Integer{0}));
  EXPECT_EQ(Module1.HalDutyCycle, TaggedField(Integer{8}));
  EXPECT_EQ(Module1.OcraComboChoice.at(1), 0);
  EXPECT_EQ(Module1.OcraRecoveryHours, TaggedField(Integer{3}));
}

TEST_F(JobFileReading, LastCopyOfARepeatedFieldWins) {
  std::string task =
      "\"Task 1\",1\r\n"
      "11,0\r\n"
      "0,12,13,14,15,16,17\r\n"
      "18,19,20,21\r\n"
      "22,23,24,0,25,26\r\n"
      "27,28,29,30\r\n"
      ",,,,,,,0\r\n";
  for (int slot = 0; slot < 8; ++slot) task += "0,0\r\n";
  std::string head = EmptyJobText("1");
  head.replace(head.find("\"\",\"\",\"\",0,8"), 12, "\"\",\"\",\"\",0,9.");
  Open(head + task);
  EXPECT_EQ(Module1.JobDurationPerDay, TaggedField(9.0));
  EXPECT_EQ(Module1.OcraActionFrequency.at(1), TaggedField(Integer{15}));
  EXPECT_EQ(Module1.CtdWorkTime.at(1), TaggedField(Integer{22}));
  EXPECT_EQ(Module1.CtdRestTime.at(1), TaggedField(Integer{23}));
  EXPECT_EQ(Module1.TaskSpare.at(1), 24);
  EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(Integer{25}));
  EXPECT_EQ(Module1.CtdForceMvc.at(1), 26);
  EXPECT_EQ(Module1.CtdGripType.at(1), TaggedField(Integer{27}));
  EXPECT_EQ(Module1.CtdWristPosition.at(1), 28);
  EXPECT_EQ(Module1.CtdFlexExtDeviation.at(1), TaggedField(Integer{29}));
  EXPECT_EQ(Module1.CtdRadUlnDeviation.at(1), 30);
}

TEST_F(JobFileReading, TextsOfBothEncodingsAreRead) {
  Open(EmptyJobWith(4, "\"J\xF6rg\",\"\x80 5\",\"\",0,8"));
  EXPECT_EQ(Module1.JobAnalyst, TaggedField("Jörg"));
  EXPECT_EQ(Module1.JobName, TaggedField("€ 5"));
  Open(EmptyJobWith(4, "\"Łódź\",\"日本\",\"\",0,8"));
  EXPECT_EQ(Module1.JobAnalyst, TaggedField("Łódź"));
  EXPECT_EQ(Module1.JobName, TaggedField("日本"));
}

TEST_F(JobFileReading, TextsAreWrittenInTheCodePageWhereItHoldsThem) {
  const std::string codePage = EmptyJobWith(4, "\"J\xF6rg\",\"\x80 5\",\"\",0,8");
  EXPECT_EQ(BytesAfterOpening(codePage), codePage);
  EXPECT_EQ(BytesAfterOpening(EmptyJobWith(4, "\"Jörg\",\"€ 5\",\"\",0,8")), codePage);
  const std::string utf8 = EmptyJobWith(4, "\"Jörg\",\"日本\",\"\",0,8");
  EXPECT_EQ(BytesAfterOpening(utf8), utf8);
}

TEST_F(JobFileReading, OpeningClearsThePostureFactorsAndLeavesOtherWorkingValues) {
  Module1 = JobState{};
  Module1.RebaUpperArmFactors.fill(1);
  Module1.RebaWristFactors.fill(1);
  Module1.RebaNeckFactors.fill(1);
  Module1.RebaTrunkFactors.fill(1);
  Module1.RebaLegFactors.fill(1);
  Module1.RebaForceFactors.fill(1);
  Module1.RulaUpperArmFactors.fill(1);
  Module1.RulaLowerArmFactors.fill(1);
  Module1.RulaWristFactors.fill(1);
  Module1.RulaNeckFactors.fill(1);
  Module1.RulaTrunkFactors.fill(1);
  Module1.Units = 1;
  Module1.CurrentTask = Integer{1};
  Module1.SiDutyRating = 4;
  Module1.CtdLoadHeld.at(0, 0) = 5;
  Module1.CtdLoadHeld.at(7, 3) = 5;
  OpenOverPresentJob(EmptyJobText());
  JobState expected;
  expected.JobFileName = Module1.JobFileName;
  expected.Units = 1;
  expected.CurrentTask = Integer{1};
  expected.SiDutyRating = 4;
  expected.CtdLoadHeld.at(0, 0) = 5;
  EXPECT_EQ(Module1, expected);
}

TEST_F(JobFileReading, ReadJobFileReadsIntoArraysOfTheCallersSize) {
  Module1 = JobState{};
  Module1.JobFileName = folder_.File("job.qjt");
  Module1.JobDirty = kTrue;
  Module1.TaskCount = Integer{1};
  ResizeTaskArrays();
  WriteBytes(Module1.JobFileName, EmptyJobText("1") + UntouchedTaskText(1));
  ReadJobFile();
  EXPECT_EQ(Module1.TaskNames.at(1), "Task 1");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_FALSE(Module1.JobFileOpen);

  JobReset();
  Module1.JobFileName = folder_.File("job.qjt");
  EXPECT_EQ(FailureOf(ReadJobFile), "SubscriptOutOfRange");
}

struct MarkerRow {
  const char* label;
  std::string_view bytes;
};

TEST_F(JobFileReading, OtherFilesAreRefusedAndChangeNothing) {
  constexpr std::array rows{
      MarkerRow{"marker in capitals", "\"QJT\",1,0,0,0\r\n3\r\n"},
      MarkerRow{"five lines of text", "Dear all,\nplease\nread\nthis\nfirst\n"},
      MarkerRow{"five empty lines", "\n\n\n\n\n"},
      MarkerRow{"numbers beyond 16 bits", "1,99999,1E300,a,b"},
  };
  for (const MarkerRow& row : rows) {
    Module1 = JobState{};
    Module1.JobAnalyst = "analyst";
    Module1.TaskCount = Integer{1};
    NewTaskRecord();
    Module1.JobDirty = kTrue;
    Module1.RulaNeckFactors.fill(1);
    JobState expected = Module1;
    EXPECT_EQ(OpenOverPresentJob(row.bytes), OpenOutcome::NotAJobFile) << row.label;
    expected.JobFileName = Module1.JobFileName;
    EXPECT_EQ(Module1, expected) << row.label;
    EXPECT_EQ(OpenOverPresentJob(EmptyJobText()), OpenOutcome::Opened) << row.label;
  }
}

TEST_F(JobFileReading, TaskCountOfOtherKindsCountsAsItsNumber) {
  const std::string task = UntouchedTaskText(1);
  for (const std::string_view count : {"1", "\"1\"", "1.0", "\"1 task\"", "1.5", "1E0"}) {
    EXPECT_EQ(Open(EmptyJobText(count) + task), OpenOutcome::Opened) << count;
    EXPECT_EQ(Module1.TaskNames.at(1), "Task 1") << count;
  }
  // Bounds round half to even, the loop over the tasks does not go beyond the number itself.
  EXPECT_EQ(Module1.TaskNames.upperBound(), 1);
  Open(EmptyJobText("1.5") + task);
  EXPECT_EQ(Module1.TaskNames.upperBound(), 2);
  EXPECT_EQ(Module1.TaskNames.at(2), "");
  for (const std::string_view count : {"0", "", "\"\"", "many", "\"many\"", "-0.5", "0.9"}) {
    EXPECT_EQ(Open(EmptyJobText(count) + task), OpenOutcome::Opened) << count;
    EXPECT_EQ(Module1.TaskCount.AsDouble() < 1, true) << count;
  }
}

}  // namespace
}  // namespace halvane
