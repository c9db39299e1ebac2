#include "tools/ocra/ocra_controls.h"

#include <gtest/gtest.h>

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

using Numbers = std::vector<int>;

/// The sums that list scores go into.
namespace Field {
constexpr TaggedField JobState::*Grip = nullptr;
constexpr auto ElbowRotation = &JobState::OcraElbowRotation;
constexpr auto ElbowFlexion = &JobState::OcraElbowFlexion;
constexpr auto WristDeviation = &JobState::OcraWristDeviation;
constexpr auto WristFlexion = &JobState::OcraWristFlexion;
}  // namespace Field

Numbers NumbersOf(std::span<const int> numbers) { return {numbers.begin(), numbers.end()}; }

TEST(OcraTables, ListsHaveTheirCaptionsScoresAndPairs) {
  constexpr auto kElbow = OcraRegion::Elbow;
  constexpr auto kWrist = OcraRegion::Wrist;
  constexpr auto kGrip = OcraRegion::Grip;
  const std::array<OcraList, 14> lists{{
      {kGrip, "Tight Grip (1.5 cm or 3/5 in)", {2, 4, 6, 0}, -1, Field::Grip},
      {kGrip, "Pinch Grip", {3, 6, 9, 0}, -1, Field::Grip},
      {kGrip, "Palmar Grip", {4, 8, 12, 0}, -1, Field::Grip},
      {kGrip, "Hook Grip", {4, 8, 12, 0}, -1, Field::Grip},
      {kGrip, "Keying", {4, 8, 12, 0}, -1, Field::Grip},
      {kGrip, "Wide Grip", {1, 2, 3, 0}, -1, Field::Grip},
      {kElbow, "Supination (>60 deg)", {4, 8, 12, 0}, 7, Field::ElbowRotation},
      {kElbow, "Pronation (>60 deg)", {2, 4, 6, 0}, 6, Field::ElbowRotation},
      {kElbow, "Flexion (>60 deg)", {2, 4, 6, 0}, 9, Field::ElbowFlexion},
      {kElbow, "Extension (>60 deg)", {2, 4, 6, 0}, 8, Field::ElbowFlexion},
      {kWrist, "Ulnar Deviation (>15 deg)", {2, 4, 6, 0}, 11, Field::WristDeviation},
      {kWrist, "Radial Deviation (>15 deg)", {2, 4, 6, 0}, 10, Field::WristDeviation},
      {kWrist, "Flexion (>45 deg)", {2, 4, 6, 0}, 13, Field::WristFlexion},
      {kWrist, "Extension (>45 deg)", {4, 8, 12, 0}, 12, Field::WristFlexion},
  }};
  for (std::size_t i = 0; i < lists.size(); ++i) {
    EXPECT_EQ(kOcraLists.at(i).region, lists.at(i).region) << i;
    EXPECT_EQ(kOcraLists.at(i).caption, lists.at(i).caption);
    EXPECT_EQ(kOcraLists.at(i).scores, lists.at(i).scores) << i;
    EXPECT_EQ(kOcraLists.at(i).pair, lists.at(i).pair) << i;
    EXPECT_TRUE(kOcraLists.at(i).field == lists.at(i).field) << i;
  }
}

// "cyle" is how the captions spell it.
TEST(OcraTables, TicksFramesAnswersAndForceMarks) {
  const std::array<std::string_view, 5> ticks{
      "Performs work actions of the same type involving the wrist for at least 50% of the cyle "
      "time",
      "Keep the wrist flex/extend (>45 deg) or deviated laterally for at least 50% of cyle/task "
      "time",
      "Performs work actions involving the same fingers for at least 50% of the cyle time",
      "Hold an object in a pinch, palmar, or hook grip for at least 50% of the cyle time",
      "Performs work gestures of the same type involving the elbow for at least 50% of the cyle"};
  for (std::size_t i = 0; i < ticks.size(); ++i) {
    EXPECT_EQ(kOcraTicks.at(i).caption, ticks.at(i));
    EXPECT_EQ(kOcraTicks.at(i).region, i < 2   ? OcraRegion::Wrist
                                       : i < 4 ? OcraRegion::Grip
                                               : OcraRegion::Elbow)
        << i;
  }
  EXPECT_EQ(kOcraFrames[0].objectName, "SSFrame3(2)");
  EXPECT_EQ(kOcraFrames[0].caption, "Elbow Posture");
  EXPECT_EQ(NumbersOf(kOcraFrames[0].lists), (Numbers{6, 7, 8, 9}));
  EXPECT_EQ(NumbersOf(kOcraFrames[0].ticks), Numbers{4});
  EXPECT_EQ(kOcraFrames[1].objectName, "SSFrame3(1)");
  EXPECT_EQ(kOcraFrames[1].caption, "Wrist Posture");
  EXPECT_EQ(NumbersOf(kOcraFrames[1].lists), (Numbers{10, 11, 12, 13}));
  EXPECT_EQ(NumbersOf(kOcraFrames[1].ticks), (Numbers{0, 1}));
  EXPECT_EQ(kOcraFrames[2].objectName, "SSFrame3(0)");
  EXPECT_EQ(kOcraFrames[2].caption, "Type Of Grip + Finger Posture");
  EXPECT_EQ(NumbersOf(kOcraFrames[2].lists), (Numbers{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(NumbersOf(kOcraFrames[2].ticks), (Numbers{2, 3}));
  EXPECT_EQ(kOcraAnswers,
            (std::array<std::string_view, 4>{"1/3 of cycle/task time", "2/3 of cycle/task time",
                                             "3/3 of cycle/task time", "Not Applicable"}));
  const std::array<std::array<std::string_view, 2>, 11> marks{{
      {"0", "Nothing At All"},
      {"0.5", "Very Very Weak (Just Noticeable)"},
      {"1.0", "Very Weak"},
      {"1.5", ""},
      {"2.0", "Weak (Light)"},
      {"2.5", ""},
      {"3.0", "Moderate"},
      {"3.5", ""},
      {"4.0", "Somewhat Strong"},
      {"4.5", ""},
      {"5+", "Strong (Heavy)"},
  }};
  for (std::size_t i = 0; i < marks.size(); ++i) {
    EXPECT_EQ(kOcraForceMarks.at(i).tick, marks.at(i)[0]);
    EXPECT_EQ(kOcraForceMarks.at(i).word, marks.at(i)[1]);
  }
}

TEST(OcraSliders, StandAtTheNearestEndAndRateInHalves) {
  constexpr std::array kRatings{0.0, 0.5, 1.0, 1.5, 2.0, 2.5, 3.0, 3.5, 4.0, 4.5, 5.0};
  for (int value = 0; value <= 10; ++value) {
    EXPECT_EQ(OcraRatingAt(value), kRatings.at(static_cast<std::size_t>(value)));
    EXPECT_EQ(OcraSliderAt(kRatings.at(static_cast<std::size_t>(value))), value);
    EXPECT_EQ(OcraRecoverySliderAt(value), value);
  }
  EXPECT_EQ(OcraSliderAt(-1), 0);
  EXPECT_EQ(OcraSliderAt(1E300), 10);
  EXPECT_EQ(OcraRecoverySliderAt(-3), 0);
  EXPECT_EQ(OcraRecoverySliderAt(11), 10);
}

class OcraForm : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() { Module1 = JobState{}; }
  OcraControls controls_;
};

TEST_F(OcraForm, LoadOfARightHandJobWithoutTicksLeavesItAsItIs) {
  const JobState before = Module1;
  controls_.Load();
  EXPECT_EQ(Module1, before);
}

TEST_F(OcraForm, LoadOfALeftHandJobOrATickMarksItChanged) {
  Module1.Hand = 1;
  controls_.Load();
  EXPECT_EQ(controls_.hand(), 1);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  StartFresh();
  controls_.Reset();
  EXPECT_EQ(controls_.hand(), 0);
  Module1.OcraSameFingers = "4";
  Module1.OcraHoldObject = 3;
  controls_.Load();
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_TRUE(controls_.IsTicked(2));
  EXPECT_FALSE(controls_.IsTicked(3)) << "ticked is 4 alone";
  EXPECT_EQ(Module1.OcraHoldObject, 3);
}

TEST_F(OcraForm, LoadMakesTheFirstTaskOfTheTreeCurrent) {
  for (int i = 0; i < 3; ++i) AddTaskRecord();
  Module1.TaskActive.at(1) = Integer{0};
  controls_.Load();
  EXPECT_EQ(Module1.CurrentTask.AsDouble(), 2);
}

TEST_F(OcraForm, LoadOfAValueThatNamesNoControlFails) {
  for (const Integer hand : std::array<Integer, 2>{2, -1}) {
    StartFresh();
    Module1.Hand = hand;
    EXPECT_EQ(FailureOf([this] { controls_.Load(); }), "SubscriptOutOfRange") << hand;
  }
  for (const Integer answer : std::array<Integer, 2>{4, -1}) {
    StartFresh();
    Module1.OcraComboChoice.at(13) = answer;
    EXPECT_EQ(FailureOf([this] { controls_.Load(); }), "SubscriptOutOfRange") << answer;
  }
}

TEST_F(OcraForm, LoadShowsBothAnswersOfASavedPair) {
  Module1.OcraComboChoice.at(6) = 0;
  Module1.OcraComboChoice.at(7) = 1;
  controls_.Load();
  EXPECT_EQ(Module1.OcraComboChoice.at(6), 0);
  EXPECT_EQ(Module1.OcraComboChoice.at(7), 1);
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST_F(OcraForm, AnswerOfAPairClearsItsPartner) {
  constexpr std::array kPairs{-1, -1, -1, -1, -1, -1, 7, 6, 9, 8, 11, 10, 13, 12};
  for (int list = 0; list < 14; ++list) {
    for (int answer = 0; answer < 4; ++answer) {
      StartFresh();
      for (int i = 0; i < 14; ++i) Module1.OcraComboChoice.at(i) = 1;
      controls_.PickAnswer(list, answer);
      EXPECT_EQ(Module1.JobDirty, kTrue);
      for (int i = 0; i < 14; ++i) {
        const bool cleared = answer != 3 && i == kPairs.at(static_cast<std::size_t>(list));
        EXPECT_EQ(Module1.OcraComboChoice.at(i), i == list ? answer
                                                 : cleared ? 3
                                                           : 1)
            << list << " " << answer << " " << i;
      }
    }
  }
  EXPECT_EQ(FailureOf([this] { controls_.PickAnswer(0, 4); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([this] { controls_.PickAnswer(14, 0); }), "SubscriptOutOfRange");
}

TEST_F(OcraForm, EachTickStoresFourAndZeroInItsField) {
  const auto fields = [] {
    return std::array<double, 5>{Module1.OcraWristActions.AsDouble(), double(Module1.OcraWristHold),
                                 Module1.OcraSameFingers.AsDouble(), double(Module1.OcraHoldObject),
                                 double(Module1.OcraElbowGesture)};
  };
  for (int box = 0; box < 5; ++box) {
    StartFresh();
    std::array<double, 5> expected{};
    controls_.SetTick(box, false);
    EXPECT_EQ(Module1.JobDirty, kFalse) << "as it was";
    controls_.SetTick(box, true);
    expected.at(static_cast<std::size_t>(box)) = 4;
    EXPECT_EQ(fields(), expected) << box;
    EXPECT_EQ(Module1.JobDirty, kTrue);
    controls_.SetTick(box, false);
    EXPECT_EQ(fields(), (std::array<double, 5>{})) << box;
  }
  EXPECT_EQ(FailureOf([this] { controls_.SetTick(5, true); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([this] { (void)controls_.IsTicked(-1); }), "SubscriptOutOfRange");
}

}  // namespace
}  // namespace halvane
