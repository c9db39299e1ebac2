#include "tools/reba/reba_score.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/reba/reba_support.h"

namespace halvane {
namespace {

// The tables column by column, the other way round than they are printed.
struct LegColumn {
  int neck, leg;
  std::array<int, 5> scores;  ///< by trunk 1 to 5
};
constexpr std::array kTableA{
    LegColumn{1, 1, {1, 2, 2, 3, 4}}, LegColumn{1, 2, {2, 3, 4, 5, 6}},
    LegColumn{1, 3, {3, 4, 5, 6, 7}}, LegColumn{1, 4, {4, 5, 6, 7, 8}},
    LegColumn{2, 1, {1, 3, 4, 5, 6}}, LegColumn{2, 2, {2, 4, 5, 6, 7}},
    LegColumn{2, 3, {3, 5, 6, 7, 8}}, LegColumn{2, 4, {4, 6, 7, 8, 9}},
    LegColumn{3, 1, {3, 4, 5, 6, 7}}, LegColumn{3, 2, {3, 5, 6, 7, 8}},
    LegColumn{3, 3, {5, 6, 7, 8, 9}}, LegColumn{3, 4, {6, 7, 8, 9, 9}},
};

struct WristColumn {
  int lowerArm, wrist;
  std::array<int, 6> scores;  ///< by upper arm 1 to 6
};
constexpr std::array kTableB{
    WristColumn{1, 1, {1, 1, 3, 4, 6, 7}}, WristColumn{1, 2, {2, 2, 4, 5, 7, 8}},
    WristColumn{1, 3, {2, 3, 5, 5, 8, 8}}, WristColumn{2, 1, {1, 2, 4, 5, 7, 8}},
    WristColumn{2, 2, {2, 3, 5, 6, 8, 9}}, WristColumn{2, 3, {3, 4, 5, 7, 8, 9}},
};

// A row for each score A total 1 to 12, by score B total 1 to 12.
constexpr std::array<std::array<int, 12>, 12> kTableC{{
    {1, 1, 1, 2, 3, 3, 4, 5, 6, 7, 7, 7},
    {2, 2, 2, 3, 4, 4, 5, 6, 6, 7, 7, 8},
    {3, 3, 3, 3, 4, 5, 6, 7, 7, 8, 8, 8},
    {4, 4, 4, 4, 5, 6, 7, 8, 8, 9, 9, 9},
    {5, 4, 4, 4, 6, 7, 8, 8, 9, 9, 9, 9},
    {6, 6, 6, 6, 8, 8, 9, 9, 10, 10, 10, 10},
    {7, 7, 7, 7, 9, 9, 9, 10, 10, 11, 11, 11},
    {8, 8, 8, 8, 10, 10, 10, 10, 10, 11, 11, 11},
    {9, 9, 9, 9, 10, 10, 11, 11, 11, 12, 12, 12},
    {10, 10, 10, 10, 11, 11, 11, 12, 12, 12, 12, 12},
    {11, 11, 11, 11, 12, 12, 12, 12, 12, 12, 12, 12},
    {12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12},
}};

class RebaScore : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() { Module1 = JobState{}; }
  /// Puts the scores of a fresh form into the factors.
  static void LoadFreshForm() {
    RebaControls controls;
    controls.Load();
  }
  static void SetScores(int trunk, int neck, int leg, int upperArm, int lowerArm, int wrist) {
    Module1.RebaTrunkFactors.at(0) = static_cast<Integer>(trunk);
    Module1.RebaNeckFactors.at(0) = static_cast<Integer>(neck);
    Module1.RebaLegFactors.at(0) = static_cast<Integer>(leg);
    Module1.RebaUpperArmFactors.at(0) = static_cast<Integer>(upperArm);
    Module1.RebaLowerArmFactor = static_cast<Integer>(lowerArm);
    Module1.RebaWristFactors.at(0) = static_cast<Integer>(wrist);
  }
};

TEST_F(RebaScore, TableAIsThePrintedOne) {
  const RebaTables tables = REBA_InitTables();
  ASSERT_EQ(kTableA.size(), 12U);
  for (const LegColumn& column : kTableA) {
    for (int trunk = 1; trunk <= 5; ++trunk) {
      const int score = column.scores.at(static_cast<std::size_t>(trunk - 1));
      EXPECT_EQ(tables.RebaTableA.at(trunk, column.neck, column.leg), score)
          << trunk << " " << column.neck << " " << column.leg;
    }
  }
}

TEST_F(RebaScore, TableBIsThePrintedOne) {
  const RebaTables tables = REBA_InitTables();
  ASSERT_EQ(kTableB.size(), 6U);
  for (const WristColumn& column : kTableB) {
    for (int upperArm = 1; upperArm <= 6; ++upperArm) {
      const int score = column.scores.at(static_cast<std::size_t>(upperArm - 1));
      EXPECT_EQ(tables.RebaTableB.at(upperArm, column.lowerArm, column.wrist), score)
          << upperArm << " " << column.lowerArm << " " << column.wrist;
    }
  }
}

TEST_F(RebaScore, TableCIsThePrintedOne) {
  const RebaTables tables = REBA_InitTables();
  for (int totalA = 1; totalA <= 12; ++totalA) {
    for (int totalB = 1; totalB <= 12; ++totalB) {
      EXPECT_EQ(
          tables.RebaTableC.at(totalA, totalB),
          kTableC.at(static_cast<std::size_t>(totalA - 1)).at(static_cast<std::size_t>(totalB - 1)))
          << totalA << " " << totalB;
    }
  }
}

TEST_F(RebaScore, CellsWithASubscriptOf0StayEmpty) {
  const RebaTables tables = REBA_InitTables();
  int filled = 0;
  for (int trunk = 0; trunk <= 5; ++trunk) {
    for (int neck = 0; neck <= 3; ++neck) {
      for (int leg = 0; leg <= 4; ++leg) {
        const bool isFilled = tables.RebaTableA.at(trunk, neck, leg) != 0;
        EXPECT_EQ(isFilled, trunk * neck * leg != 0) << trunk << " " << neck << " " << leg;
        filled += isFilled ? 1 : 0;
      }
    }
  }
  EXPECT_EQ(filled, 60);
  filled = 0;
  for (int upperArm = 0; upperArm <= 6; ++upperArm) {
    for (int lowerArm = 0; lowerArm <= 2; ++lowerArm) {
      for (int wrist = 0; wrist <= 3; ++wrist) {
        const bool isFilled = tables.RebaTableB.at(upperArm, lowerArm, wrist) != 0;
        EXPECT_EQ(isFilled, upperArm * lowerArm * wrist != 0)
            << upperArm << " " << lowerArm << " " << wrist;
        filled += isFilled ? 1 : 0;
      }
    }
  }
  EXPECT_EQ(filled, 36);
  filled = 0;
  for (int totalA = 0; totalA <= 12; ++totalA) {
    for (int totalB = 0; totalB <= 12; ++totalB) {
      const bool isFilled = tables.RebaTableC.at(totalA, totalB) != 0;
      EXPECT_EQ(isFilled, totalA * totalB != 0) << totalA << " " << totalB;
      filled += isFilled ? 1 : 0;
    }
  }
  EXPECT_EQ(filled, 144);
}

TEST_F(RebaScore, EachSubscriptIsTestedAgainstItsOwnBound) {
  const RebaTables tables = REBA_InitTables();
  const auto failureOfA = [&tables](int trunk, int neck, int leg) {
    return FailureOf([&] { (void)tables.RebaTableA.at(trunk, neck, leg); });
  };
  const auto failureOfB = [&tables](int upperArm, int lowerArm, int wrist) {
    return FailureOf([&] { (void)tables.RebaTableB.at(upperArm, lowerArm, wrist); });
  };
  const auto failureOfC = [&tables](int totalA, int totalB) {
    return FailureOf([&] { (void)tables.RebaTableC.at(totalA, totalB); });
  };
  EXPECT_EQ(failureOfA(5, 3, 4), "none");
  EXPECT_EQ(failureOfB(6, 2, 3), "none");
  EXPECT_EQ(failureOfC(12, 12), "none");
  for (const auto& [trunk, neck, leg] : std::array<std::array<int, 3>, 6>{
           {{6, 1, 1}, {-1, 1, 1}, {1, 4, 1}, {1, -1, 1}, {1, 1, 5}, {1, 1, -1}}}) {
    EXPECT_EQ(failureOfA(trunk, neck, leg), "SubscriptOutOfRange")
        << trunk << " " << neck << " " << leg;
  }
  for (const auto& [upperArm, lowerArm, wrist] : std::array<std::array<int, 3>, 6>{
           {{7, 1, 1}, {-1, 1, 1}, {1, 3, 1}, {1, -1, 1}, {1, 1, 4}, {1, 1, -1}}}) {
    EXPECT_EQ(failureOfB(upperArm, lowerArm, wrist), "SubscriptOutOfRange")
        << upperArm << " " << lowerArm << " " << wrist;
  }
  for (const auto& [totalA, totalB] :
       std::array<std::array<int, 2>, 4>{{{13, 1}, {-1, 1}, {1, 13}, {1, -1}}}) {
    EXPECT_EQ(failureOfC(totalA, totalB), "SubscriptOutOfRange") << totalA << " " << totalB;
  }
}

TEST_F(RebaScore, FreshFormScores1) {
  LoadFreshForm();
  REBA_Calculate();
  EXPECT_EQ(Module1.RebaScoreA, 1);
  EXPECT_EQ(Module1.RebaScoreB, 1);
  EXPECT_EQ(Module1.RebaScoreATotal, 1);
  EXPECT_EQ(Module1.RebaScoreBTotal, 1);
  EXPECT_EQ(Module1.RebaGrandScore, 1);
}

TEST_F(RebaScore, RegionScoresAreTheSumsOfTheirFactors) {
  // Each element another power of two, so that a sum tells which elements are in it.
  for (int i = 0; i < 4; ++i) Module1.RebaUpperArmFactors.at(i) = static_cast<Integer>(1 << i);
  for (int i = 0; i < 3; ++i) Module1.RebaNeckFactors.at(i) = static_cast<Integer>(16 << i);
  for (int i = 0; i < 3; ++i) Module1.RebaTrunkFactors.at(i) = static_cast<Integer>(128 << i);
  for (int i = 0; i < 2; ++i) Module1.RebaWristFactors.at(i) = static_cast<Integer>(1024 << i);
  for (int i = 0; i < 2; ++i) Module1.RebaLegFactors.at(i) = static_cast<Integer>(4096 << i);
  Module1.RebaForceFactors.at(0) = 20;
  Module1.RebaForceFactors.at(1) = 3;
  Module1.RebaLowerArmFactor = 41;
  Module1.RebaActivityFactor = 42;
  Module1.RebaCouplingFactor = 43;
  EXPECT_EQ(FailureOf(REBA_Calculate), "SubscriptOutOfRange") << "no table is so large";
  EXPECT_EQ(Module1.RebaUpperArmScore, 15);
  EXPECT_EQ(Module1.RebaNeckScore, 16 + 32 + 64);
  EXPECT_EQ(Module1.RebaTrunkScore, 128 + 256 + 512);
  EXPECT_EQ(Module1.RebaWristScore, 1024 + 2048);
  EXPECT_EQ(Module1.RebaLegScore, 4096 + 8192);
  EXPECT_EQ(Module1.RebaForceScore, 23);
  EXPECT_EQ(Module1.RebaLowerArmScore, 41);
  EXPECT_EQ(Module1.RebaActivityScore, 42);
  EXPECT_EQ(Module1.RebaCouplingScore, 43);
}

TEST_F(RebaScore, FactorsAndControlsStayAsTheyAre) {
  LoadFreshForm();
  Module1.RebaUpperArmFactors.at(3) = -1;
  Module1.RebaActivityFactor = 2;
  Module1.JobDirty = kFalse;
  const JobState expected = Module1;
  REBA_Calculate();
  // A second computation changes nothing more.
  const JobState first = Module1;
  REBA_Calculate();
  EXPECT_EQ(Module1, first);
  EXPECT_EQ(Module1.RebaControlState, expected.RebaControlState);
  EXPECT_EQ(Module1.RebaUpperArmFactors, expected.RebaUpperArmFactors);
  EXPECT_EQ(Module1.RebaActivityFactor, 2);
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST_F(RebaScore, EveryCombinationOfScoresGivesItsGrandScore) {
  int combinations = 0;
  for (const LegColumn& legs : kTableA) {
    for (const WristColumn& wrist : kTableB) {
      for (std::size_t i = 0; i < 480; ++i) {
        const std::size_t trunk = i % 5;
        const std::size_t upperArm = i / 5 % 6;
        const int force = static_cast<int>(i / 30 % 4);
        const int coupling = static_cast<int>(i / 120);
        const int activity = combinations % 4;
        SetScores(static_cast<int>(trunk) + 1, legs.neck, legs.leg, static_cast<int>(upperArm) + 1,
                  wrist.lowerArm, wrist.wrist);
        Module1.RebaForceFactors.at(0) = static_cast<Integer>(force);
        Module1.RebaCouplingFactor = static_cast<Integer>(coupling);
        Module1.RebaActivityFactor = static_cast<Integer>(activity);
        REBA_Calculate();
        const int totalA = legs.scores.at(trunk) + force;
        const int totalB = wrist.scores.at(upperArm) + coupling;
        ASSERT_EQ(Module1.RebaScoreA, legs.scores.at(trunk));
        ASSERT_EQ(Module1.RebaScoreB, wrist.scores.at(upperArm));
        ASSERT_EQ(Module1.RebaScoreATotal, totalA);
        ASSERT_EQ(Module1.RebaScoreBTotal, totalB);
        ASSERT_EQ(Module1.RebaGrandScore, kTableC.at(static_cast<std::size_t>(totalA - 1))
                                                  .at(static_cast<std::size_t>(totalB - 1)) +
                                              activity);
        ++combinations;
      }
    }
  }
  EXPECT_EQ(combinations, 12 * 6 * 480);
}

TEST_F(RebaScore, LargestJobReachesTheLastCellAnd15) {
  using enum RebaRegion;
  LoadFreshForm();
  RebaControls controls;
  PressRibbon(controls, Trunk, 3);
  SetCheck(controls, Trunk, 0, true);
  PressRibbon(controls, Neck, 2);
  SetCheck(controls, Neck, 0, true);
  PressRibbon(controls, Legs, 1);
  PressRibbon(controls, Legs, 3);
  PressRibbon(controls, UpperArms, 4);
  SetCheck(controls, UpperArms, 0, true);
  SetCheck(controls, UpperArms, 1, true);
  PressRibbon(controls, LowerArms, 2);
  PressRibbon(controls, Wrist, 1);
  PressRibbon(controls, Wrist, 3);
  PickLoad(controls, 2);
  SetCheck(controls, Force, 0, true);
  ChooseCoupling(controls, 3);
  for (const int box : {0, 1, 2}) SetCheck(controls, MuscleUse, box, true);
  REBA_Calculate();
  EXPECT_EQ(Module1.RebaScoreA, 9);
  EXPECT_EQ(Module1.RebaScoreB, 9);
  EXPECT_EQ(Module1.RebaScoreATotal, 12);
  EXPECT_EQ(Module1.RebaScoreBTotal, 12);
  EXPECT_EQ(Module1.RebaGrandScore, 15);
  EXPECT_EQ(RebaActionLevelOf(Module1.RebaGrandScore).level, "Action Level = 4");
}

TEST_F(RebaScore, SupportedNeutralArmScores0AndLeavesTheActivityAlone) {
  RebaControls controls;
  controls.Load();
  SetCheck(controls, RebaRegion::UpperArms, 2, true);
  PressRibbon(controls, RebaRegion::Trunk, 3);
  for (int activity = 0; activity <= 3; ++activity) {
    if (activity > 0) SetCheck(controls, RebaRegion::MuscleUse, activity - 1, true);
    REBA_Calculate();
    EXPECT_EQ(Module1.RebaUpperArmScore, 0);
    EXPECT_EQ(Module1.RebaScoreA, 3);
    EXPECT_EQ(Module1.RebaScoreB, 0);
    EXPECT_EQ(Module1.RebaScoreBTotal, 0);
    EXPECT_EQ(Module1.RebaGrandScore, activity);
  }
  // A coupling brings the table back.
  ChooseCoupling(controls, 1);
  REBA_Calculate();
  EXPECT_EQ(Module1.RebaScoreBTotal, 1);
  EXPECT_EQ(Module1.RebaGrandScore, 3 + 3);
}

TEST_F(RebaScore, FormThatNeverLoadedScores0) {
  REBA_Calculate();
  EXPECT_EQ(Module1.RebaGrandScore, 0);
  EXPECT_EQ(Module1.RebaScoreA, 0);
}

struct BeyondRow {
  std::string_view label;
  std::function<void()> set;
  std::string_view failure;
};

TEST_F(RebaScore, ScoreBeyondItsTableFails) {
  const std::vector<BeyondRow> rows{
      {"upper arm -1", [] { Module1.RebaUpperArmFactors.at(3) = -2; }, "SubscriptOutOfRange"},
      {"upper arm 7", [] { Module1.RebaUpperArmFactors.at(1) = 6; }, "SubscriptOutOfRange"},
      {"lower arm 3", [] { Module1.RebaLowerArmFactor = 3; }, "SubscriptOutOfRange"},
      {"wrist 4", [] { Module1.RebaWristFactors.at(1) = 3; }, "SubscriptOutOfRange"},
      {"neck 4", [] { Module1.RebaNeckFactors.at(2) = 3; }, "SubscriptOutOfRange"},
      {"trunk 6", [] { Module1.RebaTrunkFactors.at(2) = 5; }, "SubscriptOutOfRange"},
      {"legs 5", [] { Module1.RebaLegFactors.at(1) = 4; }, "SubscriptOutOfRange"},
      {"A total 12", [] { Module1.RebaForceFactors.at(0) = 11; }, "none"},
      {"A total 13", [] { Module1.RebaForceFactors.at(0) = 12; }, "SubscriptOutOfRange"},
      {"A total -1", [] { Module1.RebaForceFactors.at(0) = -2; }, "SubscriptOutOfRange"},
      {"B total 12", [] { Module1.RebaCouplingFactor = 11; }, "none"},
      {"B total 13", [] { Module1.RebaCouplingFactor = 12; }, "SubscriptOutOfRange"},
      {"B total -1", [] { Module1.RebaCouplingFactor = -2; }, "SubscriptOutOfRange"},
      {"grand 32767", [] { Module1.RebaActivityFactor = 32766; }, "none"},
      {"grand 32768", [] { Module1.RebaActivityFactor = 32767; }, "Overflow"},
      {"upper arm 32768", [] { Module1.RebaUpperArmFactors.at(1) = 32767; }, "Overflow"},
      {"A total 32768", [] { Module1.RebaForceFactors.at(0) = 32767; }, "Overflow"},
      {"B total 32768", [] { Module1.RebaCouplingFactor = 32767; }, "Overflow"},
  };
  for (const BeyondRow& row : rows) {
    StartFresh();
    LoadFreshForm();
    row.set();
    EXPECT_EQ(FailureOf(REBA_Calculate), row.failure) << row.label;
  }
}

TEST_F(RebaScore, FailureLeavesTheScoresBehindItAt0) {
  LoadFreshForm();
  Module1.RebaCouplingFactor = 2;
  REBA_Calculate();
  ASSERT_EQ(Module1.RebaScoreBTotal, 3);
  Module1.RebaUpperArmFactors.at(0) = -1;
  EXPECT_EQ(FailureOf(REBA_Calculate), "SubscriptOutOfRange");
  EXPECT_EQ(Module1.RebaUpperArmScore, -1);
  EXPECT_EQ(Module1.RebaScoreA, 1);
  EXPECT_EQ(Module1.RebaScoreB, 0);
  EXPECT_EQ(Module1.RebaScoreATotal, 0);
  EXPECT_EQ(Module1.RebaScoreBTotal, 0);
  EXPECT_EQ(Module1.RebaGrandScore, 0);
}

TEST_F(RebaScore, OverflowOfTheFirstSumLeavesNoScoreOfTheJobBefore) {
  LoadFreshForm();
  Module1.RebaActivityFactor = 1;
  Module1.RebaCouplingFactor = 1;
  REBA_Calculate();
  Module1.RebaUpperArmFactors.fill(32767);
  EXPECT_EQ(FailureOf(REBA_Calculate), "Overflow");
  for (const Integer score :
       {Module1.RebaUpperArmScore, Module1.RebaLowerArmScore, Module1.RebaWristScore,
        Module1.RebaNeckScore, Module1.RebaTrunkScore, Module1.RebaLegScore,
        Module1.RebaActivityScore, Module1.RebaCouplingScore, Module1.RebaScoreA,
        Module1.RebaScoreB, Module1.RebaScoreATotal, Module1.RebaScoreBTotal,
        Module1.RebaGrandScore}) {
    EXPECT_EQ(score, 0);
  }
}

struct LevelRow {
  std::vector<Integer> scores;
  std::string_view level, risk, action;
};

TEST(RebaActionLevels, ChangeAt2And4And8And11) {
  const std::vector<LevelRow> rows{
      {{-32768, -1, 0, 1},
       "Action Level = 0",
       "Risk Level = Negligible",
       "Action (including further assessment) = None necessary"},
      {{2, 3},
       "Action Level = 1",
       "Risk Level = Low",
       "Action (including further assessment) = May be necessary"},
      {{4, 5, 6, 7},
       "Action Level = 2",
       "Risk Level = Medium",
       "Action (including further assessment) = Necessary"},
      {{8, 9, 10},
       "Action Level = 3",
       "Risk Level = High",
       "Action (including further assessment) = Necessary soon"},
      {{11, 12, 13, 14, 15, 32767},
       "Action Level = 4",
       "Risk Level = Very High",
       "Action (including further assessment) = Necessary NOW"},
  };
  for (const LevelRow& row : rows) {
    for (const Integer score : row.scores) {
      const RebaActionLevel level = RebaActionLevelOf(score);
      EXPECT_EQ(level.level, row.level) << score;
      EXPECT_EQ(level.risk, row.risk) << score;
      EXPECT_EQ(level.action, row.action) << score;
    }
  }
}

std::string TextOf(const WorkingValue& value) {
  std::string text(value.name);
  text += " =";
  if (const auto* single = std::get_if<TaggedField>(&value.value))
    return text + " " + single->AsText();
  for (const TaggedField& element : std::get<std::vector<TaggedField>>(value.value)) {
    text += " " + element.AsText();
  }
  return text;
}

TEST_F(RebaScore, WorkingValuesNameEachFactorAndScore) {
  for (int i = 0; i < 4; ++i) Module1.RebaUpperArmFactors.at(i) = static_cast<Integer>(10 + i);
  for (int i = 0; i < 2; ++i) Module1.RebaWristFactors.at(i) = static_cast<Integer>(20 + i);
  for (int i = 0; i < 3; ++i) Module1.RebaNeckFactors.at(i) = static_cast<Integer>(30 + i);
  for (int i = 0; i < 3; ++i) Module1.RebaTrunkFactors.at(i) = static_cast<Integer>(40 + i);
  for (int i = 0; i < 2; ++i) Module1.RebaLegFactors.at(i) = static_cast<Integer>(50 + i);
  for (int i = 0; i < 2; ++i) Module1.RebaForceFactors.at(i) = static_cast<Integer>(60 + i);
  Module1.RebaLowerArmFactor = 70;
  Module1.RebaCouplingFactor = 71;
  Module1.RebaActivityFactor = 72;
  Module1.RebaUpperArmScore = 80;
  Module1.RebaLowerArmScore = 81;
  Module1.RebaWristScore = 82;
  Module1.RebaNeckScore = 83;
  Module1.RebaTrunkScore = 84;
  Module1.RebaLegScore = 85;
  Module1.RebaActivityScore = 86;
  Module1.RebaForceScore = 87;
  Module1.RebaCouplingScore = 88;
  Module1.RebaScoreA = 89;
  Module1.RebaScoreB = 90;
  Module1.RebaScoreATotal = 91;
  Module1.RebaScoreBTotal = 92;
  Module1.RebaGrandScore = 93;
  std::vector<std::string> values;
  for (const WorkingValue& value : RebaWorkingValues()) values.push_back(TextOf(value));
  EXPECT_EQ(values, (std::vector<std::string>{
                        "RebaUpperArmFactors = 10 11 12 13",
                        "RebaLowerArmFactor = 70",
                        "RebaWristFactors = 20 21",
                        "RebaNeckFactors = 30 31 32",
                        "RebaTrunkFactors = 40 41 42",
                        "RebaLegFactors = 50 51",
                        "RebaForceFactors = 60 61",
                        "RebaCouplingFactor = 71",
                        "RebaActivityFactor = 72",
                        "RebaUpperArmScore = 80",
                        "RebaLowerArmScore = 81",
                        "RebaWristScore = 82",
                        "RebaNeckScore = 83",
                        "RebaTrunkScore = 84",
                        "RebaLegScore = 85",
                        "RebaActivityScore = 86",
                        "RebaForceScore = 87",
                        "RebaCouplingScore = 88",
                        "RebaScoreA = 89",
                        "RebaScoreB = 90",
                        "RebaScoreATotal = 91",
                        "RebaScoreBTotal = 92",
                        "RebaGrandScore = 93",
                    }));
}

}  // namespace
}  // namespace halvane
