#include "tools/rula/rula_controls.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/rula/rula_support.h"

namespace halvane {
namespace {

constexpr std::array kRibbonNames{"SSRibbon1", "SSRibbon2", "SSRibbon3", "SSRibbon4", "SSRibbon5"};
constexpr std::array kCheckNames{"SSCheck1", "SSCheck2", "SSCheck3", "SSCheck4"};
constexpr std::array kOptionNames{"SSOption1", "SSOption3", "SSOption4"};

struct RibbonText {
  std::string_view array;
  int index;
  std::string_view caption, toolTip, picture;
};
constexpr auto kRibbonTexts = std::to_array<RibbonText>({
    {"SSRibbon1", 0, "-20 to 20", "Upper arm between -20 and +20 deg.", "rula/ssribbon1_0"},
    {"SSRibbon1", 1, "<-20        ", "Upper arm between lower than -20 deg. (Extension)",
     "rula/ssribbon1_1"},
    {"SSRibbon1", 2, "21 to 45 ", "Upper arm between 21 and 45 deg. (Flexion)", "rula/ssribbon1_2"},
    {"SSRibbon1", 3, "46 to 90 ", "Upper arm between 46 and 90 deg. (Flexion)", "rula/ssribbon1_3"},
    {"SSRibbon1", 4, ">+90       ", "Upper arm greater than 90 deg. (Flexion)", "rula/ssribbon1_4"},
    {"SSRibbon2", 0, "0 to 90", "Lower arms between 0 to 90 deg.", "rula/ssribbon2_0"},
    {"SSRibbon2", 1, "> 90", "Lower arms greater than 90 deg.", "rula/ssribbon2_1"},
    {"SSRibbon2", 2, "Midline", "Lower arm cross body midline", "rula/ssribbon2_2"},
    {"SSRibbon3", 0, "Neutral", "Wrist neutral posture", "rula/ssribbon3_0"},
    {"SSRibbon3", 1, "0 to -20", "Wrist between 0 to -20 deg. (Extension)", "rula/ssribbon3_1"},
    {"SSRibbon3", 2, "<-20", "Wrist less than -20 deg. (Extension)", "rula/ssribbon3_2"},
    {"SSRibbon3", 3, "0 to 20", "Wrist between 0 to 20 deg. (Flexion)", "rula/ssribbon3_3"},
    {"SSRibbon3", 4, "> 20", "Wrist greater than 20 deg. (Flexion)", "rula/ssribbon3_4"},
    {"SSRibbon3", 5, "Side Bent", "Ulnar/Radial deviation", "rula/ssribbon3_5"},
    {"SSRibbon4", 0, "0 - 10", "Neck between 0 and 10 deg. (Neutral)", "rula/ssribbon4_0"},
    {"SSRibbon4", 1, "Exten.", "Neck extension", "rula/ssribbon4_1"},
    {"SSRibbon4", 2, "11 - 20", "Neck between 11 and 20 deg. (Flexion)", "rula/ssribbon4_2"},
    {"SSRibbon4", 3, "> 20", "Neck greater than 20 deg. (Flexion)", "rula/ssribbon4_3"},
    {"SSRibbon5", 0, "Neutral", "Trunk neutral posture", "rula/ssribbon5_0"},
    {"SSRibbon5", 1, "0 - 20", "Trunk between 0 and 20 deg. (Flexion)", "rula/ssribbon5_1"},
    {"SSRibbon5", 2, "21 - 60", "Trunk between 21 and 60 deg. (Flexion)", "rula/ssribbon5_2"},
    {"SSRibbon5", 3, "> 60", "Trunk greater than 60 deg. (Flexion)", "rula/ssribbon5_3"},
});

struct CaptionText {
  std::string_view array;
  int index;
  std::string_view caption;
};
constexpr auto kCaptionTexts = std::to_array<CaptionText>({
    {"SSCheck1", 0, "Shoulder is raised"},
    {"SSCheck1", 1, "Upper arm abducted"},
    {"SSCheck1", 2, "Arm is supported"},
    {"SSCheck2", 0, "Neck is twisting"},
    {"SSCheck2", 1, "Neck is side bending"},
    {"SSCheck3", 0, "Twisting"},
    {"SSCheck3", 1, "Side bend"},
    {"SSCheck3", 2, "Not well support while seated"},
    {"SSCheck4", 0, "Mainly static, e.g. held for longer than 10 minutes"},
    {"SSCheck4", 1, "Repeated more than 4 times/minute"},
    {"SSOption1", 0, "Legs and feet are well-supported and in an evenly balance posture"},
    {"SSOption1", 1, "Legs and feet are not supported and in an uneven balance posture"},
    {"SSOption3", 0, "0 to <4 lbs intermittent load or force"},
    {"SSOption3", 1, "4 to 20 lbs intermittent load or force"},
    {"SSOption3", 2, "4 to 20 lbs static or repeated load or force"},
    {"SSOption3", 3, "+20 lb static or repeated loads"},
    {"SSOption4", 0, "In mid-range of wrist twisting range"},
    {"SSOption4", 1, "At/near end of wrist twisting range"},
});

TEST(RulaCaptions, RibbonsHaveTheirCaptionsTipsAndPictures) {
  for (const RibbonText& row : kRibbonTexts) {
    SCOPED_TRACE((RulaControlName{row.array, row.index}.text()));
    const PostureControl& control = RowNamed({row.array, row.index});
    EXPECT_EQ(control.objectName, row.array);
    const PostureChoice& ribbon = ChoiceAt(control, row.index);
    EXPECT_EQ(ribbon.caption, row.caption);
    EXPECT_EQ(ribbon.toolTip, row.toolTip);
    EXPECT_EQ(ribbon.picture, row.picture);
  }
}

TEST(RulaCaptions, BoxesAndOptionsHaveTheirCaptions) {
  for (const CaptionText& row : kCaptionTexts) {
    SCOPED_TRACE((RulaControlName{row.array, row.index}.text()));
    const PostureControl& control = RowNamed({row.array, row.index});
    EXPECT_EQ(WidgetName(control, row.index), (RulaControlName{row.array, row.index}.text()));
    EXPECT_EQ(ChoiceAt(control, row.index).caption, row.caption);
  }
}

TEST(RulaCaptions, ArraysHaveTheirSizes) {
  std::vector<int> sizes;
  for (const char* name : kRibbonNames) {
    const PostureControl& control = RowNamed({name, 0});
    sizes.push_back(static_cast<int>(control.array.size()));
    sizes.push_back(control.count);
    const bool hasAddOn = RowNamed({name, control.count}).kind == PostureKind::AddOns;
    EXPECT_EQ(hasAddOn, control.objectName == "SSRibbon2" || control.objectName == "SSRibbon3");
  }
  EXPECT_EQ(sizes, (std::vector<int>{5, 5, 3, 2, 6, 5, 4, 4, 4, 4}));
  sizes.clear();
  for (const char* name : kCheckNames) sizes.push_back(static_cast<int>(ChoicesOf(name).size()));
  for (const char* name : kOptionNames) sizes.push_back(static_cast<int>(ChoicesOf(name).size()));
  EXPECT_EQ(sizes, (std::vector<int>{3, 2, 3, 2, 2, 4, 2}));
}

TEST(RulaCaptions, IndexWithoutCaptionFails) {
  for (const int index : {-1, 6, 100}) {
    EXPECT_EQ(FailureOf([&] {
                ChoiceAt(RowNamed({"SSRibbon3", 0}), index);
              }),
              "SubscriptOutOfRange");
  }
  for (const int index : {-1, 2}) {
    EXPECT_EQ(FailureOf([&] {
                ChoiceAt(RowNamed({"SSOption4", 0}), index);
              }),
              "SubscriptOutOfRange");
  }
}

/// The one array of a kind in a frame, without the index of a widget; empty: there is none.
std::string_view ArrayIn(const PostureRegion& frame, std::string_view kind) {
  std::string_view found;
  for (const PostureControl& control : frame.controls) {
    if (!control.objectName.starts_with(kind)) continue;
    const std::string_view name = control.objectName.substr(0, kind.size() + 1);
    EXPECT_TRUE(found.empty() || found == name) << frame.caption;
    found = name;
  }
  return found;
}

TEST(RulaCaptions, FramesHoldTheirArrays) {
  struct Row {
    std::string_view caption, ribbons, checks, options, panel;
  };
  const std::array<Row, 8> rows{{
      {"Upper Arms", "SSRibbon1", "SSCheck1", "", ""},
      {"Lower Arms", "SSRibbon2", "", "", ""},
      {"Wrist", "SSRibbon3", "", "SSOption4", "Wrist Twist"},
      {"Neck", "SSRibbon4", "SSCheck2", "", ""},
      {"Trunk", "SSRibbon5", "SSCheck3", "", ""},
      {"Leg", "", "", "SSOption1", ""},
      {"Force or Load", "", "", "SSOption3", ""},
      {"Muscle Use", "", "SSCheck4", "", ""},
  }};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const PostureRegion& frame = kRulaRegions.at(i);
    EXPECT_EQ(frame.caption, rows.at(i).caption);
    EXPECT_EQ(ArrayIn(frame, "SSRibbon"), rows.at(i).ribbons);
    EXPECT_EQ(ArrayIn(frame, "SSCheck"), rows.at(i).checks);
    EXPECT_EQ(ArrayIn(frame, "SSOption"), rows.at(i).options);
    EXPECT_EQ(frame.optionsPanel, rows.at(i).panel);
  }
}

class RulaSetters : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
  RulaControls controls_;
};

TEST_F(RulaSetters, DesignStateHasNothingDownCheckedOrChosen) {
  EXPECT_EQ(SetControls(controls_), "");
  EXPECT_EQ(Module1, JobState{});
}

enum class Event { On, Off };

/// What an event stores, and where.
struct SetterRow {
  RulaControlName control;
  Event event;
  std::string_view factor;
  int element;
  int value;
  int state;
  int stateValue;
};
// clang-format off
constexpr auto kSetters = std::to_array<SetterRow>({
    {{"SSRibbon1", 0}, Event::On,  "UpperArm", 0,  1,  0, 0},
    {{"SSRibbon1", 1}, Event::On,  "UpperArm", 0,  2,  0, 1},
    {{"SSRibbon1", 2}, Event::On,  "UpperArm", 0,  2,  0, 2},
    {{"SSRibbon1", 3}, Event::On,  "UpperArm", 0,  3,  0, 3},
    {{"SSRibbon1", 4}, Event::On,  "UpperArm", 0,  4,  0, 4},
    {{"SSCheck1", 0},  Event::On,  "UpperArm", 1,  1,  1, 1},
    {{"SSCheck1", 0},  Event::Off, "UpperArm", 1,  0,  1, 0},
    {{"SSCheck1", 1},  Event::On,  "UpperArm", 2,  1,  2, 1},
    {{"SSCheck1", 1},  Event::Off, "UpperArm", 2,  0,  2, 0},
    {{"SSCheck1", 2},  Event::On,  "UpperArm", 3, -1,  3, 1},
    {{"SSCheck1", 2},  Event::Off, "UpperArm", 3,  0,  3, 0},
    {{"SSRibbon2", 0}, Event::On,  "LowerArm", 0,  1,  4, 0},
    {{"SSRibbon2", 1}, Event::On,  "LowerArm", 0,  2,  4, 1},
    {{"SSRibbon2", 2}, Event::On,  "LowerArm", 1,  1,  5, 1},
    {{"SSRibbon2", 2}, Event::Off, "LowerArm", 1,  0,  5, 0},
    {{"SSRibbon3", 0}, Event::On,  "Wrist",    0,  1,  6, 0},
    {{"SSRibbon3", 1}, Event::On,  "Wrist",    0,  2,  6, 1},
    {{"SSRibbon3", 2}, Event::On,  "Wrist",    0,  3,  6, 2},
    {{"SSRibbon3", 3}, Event::On,  "Wrist",    0,  2,  6, 3},
    {{"SSRibbon3", 4}, Event::On,  "Wrist",    0,  3,  6, 4},
    {{"SSRibbon3", 5}, Event::On,  "Wrist",    1,  1,  7, 1},
    {{"SSRibbon3", 5}, Event::Off, "Wrist",    1,  0,  7, 0},
    {{"SSOption4", 0}, Event::On,  "Twist",    0,  1,  8, 0},
    {{"SSOption4", 1}, Event::On,  "Twist",    0,  2,  8, 1},
    {{"SSRibbon4", 0}, Event::On,  "Neck",     0,  1,  9, 0},
    {{"SSRibbon4", 1}, Event::On,  "Neck",     0,  4,  9, 1},
    {{"SSRibbon4", 2}, Event::On,  "Neck",     0,  2,  9, 2},
    {{"SSRibbon4", 3}, Event::On,  "Neck",     0,  3,  9, 3},
    {{"SSCheck2", 0},  Event::On,  "Neck",     1,  1, 10, 1},
    {{"SSCheck2", 0},  Event::Off, "Neck",     1,  0, 10, 0},
    {{"SSCheck2", 1},  Event::On,  "Neck",     2,  1, 11, 1},
    {{"SSCheck2", 1},  Event::Off, "Neck",     2,  0, 11, 0},
    {{"SSRibbon5", 0}, Event::On,  "Trunk",    0,  1, 12, 0},
    {{"SSRibbon5", 1}, Event::On,  "Trunk",    0,  2, 12, 1},
    {{"SSRibbon5", 2}, Event::On,  "Trunk",    0,  3, 12, 2},
    {{"SSRibbon5", 3}, Event::On,  "Trunk",    0,  4, 12, 3},
    {{"SSCheck3", 0},  Event::On,  "Trunk",    1,  1, 13, 1},
    {{"SSCheck3", 0},  Event::Off, "Trunk",    1,  0, 13, 0},
    {{"SSCheck3", 1},  Event::On,  "Trunk",    2,  1, 14, 1},
    {{"SSCheck3", 2},  Event::On,  "Trunk",    3,  1, 19, 1},
    {{"SSOption1", 0}, Event::On,  "Leg",      0,  1, 15, 0},
    {{"SSOption1", 1}, Event::On,  "Leg",      0,  2, 15, 1},
    {{"SSOption3", 0}, Event::On,  "Force",    0,  0, 17, 0},
    {{"SSOption3", 1}, Event::On,  "Force",    0,  1, 17, 1},
    {{"SSOption3", 2}, Event::On,  "Force",    0,  2, 17, 2},
    {{"SSOption3", 3}, Event::On,  "Force",    0,  3, 17, 3},
});
// clang-format on

Integer& FactorOf(JobState& job, std::string_view name, int element) {
  if (name == "UpperArm") return job.RulaUpperArmFactors.at(element);
  if (name == "LowerArm") return job.RulaLowerArmFactors.at(element);
  if (name == "Wrist") return job.RulaWristFactors.at(element);
  if (name == "Twist") return job.RulaWristTwistFactor;
  if (name == "Neck") return job.RulaNeckFactors.at(element);
  if (name == "Trunk") return job.RulaTrunkFactors.at(element);
  if (name == "Leg") return job.RulaLegFactor;
  if (name == "Force") return job.RulaForceFactor;
  throw std::invalid_argument(std::string(name));
}

TEST_F(RulaSetters, EachEventStoresItsFactorItsStateAndNothingElse) {
  for (const SetterRow& row : kSetters) {
    SCOPED_TRACE(row.control.text() + (row.event == Event::On ? " on" : " off"));
    controls_.Reset();
    if (row.event == Event::Off) TurnOn(controls_, row.control);
    Module1 = JobState{};
    FillRulaFactors(7);
    Module1.RulaControlState.fill(7);
    JobState expected = Module1;
    FactorOf(expected, row.factor, row.element) = static_cast<Integer>(row.value);
    expected.RulaControlState.at(row.state) = static_cast<Integer>(row.stateValue);
    expected.JobDirty = kTrue;
    row.event == Event::On ? TurnOn(controls_, row.control) : TurnOff(controls_, row.control);
    EXPECT_EQ(Module1, expected);
  }
}

TEST_F(RulaSetters, EventThatChangesNothingStoresNothing) {
  for (const SetterRow& row : kSetters) {
    SCOPED_TRACE(row.control.text() + (row.event == Event::On ? " on" : " off"));
    controls_.Reset();
    if (row.event == Event::On) TurnOn(controls_, row.control);
    Module1 = JobState{};
    row.event == Event::On ? TurnOn(controls_, row.control) : TurnOff(controls_, row.control);
    EXPECT_EQ(Module1, JobState{});
  }
}

TEST_F(RulaSetters, MuscleFactorIsTheSumOfItsTwoBoxes) {
  struct Row {
    std::string_view label;
    RulaControlName control;
    Event event;
    int factor, staticState, repeatedState;
  };
  constexpr std::array<Row, 6> rows{{
      {"static", {"SSCheck4", 0}, Event::On, 1, 1, 0},
      {"and repeated", {"SSCheck4", 1}, Event::On, 2, 1, 1},
      {"repeated alone", {"SSCheck4", 0}, Event::Off, 1, 0, 1},
      {"none", {"SSCheck4", 1}, Event::Off, 0, 0, 0},
      {"repeated first", {"SSCheck4", 1}, Event::On, 1, 0, 1},
      {"and static", {"SSCheck4", 0}, Event::On, 2, 1, 1},
  }};
  JobState expected;
  for (const Row& row : rows) {
    Module1.JobDirty = kFalse;
    row.event == Event::On ? TurnOn(controls_, row.control) : TurnOff(controls_, row.control);
    expected.JobDirty = kTrue;
    expected.RulaMuscleFactor = static_cast<Integer>(row.factor);
    expected.RulaControlState.at(16) = static_cast<Integer>(row.staticState);
    expected.RulaControlState.at(18) = static_cast<Integer>(row.repeatedState);
    EXPECT_EQ(Module1, expected) << row.label;
  }
}

TEST_F(RulaSetters, MuscleFactorTakesTheStateOfTheOtherBoxAsItIsSaved) {
  Module1.RulaControlState.at(18) = 5;
  TurnOn(controls_, {"SSCheck4", 0});
  EXPECT_EQ(Module1.RulaMuscleFactor, 6);
  Module1.RulaControlState.at(18) = 32767;
  TurnOff(controls_, {"SSCheck4", 0});
  EXPECT_EQ(Module1.RulaMuscleFactor, 32767);
  EXPECT_EQ(FailureOf([this] { TurnOn(controls_, {"SSCheck4", 0}); }), "Overflow");
}

TEST_F(RulaSetters, UncheckingNotSupportedClearsNothing) {
  TurnOn(controls_, {"SSCheck3", 2});
  Module1.JobDirty = kFalse;
  JobState expected = Module1;
  expected.JobDirty = kTrue;
  TurnOff(controls_, {"SSCheck3", 2});
  EXPECT_EQ(Module1, expected);
  EXPECT_EQ(Module1.RulaTrunkFactors.at(3), 1);
  EXPECT_EQ(Module1.RulaControlState.at(19), 1);
  EXPECT_FALSE(IsOn(controls_, {"SSCheck3", 2}));
}

TEST_F(RulaSetters, UncheckingSideBendClearsNotSupportedToo) {
  for (const int index : {0, 1, 2}) TurnOn(controls_, {"SSCheck3", index});
  Module1.JobDirty = kFalse;
  JobState expected = Module1;
  expected.JobDirty = kTrue;
  expected.RulaTrunkFactors.at(2) = 0;
  expected.RulaTrunkFactors.at(3) = 0;
  expected.RulaControlState.at(14) = 0;
  expected.RulaControlState.at(19) = 0;
  TurnOff(controls_, {"SSCheck3", 1});
  EXPECT_EQ(Module1, expected);
  EXPECT_TRUE(IsOn(controls_, {"SSCheck3", 2})) << "the box itself stays checked";
}

TEST_F(RulaSetters, UncheckingTwistingLeavesNotSupported) {
  for (const int index : {0, 1, 2}) TurnOn(controls_, {"SSCheck3", index});
  TurnOff(controls_, {"SSCheck3", 0});
  EXPECT_EQ(Module1.RulaTrunkFactors.at(2), 1);
  EXPECT_EQ(Module1.RulaTrunkFactors.at(3), 1);
  EXPECT_EQ(Module1.RulaControlState.at(19), 1);
}

TEST_F(RulaSetters, OneRibbonOfAGroupIsDownAndAddOnsStandByThemselves) {
  TurnOn(controls_, {"SSRibbon3", 5});
  TurnOn(controls_, {"SSRibbon3", 1});
  TurnOn(controls_, {"SSRibbon3", 4});
  TurnOn(controls_, {"SSRibbon2", 1});
  TurnOn(controls_, {"SSRibbon2", 2});
  TurnOn(controls_, {"SSRibbon2", 0});
  EXPECT_EQ(SetControls(controls_), "SSRibbon2(0) SSRibbon2(2) SSRibbon3(4) SSRibbon3(5)");
  TurnOff(controls_, {"SSRibbon2", 2});
  EXPECT_EQ(SetControls(controls_), "SSRibbon2(0) SSRibbon3(4) SSRibbon3(5)");
}

TEST_F(RulaSetters, RibbonOfAGroupCannotBeReleased) {
  for (const char* name : kRibbonNames) TurnOn(controls_, {name, 1});
  const JobState before = Module1;
  for (const char* name : kRibbonNames) TurnOff(controls_, {name, 1});
  EXPECT_EQ(Module1, before);
  EXPECT_EQ(SetControls(controls_),
            "SSRibbon1(1) SSRibbon2(1) SSRibbon3(1) SSRibbon4(1) SSRibbon5(1)");
}

TEST_F(RulaSetters, ChoosingAnOptionLeavesTheOtherArraysAlone) {
  TurnOn(controls_, {"SSOption1", 1});
  TurnOn(controls_, {"SSOption3", 3});
  TurnOn(controls_, {"SSOption4", 1});
  TurnOn(controls_, {"SSOption3", 2});
  EXPECT_EQ(SetControls(controls_), "SSOption1(1) SSOption3(2) SSOption4(1)");
}

TEST_F(RulaSetters, HandIsStoredAndMarksTheJob) {
  controls_.ChooseHand(1);
  EXPECT_EQ(Module1.Hand, 1);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  Module1.JobDirty = kFalse;
  controls_.ChooseHand(1);
  EXPECT_EQ(Module1.JobDirty, kFalse);
  controls_.ChooseHand(0);
  EXPECT_EQ(Module1.Hand, 0);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(SetControls(controls_), "Hand(0)");
}

TEST_F(RulaSetters, IndexThatNamesNoControlFailsAndChangesNothing) {
  constexpr std::array<RulaControlName, 12> kBeyond{{{"SSRibbon1", 5},
                                                     {"SSRibbon2", 3},
                                                     {"SSRibbon3", 6},
                                                     {"SSRibbon4", 4},
                                                     {"SSRibbon5", 4},
                                                     {"SSCheck1", 3},
                                                     {"SSCheck2", 2},
                                                     {"SSCheck3", 3},
                                                     {"SSCheck4", 2},
                                                     {"SSOption1", 2},
                                                     {"SSOption3", 4},
                                                     {"SSOption4", 2}}};
  for (const RulaControlName& beyond : kBeyond) {
    for (const RulaControlName& name :
         {beyond, RulaControlName{beyond.array, -1}, RulaControlName{beyond.array, 100}}) {
      EXPECT_EQ(FailureOf([&] { TurnOn(controls_, name); }), "SubscriptOutOfRange") << name.text();
      EXPECT_EQ(FailureOf([&] { TurnOff(controls_, name); }), "SubscriptOutOfRange") << name.text();
      EXPECT_EQ(FailureOf([&] { (void)IsOn(controls_, name); }), "SubscriptOutOfRange")
          << name.text();
    }
  }
  for (const int hand : {-1, 2}) {
    EXPECT_EQ(FailureOf([&] { controls_.ChooseHand(hand); }), "SubscriptOutOfRange") << hand;
  }
  EXPECT_EQ(Module1, JobState{});
  EXPECT_EQ(SetControls(controls_), "");
}

}  // namespace
}  // namespace halvane
