#include "tools/ocra/ocra_score.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"
#include "tools/ocra/ocra_controls.h"

namespace halvane {
namespace {

/// A job with one task of 480 minutes at 30 actions a minute, and nothing against it.
class OcraScore : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() {
    Module1 = JobState{};
    AddTask(480, 30, 0);
  }
  static int AddTask(double minutes, double frequency, double rating) {
    const int task = AddTaskRecord();
    Module1.OcraTaskDuration.at(task) = minutes;
    Module1.OcraActionFrequency.at(task) = frequency;
    Module1.OcraForceRating.at(task) = rating;
    return task;
  }
  static void Compute() {
    OcraScoreLists();
    OcraCalculate();
  }
  /// Computes the index with the hours.
  static double IndexAfter(const TaggedField& hours) {
    Module1.OcraRecoveryHours = hours;
    Compute();
    return Module1.OcraRiskIndex;
  }
};

TEST_F(OcraScore, OneTaskAtTheReferenceRateHasIndexOne) {
  Compute();
  EXPECT_EQ(Module1.OcraActionsObserved.AsDouble(), 14400);
  EXPECT_EQ(Module1.OcraActionsRecommended.AsDouble(), 14400);
  EXPECT_EQ(Module1.OcraRiskIndex, 1);
  EXPECT_EQ(kOcraReferenceActions, 30);
}

TEST_F(OcraScore, JobWithoutTasksHasIndexZero) {
  Module1 = JobState{};
  Compute();
  EXPECT_EQ(Module1.OcraActionsObserved.AsDouble(), 0);
  EXPECT_EQ(Module1.OcraActionsRecommended.AsDouble(), 0.001);
  EXPECT_EQ(Module1.OcraRiskIndex, 0);
}

TEST_F(OcraScore, DeletedTasksAreLeftOutOfBothTotals) {
  AddTask(100, 7, 2);
  AddTask(60, 10, 1);
  Module1.TaskActive.at(2) = Integer{0};
  Compute();
  EXPECT_EQ(Module1.OcraActionsObserved.AsDouble(), 14400 + 600);
  EXPECT_DOUBLE_EQ(Module1.OcraActionsRecommended.AsDouble(), 14400 + 30 * 0.85 * 60);
  // Nor is its force looked up.
  EXPECT_EQ(Module1.OcraForceMultiplier.at(2), TaggedField());
  Module1.TaskActive.at(1) = Integer{0};
  Module1.TaskActive.at(3) = Integer{0};
  Compute();
  EXPECT_EQ(Module1.OcraActionsRecommended.AsDouble(), 0.001);
  EXPECT_EQ(Module1.OcraRiskIndex, 0);
}

TEST_F(OcraScore, TaskCountsAsActiveByItsNumber) {
  Module1.TaskActive.at(1) = "1";
  Compute();
  EXPECT_EQ(Module1.OcraRiskIndex, 1);
  Module1.TaskActive.at(1) = Integer{2};
  Compute();
  EXPECT_EQ(Module1.OcraRiskIndex, 0);
}

TEST_F(OcraScore, TextsReadAsNumbersAndTextThatIsNoneAsZero) {
  Module1.OcraActionFrequency.at(1) = "15 a minute";
  Compute();
  EXPECT_EQ(Module1.OcraRiskIndex, 0.5);
  Module1.OcraActionFrequency.at(1) = "often";
  Compute();
  EXPECT_EQ(Module1.OcraRiskIndex, 0);
}

TEST_F(OcraScore, CycleTimeAndHandTakeNoPart) {
  Module1.JobCycleTime = 99;
  Module1.Hand = 1;
  Compute();
  EXPECT_EQ(Module1.OcraRiskIndex, 1);
}

TEST_F(OcraScore, TasksWeighByTheirDuration) {
  AddTask(120, 60, 2.0);
  Compute();
  // (480 x 30 + 120 x 60) / (480 x 30 + 120 x 30 x 0.65)
  EXPECT_DOUBLE_EQ(Module1.OcraRiskIndex, 21600.0 / 16740.0);
}

TEST_F(OcraScore, ForceMultiplierByRating) {
  struct Row {
    double rating;
    double multiplier;  ///< 9 stands for the old one
  };
  constexpr double kOld = 9;
  for (const Row& row : std::array<Row, 27>{{
           {-1, 1},     {0, 1},       {0.25, 1},   {0.5, 1},     {0.51, kOld}, {0.999, kOld},
           {1.0, 0.85}, {1.2, kOld},  {1.5, 0.75}, {1.75, kOld}, {2.0, 0.65},  {2.25, kOld},
           {2.5, 0.55}, {2.7, kOld},  {3.0, 0.45}, {3.25, kOld}, {3.5, 0.35},  {3.75, kOld},
           {4.0, 0.2},  {4.25, kOld}, {4.5, 0.1},  {4.75, kOld}, {5.0, 0.01},  {5.001, kOld},
           {5.5, kOld}, {6, kOld},    {10, kOld},
       }}) {
    Module1.OcraForceMultiplier.at(1) = kOld;
    Module1.OcraForceRating.at(1) = row.rating;
    Compute();
    EXPECT_EQ(Module1.OcraForceMultiplier.at(1).AsDouble(), row.multiplier) << row.rating;
    EXPECT_DOUBLE_EQ(Module1.OcraActionsRecommended.AsDouble(), 14400 * row.multiplier)
        << row.rating;
  }
}

TEST_F(OcraScore, ForceRatingOfTwoRecommends9360Actions) {
  Module1.OcraForceRating.at(1) = 2.0;
  Compute();
  EXPECT_EQ(Format(Module1.OcraActionsRecommended, Pattern::OneDecimal), "9360.0");
  EXPECT_EQ(Format(Module1.OcraRiskIndex, Pattern::TwoDecimals), "1.54");
}

TEST_F(OcraScore, RatingWithoutRowLeavesTheMultiplierOfAFreshTaskEmpty) {
  Module1.OcraForceRating.at(1) = 1.2;
  Compute();
  EXPECT_EQ(Module1.OcraForceMultiplier.at(1), TaggedField());
  EXPECT_EQ(Module1.OcraActionsRecommended.AsDouble(), 0.001);
  EXPECT_EQ(Module1.OcraRiskIndex, 14400 / 0.001);
}

TEST_F(OcraScore, RatingWithoutRowKeepsTheMultiplierOfTheLastComputation) {
  Module1.OcraForceRating.at(1) = 4.0;
  Compute();
  Module1.OcraForceRating.at(1) = 1.2;
  Compute();
  EXPECT_EQ(Module1.OcraForceMultiplier.at(1).AsDouble(), 0.2);
  EXPECT_DOUBLE_EQ(Module1.OcraRiskIndex, 5);
}

TEST_F(OcraScore, AnswersScoreIntoTheirFields) {
  struct Row {
    int list;
    std::array<double, 4> scores;
    int grip;  ///< element of the grip scores, or -1
    TaggedField JobState::*sum;
  };
  constexpr auto kRotation = &JobState::OcraElbowRotation;
  constexpr auto kElbow = &JobState::OcraElbowFlexion;
  constexpr auto kDeviation = &JobState::OcraWristDeviation;
  constexpr auto kWrist = &JobState::OcraWristFlexion;
  const std::array<Row, 14> rows{{
      {0, {2, 4, 6, 0}, 0, nullptr},
      {1, {3, 6, 9, 0}, 1, nullptr},
      {2, {4, 8, 12, 0}, 2, nullptr},
      {3, {4, 8, 12, 0}, 3, nullptr},
      {4, {4, 8, 12, 0}, 4, nullptr},
      {5, {1, 2, 3, 0}, 5, nullptr},
      {6, {4, 8, 12, 0}, -1, kRotation},
      {7, {2, 4, 6, 0}, -1, kRotation},
      {8, {2, 4, 6, 0}, -1, kElbow},
      {9, {2, 4, 6, 0}, -1, kElbow},
      {10, {2, 4, 6, 0}, -1, kDeviation},
      {11, {2, 4, 6, 0}, -1, kDeviation},
      {12, {2, 4, 6, 0}, -1, kWrist},
      {13, {4, 8, 12, 0}, -1, kWrist},
  }};
  for (const Row& row : rows) {
    for (int answer = 0; answer < 4; ++answer) {
      StartFresh();
      Module1.OcraComboChoice.at(row.list) = static_cast<Integer>(answer);
      OcraScoreLists();
      const double score = row.scores.at(static_cast<std::size_t>(answer));
      for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(Module1.OcraGripScores.at(i).AsDouble(), i == row.grip ? score : 0)
            << "list " << row.list << " answer " << answer << " grip " << i;
      }
      for (const auto field : {kRotation, kElbow, kDeviation, kWrist}) {
        EXPECT_EQ((Module1.*field).AsDouble(), field == row.sum ? score : 0)
            << "list " << row.list << " answer " << answer;
      }
    }
  }
}

TEST_F(OcraScore, ListsOfAPairAddIntoTheirField) {
  for (int list = 6; list < 14; ++list) Module1.OcraComboChoice.at(list) = 1;
  OcraScoreLists();
  EXPECT_EQ(Module1.OcraElbowRotation.AsDouble(), 8 + 4);
  EXPECT_EQ(Module1.OcraElbowFlexion.AsDouble(), 4 + 4);
  EXPECT_EQ(Module1.OcraWristDeviation.AsDouble(), 4 + 4);
  EXPECT_EQ(Module1.OcraWristFlexion.AsDouble(), 4 + 8);
  OcraScoreLists();
  EXPECT_EQ(Module1.OcraWristFlexion.AsDouble(), 12) << "rebuilt, not added to";
}

TEST_F(OcraScore, AnswerThatIsNoneFails) {
  for (const int list : {0, 5, 6, 13}) {
    for (const Integer answer : std::array<Integer, 3>{4, -1, 32767}) {
      StartFresh();
      Module1.OcraComboChoice.at(list) = answer;
      EXPECT_EQ(FailureOf(OcraScoreLists), "SubscriptOutOfRange") << list << " " << answer;
    }
  }
}

TEST_F(OcraScore, RegionMultiplierBySum) {
  struct Row {
    int sum;
    double multiplier;
  };
  constexpr std::array kRows{
      Row{-4, 1},   Row{0, 1},    Row{3, 1},    Row{4, 0.7},   Row{7, 0.7},      Row{8, 0.6},
      Row{11, 0.6}, Row{12, 0.5}, Row{15, 0.5}, Row{16, 0.33}, Row{17, 0.33},    Row{51, 0.33},
      Row{2, 1},    Row{5, 0.7},  Row{10, 0.6}, Row{13, 0.5},  Row{32767, 0.33},
  };
  OcraScoreLists();
  for (const Row& row : kRows) {
    const std::array<Integer, 3> sums{static_cast<Integer>(row.sum), 0, 0};
    for (std::size_t region = 0; region < 3; ++region) {
      const auto sumOf = [&](std::size_t i) { return i == region ? sums[0] : Integer{0}; };
      Module1.OcraElbowRotation = sumOf(0);
      Module1.OcraWristFlexion = sumOf(1);
      Module1.OcraGripScores.at(4) = sumOf(2);
      OcraCalculate();
      EXPECT_EQ(Module1.OcraPostureSums.at(static_cast<int>(region) + 1), row.sum);
      EXPECT_EQ(Module1.OcraPostureMultiplier.AsDouble(), row.multiplier)
          << "sum " << row.sum << " region " << region;
    }
    // The region looked at last is the grip.
    EXPECT_EQ(Module1.OcraRegionMultiplier.AsDouble(), row.multiplier) << row.sum;
  }
}

TEST_F(OcraScore, WorstRegionWinsWhereverItStands) {
  struct Row {
    std::array<Integer, 3> sums;
    double multiplier;
  };
  for (const Row& row : std::array<Row, 5>{{{{16, 8, 4}, 0.33},
                                            {{4, 16, 8}, 0.33},
                                            {{8, 4, 16}, 0.33},
                                            {{0, 0, 12}, 0.5},
                                            {{0, 8, 0}, 0.6}}}) {
    OcraScoreLists();
    Module1.OcraElbowFlexion = row.sums[0];
    Module1.OcraWristDeviation = row.sums[1];
    Module1.OcraGripScores.at(0) = row.sums[2];
    OcraCalculate();
    EXPECT_EQ(Module1.OcraPostureMultiplier.AsDouble(), row.multiplier);
  }
}

TEST_F(OcraScore, EachTickWeighsInItsPlace) {
  struct Row {
    const char* tick;
    std::array<Integer, 4> sums;  ///< slot 0 stays 0
    double wide;
  };
  const std::array<Row, 6> rows{{{"none", {0, 0, 0, 0}, 0},
                                 {"wrist actions", {0, 0, 4, 0}, 0},
                                 {"wrist hold", {0, 0, 4, 0}, 0},
                                 {"same fingers", {0, 0, 0, 0}, 4},
                                 {"hold object", {0, 0, 0, 0}, 4},
                                 {"elbow gesture", {0, 4, 0, 0}, 0}}};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    StartFresh();
    if (i == 1) Module1.OcraWristActions = Integer{4};
    if (i == 2) Module1.OcraWristHold = 4;
    if (i == 3) Module1.OcraSameFingers = Integer{4};
    if (i == 4) Module1.OcraHoldObject = 4;
    if (i == 5) Module1.OcraElbowGesture = 4;
    Compute();
    for (int slot = 0; slot < 4; ++slot) {
      EXPECT_EQ(Module1.OcraPostureSums.at(slot), rows[i].sums.at(static_cast<std::size_t>(slot)))
          << rows[i].tick << " slot " << slot;
    }
    EXPECT_EQ(Module1.OcraGripScores.at(5).AsDouble(), rows[i].wide) << rows[i].tick;
  }
}

TEST_F(OcraScore, PalmarGripDoublesTheIndex) {
  Module1.OcraComboChoice.at(2) = 2;
  Compute();
  EXPECT_EQ(Module1.OcraPostureMultiplier.AsDouble(), 0.5);
  EXPECT_EQ(Module1.OcraRiskIndex, 2);
}

TEST_F(OcraScore, WideGripStaysOutOfTheGripSum) {
  Module1.OcraComboChoice.at(5) = 2;
  Compute();
  EXPECT_EQ(Module1.OcraPostureSums.at(3), 0);
}

TEST_F(OcraScore, WideGripAloneChangesNothing) {
  for (Integer answer = 0; answer < 3; ++answer) {
    Module1.OcraComboChoice.at(5) = answer;
    Compute();
    EXPECT_EQ(Module1.OcraGripExtraMultiplier.AsDouble(), 1) << answer;
    EXPECT_EQ(Module1.OcraRiskIndex, 1) << answer;
  }
}

TEST_F(OcraScore, WideGripWithBothFingerTicksGives11) {
  Module1.OcraComboChoice.at(5) = 2;
  Module1.OcraSameFingers = Integer{4};
  Module1.OcraHoldObject = 4;
  Compute();
  EXPECT_EQ(Module1.OcraGripScores.at(5).AsDouble(), 11);
  EXPECT_EQ(Module1.OcraGripExtraMultiplier.AsDouble(), 0.9);
}

TEST_F(OcraScore, GripExtraMultiplierByScore) {
  struct Row {
    double score;
    double multiplier;  ///< 9 stands for the old one
  };
  for (const Row& row : std::array<Row, 12>{{{0, 1},
                                             {3, 1},
                                             {3.999, 1},
                                             {4, 0.95},
                                             {7.999, 0.95},
                                             {8, 0.9},
                                             {11.999, 0.9},
                                             {12, 0.8},
                                             {1000, 0.8},
                                             {-0.001, 9},
                                             {-8, 9},
                                             {0.5, 1}}}) {
    OcraScoreLists();
    Module1.OcraGripExtraMultiplier = 9.0;
    Module1.OcraSameFingers = row.score;
    OcraCalculate();
    EXPECT_EQ(Module1.OcraGripExtraMultiplier.AsDouble(), row.multiplier) << row.score;
  }
}

TEST_F(OcraScore, WideGripIsWidenedOnceForEachRebuiltScore) {
  Module1.OcraComboChoice.at(5) = 1;
  Module1.OcraSameFingers = Integer{4};
  for (int run = 0; run < 3; ++run) {
    Compute();
    EXPECT_EQ(Module1.OcraGripScores.at(5).AsDouble(), 2 + 4) << run;
  }
  OcraCalculate();
  EXPECT_EQ(Module1.OcraGripScores.at(5).AsDouble(), 2 + 4 + 4) << "in place, without a rebuild";
}

TEST_F(OcraScore, RecoveryMultiplierByHours) {
  constexpr std::array kMultipliers{1.0, 0.9, 0.8, 0.7, 0.6, 0.45, 0.25, 0.1, 0.0};
  for (std::size_t hours = 0; hours < kMultipliers.size(); ++hours) {
    Module1.OcraRecoveryMultiplier = 9;
    Module1.OcraRecoveryHours = static_cast<Integer>(hours);
    Compute();
    EXPECT_EQ(Module1.OcraRecoveryMultiplier, kMultipliers[hours]) << hours;
    Module1.OcraRecoveryMultiplier = 9;
    Module1.OcraRecoveryHours = static_cast<double>(hours);
    Compute();
    EXPECT_EQ(Module1.OcraRecoveryMultiplier, kMultipliers[hours]) << hours;
  }
}

TEST_F(OcraScore, HoursThatMatchNoRowByTheirTextKeepTheMultiplier) {
  const std::array<TaggedField, 12> hours{Integer{9}, Integer{10}, Integer{-1},   2.5,
                                          "3.0",      " 3",        "3 ",          "+3",
                                          "03",       "",          TaggedField(), "three"};
  for (const TaggedField& value : hours) {
    Module1.OcraRecoveryMultiplier = 9;
    Module1.OcraRecoveryHours = value;
    Compute();
    EXPECT_EQ(Module1.OcraRecoveryMultiplier, 9) << '"' << value.AsText() << '"';
  }
  Module1.OcraRecoveryHours = "3";
  Compute();
  EXPECT_EQ(Module1.OcraRecoveryMultiplier, 0.7);
}

TEST_F(OcraScore, EightHoursRecommendNothing) {
  // 14400 over a thousandth.
  EXPECT_NEAR(IndexAfter(Integer{8}), 14400000, 1E-6);
  EXPECT_EQ(Module1.OcraActionsRecommended.AsDouble(), 0.001);
}

TEST_F(OcraScore, NineHoursAtProgramStartRecommendNothing) {
  EXPECT_NEAR(IndexAfter(Integer{9}), 14400000, 1E-6);
  EXPECT_EQ(Module1.OcraRecoveryMultiplier, 0);
}

TEST_F(OcraScore, NineHoursAfterThreeKeepTheirMultiplier) {
  const double ofThree = IndexAfter(Integer{3});
  EXPECT_DOUBLE_EQ(ofThree, 1 / 0.7);
  EXPECT_EQ(IndexAfter(Integer{9}), ofThree);
  EXPECT_EQ(IndexAfter(Integer{10}), ofThree);
  EXPECT_EQ(Module1.OcraRecoveryMultiplier, 0.7);
}

TEST_F(OcraScore, RecommendedActionsBelowZeroCountAsAThousandth) {
  Module1.OcraTaskDuration.at(1) = -480;
  Compute();
  EXPECT_EQ(Module1.OcraActionsRecommended.AsDouble(), 0.001);
  EXPECT_NEAR(Module1.OcraRiskIndex, -14400000, 1E-6);
}

TEST_F(OcraScore, NumbersBeyondTheirFieldsOverflow) {
  Module1.OcraTaskDuration.at(1) = 1E308;
  EXPECT_EQ(FailureOf(Compute), "Overflow") << "product";
  StartFresh();
  Module1.OcraTaskDuration.at(1) = 1E308;
  Module1.OcraActionFrequency.at(1) = Integer{1};
  EXPECT_EQ(FailureOf(Compute), "Overflow") << "thirty times the duration";
  StartFresh();
  Module1.OcraTaskDuration.at(1) = 1.5E308;
  Module1.OcraActionFrequency.at(1) = Integer{1};
  AddTask(1.5E308, 1, 0);
  EXPECT_EQ(FailureOf(Compute), "Overflow") << "sum";
  StartFresh();
  Module1.OcraElbowGesture = 32767;
  Module1.OcraComboChoice.at(6) = 0;
  EXPECT_EQ(FailureOf(Compute), "Overflow") << "region sum beyond 16 bits";
  StartFresh();
  Module1.OcraTaskDuration.at(1) = 1E300;
  Module1.OcraActionFrequency.at(1) = 1E7;
  Module1.OcraRecoveryHours = Integer{8};
  EXPECT_EQ(FailureOf(Compute), "Overflow") << "index";
}

TEST_F(OcraScore, WorkingValuesNameEachResult) {
  Compute();
  std::vector<std::string> names;
  for (const WorkingValue& value : OcraWorkingValues()) names.emplace_back(value.name);
  EXPECT_EQ(names, (std::vector<std::string>{
                       "OcraGripScores", "OcraElbowRotation", "OcraElbowFlexion",
                       "OcraWristDeviation", "OcraWristFlexion", "OcraPostureSums",
                       "OcraRegionMultiplier", "OcraPostureMultiplier", "OcraGripExtraMultiplier",
                       "OcraRecoveryMultiplier", "OcraForceMultiplier", "OcraActionsObserved",
                       "OcraActionsRecommended", "OcraRiskIndex"}));
}

struct TaskRow {
  double minutes, frequency, rating;
  bool active;
};
// Whole jobs with results worked out elsewhere.
struct JobRow {
  std::string_view answers;  ///< by list
  std::string_view ticks;    ///< by box, "x" ticked
  Integer hours;
  std::vector<TaskRow> tasks;
  Integer elbow, wrist, grip;
  double posture, extra, recovery, observed, recommended, index;
};

std::vector<JobRow> JobRows() {
  // clang-format off
  return {
    {"30000303032313", "-x---", 0, {{480, 44, 0.5, true}, {7.25, 12.5, 3.5, true}}, 6, 14, 15, 0.5, 1.0, 1.0, 21210.625, 7238.0625, 2.930428550458082},
    {"31333023133303", "xxxxx", 1, {{480, 0.7, 3.5, true}}, 20, 10, 6, 0.33, 0.9, 0.9, 336.0, 1347.1920000000002, 0.2494076568150642},
    {"12121203011313", "-----", 2, {{120.5, 30, 3.5, false}}, 10, 8, 41, 0.33, 1.0, 0.8, 0.0, 0.001, 0.0},
    {"01122232133003", "-x---", 3, {{60, 12.5, 5.0, true}, {33.3, 44, 2.5, true}, {480, 60, 3.5, true}}, 10, 8, 40, 0.33, 1.0, 0.7, 31015.2, 1295.32095, 23.944027154042402},
    {"32300223131002", "--x--", 4, {{60, 0.7, 0.0, false}, {33.3, 60, 2.0, true}, {7.25, 0.7, 3.5, false}}, 16, 20, 17, 0.33, 0.95, 0.6, 1997.9999999999998, 122.14273499999997, 16.357911094753202},
    {"30333330330323", "xxx--", 5, {{120.5, 30, 1.0, true}}, 2, 16, 3, 0.33, 0.95, 0.45, 3615.0, 433.48820625, 8.339327224776142},
    {"21130323030332", "xxx--", 6, {{7.25, 30, 3.5, true}, {7.25, 30, 1.0, true}, {60, 44, 0.5, true}}, 14, 22, 24, 0.33, 0.95, 0.25, 3075.0, 161.53087499999998, 19.036608326426762},
    {"20033203222313", "-x-x-", 7, {{60, 0.7, 0.5, true}, {60, 30, 1.5, true}}, 16, 14, 13, 0.33, 0.95, 0.1, 1842.0, 98.7525, 18.652692336902863},
    {"02331313033333", "x-xxx", 8, {{480, 30, 1.5, false}, {480, 30, 2.0, true}, {120.5, 0.7, 1.0, false}}, 14, 4, 19, 0.33, 0.9, 0, 14400.0, 0.001, 14400000.0},
    {"31323333312333", "xx---", 0, {{120.5, 0.7, 0.0, true}}, 4, 14, 18, 0.33, 1.0, 1.0, 84.35, 1192.95, 0.0707070707070707},
    {"33333330333330", "xx--x", 1, {{120.5, 60, 2.5, false}}, 6, 12, 0, 0.5, 1.0, 0.9, 0.0, 0.001, 0.0},
    {"33133233333333", "x-x--", 2, {{60, 30, 3.5, true}, {120.5, 12.5, 4.0, true}}, 0, 4, 8, 0.6, 0.95, 0.8, 3306.25, 616.968, 5.3588678829372025},
    {"00103023132032", "-----", 3, {{33.3, 30, 3.0, false}}, 16, 20, 17, 0.33, 1.0, 0.7, 0.0, 0.001, 0.0},
    {"23333323313330", "-xx--", 4, {{7.25, 12.5, 2.5, true}}, 16, 8, 6, 0.33, 0.95, 0.6, 90.625, 22.5014625, 4.027515989238477},
    {"33333333333330", "-xxx-", 5, {{480, 44, 0.5, true}}, 0, 8, 0, 0.6, 0.9, 0.45, 21120.0, 3499.2000000000003, 6.035665294924554},
    {"02323313333333", "x---x", 6, {{33.3, 30, 3.0, true}, {7.25, 30, 2.5, false}}, 12, 4, 23, 0.33, 1.0, 0.25, 998.9999999999999, 37.087875, 26.936026936026934},
    {"13133133302323", "-xx--", 7, {{60, 60, 2.5, true}}, 2, 16, 12, 0.33, 0.95, 0.1, 3600.0, 31.036500000000004, 115.99246049006813},
    {"22320031132330", "-xxx-", 8, {{33.3, 0.7, 0.0, true}, {7.25, 0.7, 1.0, true}}, 8, 14, 31, 0.33, 0.9, 0, 28.384999999999994, 0.001, 28384.999999999993},
    {"03133033133323", "-x---", 0, {{120.5, 44, 0.0, true}}, 4, 10, 10, 0.6, 1.0, 1.0, 5302.0, 2169.0, 2.4444444444444446},
    {"33203233033103", "---xx", 1, {{33.3, 12.5, 5.0, true}}, 6, 6, 16, 0.33, 0.95, 0.9, 416.24999999999994, 2.8186784999999994, 147.6755862720775},
    {"23202031033132", "-x---", 2, {{120.5, 60, 0.0, true}, {120.5, 60, 3.5, false}, {33.3, 30, 0.5, false}}, 6, 20, 34, 0.33, 1.0, 0.8, 7230.0, 954.3600000000001, 7.575757575757574},
    {"32111033001330", "x-x-x", 3, {{60, 30, 3.5, true}}, 8, 12, 33, 0.33, 0.95, 0.7, 1800.0, 138.25349999999997, 13.019561891742345},
    {"33333233313333", "xxxxx", 4, {{60, 12.5, 0.0, false}}, 8, 8, 0, 0.6, 0.9, 0.6, 0.0, 0.001, 0.0},
    {"03333033333333", "--xxx", 5, {{120.5, 12.5, 3.0, true}}, 4, 0, 2, 0.7, 0.9, 0.45, 1506.25, 461.183625, 3.266052648768698},
  };
  // clang-format on
}

TEST_F(OcraScore, WholeJobsGiveTheFiguresOfASecondComputation) {
  for (const JobRow& row : JobRows()) {
    SCOPED_TRACE(std::string(row.answers) + " " + std::string(row.ticks));
    Module1 = JobState{};
    for (std::size_t i = 0; i < row.answers.size(); ++i) {
      Module1.OcraComboChoice.at(static_cast<int>(i)) = static_cast<Integer>(row.answers[i] - '0');
    }
    const auto tick = [&row](std::size_t i) {
      return static_cast<Integer>(row.ticks[i] == 'x' ? 4 : 0);
    };
    Module1.OcraWristActions = tick(0);
    Module1.OcraWristHold = tick(1);
    Module1.OcraSameFingers = tick(2);
    Module1.OcraHoldObject = tick(3);
    Module1.OcraElbowGesture = tick(4);
    Module1.OcraRecoveryHours = row.hours;
    for (const TaskRow& task : row.tasks) {
      const int number = AddTask(task.minutes, task.frequency, task.rating);
      Module1.TaskActive.at(number) = static_cast<Integer>(task.active ? 1 : 0);
    }
    Compute();
    EXPECT_EQ(Module1.OcraPostureSums.at(1), row.elbow);
    EXPECT_EQ(Module1.OcraPostureSums.at(2), row.wrist);
    EXPECT_EQ(Module1.OcraPostureSums.at(3), row.grip);
    EXPECT_EQ(Module1.OcraPostureMultiplier.AsDouble(), row.posture);
    EXPECT_EQ(Module1.OcraGripExtraMultiplier.AsDouble(), row.extra);
    EXPECT_EQ(Module1.OcraRecoveryMultiplier, row.recovery);
    // To the last digit: zones are cut on the unrounded value.
    EXPECT_EQ(Module1.OcraActionsObserved.AsDouble(), row.observed);
    EXPECT_EQ(Module1.OcraActionsRecommended.AsDouble(), row.recommended);
    EXPECT_EQ(Module1.OcraRiskIndex, row.index);
  }
}

}  // namespace
}  // namespace halvane
