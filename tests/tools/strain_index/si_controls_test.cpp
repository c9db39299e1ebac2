#include "tools/strain_index/si_controls.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

constexpr auto kIntensity = SiRibbonArray::SSRibbon1;
constexpr auto kPosture = SiRibbonArray::SSRibbon2;
constexpr auto kSpeed = SiRibbonArray::SSRibbon3;

struct ColumnRow {
  std::string_view heading;
  std::array<std::string_view, 5> captions;
};

struct FrameRow {
  SiRibbonArray array;
  std::string_view objectName;
  std::string_view caption;
  std::vector<ColumnRow> columns;
};

TEST(SiRibbonCaptions, FramesColumnsAndRibbonsReadAsOnTheForm) {
  const std::vector<FrameRow> frames{
      {kIntensity,
       "SSRibbon1",
       "Intensity of Exertion",
       {{"% Maximal Strength", {"< 10%", "10% - 29%", "30% - 49%", "50% - 79%", "> 80%"}},
        {"Borg CR-10 Scale", {"< 2", "3", "4 - 5", "6 - 7", "> 7"}},
        {"Perceived Effort",
         {"Barely noticeable/relaxed effort", "Noticeable/definite effort",
          "Obvious effort; unchange facial expression",
          "Substantial effort; changes facial expression",
          "Uses shoulder or trunk to generate force"}}}},
      {kPosture,
       "SSRibbon2",
       "Hand/Wrist Posture (degrees)",
       {{"Extension", {"0 - 10", "11 - 25", "26 - 40", "41 - 55", "> 60"}},
        {"Flexion", {"0 - 5", "6 - 15", "16 - 30", "31 - 50", "> 50"}},
        {"Ulnar Deviation", {"0 - 10", "11 - 15", "16 - 20", "21 - 25", "> 25"}},
        {"Perceived Posture",
         {"Perfect neutral", "Near neutral", "Non-neutral", "Marked Deviation", "Near extreme"}}}},
      {kSpeed,
       "SSRibbon3",
       "Speed of Work",
       {{"MTM -1", {"< 80%", "81-90%", "91-100%", "101-115%", "> 115%"}},
        {"Perceived Posture",
         {"Extremely relaxed pace", "Taking one's own time", "Normal speed of motion",
          "Rush,but able to keep up", "Rush,unable to keep up"}}}},
  };
  ASSERT_EQ(kSiRibbonArrays.size(), frames.size());
  for (std::size_t i = 0; i < frames.size(); ++i) {
    EXPECT_EQ(kSiRibbonArrays[i], frames[i].array);
    const SiFrame& frame = SiFrameOf(frames[i].array);
    EXPECT_EQ(frame.objectName, frames[i].objectName);
    EXPECT_EQ(frame.caption, frames[i].caption);
    ASSERT_EQ(frame.columns.size(), frames[i].columns.size()) << frame.caption;
    EXPECT_EQ(frame.ribbonCount(), static_cast<int>(frames[i].columns.size()) * 5);
    for (std::size_t column = 0; column < frame.columns.size(); ++column) {
      EXPECT_EQ(frame.columns[column].heading, frames[i].columns[column].heading);
      EXPECT_EQ(frame.columns[column].captions, frames[i].columns[column].captions);
    }
  }
}

class SiRibbons : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() { Module1 = JobState{}; }

  static int PickOf(SiRibbonArray array) {
    if (array == kIntensity) return static_cast<int>(Module1.SiIntensityPick.AsDouble());
    if (array == kPosture) return static_cast<int>(Module1.SiPosturePick.AsDouble());
    return Module1.SiSpeedPick;
  }
  static int RatingOf(SiRibbonArray array) {
    if (array == kIntensity) return Module1.SiIntensityRating;
    if (array == kPosture) return Module1.SiPostureRating;
    return Module1.SiSpeedRating;
  }
  /// The ribbons that are down, in order.
  std::vector<int> DownIn(SiRibbonArray array) const {
    std::vector<int> down;
    for (int i = 0; i < SiFrameOf(array).ribbonCount(); ++i) {
      if (controls_.IsDown(array, i)) down.push_back(i);
    }
    return down;
  }

  SiControls controls_;
};

using Down = std::vector<int>;

TEST_F(SiRibbons, DesignStateHasNothingChosenOrDown) {
  EXPECT_EQ(controls_.hand(), SiControls::kNoHand);
  for (const SiRibbonArray array : kSiRibbonArrays) EXPECT_EQ(DownIn(array), Down{});
  EXPECT_EQ(Module1, JobState{});
}

TEST_F(SiRibbons, FreshJobEndsWithThePicksOfTheLastColumn) {
  controls_.Load();
  EXPECT_EQ(Module1.SiIntensityPick, TaggedField(Integer{10}));
  EXPECT_EQ(Module1.SiPosturePick, TaggedField(Integer{15}));
  EXPECT_EQ(Module1.SiSpeedPick, 5);
  EXPECT_EQ(Module1.SiIntensityRating, 1);
  EXPECT_EQ(Module1.SiPostureRating, 1);
  EXPECT_EQ(Module1.SiSpeedRating, 1);
  EXPECT_EQ(DownIn(kIntensity), (Down{0, 5, 10}));
  EXPECT_EQ(DownIn(kPosture), (Down{0, 5, 10, 15}));
  EXPECT_EQ(DownIn(kSpeed), (Down{0, 5}));
  EXPECT_EQ(controls_.hand(), 0);
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(SiRibbons, ClickInTheFirstColumnPicksTheLast) {
  controls_.Load();
  controls_.PressRibbon(kIntensity, 3);
  EXPECT_EQ(PickOf(kIntensity), 13);
  EXPECT_EQ(RatingOf(kIntensity), 4);
  EXPECT_EQ(DownIn(kIntensity), (Down{3, 8, 13}));
}

TEST_F(SiRibbons, ClickInTheLastColumnPicksTheOneBefore) {
  controls_.Load();
  controls_.PressRibbon(kIntensity, 3);
  controls_.PressRibbon(kIntensity, 14);
  EXPECT_EQ(PickOf(kIntensity), 9);
  EXPECT_EQ(RatingOf(kIntensity), 5);
  EXPECT_EQ(DownIn(kIntensity), (Down{4, 9, 14}));
}

TEST_F(SiRibbons, PostureRibbonPressesItsWholeRow) {
  controls_.Load();
  controls_.PressRibbon(kPosture, 18);
  EXPECT_EQ(DownIn(kPosture), (Down{3, 8, 13, 18}));
  EXPECT_EQ(PickOf(kPosture), 13);
  EXPECT_EQ(RatingOf(kPosture), 4);
}

TEST_F(SiRibbons, RibbonThatIsDownDoesNothingWhenPressedAgain) {
  controls_.Load();
  controls_.PressRibbon(kSpeed, 2);
  Module1.JobDirty = kFalse;
  Module1.SiSpeedPick = 99;
  Module1.SiSpeedRating = 99;
  for (const int index : {2, 7}) controls_.PressRibbon(kSpeed, index);
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(Module1.SiSpeedPick, 99);
  EXPECT_EQ(Module1.SiSpeedRating, 99);
}

TEST_F(SiRibbons, PressMarksTheJobAsChanged) {
  for (const SiRibbonArray array : kSiRibbonArrays) {
    Module1.JobDirty = kFalse;
    controls_.PressRibbon(array, 1);
    EXPECT_EQ(Module1.JobDirty, kTrue);
  }
}

TEST_F(SiRibbons, ArraysDoNotTouchEachOther) {
  controls_.Load();
  controls_.PressRibbon(kPosture, 4);
  EXPECT_EQ(DownIn(kIntensity), (Down{0, 5, 10}));
  EXPECT_EQ(DownIn(kSpeed), (Down{0, 5}));
  EXPECT_EQ(PickOf(kIntensity), 10);
  EXPECT_EQ(PickOf(kSpeed), 5);
  EXPECT_EQ(RatingOf(kIntensity), 1);
  EXPECT_EQ(RatingOf(kSpeed), 1);
}

// The pick after a press on the ribbon of the row number, on a form with nothing down in the array
// or with another row down; both end alike.
constexpr std::array<int, 15> kIntensityPickAfter{10, 11, 12, 13, 14,  // column 0
                                                  10, 11, 12, 13, 14,  // column 1
                                                  5,  6,  7,  8,  9};  // column 2
constexpr std::array<int, 20> kPosturePickAfter{15, 16, 17, 18, 19,    // column 0
                                                15, 16, 17, 18, 19,    // column 1
                                                15, 16, 17, 18, 19,    // column 2
                                                10, 11, 12, 13, 14};   // column 3
constexpr std::array<int, 10> kSpeedPickAfter{5, 6, 7, 8, 9,           // column 0
                                              0, 1, 2, 3, 4};          // column 1

int PickAfter(SiRibbonArray array, int index) {
  const auto i = static_cast<std::size_t>(index);
  if (array == kIntensity) return kIntensityPickAfter.at(i);
  if (array == kPosture) return kPosturePickAfter.at(i);
  return kSpeedPickAfter.at(i);
}

TEST_F(SiRibbons, LoadOfEachSavedPickRatesItsRow) {
  for (const SiRibbonArray array : kSiRibbonArrays) {
    for (int index = 0; index < SiFrameOf(array).ribbonCount(); ++index) {
      SCOPED_TRACE(std::string(SiFrameOf(array).objectName) + " " + std::to_string(index));
      StartFresh();
      controls_.Reset();
      const auto pick = static_cast<Integer>(index);
      if (array == kIntensity) Module1.SiIntensityPick = pick;
      if (array == kPosture) Module1.SiPosturePick = pick;
      if (array == kSpeed) Module1.SiSpeedPick = pick;
      controls_.Load();
      EXPECT_EQ(PickOf(array), PickAfter(array, index));
      EXPECT_EQ(RatingOf(array), index % 5 + 1);
      for (const int down : DownIn(array)) EXPECT_EQ(down % 5, index % 5);
      EXPECT_EQ(DownIn(array).size(), SiFrameOf(array).columns.size());
    }
  }
}

TEST_F(SiRibbons, ClickOnEachRibbonOfAnotherRowMovesTheWholeRow) {
  for (const SiRibbonArray array : kSiRibbonArrays) {
    for (int index = 0; index < SiFrameOf(array).ribbonCount(); ++index) {
      for (int row = 0; row < 5; ++row) {
        if (row == index % 5) continue;
        SCOPED_TRACE(std::string(SiFrameOf(array).objectName) + " " + std::to_string(row) + " " +
                     std::to_string(index));
        controls_.Reset();
        controls_.PressRibbon(array, row);
        controls_.PressRibbon(array, index);
        EXPECT_EQ(PickOf(array), PickAfter(array, index));
        EXPECT_EQ(RatingOf(array), index % 5 + 1);
        for (const int down : DownIn(array)) EXPECT_EQ(down % 5, index % 5);
        EXPECT_EQ(DownIn(array).size(), SiFrameOf(array).columns.size());
      }
    }
  }
}

TEST_F(SiRibbons, IndexThatNamesNoRibbonFailsAndChangesNothing) {
  for (const SiRibbonArray array : kSiRibbonArrays) {
    for (const int index : {-1, SiFrameOf(array).ribbonCount(), 100}) {
      EXPECT_EQ(FailureOf([&] { controls_.PressRibbon(array, index); }), "SubscriptOutOfRange");
      EXPECT_EQ(FailureOf([&] { (void)controls_.IsDown(array, index); }), "SubscriptOutOfRange");
    }
  }
  EXPECT_EQ(Module1, JobState{});
}

struct SavedPicks {
  std::string_view label;
  TaggedField intensity;
  TaggedField posture;
  Integer speed;
  std::string_view failure;
  std::array<int, 3> ratings;  ///< of the arrays whose step of the load was reached
};

TEST_F(SiRibbons, SavedPickThatNamesNoRibbonFailsAtItsStepOfTheLoad) {
  const std::vector<SavedPicks> rows{
      {"last of each", Integer{14}, Integer{19}, 9, "none", {5, 5, 5}},
      {"intensity 15", Integer{15}, Integer{0}, 0, "SubscriptOutOfRange", {0, 0, 0}},
      {"intensity -1", Integer{-1}, Integer{0}, 0, "SubscriptOutOfRange", {0, 0, 0}},
      {"posture 20", Integer{1}, Integer{20}, 0, "SubscriptOutOfRange", {2, 0, 0}},
      {"posture -1", Integer{1}, Integer{-1}, 0, "SubscriptOutOfRange", {2, 0, 0}},
      {"speed 10", Integer{1}, Integer{2}, 10, "SubscriptOutOfRange", {2, 3, 0}},
      {"speed -1", Integer{1}, Integer{2}, -1, "SubscriptOutOfRange", {2, 3, 0}},
      {"pick beyond 16 bits", 40000.0, Integer{0}, 0, "Overflow", {0, 0, 0}},
      {"posture beyond 16 bits", Integer{4}, "-1E6", 0, "Overflow", {5, 0, 0}},
      {"half rounds down to the even one", 2.5, 0.5, 0, "none", {3, 1, 1}},
      {"half rounds up to the even one", 3.5, "1.5", 0, "none", {5, 3, 1}},
      {"rounds down to the last", 14.5, 19.4, 0, "none", {5, 5, 1}},
      {"rounds up beyond the last", 14.51, Integer{0}, 0, "SubscriptOutOfRange", {0, 0, 0}},
      {"rounds up to the first", -0.5, -0.5, 0, "none", {1, 1, 1}},
      {"text", "2", "3 x", 4, "none", {3, 4, 5}},
      {"empty and no number", {}, "none", 0, "none", {1, 1, 1}},
  };
  for (const SavedPicks& row : rows) {
    StartFresh();
    controls_.Reset();
    Module1.SiIntensityPick = row.intensity;
    Module1.SiPosturePick = row.posture;
    Module1.SiSpeedPick = row.speed;
    EXPECT_EQ(FailureOf([&] { controls_.Load(); }), row.failure) << row.label;
    for (std::size_t i = 0; i < row.ratings.size(); ++i) {
      EXPECT_EQ(RatingOf(kSiRibbonArrays[i]), row.ratings[i]) << row.label << " " << i;
    }
  }
}

TEST_F(SiRibbons, SavedHandThatNamesNoOptionFailsBeforeTheRibbons) {
  for (const Integer hand : std::array<Integer, 3>{2, -1, 32767}) {
    StartFresh();
    Module1.Hand = hand;
    JobState expected = Module1;
    EXPECT_EQ(FailureOf([&] { controls_.Load(); }), "SubscriptOutOfRange") << hand;
    EXPECT_EQ(Module1, expected) << hand;
    EXPECT_EQ(controls_.hand(), SiControls::kNoHand) << hand;
  }
}

TEST_F(SiRibbons, ChosenHandIsStoredAndMarksTheJob) {
  Module1.Hand = 1;
  controls_.Load();
  EXPECT_EQ(controls_.hand(), 1);
  EXPECT_EQ(Module1.Hand, 1);
  Module1.JobDirty = kFalse;
  controls_.ChooseHand(1);
  EXPECT_EQ(Module1.JobDirty, kFalse);
  controls_.ChooseHand(0);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(Module1.Hand, 0);
  EXPECT_EQ(controls_.hand(), 0);
}

TEST_F(SiRibbons, ResetPutsEverythingUpAndRunsNoHandler) {
  controls_.Load();
  const JobState before = Module1;
  controls_.Reset();
  EXPECT_EQ(Module1, before);
  EXPECT_EQ(controls_.hand(), SiControls::kNoHand);
  for (const SiRibbonArray array : kSiRibbonArrays) EXPECT_EQ(DownIn(array), Down{});
}

}  // namespace
}  // namespace halvane
