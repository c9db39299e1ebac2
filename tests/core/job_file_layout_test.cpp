#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/job_file.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

void FillJobFields() {
  Module1.JobDurationPerDay = "7.5";
  Module1.JobCycleTime = 1.25;
  Module1.JobFileFlag = 301;
  Module1.JobAnalyst = "Ann, A.";
  Module1.JobName = "Press line";
  Module1.JobWorkstationId = "W-17";
  Module1.Hand = 1;
  Module1.HalExertionFrequency = "11";
  Module1.HalDutyCycle = 12.5;
  Module1.HalForceRating = Integer{13};
  Module1.HalActivityLevel = TaggedField();
  for (int i = 0; i < 20; ++i) Module1.RulaControlState.at(i) = ToInteger(100 + i);
  for (int i = 0; i < 23; ++i) Module1.RebaControlState.at(i) = ToInteger(200 + i);
  Module1.SiExertionMinutes = 2.5;
  Module1.SiDutyObservationMinutes = "21";
  Module1.SiExertionCount = Integer{22};
  Module1.SiEffortObservationMinutes = 23.5;
  Module1.SiIntensityPick = Integer{24};
  Module1.SiPosturePick = Integer{25};
  Module1.SiSpeedPick = 26;
  for (int i = 0; i < 14; ++i) Module1.OcraComboChoice.at(i) = ToInteger(-30 - i);
  Module1.OcraRecoveryHours = "50";
  Module1.OcraWristActions = Integer{51};
  Module1.OcraWristHold = 52;
  Module1.OcraSameFingers = 53.5;
  Module1.OcraHoldObject = 54;
  Module1.OcraElbowGesture = 55;
}

void FillTaskOne() {
  Module1.TaskNames.at(1) = "Cut";
  Module1.TaskActive.at(1) = Integer{0};
  Module1.OcraActionFrequency.at(1) = Integer{1001};
  Module1.OcraTaskDuration.at(1) = 1002.5;
  Module1.OcraForceRating.at(1) = 1003.5;
  Module1.CtdWorkTime.at(1) = Integer{1004};
  Module1.CtdRestTime.at(1) = "1005";
  Module1.TaskSpare.at(1) = 1006.5;
  Module1.CtdHandSpan.at(1) = 1007.25;
  Module1.CtdForceMvc.at(1) = 1008.5;
  Module1.CtdGripType.at(1) = Integer{1009};
  Module1.CtdWristPosition.at(1) = 1010;
  Module1.CtdFlexExtDeviation.at(1) = 1011.5;
  Module1.CtdRadUlnDeviation.at(1) = 1012.5;
  Module1.CtdRepetitions.at(1) = 1013.5;
  Module1.CtdLtShoulderFlexion.at(1) = Integer{1014};
  Module1.CtdRtShoulderFlexion.at(1) = "1015";
  Module1.CtdLtShoulderAbduction.at(1) = 1016.5;
  Module1.CtdRtShoulderAbduction.at(1) = TaggedField();
  Module1.CtdLtElbowFlexion.at(1) = Integer{1017};
  Module1.CtdRtElbowFlexion.at(1) = Integer{1018};
  Module1.CtdBackFlexion.at(1) = Integer{1019};
  Module1.CtdNeckFlexion.at(1) = 1020;
  for (int slot = 0; slot < 8; ++slot) {
    Module1.CtdLoadHeld.at(1, slot) = slot + 0.125;
    Module1.CtdPostureDuration.at(1, slot) = (slot + 1) / 100000.0;
  }
}

void FillTaskTwo() {
  Module1.TaskNames.at(2) = "Fold";
  Module1.TaskActive.at(2) = "1";
  Module1.OcraActionFrequency.at(2) = "2001";
  Module1.OcraTaskDuration.at(2) = -2002.5;
  Module1.OcraForceRating.at(2) = -2003.5;
  Module1.CtdWorkTime.at(2) = 2004.5;
  Module1.TaskSpare.at(2) = 2006.5;
  Module1.CtdForceMvc.at(2) = 2008.5;
  Module1.CtdGripType.at(2) = "2009";
  Module1.CtdWristPosition.at(2) = -2010;
  Module1.CtdFlexExtDeviation.at(2) = "2011";
  Module1.CtdRadUlnDeviation.at(2) = -2012.5;
  Module1.CtdRepetitions.at(2) = 2013.5;
  Module1.CtdNeckFlexion.at(2) = -2020;
  for (int slot = 0; slot < 8; ++slot) {
    Module1.CtdLoadHeld.at(2, slot) = slot + 0.0625;
    Module1.CtdPostureDuration.at(2, slot) = slot == 7 ? 1.5E20 : (slot + 1) * 1E15;
  }
}

void FillJob() {
  Module1 = JobState{};
  Module1.TaskCount = Integer{2};
  ResizeTaskArrays();
  FillJobFields();
  FillTaskOne();
  FillTaskTwo();
}

TEST(JobFileLayout, EveryFieldStandsAtItsPlaceWhenWritten) {
  FillJob();
  EXPECT_EQ(JobFileBytes(Module1), FilledJobText());
}

TEST(JobFileLayout, EveryFieldIsReadFromItsPlaceInTheKindOfItsText) {
  FillJob();
  const JobState expected = Module1;
  const TemporaryFolder folder;
  Module1 = JobState{};
  Module1.JobFileName = folder.File("job.qjt");
  WriteBytes(Module1.JobFileName, FilledJobText());
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened);
  Module1.JobFileName.clear();
  EXPECT_EQ(Module1, expected);
}

TEST(JobFileLayout, WrittenAndReadAgainGivesTheSameBytes) {
  FillJob();
  const TemporaryFolder folder;
  Module1.JobFileName = folder.File("job.qjt");
  WriteJobFile();
  EXPECT_EQ(BytesOf(folder.File("job.qjt")), FilledJobText());
  Module1 = JobState{};
  Module1.JobFileName = folder.File("job.qjt");
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened);
  Module1.JobFileName = folder.File("copy.qjt");
  WriteJobFile();
  EXPECT_EQ(BytesOf(folder.File("copy.qjt")), FilledJobText());
  EXPECT_EQ(folder.Names(), "copy.qjt job.qjt");
}

TEST(JobFileLayout, NewJobHasSixtyFourLines) {
  Module1 = JobState{};
  const std::string text = JobFileBytes(Module1);
  EXPECT_EQ(text, EmptyJobText());
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 64);
  EXPECT_EQ(text.substr(0, 27), "\"qjt\",1,0,0,0\r\n0\r\n8,0,0\r\n\"\"");
}

TEST(JobFileLayout, TwoTasksWithTheFirstDeletedHaveNinetyFourLines) {
  Module1 = JobState{};
  for (const Integer task : {Integer{1}, Integer{2}}) {
    Module1.TaskCount = task;
    NewTaskRecord();
  }
  Module1.TaskActive.at(1) = Integer{0};
  const TemporaryFolder folder;
  Module1.JobFileName = folder.File("job.qjt");
  WriteJobFile();
  std::string expected = EmptyJobText("2") + UntouchedTaskText(1) + UntouchedTaskText(2);
  expected.replace(expected.find("\"Task 1\",1"), 10, "\"Task 1\",0");
  const std::string text = BytesOf(Module1.JobFileName);
  EXPECT_EQ(text, expected);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 94);

  const std::string path = Module1.JobFileName;
  Module1 = JobState{};
  Module1.JobFileName = path;
  OpenJobFile();
  EXPECT_EQ(Module1.TaskActive.at(1), TaggedField(Integer{0}));
  EXPECT_EQ(Module1.TaskActive.at(2), TaggedField(Integer{1}));
}

TEST(JobFileLayout, TaskNeverTouchedHasALineThatStartsWithCommas) {
  Module1 = JobState{};
  Module1.TaskCount = Integer{1};
  NewTaskRecord();
  EXPECT_NE(JobFileBytes(Module1).find("\r\n,,,,,,,0\r\n"), std::string::npos);
}

}  // namespace
}  // namespace halvane
