#include "tools/ctd/ctd_score.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"
#include "tests/tools/ctd/ctd_support.h"
#include "tools/ctd/ctd_controls.h"

namespace halvane {
namespace {

// Deviations of 5-15 degrees both ways, and a posture in five of the slots.
constexpr TaskRow kWorkedTask{
    0.05,
    10,
    20,
    2.5,
    0,
    0,
    4,
    6,
    "10201023",
    {2, 0, 1, 0, 1, 0, 3},
    {0.2, 0, 0.1, 0, 0.3, 0, 0.25, 0.5},
    true,
};

/// An English job of 8 hours and a cycle of one minute with the worked task.
class CtdScore : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() {
    StartJob();
    AddTask(kWorkedTask);
  }
  static double Score(int slot) { return Module1.CtdPostureScore.at(slot).AsDouble(); }
  static double Capacity(int slot) { return Module1.CtdPostureCapacity.at(slot).AsDouble(); }
};

TEST_F(CtdScore, WorkedTaskGivesItsFigures) {
  CTDcalculate();
  EXPECT_EQ(Module1.CtdCyclesPerShift, 480);
  EXPECT_EQ(CtdRelativeStrength(0, 0, 4, 6), 71.2);
  EXPECT_NEAR(CtdSpanStrength(0, 6.35), 87.60153635, 5E-9);
  EXPECT_EQ(Module1.CtdRestTime.at(1).AsDouble(), 0.5);
  EXPECT_NEAR(Module1.CtdForceFrequencyFactor, 0.601813980, 5E-10);
  EXPECT_NEAR(Module1.CtdForceFrequencyFactor * 10000 / 480, 12.5377912559, 5E-11);
  constexpr std::array kCapacities{68.0302287, 100.0, 44.4282270, 100.0,
                                   72.3164851, 100.0, 21.3903132, 14.6733444};
  constexpr std::array kScores{0.7349674, 0.5, 1.1254107, 0.5,
                               0.6914053, 0.5, 2.3375067, 3.4075395};
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    EXPECT_NEAR(Capacity(slot), kCapacities.at(static_cast<std::size_t>(slot)), 6E-8) << slot;
    EXPECT_NEAR(Score(slot), kScores.at(static_cast<std::size_t>(slot)), 6E-8) << slot;
  }
  EXPECT_NEAR(Module1.CtdPostureFactor, 1.2246037, 5E-8);
  EXPECT_EQ(Module1.CtdPostureFactorTask, 1);
  EXPECT_NEAR(Module1.CtdGrandScore.AsDouble(), 5.1002749, 5E-8);
}

TEST_F(CtdScore, MetricJobNeverReadsTheHandSpan) {
  Module1.Units = 0;
  for (const double span : {2.5, 6.35, -3.0}) {
    Module1.CtdHandSpan.at(1) = span;
    CTDcalculate();
    EXPECT_NEAR(Module1.CtdForceFrequencyFactor, 3.6610993, 5E-8) << span;
    EXPECT_NEAR(Module1.CtdGrandScore.AsDouble(), 11.2310826, 5E-8) << span;
  }
}

TEST_F(CtdScore, SecondRunGivesTheSame) {
  CTDcalculate();
  const JobState first = Module1;
  CTDcalculate();
  EXPECT_EQ(Module1, first);
}

struct StrengthCells {
  const char* label;
  std::array<double, 2> radialUlnar;
  std::array<double, 2> flexionExtension;
  double pronation, neutral, supination, lateral, chuck, twoPoint;
};
constexpr std::array<StrengthCells, 9> kStrengths{{
    {"neutral neutral", {0, 0}, {0, 0}, 77.9, 97.4, 85.9, 95.6, 79.0, 48.9},
    {"neutral 5-15", {0, 0}, {6, 8}, 77.6, 97.3, 84.7, 95.6, 78.3, 48.6},
    {"neutral over 35", {0, 0}, {5, 7}, 69.4, 81.7, 65.9, 89.3, 64.4, 41.2},
    {"5-15 neutral", {2, 4}, {0, 0}, 78.3, 98.3, 87.2, 95.3, 78.6, 47.9},
    {"5-15 5-15", {2, 4}, {6, 8}, 58.7, 71.2, 65.1, 84.5, 63.0, 41.9},
    {"5-15 over 35", {2, 4}, {5, 7}, 55.1, 69.6, 61.1, 82.3, 60.7, 40.3},
    {"over 15 neutral", {1, 3}, {0, 0}, 76.1, 96.2, 84.8, 93.0, 75.7, 44.6},
    {"over 15 5-15", {1, 3}, {6, 8}, 58.3, 70.9, 64.1, 83.5, 59.9, 41.1},
    {"over 15 over 35", {1, 3}, {5, 7}, 54.8, 69.2, 60.1, 81.3, 57.5, 39.5},
}};

TEST(CtdStrength, EachGripWristAndDeviation) {
  for (const StrengthCells& row : kStrengths) {
    for (const double ulnar : row.radialUlnar) {
      for (const double flexion : row.flexionExtension) {
        EXPECT_EQ(CtdRelativeStrength(0, 0, ulnar, flexion), row.neutral) << row.label;
        EXPECT_EQ(CtdRelativeStrength(0, 1, ulnar, flexion), row.pronation) << row.label;
        EXPECT_EQ(CtdRelativeStrength(0, 2, ulnar, flexion), row.neutral) << row.label;
        EXPECT_EQ(CtdRelativeStrength(0, 3, ulnar, flexion), row.supination) << row.label;
        for (int wrist = 0; wrist < 4; ++wrist) {
          EXPECT_EQ(CtdRelativeStrength(2, wrist, ulnar, flexion), row.lateral) << row.label;
          EXPECT_EQ(CtdRelativeStrength(3, wrist, ulnar, flexion), row.chuck) << row.label;
          EXPECT_EQ(CtdRelativeStrength(4, wrist, ulnar, flexion), row.twoPoint) << row.label;
        }
      }
    }
  }
}

TEST(CtdStrength, CodesThatAreNoneLeaveNone) {
  for (const double grip : {1.0, 5.0, -1.0, 2.5}) {
    EXPECT_EQ(CtdRelativeStrength(grip, 0, 0, 0), 0) << grip;
    EXPECT_EQ(CtdSpanStrength(grip, 5), 0) << grip;
  }
  for (const int wrist : {-1, 4}) EXPECT_EQ(CtdRelativeStrength(0, wrist, 0, 0), 0) << wrist;
  for (const double ulnar : {-1.0, 5.0, 0.5}) EXPECT_EQ(CtdRelativeStrength(0, 0, ulnar, 0), 0);
  for (const double flexion : {1.0, 4.0, 9.0}) EXPECT_EQ(CtdRelativeStrength(2, 0, 0, flexion), 0);
}

TEST(CtdSpan, CurveOfEachGrip) {
  struct Row {
    double centimetres, power, lateral, chuck, twoPoint;
  };
  // Worked out by hand: at 1 and 10 the coefficients add up as they stand, shifted by the point.
  for (const Row& row : std::array<Row, 4>{{
           {0, 14.4, 97.594, 100.22, 99.219},
           {1, 15.1055, 99.792, 99.2744, 100.4642},
           {2, 23.0096, 100.3284, 97.8562, 100.9232},
           {10, 84.464, 44.802, 69.497, 76.292},
       }}) {
    EXPECT_NEAR(CtdSpanStrength(0, row.centimetres), row.power, 1E-11) << row.centimetres;
    EXPECT_NEAR(CtdSpanStrength(2, row.centimetres), row.lateral, 1E-11) << row.centimetres;
    EXPECT_NEAR(CtdSpanStrength(3, row.centimetres), row.chuck, 1E-11) << row.centimetres;
    EXPECT_NEAR(CtdSpanStrength(4, row.centimetres), row.twoPoint, 1E-11) << row.centimetres;
  }
}

TEST_F(CtdScore, CategoryMultiplierOfEachSlot) {
  struct Row {
    std::array<int, 3> capacity;  ///< of categories 1 to 3, per cent
    std::vector<int> slots;
  };
  // A duration of 0 costs nothing, so that the capacity is the multiplier.
  for (const Row& row : std::vector<Row>{
           {{100, 50, 25}, {0, 1, 2, 3, 6}}, {{100, 200, 300}, {4, 5}}, {{100, 100, 100}, {7}}}) {
    for (const int slot : row.slots) {
      for (std::size_t category = 1; category <= 3; ++category) {
        StartFresh();
        Module1.CtdPostureDuration.at(1, slot) = 0;
        StoreCtdCategory(slot, 1, static_cast<Integer>(category));
        CTDcalculate();
        EXPECT_EQ(Capacity(slot), row.capacity.at(category - 1)) << slot << " " << category;
        EXPECT_EQ(Score(slot), 50.0 / row.capacity.at(category - 1)) << slot << " " << category;
      }
    }
  }
}

TEST_F(CtdScore, UnknownCategoryHasNoCapacityButAtElbowAndNeck) {
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    StartFresh();
    Module1.CtdPostureDuration.at(1, slot) = 0;
    StoreCtdCategory(slot, 1, 4);
    CTDcalculate();
    const double expected = slot == 4 || slot == 5 ? 400 : slot == 7 ? 100 : 0;
    EXPECT_EQ(Capacity(slot), expected) << slot;
    EXPECT_EQ(Score(slot), expected == 0 ? 150 : 50 / expected) << slot;
  }
}

TEST_F(CtdScore, UnknownCategoryPutsNoLoadOnTheNeck) {
  Module1.CtdPostureDuration.at(1, kCtdNeckSlot) = 0.5;
  StoreCtdCategory(kCtdNeckSlot, 1, 4);
  CTDcalculate();
  EXPECT_EQ(Capacity(kCtdNeckSlot), 100);
}

// Nothing is rounded away before there is no capacity at all.
TEST_F(CtdScore, LastPerCentOfTheCapacityCounts) {
  StoreCtdCategory(6, 1, 1);
  Module1.CtdPostureDuration.at(1, 6) = 0.1;
  double& load = Module1.CtdLoadHeld.at(1, 6);
  load = 0;
  do {
    load += 0.01;
    CTDcalculate();
  } while (Capacity(6) >= 1);
  EXPECT_GT(Capacity(6), 0) << load;
  EXPECT_EQ(Score(6), 50 / Capacity(6)) << load;
}

TEST_F(CtdScore, NeutralSlotsScoreAHalfWhateverTheyHold) {
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    StoreCtdCategory(slot, 1, 0);
    Module1.CtdLoadHeld.at(1, slot) = 50;
    Module1.CtdPostureDuration.at(1, slot) = 20;
  }
  CTDcalculate();
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    EXPECT_EQ(Capacity(slot), 100);
    EXPECT_EQ(Score(slot), 0.5);
  }
  EXPECT_EQ(Module1.CtdTaskPostureScore.at(1), 0.5);
  EXPECT_EQ(Module1.CtdPostureFactor, 0.5);
}

TEST_F(CtdScore, NeutralSlotFailsWhereItsStrainIsNoNumber) {
  struct Row {
    double load, held;
    std::string_view failure;
  };
  constexpr std::array kRows{
      Row{1E50, 0.5, "none"},      Row{-2.28, 0.5, "InvalidCall"}, Row{1, -0.1, "InvalidCall"},
      Row{1E170, 0.5, "Overflow"}, Row{1E150, 1E120, "Overflow"},  Row{1E50, 1E60, "none"},
  };
  for (const Row& row : kRows) {
    StartFresh();
    StoreCtdCategory(1, 1, 0);
    Module1.CtdLoadHeld.at(1, 1) = row.load;
    Module1.CtdPostureDuration.at(1, 1) = row.held;
    EXPECT_EQ(FailureOf(CTDcalculate), row.failure) << row.load << ", " << row.held;
  }
}

TEST_F(CtdScore, DurationFromTheCycleTimeOnTakesTheWholeCapacity) {
  for (const double held : {1.0, 1.5, 100.0}) {
    Module1.CtdPostureDuration.at(1, 0) = held;
    CTDcalculate();
    EXPECT_EQ(Capacity(0), 0) << held;
    EXPECT_EQ(Score(0), 150) << held;
  }
}

// The computation joins category, load and duration by slot number; the screen and the report do
// not, for the shoulders.
TEST_F(CtdScore, ShoulderSlotsJoinByNumber) {
  for (const int slot : {0, 1, 2, 3}) {
    StartFresh();
    for (int other = 0; other < kCtdSlotCount; ++other) StoreCtdCategory(other, 1, 0);
    StoreCtdCategory(slot, 1, 1);
    Module1.CtdPostureDuration.at(1, slot) = 0;
    Module1.CtdPostureDuration.at(1, slot ^ 1) = 5;
    CTDcalculate();
    EXPECT_EQ(Capacity(slot), 100) << slot;
    Module1.CtdPostureDuration.at(1, slot) = 5;
    CTDcalculate();
    EXPECT_EQ(Capacity(slot), 0) << slot;
  }
}

TEST_F(CtdScore, CycleTimeOfZeroIsGuardedAndZeroAgain) {
  Module1.JobCycleTime = 0;
  CTDcalculate();
  EXPECT_EQ(Module1.CtdCyclesPerShift, 8 * 6000);
  EXPECT_EQ(Module1.JobCycleTime, 0);
}

TEST_F(CtdScore, ShiftOfZeroHoursIsGuardedAndZeroAgainAsADouble) {
  Module1.JobDurationPerDay = Integer{0};
  CTDcalculate();
  EXPECT_EQ(Module1.JobDurationPerDay, TaggedField(0.0));
}

TEST_F(CtdScore, WorkTimeOfZeroIsComputedAsAHundredthAndZeroAgain) {
  Module1.CtdForceMvc.at(1) = 80;
  Module1.CtdWorkTime.at(1) = 0.0;
  Module1.CtdRepetitions.at(1) = 1;
  CTDcalculate();
  EXPECT_EQ(Module1.CtdWorkTime.at(1).AsDouble(), 0);
  // Rest 1, Q 80 / 0.6237..., so A is Q over the allowable force of a work time of 0.01.
  const double allowable = 47.5 * 0.950282 * std::pow(0.01, -0.393997) * std::pow(480, -0.257984);
  EXPECT_NEAR(Module1.CtdForceFrequencyFactor, 8000 / 62.3722938812 / allowable * 480 / 10000,
              1E-10);
}

TEST_F(CtdScore, HundredthsReallyTypedAreWiped) {
  Module1.CtdWorkTime.at(1) = 0.01;
  Module1.JobDurationPerDay = 0.01;
  Module1.JobCycleTime = 0.01;
  CTDcalculate();
  EXPECT_EQ(Module1.CtdWorkTime.at(1).AsDouble(), 0);
  EXPECT_EQ(Module1.JobDurationPerDay.AsDouble(), 0);
  EXPECT_EQ(Module1.JobCycleTime, 0);
  Module1.CtdWorkTime.at(1) = 0.011;
  Module1.JobDurationPerDay = 0.011;
  Module1.JobCycleTime = 0.011;
  CTDcalculate();
  EXPECT_EQ(Module1.CtdWorkTime.at(1).AsDouble(), 0.011);
  EXPECT_EQ(Module1.JobDurationPerDay.AsDouble(), 0.011);
  EXPECT_EQ(Module1.JobCycleTime, 0.011);
}

TEST_F(CtdScore, CycleTimeOfAHundredthIsWipedWithoutAnyTask) {
  StartJob();
  Module1.JobCycleTime = 0.01;
  CTDcalculate();
  EXPECT_EQ(Module1.JobCycleTime, 0);
  EXPECT_EQ(Module1.CtdCyclesPerShift, 48000);
}

TEST_F(CtdScore, NegativeInputsOfTheGuardsBecomeZero) {
  Module1.CtdWorkTime.at(1) = -0.1;
  Module1.JobDurationPerDay = -8.0;
  Module1.JobCycleTime = -1;
  CTDcalculate();
  EXPECT_EQ(Module1.CtdWorkTime.at(1).AsDouble(), 0);
  EXPECT_EQ(Module1.JobDurationPerDay.AsDouble(), 0);
  EXPECT_EQ(Module1.JobCycleTime, 0);
}

TEST_F(CtdScore, RestTimeIsNeverBelowZero) {
  Module1.CtdRepetitions.at(1) = 30;
  CTDcalculate();
  EXPECT_EQ(Module1.CtdRestTime.at(1).AsDouble(), 0);
}

TEST_F(CtdScore, ForceBelowTheAllowableLeavesPlainRepetitions) {
  Module1.CtdForceMvc.at(1) = 5;
  CTDcalculate();
  EXPECT_DOUBLE_EQ(Module1.CtdForceFrequencyFactor, 10 * 480.0 / 10000);
}

TEST_F(CtdScore, NegativeSpanStrengthLeavesPlainRepetitions) {
  Module1.CtdHandSpan.at(1) = 20.0;
  ASSERT_LT(CtdSpanStrength(0, 50.8), 0);
  CTDcalculate();
  EXPECT_DOUBLE_EQ(Module1.CtdForceFrequencyFactor, 10 * 480.0 / 10000);
}

/// Searches the few doubles about the allowable force for one at which the ratio is exactly 1:
/// there the count of one task stays at `before`, neither its own nor a weighted one.
double CountAtEqualRatio(const std::vector<TaskRow>& earlier, TaskRow task, double before) {
  const double strength =
      CtdRelativeStrength(0, 0, 4, 6) * CtdSpanStrength(0, task.span * 2.54) / 100;
  const double allowable = 0.950282 * std::pow(task.workTime, -0.393997) * std::pow(0.5, 0.224607) *
                           47.5 * std::pow(480.0, -0.257984);
  task.force = allowable * strength / 100;
  for (int step = 0; step < 64; ++step) task.force = std::nextafter(task.force, 0.0);
  for (int step = 0; step < 128; ++step) {
    Module1 = JobState{};
    Module1.Units = 1;
    Module1.JobCycleTime = 1;
    for (const TaskRow& row : earlier) AddTask(row);
    AddTask(task);
    CTDcalculate();
    const double total = Module1.CtdForceFrequencyFactor * 10000 / 480;
    if (std::abs(total - before) < 1E-9) return total;
    task.force = std::nextafter(task.force, 1000.0);
  }
  return -1;
}

TEST_F(CtdScore, EqualRatioKeepsTheCountOfTheTaskBefore) {
  TaskRow light = kWorkedTask;
  light.force = 1;
  light.repetitions = 3;
  EXPECT_NEAR(CountAtEqualRatio({}, kWorkedTask, 0), 0, 1E-9) << "none before the first task";
  EXPECT_NEAR(CountAtEqualRatio({light}, kWorkedTask, 6), 6, 1E-9) << "3 again, not 10";
}

TEST_F(CtdScore, TieGoesToTheLaterTask) {
  AddTask(kWorkedTask);
  CTDcalculate();
  EXPECT_EQ(Module1.CtdPostureFactorTask, 2);
  Module1.TaskActive.at(2) = Integer{0};
  CTDcalculate();
  EXPECT_EQ(Module1.CtdPostureFactorTask, 1);
}

TEST_F(CtdScore, WorstTaskGivesThePostureFactorAndTheLastOneTheSlots) {
  TaskRow mild = kWorkedTask;
  mild.categories = "00000000";
  AddTask(mild);
  CTDcalculate();
  EXPECT_EQ(Module1.CtdPostureFactorTask, 1);
  EXPECT_NEAR(Module1.CtdPostureFactor, 1.2246037, 5E-8);
  for (int slot = 0; slot < kCtdSlotCount; ++slot) EXPECT_EQ(Score(slot), 0.5) << slot;
  EXPECT_NEAR(Module1.CtdForceFrequencyFactor, 2 * 0.601813980, 1E-9);
}

TEST_F(CtdScore, DeletedTaskAddsNothing) {
  AddTask(kWorkedTask);
  Module1.TaskActive.at(1) = Integer{0};
  CTDcalculate();
  EXPECT_EQ(Module1.CtdPostureFactorTask, 2);
  EXPECT_NEAR(Module1.CtdForceFrequencyFactor, 0.601813980, 5E-10);
  Module1.TaskActive.at(2) = Integer{0};
  CTDcalculate();
  EXPECT_EQ(Module1.CtdForceFrequencyFactor, 0);
  EXPECT_EQ(Module1.CtdPostureFactor, 0);
  EXPECT_EQ(Module1.CtdPostureFactorTask, 1);
  EXPECT_EQ(Module1.CtdGrandScore.AsDouble(), 0);
}

TEST_F(CtdScore, GrandScoreIsNeverBelowZero) {
  Module1.CtdRepetitions.at(1) = -10000;
  CTDcalculate();
  EXPECT_LT(Module1.CtdForceFrequencyFactor, 0);
  EXPECT_EQ(Module1.CtdGrandScore.AsDouble(), 0);
}

TEST_F(CtdScore, CodesThatAreNoneDivideByZero) {
  Module1.CtdGripType.at(1) = Integer{1};
  EXPECT_EQ(FailureOf(CTDcalculate), "DivisionByZero") << "grip";
  StartFresh();
  Module1.CtdWristPosition.at(1) = 4;
  EXPECT_EQ(FailureOf(CTDcalculate), "DivisionByZero") << "wrist";
  StartFresh();
  Module1.CtdRadUlnDeviation.at(1) = 5;
  EXPECT_EQ(FailureOf(CTDcalculate), "DivisionByZero") << "radial/ulnar";
  StartFresh();
  Module1.CtdFlexExtDeviation.at(1) = Integer{1};
  EXPECT_EQ(FailureOf(CTDcalculate), "DivisionByZero") << "flexion/extension";
}

TEST_F(CtdScore, WristCodeTwoComputesAsNeutral) {
  CTDcalculate();
  const double factor = Module1.CtdForceFrequencyFactor;
  Module1.CtdWristPosition.at(1) = 2;
  CTDcalculate();
  EXPECT_EQ(Module1.CtdForceFrequencyFactor, factor);
}

TEST_F(CtdScore, PowersWithoutRealResultFail) {
  Module1.CtdPostureDuration.at(1, 0) = -0.1;
  EXPECT_EQ(FailureOf(CTDcalculate), "InvalidCall") << "duration";
  StartFresh();
  Module1.CtdLoadHeld.at(1, 0) = -2.28;
  EXPECT_EQ(FailureOf(CTDcalculate), "InvalidCall") << "load";
  StartFresh();
  Module1.CtdLoadHeld.at(1, 1) = -2.28;
  EXPECT_EQ(FailureOf(CTDcalculate), "InvalidCall") << "load of a neutral slot";
  StartFresh();
  Module1.CtdLoadHeld.at(1, 0) = -2.27;
  EXPECT_EQ(FailureOf(CTDcalculate), "none") << "a base just above 0";
}

TEST_F(CtdScore, Task41HasNoPostureRow) {
  StartJob();
  Module1.JobCycleTime = 1;
  for (int task = 1; task <= 40; ++task) AddTask(kWorkedTask);
  EXPECT_EQ(FailureOf(CTDcalculate), "none");
  AddTaskRecord();
  EXPECT_EQ(FailureOf(CTDcalculate), "SubscriptOutOfRange");
  Module1.TaskActive.at(41) = Integer{0};
  EXPECT_EQ(FailureOf(CTDcalculate), "none");
}

TEST_F(CtdScore, ForceBeyondADoubleOverflows) {
  Module1.CtdForceMvc.at(1) = 1E307;
  EXPECT_EQ(FailureOf(CTDcalculate), "Overflow");
}

TEST_F(CtdScore, WorkingValuesNameEachResult) {
  std::string names;
  for (const WorkingValue& value : CtdWorkingValues()) names += std::string(value.name) + " ";
  EXPECT_EQ(names,
            "CtdCyclesPerShift CtdPostureFactor CtdPostureFactorTask CtdForceFrequencyFactor "
            "CtdGrandScore CtdTaskPostureScore CtdRestTime CtdPostureCapacity CtdPostureScore ");
}

}  // namespace
}  // namespace halvane
