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
      {"RulaUpperArmFactors", Elements(Module1.RulaUpperArmFactors), "points",
       "0 posture of the upper arm, 1 shoulder raised, 2 arm abducted, 3 arm supported"},
      {"RulaLowerArmFactors", Elements(Module1.RulaLowerArmFactors), "points",
       "0 posture of the lower arm, 1 across the midline of the body"},
      {"RulaWristFactors", Elements(Module1.RulaWristFactors), "points",
       "0 posture of the wrist, 1 bent sideways"},
      {"RulaWristTwistFactor", Module1.RulaWristTwistFactor, "points",
       "twist of the wrist, 1 or 2"},
      {"RulaNeckFactors", Elements(Module1.RulaNeckFactors), "points",
       "0 posture of the neck, 1 twisted, 2 bent sideways"},
      {"RulaTrunkFactors", Elements(Module1.RulaTrunkFactors), "points",
       "0 posture of the trunk, 1 twisted, 2 bent sideways, 3 not supported"},
      {"RulaLegFactor", Module1.RulaLegFactor, "points", "legs, 1 or 2"},
      {"RulaMuscleFactor", Module1.RulaMuscleFactor, "points",
       "static and repeated muscle use, 0 to 2"},
      {"RulaForceFactor", Module1.RulaForceFactor, "points", "force or load, 0 to 3"},
      {"RulaUpperArmScore", Module1.RulaUpperArmScore, "points",
       "sum of the factors of the upper arm"},
      {"RulaLowerArmScore", Module1.RulaLowerArmScore, "points", "score of the lower arm"},
      {"RulaWristScore", Module1.RulaWristScore, "points", "sum of the factors of the wrist"},
      {"RulaWristTwistScore", Module1.RulaWristTwistScore, "points",
       "score of the twist of the wrist"},
      {"RulaNeckScore", Module1.RulaNeckScore, "points", "sum of the factors of the neck"},
      {"RulaTrunkScore", Module1.RulaTrunkScore, "points", "sum of the factors of the trunk"},
      {"RulaLegScore", Module1.RulaLegScore, "points", "score of the legs"},
      {"RulaMuscleScore", Module1.RulaMuscleScore, "points", "score of the muscle use"},
      {"RulaForceScore", Module1.RulaForceScore, "points", "score of force or load"},
      {"RulaArmWristPosture", Module1.RulaArmWristPosture, "points",
       "posture score of arm and wrist, from the first table"},
      {"RulaNeckTrunkLegPosture", Module1.RulaNeckTrunkLegPosture, "points",
       "posture score of neck, trunk and legs, from the second table"},
      {"RulaArmWristTotal", Module1.RulaArmWristTotal, "points",
       "posture of arm and wrist with muscle use and force"},
      {"RulaNeckTrunkLegTotal", Module1.RulaNeckTrunkLegTotal, "points",
       "posture of neck, trunk and legs with muscle use and force"},
      {"RulaGrandScore", Module1.RulaGrandScore, "points", "grand score, 1 to 7"},
  };
}

}  // namespace halvane
