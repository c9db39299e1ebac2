#include "core/job_state.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "tests/support/test_support.h"

namespace halvane {
namespace {

/// Runs `action` with the name of every array that has one element a task and the array itself.
template <typename Action>
void ForEachTaskArray(JobState& job, const Action& action) {
  action("TaskNames", job.TaskNames);
  action("TaskActive", job.TaskActive);
  action("TaskSpare", job.TaskSpare);
  action("OcraActionFrequency", job.OcraActionFrequency);
  action("OcraTaskDuration", job.OcraTaskDuration);
  action("OcraForceRating", job.OcraForceRating);
  action("OcraForceMultiplier", job.OcraForceMultiplier);
  action("CtdWorkTime", job.CtdWorkTime);
  action("CtdRestTime", job.CtdRestTime);
  action("CtdHandSpan", job.CtdHandSpan);
  action("CtdGripType", job.CtdGripType);
  action("CtdWristPosition", job.CtdWristPosition);
  action("CtdFlexExtDeviation", job.CtdFlexExtDeviation);
  action("CtdRadUlnDeviation", job.CtdRadUlnDeviation);
  action("CtdForceMvc", job.CtdForceMvc);
  action("CtdLtShoulderFlexion", job.CtdLtShoulderFlexion);
  action("CtdRtShoulderFlexion", job.CtdRtShoulderFlexion);
  action("CtdLtShoulderAbduction", job.CtdLtShoulderAbduction);
  action("CtdRtShoulderAbduction", job.CtdRtShoulderAbduction);
  action("CtdLtElbowFlexion", job.CtdLtElbowFlexion);
  action("CtdRtElbowFlexion", job.CtdRtElbowFlexion);
  action("CtdBackFlexion", job.CtdBackFlexion);
  action("CtdNeckFlexion", job.CtdNeckFlexion);
  action("CtdRepetitions", job.CtdRepetitions);
  action("CtdTaskPostureScore", job.CtdTaskPostureScore);
}

void SetMark(std::string& element) { element = "mark"; }
void SetMark(TaggedField& element) { element = "mark"; }
void SetMark(double& element) { element = 9; }
void SetMark(Integer& element) { element = 9; }

template <typename T>
T Mark() {
  T mark{};
  SetMark(mark);
  return mark;
}

/// The job of a user who has filled in everything, with two tasks.
void FillJob() {
  Module1 = JobState{};
  Module1.TaskCount = Integer{2};
  ResizeTaskArrays();
  ForEachTaskArray(Module1, [](const char* /*name*/, auto& array) {
    for (int task = 0; task <= array.upperBound(); ++task) SetMark(array.at(task));
  });
  Module1.JobFileName = "job.qjt";
  Module1.JobDirty = kTrue;
  Module1.JobAnalyst = "analyst";
  Module1.JobName = "name";
  Module1.JobWorkstationId = "workstation";
  Module1.Hand = 1;
  Module1.JobCycleTime = 2;
  Module1.JobDurationPerDay = "7";
  Module1.JobFileFlag = 3;
  Module1.Units = 1;
  Module1.CurrentTask = Integer{2};
  Module1.OcraRecoveryHours = "4";
  Module1.OcraWristActions = Integer{4};
  Module1.OcraWristHold = 4;
  Module1.OcraSameFingers = Integer{4};
  Module1.OcraHoldObject = 4;
  Module1.OcraElbowGesture = 4;
  Module1.OcraComboChoice.fill(1);
  Module1.CtdLoadHeld.at(1, 0) = 1;
  Module1.CtdLoadHeld.at(40, 7) = 1;
  Module1.CtdPostureDuration.at(1, 0) = 1;
  Module1.CtdPostureDuration.at(40, 7) = 1;
  Module1.SiExertionMinutes = 1.5;
  Module1.SiDutyObservationMinutes = "2";
  Module1.SiExertionCount = "3";
  Module1.SiEffortObservationMinutes = 4;
  Module1.SiIntensityPick = Integer{5};
  Module1.SiPosturePick = Integer{6};
  Module1.SiSpeedPick = 7;
  Module1.RulaControlState.fill(1);
  Module1.RebaControlState.fill(2);
  Module1.HalExertionFrequency = "1";
  Module1.HalDutyCycle = "2";
  Module1.HalForceRating = "3";
  Module1.HalActivityLevel = "4";
  Module1.JobFileOpen = true;
  Module1.SiIntensityRating = 5;
  Module1.SiPostureRating = 4;
  Module1.SiSpeedRating = 3;
  Module1.SiDutyCyclePercent = 29.5;
  Module1.SiDutyRating = 2;
  Module1.SiEffortsPerMinute = 8.5;
  Module1.SiEffortsRating = 1;
  Module1.SiDurationRating = 5;
  Module1.SiStrainIndexScore = 12;
  Module1.RulaUpperArmFactors.fill(1);
  Module1.RulaLowerArmFactors.fill(1);
  Module1.RulaWristFactors.fill(1);
  Module1.RulaNeckFactors.fill(1);
  Module1.RulaTrunkFactors.fill(1);
  Module1.RebaUpperArmFactors.fill(1);
  Module1.RebaWristFactors.fill(1);
  Module1.RebaNeckFactors.fill(1);
  Module1.RebaTrunkFactors.fill(1);
  Module1.RebaLegFactors.fill(1);
  Module1.RebaForceFactors.fill(1);
  Module1.HalForceMode = kTrue;
  Module1.HalLimits.fill(1.5);
}

TEST(JobState, FreshProgramHasTheDefaults) {
  const JobState job;
  EXPECT_EQ(job.JobFileName, "");
  EXPECT_EQ(job.JobDirty, 0);
  EXPECT_EQ(job.JobAnalyst, TaggedField(""));
  EXPECT_EQ(job.JobName, TaggedField(""));
  EXPECT_EQ(job.JobWorkstationId, "");
  EXPECT_EQ(job.Hand, 0);
  EXPECT_EQ(job.JobCycleTime, 0);
  EXPECT_EQ(job.JobDurationPerDay, TaggedField(Integer{8}));
  EXPECT_EQ(job.JobFileFlag, 0);
  EXPECT_EQ(job.TaskCount, TaggedField(Integer{0}));
  EXPECT_EQ(job.CurrentTask, TaggedField());
  EXPECT_EQ(job.Units, 0);
  EXPECT_FALSE(job.JobFileOpen);
  const TaggedField zero = Integer{0};
  for (const TaggedField& field :
       {job.OcraRecoveryHours, job.OcraWristActions, job.OcraSameFingers, job.SiExertionMinutes,
        job.SiDutyObservationMinutes, job.SiExertionCount, job.SiIntensityPick, job.SiPosturePick,
        job.HalExertionFrequency, job.HalDutyCycle, job.HalForceRating, job.HalActivityLevel}) {
    EXPECT_EQ(field, zero);
  }
  EXPECT_EQ(job.OcraWristHold, 0);
  EXPECT_EQ(job.OcraHoldObject, 0);
  EXPECT_EQ(job.OcraElbowGesture, 0);
  EXPECT_EQ(job.SiEffortObservationMinutes, 0);
  EXPECT_EQ(job.SiSpeedPick, 0);
  for (int i = 0; i < 14; ++i) EXPECT_EQ(job.OcraComboChoice.at(i), 3) << i;
  for (int i = 0; i < 20; ++i) EXPECT_EQ(job.RulaControlState.at(i), 0) << i;
  for (int i = 0; i < 23; ++i) EXPECT_EQ(job.RebaControlState.at(i), 0) << i;
  EXPECT_EQ(job.OcraComboChoice.size(), 14);
  EXPECT_EQ(job.RulaControlState.size(), 20);
  EXPECT_EQ(job.RebaControlState.size(), 23);
  EXPECT_EQ(job.CtdLoadHeld.rows(), 41);
  EXPECT_EQ(job.CtdPostureDuration.rows(), 41);
  EXPECT_EQ(job.CtdLoadHeld.columns(), 8);
  EXPECT_EQ(job.CtdPostureDuration.columns(), 8);
  for (const Integer rating : {job.SiIntensityRating, job.SiPostureRating, job.SiSpeedRating,
                               job.SiDutyRating, job.SiEffortsRating, job.SiDurationRating}) {
    EXPECT_EQ(rating, 0);
  }
}

TEST(JobState, ResetOfAFreshProgramChangesNothing) {
  Module1 = JobState{};
  JobReset();
  EXPECT_EQ(Module1, JobState{});
}

TEST(JobState, ResetGivesTheEmptyJobAndLeavesTheRest) {
  FillJob();
  JobState expected;
  expected.JobDirty = kTrue;
  expected.Units = 1;
  expected.CurrentTask = Integer{2};
  expected.JobFileFlag = 3;
  expected.JobFileOpen = true;
  expected.SiIntensityRating = 5;
  expected.SiPostureRating = 4;
  expected.SiSpeedRating = 3;
  expected.SiDutyCyclePercent = 29.5;
  expected.SiDutyRating = 2;
  expected.SiEffortsPerMinute = 8.5;
  expected.SiEffortsRating = 1;
  expected.SiDurationRating = 5;
  expected.SiStrainIndexScore = 12;
  expected.RulaUpperArmFactors.fill(1);
  expected.RulaLowerArmFactors.fill(1);
  expected.RulaWristFactors.fill(1);
  expected.RulaNeckFactors.fill(1);
  expected.RulaTrunkFactors.fill(1);
  expected.RebaUpperArmFactors.fill(1);
  expected.RebaWristFactors.fill(1);
  expected.RebaNeckFactors.fill(1);
  expected.RebaTrunkFactors.fill(1);
  expected.RebaLegFactors.fill(1);
  expected.RebaForceFactors.fill(1);
  expected.HalForceMode = kTrue;
  expected.HalLimits.fill(1.5);
  JobReset();
  EXPECT_EQ(Module1, expected);
}

TEST(JobState, ResetLeavesAnUnchangedJobUnchanged) {
  Module1 = JobState{};
  Module1.JobAnalyst = "analyst";
  JobReset();
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST(JobState, ResizeGivesEveryTaskArrayItsBoundsAndEmptiesIt) {
  FillJob();
  Module1.TaskCount = Integer{5};
  ResizeTaskArrays();
  ForEachTaskArray(Module1, [](const char* name, auto& array) {
    EXPECT_EQ(array.upperBound(), 5) << name;
    for (int task = 0; task <= array.upperBound(); ++task) {
      EXPECT_EQ(array.at(task), std::decay_t<decltype(array.at(task))>{}) << name << " " << task;
    }
  });
  for (int task = 0; task <= kHighestTask; ++task) {
    for (int slot = 0; slot < kPostureSlots; ++slot) {
      EXPECT_EQ(Module1.CtdLoadHeld.at(task, slot), 0) << task << " " << slot;
      EXPECT_EQ(Module1.CtdPostureDuration.at(task, slot), 0) << task << " " << slot;
    }
  }
}

TEST(JobState, ResizeLeavesRowZeroOfLoadsAndDurationsAlone) {
  Module1 = JobState{};
  for (int slot = 0; slot < kPostureSlots; ++slot) {
    Module1.CtdLoadHeld.at(0, slot) = 10 + slot;
    Module1.CtdPostureDuration.at(0, slot) = 20 + slot;
  }
  ResizeTaskArrays();
  JobReset();
  for (int slot = 0; slot < kPostureSlots; ++slot) {
    EXPECT_EQ(Module1.CtdLoadHeld.at(0, slot), 10 + slot);
    EXPECT_EQ(Module1.CtdPostureDuration.at(0, slot), 20 + slot);
  }
}

struct CountRow {
  const char* label;
  TaggedField taskCount;
  const char* failure;
  int upperBound;  ///< after the call; 2 is the job's before it
};

TEST(JobState, TaskCountIsTestedBeforeAnythingChanges) {
  const std::array rows{
      CountRow{"1E9", 1E9, "Overflow", 2},
      CountRow{"1E9 as text", "1E9", "Overflow", 2},
      CountRow{"below 0", Integer{-1}, "SubscriptOutOfRange", 2},
      CountRow{"far below 0", -1E300, "SubscriptOutOfRange", 2},
      CountRow{"just below 0 after rounding", -0.51, "SubscriptOutOfRange", 2},
      CountRow{"rounds up to 0", -0.5, "none", 0},
      CountRow{"32768", 32768.0, "Overflow", 2},
      CountRow{"rounds up to 32768", 32767.5, "Overflow", 2},
      CountRow{"rounds down to 32767", 32767.4, "none", 32767},
      CountRow{"half rounds down to the even one", 2.5, "none", 2},
      CountRow{"half rounds up to the even one", 3.5, "none", 4},
      CountRow{"text without a number", "many", "none", 0},
      CountRow{"text with a leading number", "3 tasks", "none", 3},
      CountRow{"text beyond a double", "1E999", "Overflow", 2},
      CountRow{"empty", {}, "none", 0},
  };
  for (const CountRow& row : rows) {
    FillJob();
    Module1.TaskCount = row.taskCount;
    const JobState before = Module1;
    EXPECT_EQ(FailureOf(ResizeTaskArrays), row.failure) << row.label;
    EXPECT_EQ(Module1.TaskNames.upperBound(), row.upperBound) << row.label;
    if (row.failure == std::string_view("none")) continue;
    EXPECT_EQ(Module1, before) << row.label;
    EXPECT_EQ(FailureOf(NewTaskRecord), row.failure) << row.label;
    EXPECT_EQ(Module1, before) << row.label;
  }
}

TEST(JobState, NewTaskHasItsNameAndEmptyPostures) {
  Module1 = JobState{};
  Module1.TaskCount = Integer{1};
  NewTaskRecord();

  const TaggedField zero = Integer{0};
  EXPECT_EQ(Module1.TaskNames.at(1), "Task 1");
  EXPECT_EQ(Module1.TaskActive.at(1), TaggedField(Integer{1}));
  EXPECT_EQ(Module1.CtdWorkTime.at(1), zero);
  EXPECT_EQ(Module1.CtdRestTime.at(1), zero);
  EXPECT_EQ(Module1.TaskSpare.at(1), 0);
  EXPECT_EQ(Module1.OcraActionFrequency.at(1), zero);
  EXPECT_EQ(Module1.CtdHandSpan.at(1), zero);
  EXPECT_EQ(Module1.OcraTaskDuration.at(1), 0);
  EXPECT_EQ(Module1.OcraForceRating.at(1), 0);
  EXPECT_EQ(Module1.CtdGripType.at(1), zero);
  EXPECT_EQ(Module1.CtdWristPosition.at(1), 0);
  EXPECT_EQ(Module1.CtdFlexExtDeviation.at(1), zero);
  EXPECT_EQ(Module1.CtdRadUlnDeviation.at(1), 0);
  EXPECT_EQ(Module1.CtdForceMvc.at(1), 0);
  EXPECT_EQ(Module1.CtdNeckFlexion.at(1), 0);
  EXPECT_EQ(Module1.CtdRepetitions.at(1), 0);
  EXPECT_EQ(Module1.CtdTaskPostureScore.at(1), 0);
  EXPECT_EQ(Module1.OcraForceMultiplier.at(1), TaggedField());
  for (const auto* array :
       {&Module1.CtdLtShoulderFlexion, &Module1.CtdRtShoulderFlexion,
        &Module1.CtdLtShoulderAbduction, &Module1.CtdRtShoulderAbduction,
        &Module1.CtdLtElbowFlexion, &Module1.CtdRtElbowFlexion, &Module1.CtdBackFlexion}) {
    EXPECT_EQ(array->at(1), TaggedField());
  }
}

TEST(JobState, NewTaskKeepsTheTasksBeforeIt) {
  FillJob();
  Module1.TaskCount = Integer{3};
  NewTaskRecord();
  EXPECT_EQ(Module1.TaskNames.at(3), "Task 3");
  ForEachTaskArray(Module1, [](const char* name, auto& array) {
    using Element = std::decay_t<decltype(array.at(0))>;
    EXPECT_EQ(array.upperBound(), 3) << name;
    for (const int task : {0, 1, 2}) EXPECT_EQ(array.at(task), Mark<Element>()) << name;
    EXPECT_NE(array.at(3), Mark<Element>()) << name;
  });
  EXPECT_EQ(Module1.CtdLoadHeld.at(40, 7), 1);
}

TEST(JobState, NewTaskIsNamedByItsNumberInPlainDigits) {
  Module1 = JobState{};
  Module1.TaskCount = "12";
  NewTaskRecord();
  EXPECT_EQ(Module1.TaskNames.at(12), "Task 12");
  EXPECT_EQ(Module1.TaskNames.at(11), "");
}

}  // namespace
}  // namespace halvane
