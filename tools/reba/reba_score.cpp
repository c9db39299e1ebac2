#include "tools/reba/reba_score.h"

#include <array>
#include <cstddef>

#include "core/checked_array.h"
#include "core/job_state.h"

namespace halvane {
namespace {

// clang-format off
constexpr std::array<std::array<Integer, 12>, 5> kTableA{{
    // neck 1         neck 2         neck 3
    // leg 1 to 4     leg 1 to 4     leg 1 to 4
    {{ 1, 2, 3, 4,    1, 2, 3, 4,    3, 3, 5, 6 }},  // trunk 1
    {{ 2, 3, 4, 5,    3, 4, 5, 6,    4, 5, 6, 7 }},  // trunk 2
    {{ 2, 4, 5, 6,    4, 5, 6, 7,    5, 6, 7, 8 }},  // trunk 3
    {{ 3, 5, 6, 7,    5, 6, 7, 8,    6, 7, 8, 9 }},  // trunk 4
    {{ 4, 6, 7, 8,    6, 7, 8, 9,    7, 8, 9, 9 }},  // trunk 5
}};

constexpr std::array<std::array<Integer, 6>, 6> kTableB{{
    // lower arm 1    lower arm 2
    // wrist 1 to 3   wrist 1 to 3
    {{ 1, 2, 2,       1, 2, 3 }},  // upper arm 1
    {{ 1, 2, 3,       2, 3, 4 }},  // upper arm 2
    {{ 3, 4, 5,       4, 5, 5 }},  // upper arm 3
    {{ 4, 5, 5,       5, 6, 7 }},  // upper arm 4
    {{ 6, 7, 8,       7, 8, 8 }},  // upper arm 5
    {{ 7, 8, 8,       8, 9, 9 }},  // upper arm 6
}};

constexpr std::array<std::array<Integer, 12>, 12> kTableC{{
    // score A total 1 to 12
    {{ 1, 2, 3, 4, 5,  6,  7,  8,  9, 10, 11, 12 }},  // score B total 1
    {{ 1, 2, 3, 4, 4,  6,  7,  8,  9, 10, 11, 12 }},  // score B total 2
    {{ 1, 2, 3, 4, 4,  6,  7,  8,  9, 10, 11, 12 }},  // score B total 3
    {{ 2, 3, 3, 4, 4,  6,  7,  8,  9, 10, 11, 12 }},  // score B total 4
    {{ 3, 4, 4, 5, 6,  8,  9, 10, 10, 11, 12, 12 }},  // score B total 5
    {{ 3, 4, 5, 6, 7,  8,  9, 10, 10, 11, 12, 12 }},  // score B total 6
    {{ 4, 5, 6, 7, 8,  9,  9, 10, 11, 11, 12, 12 }},  // score B total 7
    {{ 5, 6, 7, 8, 8,  9, 10, 10, 11, 12, 12, 12 }},  // score B total 8
    {{ 6, 6, 7, 8, 9, 10, 10, 10, 11, 12, 12, 12 }},  // score B total 9
    {{ 7, 7, 8, 9, 9, 10, 11, 11, 12, 12, 12, 12 }},  // score B total 10
    {{ 7, 7, 8, 9, 9, 10, 11, 11, 12, 12, 12, 12 }},  // score B total 11
    {{ 7, 8, 8, 9, 9, 10, 11, 11, 12, 12, 12, 12 }},  // score B total 12
}};
// clang-format on

constexpr RebaActionLevel kNegligible{"Action Level = 0", "Risk Level = Negligible",
                                      "Action (including further assessment) = None necessary", 0,
                                      ZoneColour::Green};
constexpr RebaActionLevel kLow{"Action Level = 1", "Risk Level = Low",
                               "Action (including further assessment) = May be necessary", 1,
                               ZoneColour::YellowGreen};
constexpr RebaActionLevel kMedium{"Action Level = 2", "Risk Level = Medium",
                                  "Action (including further assessment) = Necessary", 2,
                                  ZoneColour::Yellow};
constexpr RebaActionLevel kHigh{"Action Level = 3", "Risk Level = High",
                                "Action (including further assessment) = Necessary soon", 3,
                                ZoneColour::Orange};
constexpr RebaActionLevel kVeryHigh{"Action Level = 4", "Risk Level = Very High",
                                    "Action (including further assessment) = Necessary NOW", 4,
                                    ZoneColour::Red};

/// Each step of the sum has to stay within 16 bits.
template <std::size_t N>
Integer Sum(const FixedArray<Integer, N>& factors) {
  Integer sum = 0;
  for (int i = 0; i < factors.size(); ++i) sum = ToInteger(sum + factors.at(i));
  return sum;
}

void ClearScores() {
  Module1.RebaUpperArmScore = 0;
  Module1.RebaLowerArmScore = 0;
  Module1.RebaWristScore = 0;
  Module1.RebaNeckScore = 0;
  Module1.RebaTrunkScore = 0;
  Module1.RebaLegScore = 0;
  Module1.RebaGrandScore = 0;
  Module1.RebaActivityScore = 0;
  Module1.RebaCouplingScore = 0;
  Module1.RebaScoreA = 0;
  Module1.RebaScoreB = 0;
  Module1.RebaScoreATotal = 0;
  Module1.RebaScoreBTotal = 0;
}

}  // namespace

RebaTables REBA_InitTables() {
  RebaTables tables;
  CopyFromPaper(kTableA, [&tables](int row, int column) -> Integer& {
    return tables.RebaTableA.at(row + 1, column / 4 + 1, column % 4 + 1);
  });
  CopyFromPaper(kTableB, [&tables](int row, int column) -> Integer& {
    return tables.RebaTableB.at(row + 1, column / 3 + 1, column % 3 + 1);
  });
  CopyFromPaper(kTableC, [&tables](int row, int column) -> Integer& {
    return tables.RebaTableC.at(column + 1, row + 1);
  });
  return tables;
}

void REBA_Calculate() {
  ClearScores();
  const RebaTables tables = REBA_InitTables();
  Module1.RebaUpperArmScore = Sum(Module1.RebaUpperArmFactors);
  Module1.RebaWristScore = Sum(Module1.RebaWristFactors);
  Module1.RebaNeckScore = Sum(Module1.RebaNeckFactors);
  Module1.RebaTrunkScore = Sum(Module1.RebaTrunkFactors);
  Module1.RebaLegScore = Sum(Module1.RebaLegFactors);
  Module1.RebaForceScore = Sum(Module1.RebaForceFactors);
  Module1.RebaLowerArmScore = Module1.RebaLowerArmFactor;
  Module1.RebaActivityScore = Module1.RebaActivityFactor;
  Module1.RebaCouplingScore = Module1.RebaCouplingFactor;

  // No score is clamped: one beyond its table fails. An arm that is neutral and supported scores 0
  // and so reads cells that nothing has filled.
  Module1.RebaScoreA =
      tables.RebaTableA.at(Module1.RebaTrunkScore, Module1.RebaNeckScore, Module1.RebaLegScore);
  Module1.RebaScoreB = tables.RebaTableB.at(Module1.RebaUpperArmScore, Module1.RebaLowerArmScore,
                                            Module1.RebaWristScore);
  Module1.RebaScoreATotal = ToInteger(Module1.RebaScoreA + Module1.RebaForceScore);
  Module1.RebaScoreBTotal = ToInteger(Module1.RebaScoreB + Module1.RebaCouplingScore);
  Module1.RebaGrandScore =
      ToInteger(tables.RebaTableC.at(Module1.RebaScoreATotal, Module1.RebaScoreBTotal) +
                Module1.RebaActivityScore);
}

RebaActionLevel RebaActionLevelOf(Integer grandScore) {
  if (grandScore <= 1) return kNegligible;
  if (grandScore <= 3) return kLow;
  if (grandScore <= 7) return kMedium;
  if (grandScore <= 10) return kHigh;
  return kVeryHigh;
}

std::vector<WorkingValue> RebaWorkingValues() {
  return {
      {"RebaUpperArmFactors", Elements(Module1.RebaUpperArmFactors), "points",
       "0 posture of the upper arm, 1 shoulder raised, 2 arm abducted, 3 arm supported"},
      {"RebaLowerArmFactor", Module1.RebaLowerArmFactor, "points",
       "posture of the lower arm, 1 or 2"},
      {"RebaWristFactors", Elements(Module1.RebaWristFactors), "points",
       "0 posture of the wrist, 1 twisted or deviated"},
      {"RebaNeckFactors", Elements(Module1.RebaNeckFactors), "points",
       "0 posture of the neck, 1 twisted or bent sideways; element 2 stays 0"},
      {"RebaTrunkFactors", Elements(Module1.RebaTrunkFactors), "points",
       "0 posture of the trunk, 1 twisted or bent sideways; element 2 stays 0"},
      {"RebaLegFactors", Elements(Module1.RebaLegFactors), "points",
       "0 stability, 1 bend of the knees"},
      {"RebaForceFactors", Elements(Module1.RebaForceFactors), "points",
       "0 load, 1 shock or rapid force"},
      {"RebaCouplingFactor", Module1.RebaCouplingFactor, "points",
       "coupling, 0 good to 3 unacceptable"},
      {"RebaActivityFactor", Module1.RebaActivityFactor, "points",
       "static, repeated and rapidly changing activity, 0 to 3"},
      {"RebaUpperArmScore", Module1.RebaUpperArmScore, "points",
       "sum of the factors of the upper arm"},
      {"RebaLowerArmScore", Module1.RebaLowerArmScore, "points", "score of the lower arm"},
      {"RebaWristScore", Module1.RebaWristScore, "points", "sum of the factors of the wrist"},
      {"RebaNeckScore", Module1.RebaNeckScore, "points", "sum of the factors of the neck"},
      {"RebaTrunkScore", Module1.RebaTrunkScore, "points", "sum of the factors of the trunk"},
      {"RebaLegScore", Module1.RebaLegScore, "points", "score of the legs"},
      {"RebaActivityScore", Module1.RebaActivityScore, "points", "score of the activity"},
      {"RebaForceScore", Module1.RebaForceScore, "points", "score of force or load"},
      {"RebaCouplingScore", Module1.RebaCouplingScore, "points", "score of the coupling"},
      {"RebaScoreA", Module1.RebaScoreA, "points",
       "posture score of trunk, neck and legs, from table A"},
      {"RebaScoreB", Module1.RebaScoreB, "points",
       "posture score of upper arm, lower arm and wrist, from table B"},
      {"RebaScoreATotal", Module1.RebaScoreATotal, "points", "score A with force or load"},
      {"RebaScoreBTotal", Module1.RebaScoreBTotal, "points", "score B with the coupling"},
      {"RebaGrandScore", Module1.RebaGrandScore, "points", "score from table C with the activity"},
  };
}

}  // namespace halvane
