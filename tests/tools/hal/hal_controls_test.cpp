#include "tools/hal/hal_controls.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>

#include "core/job_state.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class HalInputs : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
};
using HalHand = HalInputs;
using HalSliders = HalInputs;

struct MarkRow {
  int position;
  const char* tick;
  const char* words;
};

template <std::size_t N>
void ExpectMarks(const std::array<HalMark, N>& marks, const std::array<MarkRow, N>& expected) {
  for (std::size_t i = 0; i < N; ++i) {
    EXPECT_EQ(marks[i].position, expected[i].position) << i;
    EXPECT_EQ(marks[i].tick, expected[i].tick) << i;
    EXPECT_EQ(marks[i].words, expected[i].words) << i;
  }
}

TEST(HalScales, LevelHasSixMarks) {
  ExpectMarks(
      kHalLevelMarks,
      std::array{
          MarkRow{0, "0", "Handle idle most of the time; no regular exertion"},
          MarkRow{2, "2.0", "Consistent conspicuous, long pauses; or very slow motion"},
          MarkRow{4, "4.0", "Slow, steady motion/ exertions; frequent brief pauses"},
          MarkRow{6, "6.0", "Steady motion/exertion; infrequent pause"},
          MarkRow{8, "8.0", "Rapid, steady motion/ exertions; no regular pauses"},
          MarkRow{10, "10", "Rapid, steady motion/ difficulty keeping up or continuous exertion"},
      });
}

TEST(HalScales, ForceHasElevenMarks) {
  ExpectMarks(
      kHalForceMarks,
      std::array{MarkRow{0, "0", "Nothing At All"}, MarkRow{1, "1.0", "Very Weak"},
                 MarkRow{2, "2.0", "Weak (Light)"}, MarkRow{3, "3.0", "Moderate"},
                 MarkRow{4, "4.0", ""}, MarkRow{5, "5.0", "Strong (Heavy)"}, MarkRow{6, "6.0", ""},
                 MarkRow{7, "7.0", "Very Strong"}, MarkRow{8, "8.0", ""},
                 MarkRow{9, "9.0", "Extremely Strong (Almost max.)"}, MarkRow{10, "10", ""}});
}

TEST(HalCaptions, FramesBoxesAndLimitsReadAsOnTheForm) {
  EXPECT_EQ(kHalExertionCaption, "Exertion:");
  EXPECT_EQ(kHalDutyCaption, "Duty Cycle (% Work Cycle)");
  EXPECT_EQ(kHalLevelCaption, "Rate The Hand Activity Level:");
  EXPECT_EQ(kHalForceCaption, "Borg Scale");
  EXPECT_EQ(kHalLevelTip, "Hand Activity Level Scale");
  EXPECT_EQ(kHalLimitCaptions,
            (std::array<std::string_view, 2>{"Threshold Limit Value:", "Action Level:"}));
  EXPECT_EQ(kHalNote,
            "Note: TLV do not include the following factors - Sustained non-neutral postures, "
            "contact stresses, low temperatures and vibration.");
  EXPECT_EQ(kHalBoxes[0].name, "Exertion Frequency");
  EXPECT_EQ(kHalBoxes[0].unit, "no. of exertion per min.");
  EXPECT_EQ(kHalBoxes[1].name, kHalDutyCaption);
}

TEST_F(HalInputs, IndexWithoutABoxFails) {
  EXPECT_EQ(FailureOf([] { HalTyped(2, "5"); }), "SubscriptOutOfRange");
  EXPECT_EQ(Module1, JobState{});
}

TEST_F(HalInputs, HeadingNamesWhatTheModeLimits) {
  Module1.HalForceMode = kTrue;
  EXPECT_EQ(HalLimitHeading(),
            "Force Limit (% of maximum strength on a normalized 10-point scale)");
  Module1.HalForceMode = kFalse;
  EXPECT_EQ(HalLimitHeading(), "Activity Limit");
}

TEST_F(HalHand, LoadTakesTheSavedOneInForceLimitModeAndLeavesTheMark) {
  for (const Integer hand : std::array<Integer, 2>{0, 1}) {
    for (const Integer dirty : {kFalse, kTrue}) {
      Module1 = JobState{};
      Module1.Hand = hand;
      Module1.JobDirty = dirty;
      JobState expected = Module1;
      expected.HalForceMode = kTrue;
      HalLoad();
      EXPECT_EQ(Module1, expected) << hand << " " << dirty;
    }
  }
}

TEST_F(HalHand, SavedOneThatIsNoneFails) {
  for (const Integer hand : std::array<Integer, 3>{2, -1, 32767}) {
    Module1 = JobState{};
    Module1.Hand = hand;
    EXPECT_EQ(FailureOf(HalLoad), "SubscriptOutOfRange") << hand;
    EXPECT_EQ(Module1.Hand, hand);
    EXPECT_EQ(Module1.HalForceMode, kTrue) << "is set before";
  }
}

TEST_F(HalHand, ChoiceIsStoredAndMarksNothing) {
  for (const int hand : {1, 0, 0}) {
    JobState expected = Module1;
    expected.Hand = static_cast<Integer>(hand);
    HalHandChosen(hand);
    EXPECT_EQ(Module1, expected) << hand;
  }
  EXPECT_EQ(FailureOf([] { HalHandChosen(2); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([] { HalHandChosen(-1); }), "SubscriptOutOfRange");
  EXPECT_EQ(Module1.Hand, 0);
}

/// An input, and what it leaves in a job that had 33 a minute, 44 per cent, the level 9 set by hand
/// and the left hand.
struct InputRow {
  const char* label;
  std::function<std::string()> input;
  const char* given;  ///< what the input gives back
  TaggedField frequency;
  TaggedField duty;
  TaggedField level;
};

std::string NoText(const std::function<void()>& input) {
  input();
  return "";
}

TEST_F(HalInputs, EachStoresItsFieldsMarksTheJobAndTouchesNothingElse) {
  const TaggedField frequency = 33.0;
  const TaggedField duty = 44.0;
  const std::array rows{
      InputRow{"frequency", [] { return NoText([] { HalTyped(kHalFrequency, "20"); }); }, "", 20.0,
               duty, Integer{5}},
      InputRow{"frequency with words",
               [] { return NoText([] { HalTyped(kHalFrequency, " 61 or so"); }); }, "", 61.0, duty,
               Integer{6}},
      InputRow{"frequency of letters",
               [] { return NoText([] { HalTyped(kHalFrequency, "abc"); }); }, "", 0.0, duty,
               Integer{1}},
      InputRow{"empty frequency", [] { return NoText([] { HalTyped(kHalFrequency, ""); }); }, "",
               0.0, duty, Integer{1}},
      InputRow{"negative frequency", [] { return NoText([] { HalTyped(kHalFrequency, "-5"); }); },
               "", -5.0, duty, Integer{1}},
      InputRow{"duty", [] { return NoText([] { HalTyped(kHalDuty, "85.5"); }); }, "", frequency,
               85.5, Integer{7}},
      InputRow{"duty above 100", [] { return NoText([] { HalTyped(kHalDuty, "150"); }); }, "",
               frequency, 150.0, Integer{7}},
      InputRow{"duty of letters", [] { return NoText([] { HalTyped(kHalDuty, "abc"); }); }, "",
               frequency, 0.0, Integer{4}},
      InputRow{"slider of the duty", [] { return HalDutyDragged(61); }, "61", frequency, 61.0,
               Integer{6}},
      InputRow{"slider of the duty at 0", [] { return HalDutyDragged(0); }, "0", frequency, 0.0,
               Integer{4}},
      InputRow{"slider of the duty at its end", [] { return HalDutyDragged(100); }, "100",
               frequency, 100.0, Integer{7}},
      InputRow{"scale", [] { return HalLevelMoved(3); }, "3.0", 0.0, 0.0, "3.0"},
      InputRow{"scale at 0", [] { return HalLevelMoved(0); }, "0.0", 0.0, 0.0, "0.0"},
      InputRow{"scale at its end", [] { return HalLevelMoved(10); }, "10.0", 0.0, 0.0, "10.0"},
  };
  for (const InputRow& row : rows) {
    Module1 = JobState{};
    Module1.Hand = 1;
    Module1.HalExertionFrequency = frequency;
    Module1.HalDutyCycle = duty;
    Module1.HalActivityLevel = "9.0";
    JobState expected = Module1;
    expected.JobDirty = kTrue;
    expected.HalExertionFrequency = row.frequency;
    expected.HalDutyCycle = row.duty;
    expected.HalActivityLevel = row.level;
    EXPECT_EQ(row.input(), row.given) << row.label;
    EXPECT_EQ(Module1, expected) << row.label;
  }
}

TEST_F(HalInputs, DutyWithoutALevelKeepsTheOneSetByHand) {
  HalLevelMoved(7);
  HalTyped(kHalDuty, "101");
  EXPECT_EQ(Module1.HalActivityLevel, TaggedField("7.0"));
  EXPECT_EQ(Module1.HalDutyCycle, TaggedField(101.0));
}

TEST_F(HalInputs, NumberBeyondADoubleReadsAsNoNumber) {
  HalTyped(kHalFrequency, "12");
  HalTyped(kHalFrequency, "1E999");
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(Module1.HalExertionFrequency, TaggedField(0.0));
  HalTyped(kHalDuty, "12");
  HalTyped(kHalDuty, "1E999");
  EXPECT_EQ(Module1.HalDutyCycle, TaggedField(0.0));
}

struct SliderRow {
  TaggedField value;
  int level;
  int duty;
};

TEST_F(HalSliders, StandAtTheNearestWholeNumberThatTheyHave) {
  const std::array rows{
      SliderRow{Integer{0}, 0, 0}, SliderRow{Integer{7}, 7, 7},    SliderRow{"3.0", 3, 3},
      SliderRow{2.4, 2, 2},        SliderRow{2.6, 3, 3},           SliderRow{2.5, 2, 2},
      SliderRow{3.5, 4, 4},        SliderRow{10.0, 10, 10},        SliderRow{10.4, 10, 10},
      SliderRow{11.0, 10, 11},     SliderRow{50.0, 10, 50},        SliderRow{100.4, 10, 100},
      SliderRow{150.0, 10, 100},   SliderRow{1E300, 10, 100},      SliderRow{-0.4, 0, 0},
      SliderRow{-3.0, 0, 0},       SliderRow{-1E300, 0, 0},        SliderRow{"abc", 0, 0},
      SliderRow{"8 of 10", 8, 8},  SliderRow{TaggedField(), 0, 0},
  };
  for (const SliderRow& row : rows) {
    Module1 = JobState{};
    Module1.HalActivityLevel = row.value;
    EXPECT_EQ(HalLevelSlider(), row.level) << row.value.AsText();
    EXPECT_EQ(HalDutySlider(), 0) << row.value.AsText();
    Module1.HalDutyCycle = row.value;
    EXPECT_EQ(HalDutySlider(), row.duty) << row.value.AsText();
    EXPECT_EQ(Module1.HalDutyCycle, row.value) << "stays";
    EXPECT_EQ(Module1.HalActivityLevel, row.value) << "stays";
  }
}

TEST_F(HalSliders, NumberBeyondADoubleHasNoPlace) {
  Module1.HalActivityLevel = "1E999";
  Module1.HalDutyCycle = "1E999";
  EXPECT_EQ(FailureOf([] { HalLevelSlider(); }), "Overflow");
  EXPECT_EQ(FailureOf([] { HalDutySlider(); }), "Overflow");
}

}  // namespace
}  // namespace halvane
