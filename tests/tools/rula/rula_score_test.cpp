#include "tools/rula/rula_score.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/rula/rula_support.h"

namespace halvane {
namespace {

constexpr int CellOf(std::string_view cells, int index) {
  return cells.at(static_cast<std::size_t>(index)) - '0';
}

struct TableARow {
  int upperArm, lowerArm;
  std::string_view cells;  ///< wrist 1 to 4, and within each twist 1 and 2
};
constexpr auto kTableA = std::to_array<TableARow>({
    {1, 1, "12222333"},
    {1, 2, "22223333"},
    {1, 3, "23233344"},
    {2, 1, "22233344"},
    {2, 2, "22233344"},
    {2, 3, "23333445"},
    {3, 1, "23334455"},
    {3, 2, "23334455"},
    {3, 3, "23344455"},
    {4, 1, "34444455"},
    {4, 2, "34444455"},
    {4, 3, "34455566"},
    {5, 1, "55555667"},
    {5, 2, "56666777"},
    {5, 3, "66677778"},
    {6, 1, "77777889"},
    {6, 2, "78888999"},
    {6, 3, "99999999"},
});

struct TableBRow {
  int neck;
  std::string_view cells;  ///< trunk 1 to 6, and within each leg 1 and 2
};
constexpr auto kTableB = std::to_array<TableBRow>({
    {1, "121223344444"},
    {2, "122234455555"},
    {3, "222334455566"},
    {4, "232334455666"},
    {5, "344445566666"},
});

struct TableCRow {
  int armWrist;
  std::string_view cells;  ///< total of neck, trunk and leg 1 to 7
};
constexpr auto kTableC = std::to_array<TableCRow>({
    {1, "1233455"},
    {2, "2234455"},
    {3, "3334456"},
    {4, "3334566"},
    {5, "4445677"},
    {6, "4456677"},
    {7, "5566777"},
    {8, "5567777"},
});

/// The cell of the copies above; 0 where a subscript is 0.
int CellA(int upperArm, int lowerArm, int wrist, int twist) {
  for (const TableARow& row : kTableA) {
    if (row.upperArm != upperArm || row.lowerArm != lowerArm) continue;
    return wrist == 0 || twist == 0 ? 0 : CellOf(row.cells, 2 * (wrist - 1) + twist - 1);
  }
  return 0;
}
int CellB(int neck, int trunk, int leg) {
  for (const TableBRow& row : kTableB) {
    if (row.neck != neck) continue;
    return trunk == 0 || leg == 0 ? 0 : CellOf(row.cells, 2 * (trunk - 1) + leg - 1);
  }
  return 0;
}
int CellC(int armWrist, int neckTrunkLeg) {
  for (const TableCRow& row : kTableC) {
    if (row.armWrist != armWrist) continue;
    return neckTrunkLeg == 0 ? 0 : CellOf(row.cells, neckTrunkLeg - 1);
  }
  return 0;
}

TEST(RulaTables, EachCellOfTableA) {
  ASSERT_EQ(kTableA.size(), 18U);
  const RulaTables tables = RULA_InitTables();
  for (int upper = 0; upper <= 6; ++upper) {
    for (int lower = 0; lower <= 3; ++lower) {
      for (int wrist = 0; wrist <= 4; ++wrist) {
        for (int twist = 0; twist <= 2; ++twist) {
          EXPECT_EQ(tables.RulaTableA.at(upper, lower, wrist, twist),
                    CellA(upper, lower, wrist, twist))
              << upper << lower << wrist << twist;
        }
      }
    }
  }
}

TEST(RulaTables, EachCellOfTableB) {
  ASSERT_EQ(kTableB.size(), 5U);
  const RulaTables tables = RULA_InitTables();
  for (int neck = 0; neck <= 5; ++neck) {
    for (int trunk = 0; trunk <= 6; ++trunk) {
      for (int leg = 0; leg <= 2; ++leg) {
        EXPECT_EQ(tables.RulaTableB.at(neck, trunk, leg), CellB(neck, trunk, leg))
            << neck << trunk << leg;
      }
    }
  }
}

TEST(RulaTables, EachCellOfTableC) {
  ASSERT_EQ(kTableC.size(), 8U);
  const RulaTables tables = RULA_InitTables();
  for (int armWrist = 0; armWrist <= 8; ++armWrist) {
    for (int neckTrunkLeg = 0; neckTrunkLeg <= 7; ++neckTrunkLeg) {
      EXPECT_EQ(tables.RulaTableC.at(armWrist, neckTrunkLeg), CellC(armWrist, neckTrunkLeg))
          << armWrist << neckTrunkLeg;
    }
  }
}

TEST(RulaTables, EachSubscriptIsTestedAgainstItsBound) {
  RulaTables tables;
  const RulaTables& filled = tables;
  using A = std::array<int, 4>;
  for (const A& s : {A{-1, 0, 0, 0}, A{7, 0, 0, 0}, A{0, -1, 0, 0}, A{0, 4, 0, 0}, A{0, 0, -1, 0},
                     A{0, 0, 5, 0}, A{0, 0, 0, -1}, A{0, 0, 0, 3}}) {
    EXPECT_EQ(FailureOf([&] { (void)filled.RulaTableA.at(s[0], s[1], s[2], s[3]); }),
              "SubscriptOutOfRange");
    EXPECT_EQ(FailureOf([&] { tables.RulaTableA.at(s[0], s[1], s[2], s[3]) = 1; }),
              "SubscriptOutOfRange");
  }
  using B = std::array<int, 3>;
  for (const B& s : {B{-1, 0, 0}, B{6, 0, 0}, B{0, -1, 0}, B{0, 7, 0}, B{0, 0, -1}, B{0, 0, 3}}) {
    EXPECT_EQ(FailureOf([&] { (void)filled.RulaTableB.at(s[0], s[1], s[2]); }),
              "SubscriptOutOfRange");
  }
  using C = std::array<int, 2>;
  for (const C& s : {C{-1, 0}, C{9, 0}, C{0, -1}, C{0, 8}}) {
    EXPECT_EQ(FailureOf([&] { (void)filled.RulaTableC.at(s[0], s[1]); }), "SubscriptOutOfRange");
  }
}

/// Factors given by their sums, all in the bases.
struct Bases {
  int upperArm = 1, lowerArm = 1, wrist = 1, twist = 1, neck = 1, trunk = 1, leg = 1;
  int muscle = 0, force = 0;
};

void SetBases(const Bases& bases) {
  Module1.RulaUpperArmFactors.at(0) = static_cast<Integer>(bases.upperArm);
  Module1.RulaLowerArmFactors.at(0) = static_cast<Integer>(bases.lowerArm);
  Module1.RulaWristFactors.at(0) = static_cast<Integer>(bases.wrist);
  Module1.RulaWristTwistFactor = static_cast<Integer>(bases.twist);
  Module1.RulaNeckFactors.at(0) = static_cast<Integer>(bases.neck);
  Module1.RulaTrunkFactors.at(0) = static_cast<Integer>(bases.trunk);
  Module1.RulaLegFactor = static_cast<Integer>(bases.leg);
  Module1.RulaMuscleFactor = static_cast<Integer>(bases.muscle);
  Module1.RulaForceFactor = static_cast<Integer>(bases.force);
}

class RulaScore : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
  static void Calculate(const Bases& bases) {
    SetBases(bases);
    RULA_Calculate();
  }
};

TEST_F(RulaScore, ArmPostureIsTheCellOfTableA) {
  for (const TableARow& row : kTableA) {
    for (int wrist = 1; wrist <= 4; ++wrist) {
      for (int twist = 1; twist <= 2; ++twist) {
        Bases bases;
        bases.upperArm = row.upperArm;
        bases.lowerArm = row.lowerArm;
        bases.wrist = wrist;
        bases.twist = twist;
        Calculate(bases);
        EXPECT_EQ(Module1.RulaArmWristPosture, CellA(row.upperArm, row.lowerArm, wrist, twist))
            << row.upperArm << row.lowerArm << wrist << twist;
      }
    }
  }
}

TEST_F(RulaScore, BodyPostureIsTheCellOfTableB) {
  for (const TableBRow& row : kTableB) {
    for (int trunk = 1; trunk <= 6; ++trunk) {
      for (int leg = 1; leg <= 2; ++leg) {
        Bases bases;
        bases.neck = row.neck;
        bases.trunk = trunk;
        bases.leg = leg;
        Calculate(bases);
        EXPECT_EQ(Module1.RulaNeckTrunkLegPosture, CellB(row.neck, trunk, leg))
            << row.neck << trunk << leg;
      }
    }
  }
}

struct GrandRow {
  std::string_view label;
  Bases bases;
  int totalA, totalB, grand;
};

TEST_F(RulaScore, GrandScoreIsTheCellOfBothTotalsAndTheLastOneBeyond) {
  const std::array<GrandRow, 14> rows{{
      {"first of everything", {}, 1, 1, 1},
      {"muscle and force in both", {.muscle = 1, .force = 2}, 4, 4, 4},
      {"A at its end", {.upperArm = 5, .lowerArm = 3, .wrist = 4, .twist = 2}, 8, 1, 5},
      {"A beyond", {.upperArm = 6, .lowerArm = 3}, 9, 1, 5},
      {"A far beyond", {.upperArm = 6, .lowerArm = 3, .muscle = 2, .force = 1}, 12, 4, 7},
      {"A beyond, B at its end", {.upperArm = 6, .lowerArm = 3, .trunk = 5, .force = 3}, 12, 7, 7},
      {"B at its end", {.neck = 5, .trunk = 6, .leg = 2, .muscle = 1}, 2, 7, 5},
      {"B beyond", {.neck = 5, .trunk = 6, .leg = 2, .muscle = 2}, 3, 8, 6},
      {"B far beyond", {.neck = 5, .trunk = 6, .leg = 2, .muscle = 2, .force = 2}, 5, 10, 7},
      {"A at its end, B beyond",
       {.upperArm = 4, .lowerArm = 3, .neck = 5, .trunk = 6, .force = 5},
       8,
       11,
       7},
      {"both beyond", {.upperArm = 6, .lowerArm = 3, .neck = 5, .trunk = 6, .muscle = 2}, 11, 8, 7},
      {"A 0", {.upperArm = 0}, 0, 1, 0},
      {"A 0 and B beyond", {.upperArm = 0, .neck = 5, .trunk = 6, .force = 2}, 2, 8, 5},
      {"B 0", {.leg = 0}, 1, 0, 0},
  }};
  for (const GrandRow& row : rows) {
    Calculate(row.bases);
    EXPECT_EQ(Module1.RulaArmWristTotal, row.totalA) << row.label;
    EXPECT_EQ(Module1.RulaNeckTrunkLegTotal, row.totalB) << row.label;
    EXPECT_EQ(Module1.RulaGrandScore, row.grand) << row.label;
    EXPECT_EQ(Module1.RulaMuscleScore, row.bases.muscle) << row.label;
    EXPECT_EQ(Module1.RulaForceScore, row.bases.force) << row.label;
  }
}

struct ClampRow {
  std::string_view label;
  std::array<Integer, 4> upperArm;
  std::array<Integer, 2> lowerArm, wrist;
  std::array<Integer, 3> neck;
  std::array<Integer, 4> trunk;
  std::array<int, 5> scores;
};

TEST_F(RulaScore, RegionsAreSumsOfTheirFactorsClampedAtTheTop) {
  constexpr auto kRows = std::to_array<ClampRow>({
      {"nothing set", {}, {}, {}, {}, {}, {0, 0, 0, 0, 0}},
      {"bases", {4, 0, 0, 0}, {2, 0}, {3, 0}, {4, 0, 0}, {4, 0, 0, 0}, {4, 2, 3, 4, 4}},
      {"each adds one", {1, 1, 1, 0}, {1, 1}, {1, 1}, {1, 1, 1}, {1, 1, 1, 1}, {3, 2, 2, 3, 4}},
      {"at the bounds", {4, 1, 1, 0}, {2, 1}, {3, 1}, {4, 1, 0}, {4, 1, 1, 0}, {6, 3, 4, 5, 6}},
      {"one beyond", {5, 1, 1, 0}, {3, 1}, {4, 1}, {4, 1, 1}, {4, 1, 1, 1}, {6, 3, 4, 5, 6}},
      {"far beyond",
       {100, 100, 1, 0},
       {100, 1},
       {32000, 1},
       {0, 99, 99},
       {99, 99, 1, 1},
       {6, 3, 4, 5, 6}},
      {"support lowers", {4, 1, 1, -1}, {1, 0}, {1, 0}, {1, 0, 0}, {1, 0, 0, 0}, {5, 1, 1, 1, 1}},
      {"last elements alone",
       {0, 0, 0, 2},
       {0, 2},
       {0, 2},
       {0, 0, 2},
       {0, 0, 0, 2},
       {2, 2, 2, 2, 2}},
  });
  const auto fill = [](auto& factors, const auto& values) {
    for (int i = 0; i < factors.size(); ++i) {
      factors.at(i) = values.at(static_cast<std::size_t>(i));
    }
  };
  for (const ClampRow& row : kRows) {
    fill(Module1.RulaUpperArmFactors, row.upperArm);
    fill(Module1.RulaLowerArmFactors, row.lowerArm);
    fill(Module1.RulaWristFactors, row.wrist);
    fill(Module1.RulaNeckFactors, row.neck);
    fill(Module1.RulaTrunkFactors, row.trunk);
    RULA_Calculate();
    EXPECT_EQ(
        (std::array<int, 5>{Module1.RulaUpperArmScore, Module1.RulaLowerArmScore,
                            Module1.RulaWristScore, Module1.RulaNeckScore, Module1.RulaTrunkScore}),
        row.scores)
        << row.label;
  }
}

/// The job with scores of 77 where no computation has written.
JobState MarkedScores() {
  JobState job;
  for (Integer* score : {&job.RulaUpperArmScore, &job.RulaLowerArmScore, &job.RulaWristScore,
                         &job.RulaWristTwistScore, &job.RulaNeckScore, &job.RulaTrunkScore,
                         &job.RulaLegScore, &job.RulaMuscleScore, &job.RulaForceScore,
                         &job.RulaArmWristPosture, &job.RulaNeckTrunkLegPosture,
                         &job.RulaArmWristTotal, &job.RulaNeckTrunkLegTotal, &job.RulaGrandScore}) {
    *score = 77;
  }
  return job;
}

TEST_F(RulaScore, ComputationWritesTheScoresAndNothingElse) {
  Module1 = MarkedScores();
  SetBases({2, 2, 3, 2, 3, 4, 2, 1, 2});
  JobState expected = Module1;
  expected.RulaUpperArmScore = 2;
  expected.RulaLowerArmScore = 2;
  expected.RulaWristScore = 3;
  expected.RulaWristTwistScore = 2;
  expected.RulaNeckScore = 3;
  expected.RulaTrunkScore = 4;
  expected.RulaLegScore = 2;
  expected.RulaMuscleScore = 1;
  expected.RulaForceScore = 2;
  expected.RulaArmWristPosture = 3;
  expected.RulaNeckTrunkLegPosture = 5;
  expected.RulaArmWristTotal = 6;
  expected.RulaNeckTrunkLegTotal = 8;
  expected.RulaGrandScore = 7;
  RULA_Calculate();
  EXPECT_EQ(Module1, expected);
  RULA_Calculate();
  EXPECT_EQ(Module1, expected) << "again";
}

struct FailureRow {
  std::string_view label;
  Bases bases;
  std::string_view failure;
  /// Arm and body posture, both totals, grand score.
  std::array<int, 5> after;
};

TEST_F(RulaScore, ScoreOutsideItsTableFailsWithTotalsAndGrandScoreAtZero) {
  constexpr std::string_view kOut = "SubscriptOutOfRange";
  const auto rows = std::to_array<FailureRow>({
      {"upper arm -1", {.upperArm = -1}, kOut, {77, 77, 0, 0, 0}},
      {"lower arm -1", {.lowerArm = -1}, kOut, {77, 77, 0, 0, 0}},
      {"wrist -1", {.wrist = -1}, kOut, {77, 77, 0, 0, 0}},
      {"twist -1", {.twist = -1}, kOut, {77, 77, 0, 0, 0}},
      {"twist 3", {.twist = 3}, kOut, {77, 77, 0, 0, 0}},
      {"twist 5", {.twist = 5}, kOut, {77, 77, 0, 0, 0}},
      {"neck -1", {.neck = -1}, kOut, {1, 77, 0, 0, 0}},
      {"trunk -1", {.trunk = -1}, kOut, {1, 77, 0, 0, 0}},
      {"leg -1", {.leg = -1}, kOut, {1, 77, 0, 0, 0}},
      {"leg 3", {.leg = 3}, kOut, {1, 77, 0, 0, 0}},
      {"negative totals", {.muscle = -2}, kOut, {1, 1, -1, -1, 0}},
      {"negative total A", {.neck = 5, .trunk = 6, .muscle = -2}, kOut, {1, 6, -1, 4, 0}},
      {"total too large", {.muscle = 32767}, "Overflow", {1, 1, 0, 0, 0}},
  });
  for (const FailureRow& row : rows) {
    Module1 = MarkedScores();
    EXPECT_EQ(FailureOf([&row] { Calculate(row.bases); }), row.failure) << row.label;
    EXPECT_EQ((std::array<int, 5>{Module1.RulaArmWristPosture, Module1.RulaNeckTrunkLegPosture,
                                  Module1.RulaArmWristTotal, Module1.RulaNeckTrunkLegTotal,
                                  Module1.RulaGrandScore}),
              row.after)
        << row.label;
    EXPECT_EQ(Module1.RulaLegScore, row.bases.leg) << row.label;
    EXPECT_EQ(Module1.RulaMuscleScore, row.bases.muscle) << row.label;
  }
}

TEST_F(RulaScore, SumBeyondSixteenBitsFailsWithTheRegionsAtZero) {
  Module1 = MarkedScores();
  JobState expected = Module1;
  expected.RulaUpperArmFactors.at(0) = 32767;
  expected.RulaUpperArmFactors.at(1) = 1;
  Module1 = expected;
  for (Integer* score :
       {&expected.RulaUpperArmScore, &expected.RulaLowerArmScore, &expected.RulaWristScore,
        &expected.RulaWristTwistScore, &expected.RulaNeckScore, &expected.RulaTrunkScore,
        &expected.RulaLegScore, &expected.RulaArmWristTotal, &expected.RulaNeckTrunkLegTotal,
        &expected.RulaGrandScore}) {
    *score = 0;
  }
  EXPECT_EQ(FailureOf(RULA_Calculate), "Overflow");
  EXPECT_EQ(Module1, expected);
}

}  // namespace
}  // namespace halvane
