#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/job_file.h"
#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/rula/rula_support.h"
#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_score.h"

namespace halvane {
namespace {

using Factors = std::vector<std::vector<int>>;
using States = std::array<int, 20>;

void SetStates(const States& states) {
  for (int i = 0; i < Module1.RulaControlState.size(); ++i) {
    Module1.RulaControlState.at(i) = static_cast<Integer>(states.at(static_cast<std::size_t>(i)));
  }
}

States SavedStates() {
  States states{};
  for (int i = 0; i < Module1.RulaControlState.size(); ++i) {
    states.at(static_cast<std::size_t>(i)) = Module1.RulaControlState.at(i);
  }
  return states;
}

constexpr std::string_view kFirstOfEach =
    "Hand(0) SSRibbon1(0) SSRibbon2(0) SSRibbon3(0) SSRibbon4(0) SSRibbon5(0) "
    "SSOption1(0) SSOption3(0) SSOption4(0)";

class RulaLoad : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() { Module1 = JobState{}; }
  /// What showing the form does.
  void Show() {
    controls_.Reset();
    controls_.Load();
  }
  RulaControls controls_;
};

TEST_F(RulaLoad, FreshJobHasTheFirstOfEachGroupAndCountsAsChanged) {
  JobState expected;
  expected.JobDirty = kTrue;
  expected.RulaUpperArmFactors.at(0) = 1;
  expected.RulaLowerArmFactors.at(0) = 1;
  expected.RulaWristFactors.at(0) = 1;
  expected.RulaWristTwistFactor = 1;
  expected.RulaNeckFactors.at(0) = 1;
  expected.RulaTrunkFactors.at(0) = 1;
  expected.RulaLegFactor = 1;
  Show();
  EXPECT_EQ(Module1, expected);
  EXPECT_EQ(SetControls(controls_), kFirstOfEach);
}

//                          upper arm   lower wrist t  neck     trunk    l  m  f  m  trunk
constexpr States kEverything{4, 1, 1, 1, 1, 1, 4, 1, 1, 3, 1, 1, 3, 1, 1, 1, 1, 3, 1, 1};

TEST_F(RulaLoad, EverythingSetComesBack) {
  Module1.Hand = 1;
  SetStates(kEverything);
  Show();
  EXPECT_EQ(SetControls(controls_),
            "Hand(1) SSRibbon1(4) SSRibbon2(1) SSRibbon2(2) SSRibbon3(4) SSRibbon3(5) SSRibbon4(3) "
            "SSRibbon5(3) SSCheck1(0) SSCheck1(1) SSCheck1(2) SSCheck2(0) SSCheck2(1) SSCheck3(0) "
            "SSCheck3(1) SSCheck3(2) SSCheck4(0) SSCheck4(1) SSOption1(1) SSOption3(3) "
            "SSOption4(1)");
  EXPECT_EQ(RulaFactors(),
            (Factors{{4, 1, 1, -1}, {2, 1}, {3, 1}, {2}, {3, 1, 1}, {4, 1, 1, 1}, {2}, {2}, {3}}));
  EXPECT_EQ(SavedStates(), kEverything);
  EXPECT_EQ(Module1.Hand, 1);
}

struct SavedChoice {
  int state;
  int value;
  RulaControlName control;
  int region;  ///< place in `RulaFactors`
  int element;
  int factor;
};
// clang-format off
constexpr auto kSavedChoices = std::to_array<SavedChoice>({
    { 0, 0, {"SSRibbon1", 0}, 0, 0,  1}, { 0, 1, {"SSRibbon1", 1}, 0, 0, 2},
    { 0, 2, {"SSRibbon1", 2}, 0, 0,  2}, { 0, 3, {"SSRibbon1", 3}, 0, 0, 3},
    { 0, 4, {"SSRibbon1", 4}, 0, 0,  4},
    { 1, 1, {"SSCheck1", 0},  0, 1,  1}, { 2, 1, {"SSCheck1", 1},  0, 2, 1},
    { 3, 1, {"SSCheck1", 2},  0, 3, -1},
    { 4, 0, {"SSRibbon2", 0}, 1, 0,  1}, { 4, 1, {"SSRibbon2", 1}, 1, 0, 2},
    { 5, 1, {"SSRibbon2", 2}, 1, 1,  1},
    { 6, 0, {"SSRibbon3", 0}, 2, 0,  1}, { 6, 1, {"SSRibbon3", 1}, 2, 0, 2},
    { 6, 2, {"SSRibbon3", 2}, 2, 0,  3}, { 6, 3, {"SSRibbon3", 3}, 2, 0, 2},
    { 6, 4, {"SSRibbon3", 4}, 2, 0,  3}, { 7, 1, {"SSRibbon3", 5}, 2, 1, 1},
    { 8, 0, {"SSOption4", 0}, 3, 0,  1}, { 8, 1, {"SSOption4", 1}, 3, 0, 2},
    { 9, 0, {"SSRibbon4", 0}, 4, 0,  1}, { 9, 1, {"SSRibbon4", 1}, 4, 0, 4},
    { 9, 2, {"SSRibbon4", 2}, 4, 0,  2}, { 9, 3, {"SSRibbon4", 3}, 4, 0, 3},
    {10, 1, {"SSCheck2", 0},  4, 1,  1}, {11, 1, {"SSCheck2", 1},  4, 2, 1},
    {12, 0, {"SSRibbon5", 0}, 5, 0,  1}, {12, 1, {"SSRibbon5", 1}, 5, 0, 2},
    {12, 2, {"SSRibbon5", 2}, 5, 0,  3}, {12, 3, {"SSRibbon5", 3}, 5, 0, 4},
    {13, 1, {"SSCheck3", 0},  5, 1,  1}, {14, 1, {"SSCheck3", 1},  5, 2, 1},
    {19, 1, {"SSCheck3", 2},  5, 3,  1},
    {15, 0, {"SSOption1", 0}, 6, 0,  1}, {15, 1, {"SSOption1", 1}, 6, 0, 2},
    {16, 1, {"SSCheck4", 0},  7, 0,  1}, {18, 1, {"SSCheck4", 1},  7, 0, 1},
    {17, 0, {"SSOption3", 0}, 8, 0,  0}, {17, 1, {"SSOption3", 1}, 8, 0, 1},
    {17, 2, {"SSOption3", 2}, 8, 0,  2}, {17, 3, {"SSOption3", 3}, 8, 0, 3},
    { 8, -5, {"SSOption4", 1}, 3, 0, 2},
});
// clang-format on

TEST_F(RulaLoad, EachSavedChoiceSetsItsControlAndItsFactor) {
  for (const SavedChoice& row : kSavedChoices) {
    SCOPED_TRACE("state " + std::to_string(row.state) + " " + std::to_string(row.value));
    StartFresh();
    Show();
    Factors expected = RulaFactors();
    expected.at(static_cast<std::size_t>(row.region)).at(static_cast<std::size_t>(row.element)) =
        row.factor;
    Module1.RulaControlState.at(row.state) = static_cast<Integer>(row.value);
    Show();
    EXPECT_EQ(RulaFactors(), expected);
    EXPECT_NE(SetControls(controls_).find(row.control.text()), std::string::npos)
        << SetControls(controls_);
  }
}

TEST_F(RulaLoad, BoxIsCheckedForOneAlone) {
  for (const int state : {1, 2, 3, 5, 7, 10, 11, 13, 14, 16, 18, 19}) {
    for (const Integer value : std::array<Integer, 4>{0, 2, -1, 32767}) {
      SCOPED_TRACE("state " + std::to_string(state) + " " + std::to_string(value));
      StartFresh();
      FillRulaFactors(9);
      Module1.RulaControlState.at(state) = value;
      Show();
      EXPECT_EQ(SetControls(controls_), kFirstOfEach);
      EXPECT_EQ(
          RulaFactors(),
          (Factors{{1, 9, 9, 9}, {1, 9}, {1, 9}, {1}, {1, 9, 9}, {1, 9, 9, 9}, {1}, {9}, {0}}));
      EXPECT_EQ(Module1.RulaControlState.at(state), value);
    }
  }
}

TEST_F(RulaLoad, TwistAndLegThatAreNotZeroAreTheSecondOption) {
  for (const Integer value : std::array<Integer, 4>{1, 2, -1, 32767}) {
    StartFresh();
    Module1.RulaControlState.at(8) = value;
    Module1.RulaControlState.at(15) = value;
    Show();
    EXPECT_EQ(Module1.RulaWristTwistFactor, 2) << value;
    EXPECT_EQ(Module1.RulaLegFactor, 2) << value;
    EXPECT_EQ(Module1.RulaControlState.at(8), 1) << value;
    EXPECT_EQ(Module1.RulaControlState.at(15), 1) << value;
    EXPECT_EQ(controls_.chosen(RowNamed({"SSOption1", 0})), 1) << value;
    EXPECT_EQ(controls_.chosen(RowNamed({"SSOption4", 0})), 1) << value;
  }
}

TEST_F(RulaLoad, ForceThatIsNoneOfTheFourChoosesNoneAndKeepsItsFactor) {
  for (const Integer value : std::array<Integer, 4>{4, -1, 32767, -32768}) {
    StartFresh();
    Module1.RulaForceFactor = 2;
    Module1.RulaControlState.at(17) = value;
    Show();
    EXPECT_EQ(controls_.chosen(RowNamed({"SSOption3", 0})), RulaControls::kNone) << value;
    EXPECT_EQ(Module1.RulaForceFactor, 2) << value;
    EXPECT_EQ(Module1.RulaControlState.at(17), value);
  }
}

TEST_F(RulaLoad, SavedRibbonOfTheAddOnPressesItAndSetsNoBase) {
  FillRulaFactors(9);
  Module1.RulaControlState.at(4) = 2;
  Module1.RulaControlState.at(6) = 5;
  Show();
  EXPECT_EQ(Module1.RulaLowerArmFactors.at(0), 9);
  EXPECT_EQ(Module1.RulaLowerArmFactors.at(1), 1);
  EXPECT_EQ(Module1.RulaWristFactors.at(0), 9);
  EXPECT_EQ(Module1.RulaWristFactors.at(1), 1);
  EXPECT_EQ(SavedStates(), (States{0, 0, 0, 0, 2, 1, 5, 1}));
  EXPECT_EQ(SetControls(controls_),
            "Hand(0) SSRibbon1(0) SSRibbon2(2) SSRibbon3(5) SSRibbon4(0) SSRibbon5(0) "
            "SSOption1(0) SSOption3(0) SSOption4(0)");
}

struct BrokenLoad {
  std::string_view label;
  int state;
  std::array<Integer, 3> values;
  Factors factors;  ///< 9 where the load has not come to
};

TEST_F(RulaLoad, SavedRibbonThatIsNoneFailsAtItsStep) {
  const std::vector<int> nine{9};
  const std::vector<BrokenLoad> rows{
      {"upper arm",
       0,
       {5, -1, 32767},
       {{9, 9, 9, 9}, {9, 9}, {9, 9}, nine, {9, 9, 9}, {9, 9, 9, 9}, nine, nine, nine}},
      {"lower arm",
       4,
       {3, -1, 32767},
       {{4, 1, 1, -1}, {9, 9}, {9, 9}, nine, {9, 9, 9}, {9, 9, 9, 9}, nine, nine, nine}},
      {"wrist",
       6,
       {6, -1, -32768},
       {{4, 1, 1, -1}, {2, 1}, {9, 9}, nine, {9, 9, 9}, {9, 9, 9, 9}, nine, nine, nine}},
      {"neck",
       9,
       {4, -1, 32767},
       {{4, 1, 1, -1}, {2, 1}, {3, 1}, {2}, {9, 9, 9}, {9, 9, 9, 9}, nine, nine, nine}},
      {"trunk",
       12,
       {4, -1, 32767},
       {{4, 1, 1, -1}, {2, 1}, {3, 1}, {2}, {3, 1, 1}, {9, 9, 9, 9}, nine, nine, nine}},
  };
  for (const BrokenLoad& row : rows) {
    for (const Integer value : row.values) {
      StartFresh();
      FillRulaFactors(9);
      SetStates(kEverything);
      Module1.RulaControlState.at(row.state) = value;
      EXPECT_EQ(FailureOf([this] { Show(); }), "SubscriptOutOfRange") << row.label << value;
      EXPECT_EQ(RulaFactors(), row.factors) << row.label << value;
      EXPECT_EQ(controls_.hand(), 0) << row.label << value;
    }
  }
}

TEST_F(RulaLoad, SavedHandThatIsNoneFailsFirst) {
  for (const Integer hand : std::array<Integer, 3>{2, -1, 32767}) {
    StartFresh();
    Module1.Hand = hand;
    const JobState before = Module1;
    EXPECT_EQ(FailureOf([this] { Show(); }), "SubscriptOutOfRange") << hand;
    EXPECT_EQ(Module1, before) << hand;
    EXPECT_EQ(SetControls(controls_), "") << hand;
  }
}

TEST_F(RulaLoad, LoadStopsAtAMuscleStateThatIsTooLarge) {
  Module1.RulaControlState.at(16) = 1;
  Module1.RulaControlState.at(17) = 3;
  Module1.RulaControlState.at(18) = 32767;
  EXPECT_EQ(FailureOf([this] { Show(); }), "Overflow");
  EXPECT_EQ(Module1.RulaLegFactor, 1);
  EXPECT_EQ(Module1.RulaForceFactor, 0);
}

TEST_F(RulaLoad, ResetPutsEverythingUpAndRunsNoSetter) {
  SetStates(kEverything);
  Show();
  const JobState before = Module1;
  controls_.Reset();
  EXPECT_EQ(SetControls(controls_), "");
  EXPECT_EQ(Module1, before);
}

/// The job before, with every add-on set and scored, and what New or Open leaves of it.
class RulaCarryOver : public RulaLoad {
 protected:
  void SetUp() override {
    RulaLoad::SetUp();
    SetStates(kEverything);
    Show();
    RULA_Calculate();
  }
  void New() {
    JobReset();
    Show();
  }
  void Open(const std::string& job) {
    const TemporaryFolder folder;
    Module1.JobFileName = folder.File("job.qjt");
    WriteBytes(Module1.JobFileName, job);
    ASSERT_EQ(OpenJobFile(), OpenOutcome::Opened);
    Show();
  }
};

TEST_F(RulaCarryOver, NewClearsTheStateAndNoWorkingValue) {
  JobState expected = Module1;
  expected.RulaControlState.fill(0);
  JobReset();
  EXPECT_EQ(Module1, expected);
  EXPECT_EQ(Module1.RulaGrandScore, 7);
}

TEST_F(RulaCarryOver, AfterNewAddOnsStayThoughTheirBoxesAreClear) {
  New();
  EXPECT_EQ(SetControls(controls_), kFirstOfEach);
  EXPECT_EQ(RulaFactors(),
            (Factors{{1, 1, 1, -1}, {1, 1}, {1, 1}, {1}, {1, 1, 1}, {1, 1, 1, 1}, {1}, {2}, {0}}));
}

TEST_F(RulaCarryOver, AfterNewTheUpperArmScoresOneMoreThanTheScreenShows) {
  Module1 = JobState{};
  Module1.RulaControlState.at(1) = 1;
  Show();
  New();
  EXPECT_EQ(SetControls(controls_), kFirstOfEach);
  RULA_Calculate();
  EXPECT_EQ(Module1.RulaUpperArmScore, 2);
}

TEST_F(RulaCarryOver, AfterNewCheckingAndUncheckingEndsTheCarryOver) {
  New();
  for (const RulaControlName& name :
       {RulaControlName{"SSCheck1", 0}, RulaControlName{"SSCheck1", 1},
        RulaControlName{"SSCheck1", 2}, RulaControlName{"SSRibbon2", 2},
        RulaControlName{"SSRibbon3", 5}, RulaControlName{"SSCheck2", 0},
        RulaControlName{"SSCheck2", 1}, RulaControlName{"SSCheck3", 0},
        RulaControlName{"SSCheck3", 1}, RulaControlName{"SSCheck4", 0}}) {
    TurnOn(controls_, name);
    TurnOff(controls_, name);
  }
  EXPECT_EQ(RulaFactors(),
            (Factors{{1, 0, 0, 0}, {1, 0}, {1, 0}, {1}, {1, 0, 0}, {1, 0, 0, 0}, {1}, {0}, {0}}));
}

TEST_F(RulaCarryOver, OpenedJobHasTheArraysOfItsStateAndTheMuscleFactorOfTheJobBefore) {
  Open(EmptyJobText());
  EXPECT_EQ(SetControls(controls_), kFirstOfEach);
  EXPECT_EQ(RulaFactors(),
            (Factors{{1, 0, 0, 0}, {1, 0}, {1, 0}, {1}, {1, 0, 0}, {1, 0, 0, 0}, {1}, {2}, {0}}));
  RULA_Calculate();
  EXPECT_EQ(Module1.RulaMuscleScore, 2);
  TurnOn(controls_, {"SSCheck4", 0});
  EXPECT_EQ(Module1.RulaMuscleFactor, 1);
  TurnOff(controls_, {"SSCheck4", 0});
  EXPECT_EQ(Module1.RulaMuscleFactor, 0);
}

TEST_F(RulaCarryOver, OpenedJobWithOneMuscleBoxHasItsOwnMuscleFactor) {
  // The states stand in lines 6 to 25.
  Open(EmptyJobWith(6 + 18, "1"));
  EXPECT_EQ(Module1.RulaMuscleFactor, 1);
}

TEST_F(RulaCarryOver, OpenedJobOfAnUnknownForceKeepsTheForceOfTheJobBefore) {
  Open(EmptyJobWith(6 + 17, "4"));
  EXPECT_EQ(controls_.chosen(RowNamed({"SSOption3", 0})), RulaControls::kNone);
  EXPECT_EQ(Module1.RulaForceFactor, 3);
}

TEST_F(RulaCarryOver, NotSupportedThatWasUncheckedIsCheckedAgainAtTheNextLoad) {
  TurnOff(controls_, {"SSCheck3", 2});
  RULA_Calculate();
  EXPECT_EQ(Module1.RulaTrunkFactors.at(3), 1);
  Show();
  EXPECT_TRUE(IsOn(controls_, {"SSCheck3", 2}));
  TurnOff(controls_, {"SSCheck3", 1});
  Show();
  EXPECT_FALSE(IsOn(controls_, {"SSCheck3", 2}));
  EXPECT_EQ(Module1.RulaTrunkFactors.at(3), 0);
}

}  // namespace
}  // namespace halvane
