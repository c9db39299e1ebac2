#include "tools/rula/rula_score.h"

#include <algorithm>
#include <array>

#include "core/job_state.h"

namespace halvane {
namespace {

constexpr Integer kMostUpperArm = 6;
constexpr Integer kMostLowerArm = 3;
constexpr Integer kMostWrist = 4;
/// Beyond its table, so a twist of 3 or more would fail there; the options give 1 or 2.
constexpr Integer kMostTwist = 4;
constexpr Integer kMostNeck = 5;
constexpr Integer kMostTrunk = 6;
constexpr Integer kMostTotalA = 8;
constexpr Integer kMostTotalB = 7;

// clang-format off
// Rows: upper arm 1 to 6, and within each lower arm 1 to 3. Columns: wrist 1 to 4, and within each
// twist 1 and 2.
constexpr std::array<std::array<Integer, 8>, 18> kTableA{{
    // W1    W2    W3    W4
    {1, 2, 2, 2, 2, 3, 3, 3},  // upper arm 1
    {2, 2, 2, 2, 3, 3, 3, 3},
    {2, 3, 2, 3, 3, 3, 4, 4},
    {2, 2, 2, 3, 3, 3, 4, 4},  // upper arm 2
    {2, 2, 2, 3, 3, 3, 4, 4},
    {2, 3, 3, 3, 3, 4, 4, 5},
    {2, 3, 3, 3, 4, 4, 5, 5},  // upper arm 3
    {2, 3, 3, 3, 4, 4, 5, 5},
    {2, 3, 3, 4, 4, 4, 5, 5},
    {3, 4, 4, 4, 4, 4, 5, 5},  // upper arm 4
    {3, 4, 4, 4, 4, 4, 5, 5},
    {3, 4, 4, 5, 5, 5, 6, 6},
    {5, 5, 5, 5, 5, 6, 6, 7},  // upper arm 5
    {5, 6, 6, 6, 6, 7, 7, 7},
    {6, 6, 6, 7, 7, 7, 7, 8},
    {7, 7, 7, 7, 7, 8, 8, 9},  // upper arm 6
    {7, 8, 8, 8, 8, 9, 9, 9},
    {9, 9, 9, 9, 9, 9, 9, 9},
}};

// Rows: neck 1 to 5. Columns: trunk 1 to 6, and within each leg 1 and 2.
constexpr std::array<std::array<Integer, 12>, 5> kTableB{{
    // T1    T2    T3    T4    T5    T6
    {1, 2, 1, 2, 2, 3, 3, 4, 4, 4, 4, 4},
    {1, 2, 2, 2, 3, 4, 4, 5, 5, 5, 5, 5},
    {2, 2, 2, 3, 3, 4, 4, 5, 5, 5, 6, 6},
    {2, 3, 2, 3, 3, 4, 4, 5, 5, 6, 6, 6},
    {3, 4, 4, 4, 4, 5, 5, 6, 6, 6, 6, 6},
}};

// Rows: total of arm and wrist 1 to 8. Columns: total of neck, trunk and leg 1 to 7.
constexpr std::array<std::array<Integer, 7>, 8> kTableC{{
    {1, 2, 3, 3, 4, 5, 5},
    {2, 2, 3, 4, 4, 5, 5},
    {3, 3, 3, 4, 4, 5, 6},
    {3, 3, 3, 4, 5, 6, 6},
    {4, 4, 4, 5, 6, 7, 7},
    {4, 4, 5, 6, 6, 7, 7},
    {5, 5, 6, 6, 7, 7, 7},
    {5, 5, 6, 7, 7, 7, 7},
}};
// clang-format on

template <std::size_t N>
Integer Sum(const FixedArray<Integer, N>& factors) {
  int sum = 0;
  for (int i = 0; i < factors.size(); ++i) sum += factors.at(i);
  return ToInteger(sum);
}

void ClearScores() {
  Module1.RulaUpperArmScore = 0;
  Module1.RulaLowerArmScore = 0;
  Module1.RulaWristScore = 0;
  Module1.RulaWristTwistScore = 0;
  Module1.RulaNeckScore = 0;
  Module1.RulaTrunkScore = 0;
  Module1.RulaLegScore = 0;
  Module1.RulaArmWristTotal = 0;
  Module1.RulaNeckTrunkLegTotal = 0;
  Module1.RulaGrandScore = 0;
}

void SumRegions() {
  Module1.RulaUpperArmScore = Sum(Module1.RulaUpperArmFactors);
  Module1.RulaLowerArmScore = Sum(Module1.RulaLowerArmFactors);
  Module1.RulaWristScore = Sum(Module1.RulaWristFactors);
  Module1.RulaWristTwistScore = Module1.RulaWristTwistFactor;
  Module1.RulaNeckScore = Sum(Module1.RulaNeckFactors);
  Module1.RulaTrunkScore = Sum(Module1.RulaTrunkFactors);
}

/// At the top only: a score below its table has to fail there.
void Clamp(Integer& score, Integer most) { score = std::min(score, most); }

void ClampRegions() {
  Clamp(Module1.RulaUpperArmScore, kMostUpperArm);
  Clamp(Module1.RulaLowerArmScore, kMostLowerArm);
  Clamp(Module1.RulaWristScore, kMostWrist);
  Clamp(Module1.RulaWristTwistScore, kMostTwist);
  Clamp(Module1.RulaNeckScore, kMostNeck);
  Clamp(Module1.RulaTrunkScore, kMostTrunk);
}

Integer Total(Integer posture) {
  return ToInteger(posture + Module1.RulaMuscleScore + Module1.RulaForceScore);
}

}  // namespace

RulaTables RULA_InitTables() {
  RulaTables tables;
  CopyFromPaper(kTableA, [&tables](int row, int column) -> Integer& {
    return tables.RulaTableA.at(row / 3 + 1, row % 3 + 1, column / 2 + 1, column % 2 + 1);
  });
  CopyFromPaper(kTableB, [&tables](int row, int column) -> Integer& {
    return tables.RulaTableB.at(row + 1, column / 2 + 1, column % 2 + 1);
  });
  CopyFromPaper(kTableC, [&tables](int row, int column) -> Integer& {
    return tables.RulaTableC.at(row + 1, column + 1);
  });
  return tables;
}

void RULA_Calculate() {
  ClearScores();
  const RulaTables tables = RULA_InitTables();
  SumRegions();
  ClampRegions();
  Module1.RulaLegScore = Module1.RulaLegFactor;
  Module1.RulaMuscleScore = Module1.RulaMuscleFactor;
  Module1.RulaForceScore = Module1.RulaForceFactor;

  Module1.RulaArmWristPosture =
      tables.RulaTableA.at(Module1.RulaUpperArmScore, Module1.RulaLowerArmScore,
                           Module1.RulaWristScore, Module1.RulaWristTwistScore);
  Module1.RulaNeckTrunkLegPosture =
      tables.RulaTableB.at(Module1.RulaNeckScore, Module1.RulaTrunkScore, Module1.RulaLegScore);
  Module1.RulaArmWristTotal = Total(Module1.RulaArmWristPosture);
  Module1.RulaNeckTrunkLegTotal = Total(Module1.RulaNeckTrunkLegPosture);
  Module1.RulaGrandScore =
      tables.RulaTableC.at(std::min(Module1.RulaArmWristTotal, kMostTotalA),
                           std::min(Module1.RulaNeckTrunkLegTotal, kMostTotalB));
}

RulaAdvice RulaAdviceOn(int grandScore) {
  if (grandScore <= 2) {
    return {"The Posture is acceptable if it is not maintained or repeated for long periods.",
            ZoneColour::Green};
  }
  if (grandScore <= 4) return {"Further investigation is needed.", ZoneColour::Yellow};
  if (grandScore <= 6) {
    return {"Further investigation and changes are required soon.", ZoneColour::Orange};
  }
  return {"Investigate and change now.", ZoneColour::Red};
}

std::vector<WorkingValue> RulaWorkingValues() {
  return {
      {"RulaUpperArmFactors", Elements(Module1.RulaUpperArmFactors)},
      {"RulaLowerArmFactors", Elements(Module1.RulaLowerArmFactors)},
      {"RulaWristFactors", Elements(Module1.RulaWristFactors)},
      {"RulaWristTwistFactor", Module1.RulaWristTwistFactor},
      {"RulaNeckFactors", Elements(Module1.RulaNeckFactors)},
      {"RulaTrunkFactors", Elements(Module1.RulaTrunkFactors)},
      {"RulaLegFactor", Module1.RulaLegFactor},
      {"RulaMuscleFactor", Module1.RulaMuscleFactor},
      {"RulaForceFactor", Module1.RulaForceFactor},
      {"RulaUpperArmScore", Module1.RulaUpperArmScore},
      {"RulaLowerArmScore", Module1.RulaLowerArmScore},
      {"RulaWristScore", Module1.RulaWristScore},
      {"RulaWristTwistScore", Module1.RulaWristTwistScore},
      {"RulaNeckScore", Module1.RulaNeckScore},
      {"RulaTrunkScore", Module1.RulaTrunkScore},
      {"RulaLegScore", Module1.RulaLegScore},
      {"RulaMuscleScore", Module1.RulaMuscleScore},
      {"RulaForceScore", Module1.RulaForceScore},
      {"RulaArmWristPosture", Module1.RulaArmWristPosture},
      {"RulaNeckTrunkLegPosture", Module1.RulaNeckTrunkLegPosture},
      {"RulaArmWristTotal", Module1.RulaArmWristTotal},
      {"RulaNeckTrunkLegTotal", Module1.RulaNeckTrunkLegTotal},
      {"RulaGrandScore", Module1.RulaGrandScore},
  };
}

}  // namespace halvane
