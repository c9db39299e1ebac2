#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/rula/rula_support.h"
#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_score.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

constexpr std::string_view kAcceptable =
    "The Posture is acceptable if it is not maintained or repeated for long periods.";
constexpr std::string_view kFurther = "Further investigation is needed.";
constexpr std::string_view kSoon = "Further investigation and changes are required soon.";
constexpr std::string_view kNow = "Investigate and change now.";

TEST(RulaRecommendation, ChangesAtThreeFiveAndSeven) {
  struct Row {
    int grandScore;
    std::string_view text;
  };
  constexpr auto kRows = std::to_array<Row>({
      {-32768, kAcceptable},
      {-1, kAcceptable},
      {0, kAcceptable},
      {1, kAcceptable},
      {2, kAcceptable},
      {3, kFurther},
      {4, kFurther},
      {5, kSoon},
      {6, kSoon},
      {7, kNow},
      {8, kNow},
      {32767, kNow},
  });
  for (const Row& row : kRows) {
    EXPECT_EQ(RulaAdviceOn(row.grandScore).recommendation, row.text) << row.grandScore;
  }
}

/// An assessment on the screen of a fresh job, from the first choice of each group on.
struct Assessment {
  std::string_view label;
  std::vector<RulaControlName> turnedOn;
  /// Upper arm, lower arm, wrist, twist, neck, trunk, leg, muscle, force.
  std::array<int, 9> regions;
  /// Arm posture, body posture, arm total, body total, grand score.
  std::array<int, 5> results;
  std::string_view recommendation;
};

const std::vector<Assessment>& Assessments() {
  static const std::vector<Assessment> rows{
      {"first choice of everything", {}, {1, 1, 1, 1, 1, 1, 1, 0, 0}, {1, 1, 1, 1, 1}, kAcceptable},
      {"supported arm reads a cell that was never filled",
       {{"SSCheck1", 2}},
       {0, 1, 1, 1, 1, 1, 1, 0, 0},
       {0, 1, 0, 1, 0},
       kAcceptable},
      {"extended neck with both add-ons",
       {{"SSRibbon4", 1}, {"SSCheck2", 0}, {"SSCheck2", 1}},
       {1, 1, 1, 1, 5, 1, 1, 0, 0},
       {1, 3, 1, 3, 3},
       kFurther},
      {"bent trunk with all add-ons",
       {{"SSRibbon5", 3}, {"SSCheck3", 0}, {"SSCheck3", 1}, {"SSCheck3", 2}},
       {1, 1, 1, 1, 1, 6, 1, 0, 0},
       {1, 4, 1, 4, 3},
       kFurther},
      {"arm overhead, wrist at its end",
       {{"SSRibbon1", 4},
        {"SSCheck1", 0},
        {"SSCheck1", 1},
        {"SSRibbon2", 1},
        {"SSRibbon2", 2},
        {"SSRibbon3", 4},
        {"SSRibbon3", 5},
        {"SSOption4", 1}},
       {6, 3, 4, 2, 1, 1, 1, 0, 0},
       {9, 1, 9, 1, 5},
       kSoon},
      {"uneven legs under a static load",
       {{"SSRibbon5", 2}, {"SSOption1", 1}, {"SSCheck4", 0}, {"SSOption3", 2}},
       {1, 1, 1, 1, 1, 3, 2, 1, 2},
       {1, 3, 4, 6, 6},
       kSoon},
      {"everything at its worst",
       {{"SSRibbon1", 4},
        {"SSCheck1", 0},
        {"SSCheck1", 1},
        {"SSRibbon2", 1},
        {"SSRibbon2", 2},
        {"SSRibbon3", 2},
        {"SSRibbon3", 5},
        {"SSOption4", 1},
        {"SSRibbon4", 1},
        {"SSCheck2", 0},
        {"SSCheck2", 1},
        {"SSRibbon5", 3},
        {"SSCheck3", 0},
        {"SSCheck3", 1},
        {"SSCheck3", 2},
        {"SSOption1", 1},
        {"SSOption3", 3},
        {"SSCheck4", 0},
        {"SSCheck4", 1}},
       {6, 3, 4, 2, 5, 6, 2, 2, 3},
       {9, 6, 14, 11, 7},
       kNow},
  };
  return rows;
}

TEST(RulaAssessment, GivesItsScores) {
  for (const Assessment& row : Assessments()) {
    Module1 = JobState{};
    RulaControls controls;
    controls.Load();
    for (const RulaControlName& name : row.turnedOn) TurnOn(controls, name);
    RULA_Calculate();
    EXPECT_EQ((std::array<int, 9>{
                  Module1.RulaUpperArmScore, Module1.RulaLowerArmScore, Module1.RulaWristScore,
                  Module1.RulaWristTwistScore, Module1.RulaNeckScore, Module1.RulaTrunkScore,
                  Module1.RulaLegScore, Module1.RulaMuscleScore, Module1.RulaForceScore}),
              row.regions)
        << row.label;
    EXPECT_EQ((std::array<int, 5>{Module1.RulaArmWristPosture, Module1.RulaNeckTrunkLegPosture,
                                  Module1.RulaArmWristTotal, Module1.RulaNeckTrunkLegTotal,
                                  Module1.RulaGrandScore}),
              row.results)
        << row.label;
    EXPECT_EQ(RulaAdviceOn(Module1.RulaGrandScore).recommendation, row.recommendation) << row.label;
  }
}

TEST(RulaAssessment, SettersChangeNoScore) {
  Module1 = JobState{};
  RulaControls controls;
  controls.Load();
  RULA_Calculate();
  for (const RulaControlName& name : Assessments().back().turnedOn) TurnOn(controls, name);
  EXPECT_EQ(Module1.RulaGrandScore, 1);
  EXPECT_EQ(Module1.RulaUpperArmScore, 1);
  RULA_Calculate();
  EXPECT_EQ(Module1.RulaGrandScore, 7);
}

TEST(RulaAssessment, WithoutALoadEveryScoreIsZero) {
  Module1 = JobState{};
  RULA_Calculate();
  EXPECT_EQ(Module1, JobState{});
}

TEST(RulaAssessment, WorkingValuesHaveTheirNames) {
  using Fields = std::vector<TaggedField>;
  Module1 = JobState{};
  Integer next = 1;
  const auto number = [&next](auto& factors) {
    for (int i = 0; i < factors.size(); ++i) factors.at(i) = next++;
  };
  number(Module1.RulaUpperArmFactors);
  number(Module1.RulaLowerArmFactors);
  number(Module1.RulaWristFactors);
  number(Module1.RulaNeckFactors);
  number(Module1.RulaTrunkFactors);
  for (Integer* value :
       {&Module1.RulaWristTwistFactor, &Module1.RulaLegFactor, &Module1.RulaMuscleFactor,
        &Module1.RulaForceFactor, &Module1.RulaUpperArmScore, &Module1.RulaLowerArmScore,
        &Module1.RulaWristScore, &Module1.RulaWristTwistScore, &Module1.RulaNeckScore,
        &Module1.RulaTrunkScore, &Module1.RulaLegScore, &Module1.RulaMuscleScore,
        &Module1.RulaForceScore, &Module1.RulaArmWristPosture, &Module1.RulaNeckTrunkLegPosture,
        &Module1.RulaArmWristTotal, &Module1.RulaNeckTrunkLegTotal, &Module1.RulaGrandScore}) {
    *value = next++;
  }
  const auto fields = [](std::initializer_list<Integer> values) {
    return Fields(values.begin(), values.end());
  };
  const std::vector<WorkingValue> expected{
      {"RulaUpperArmFactors", fields({1, 2, 3, 4})},
      {"RulaLowerArmFactors", fields({5, 6})},
      {"RulaWristFactors", fields({7, 8})},
      {"RulaWristTwistFactor", Integer{16}},
      {"RulaNeckFactors", fields({9, 10, 11})},
      {"RulaTrunkFactors", fields({12, 13, 14, 15})},
      {"RulaLegFactor", Integer{17}},
      {"RulaMuscleFactor", Integer{18}},
      {"RulaForceFactor", Integer{19}},
      {"RulaUpperArmScore", Integer{20}},
      {"RulaLowerArmScore", Integer{21}},
      {"RulaWristScore", Integer{22}},
      {"RulaWristTwistScore", Integer{23}},
      {"RulaNeckScore", Integer{24}},
      {"RulaTrunkScore", Integer{25}},
      {"RulaLegScore", Integer{26}},
      {"RulaMuscleScore", Integer{27}},
      {"RulaForceScore", Integer{28}},
      {"RulaArmWristPosture", Integer{29}},
      {"RulaNeckTrunkLegPosture", Integer{30}},
      {"RulaArmWristTotal", Integer{31}},
      {"RulaNeckTrunkLegTotal", Integer{32}},
      {"RulaGrandScore", Integer{33}},
  };
  const std::vector<WorkingValue> values = RowOf(Tool::Rula).workingValues();
  ASSERT_EQ(values.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(values[i].name, expected[i].name);
    EXPECT_EQ(values[i].value, expected[i].value) << expected[i].name;
  }
}

}  // namespace
}  // namespace halvane
