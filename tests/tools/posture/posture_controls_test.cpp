#include "tools/posture/posture_controls.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/test_support.h"
#include "tests/tools/posture/small_tool.h"

namespace halvane {
namespace {

/// The controls of the small tool, and what their handlers were told: "Ribbon(1)", "Lone off".
class SmallControls : public PostureControls {
 public:
  SmallControls() : PostureControls(kSmall) {}
  std::string told;

 protected:
  void Store(const PostureControl& control, int index) override {
    if (!told.empty()) told += " ";
    told += index == kNone ? std::string(control.objectName) + " off" : WidgetName(control, index);
    PostureControls::Store(control, index);
  }
};

class Postures : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() { Module1 = JobState{}; }
  void Load() {
    controls_.Reset();
    controls_.told.clear();
    controls_.Load();
  }
  static Integer& Saved(Small control) { return RowOf(control).state.Value(); }
  static Integer& Factor(Small control) { return RowOf(control).factor.Value(); }
  int Chosen(Small control) const { return controls_.chosen(RowOf(control)); }

  SmallControls controls_;
};

constexpr std::string_view kFresh = "Ribbon(0) Pair(0) Strict(0) Lenient(0) LastOf(0) List";

TEST_F(Postures, LoadOfAFreshJobSetsInTheOrderOfTheRowsWhatHasToBeSet) {
  Load();
  EXPECT_EQ(controls_.told, kFresh);
  EXPECT_EQ(controls_.hand(), 0);
  JobState expected;
  expected.JobDirty = kTrue;
  expected.RulaUpperArmFactors.at(2) = 3;
  expected.RulaNeckFactors.at(0) = 1;
  expected.RebaControlState.at(2) = 1;
  expected.RulaWristFactors.at(1) = 4;
  expected.RulaForceFactor = 4;
  expected.RulaWristTwistFactor = 4;
  expected.RebaCouplingFactor = 4;
  EXPECT_EQ(Module1, expected);
}

struct SavedRow {
  Small control;
  Integer saved;
  int chosen;      ///< index in the array, -1 for none
  Integer factor;  ///< 99 where it is left alone
  Integer after;   ///< what is saved then
};

TEST_F(Postures, LoadSetsWhatASavedValueStandsFor) {
  const std::vector<SavedRow> rows{
      {Small::Ribbons, 0, 0, 3, 0},    {Small::Ribbons, 1, 1, 7, 1},
      {Small::AddOn, 0, -1, 99, 0},    {Small::AddOn, 1, 2, 2, 1},
      {Small::AddOn, 2, -1, 99, 2},    {Small::AddOn, -1, -1, 99, -1},
      {Small::Pair, 0, 0, 1, 1},       {Small::Pair, 1, 0, 1, 1},
      {Small::Pair, 2, 1, 5, 2},       {Small::Pair, 3, 0, 1, 1},
      {Small::Pair, -32768, 0, 1, 1},  {Small::Knees, 0, -1, 99, 0},
      {Small::Knees, 1, 2, 1, 1},      {Small::Knees, 2, 3, 4, 2},
      {Small::Knees, 3, -1, 99, 3},    {Small::Lone, 1, 0, -1, 1},
      {Small::Lone, 2, -1, 99, 2},     {Small::FirstCounted, 1, 0, 1, 1},
      {Small::Strict, 1, 1, 8, 1},     {Small::Lenient, 1, 1, 8, 1},
      {Small::Lenient, 2, -1, 99, 2},  {Small::Lenient, -1, -1, 99, -1},
      {Small::LastOf, 0, 0, 4, 0},     {Small::LastOf, 1, 1, 8, 1},
      {Small::LastOf, 2, 1, 8, 1},     {Small::LastOf, -7, 1, 8, 1},
      {Small::LastOf, 32767, 1, 8, 1}, {Small::List, 1, 1, 8, 1},
  };
  for (const SavedRow& row : rows) {
    SCOPED_TRACE(std::string(RowOf(row.control).objectName) + " " + std::to_string(row.saved));
    StartFresh();
    Saved(row.control) = row.saved;
    Factor(row.control) = 99;
    Load();
    EXPECT_EQ(Chosen(row.control), row.chosen);
    EXPECT_EQ(Factor(row.control), row.factor);
    EXPECT_EQ(Saved(row.control), row.after);
  }
}

TEST_F(Postures, LoadFailsAtTheRowOfAValueThatHasToNameAChoice) {
  struct Row {
    Small control;
    std::string_view told;
  };
  const std::array<Row, 3> rows{
      {{Small::Ribbons, ""},
       {Small::Strict, "Ribbon(0) Pair(0)"},
       {Small::List, "Ribbon(0) Pair(0) Strict(0) Lenient(0) LastOf(0)"}}};
  for (const Row& row : rows) {
    for (const Integer saved : std::array<Integer, 3>{-1, 3, 32767}) {
      SCOPED_TRACE(std::string(RowOf(row.control).objectName) + " " + std::to_string(saved));
      StartFresh();
      Saved(row.control) = saved;
      EXPECT_EQ(FailureOf([this] { Load(); }), "SubscriptOutOfRange");
      EXPECT_EQ(controls_.told, row.told);
    }
  }
}

TEST_F(Postures, LoadOfTheIndexOfAnAddOnPressesItAndNoBase) {
  Saved(Small::Ribbons) = 2;
  Load();
  EXPECT_EQ(Chosen(Small::Ribbons), PostureControls::kNone);
  EXPECT_EQ(Chosen(Small::AddOn), 2);
  EXPECT_EQ(Saved(Small::Ribbons), 2);
  EXPECT_EQ(Saved(Small::AddOn), 1);
  EXPECT_EQ(Factor(Small::Ribbons), 0);
  EXPECT_EQ(Factor(Small::AddOn), 2);
}

TEST_F(Postures, HandThatThereIsNotFailsBeforeAnythingIsSet) {
  for (const Integer hand : std::array<Integer, 2>{-1, 2}) {
    StartFresh();
    Module1.Hand = hand;
    EXPECT_EQ(FailureOf([this] { Load(); }), "SubscriptOutOfRange");
    EXPECT_EQ(controls_.told, "");
    EXPECT_EQ(controls_.hand(), PostureControls::kNone);
    EXPECT_EQ(Module1.JobDirty, kFalse);
  }
}

TEST_F(Postures, HandIsStoredOnce) {
  controls_.ChooseHand(1);
  EXPECT_EQ(Module1.Hand, 1);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  Module1.JobDirty = kFalse;
  controls_.ChooseHand(1);
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

struct ClickRow {
  Small control;
  std::vector<int> clicks;
  int chosen;
  Integer saved, factor;
};

TEST_F(Postures, ClickSetsOrReleasesWhereThatMayBe) {
  const std::vector<ClickRow> rows{
      {Small::Ribbons, {1}, 1, 1, 7},   {Small::Ribbons, {1, 1}, 1, 1, 7},
      {Small::AddOn, {2}, 2, 1, 2},     {Small::AddOn, {2, 2}, -1, 0, 0},
      {Small::Pair, {1}, 1, 2, 5},      {Small::Pair, {1, 1}, 1, 2, 5},
      {Small::Knees, {2}, 2, 1, 1},     {Small::Knees, {2, 3}, 3, 2, 4},
      {Small::Knees, {3, 3}, -1, 0, 0}, {Small::Lone, {0}, 0, 1, -1},
      {Small::Lone, {0, 0}, -1, 0, 0},  {Small::Strict, {1}, 1, 1, 8},
      {Small::Strict, {1, 1}, 1, 1, 8}, {Small::List, {1, 0}, 0, 0, 4},
  };
  for (const ClickRow& row : rows) {
    SCOPED_TRACE(std::string(RowOf(row.control).objectName) + " " + std::to_string(row.chosen));
    StartFresh();
    Load();
    Module1.JobDirty = kFalse;
    for (const int index : row.clicks) controls_.Click(RowOf(row.control), index);
    EXPECT_EQ(Module1.JobDirty, kTrue);
    EXPECT_EQ(Chosen(row.control), row.chosen);
    EXPECT_EQ(Saved(row.control), row.saved);
    EXPECT_EQ(Factor(row.control), row.factor);
  }
}

TEST_F(Postures, WhatIsSoAlreadyRunsNothing) {
  Load();
  controls_.Set(RowOf(Small::Lone), 0);
  controls_.told.clear();
  Module1 = JobState{};
  controls_.Set(RowOf(Small::Ribbons), 0);
  controls_.Set(RowOf(Small::Lone), 0);
  controls_.Set(RowOf(Small::List), 0);
  controls_.Release(RowOf(Small::AddOn), 2);
  controls_.Release(RowOf(Small::Ribbons), 0);
  controls_.Release(RowOf(Small::Strict), 0);
  EXPECT_EQ(controls_.told, "");
  EXPECT_EQ(Module1, JobState{});
}

TEST_F(Postures, SettingAnotherTellsTheNewOneAlone) {
  Load();
  controls_.told.clear();
  controls_.Set(RowOf(Small::Ribbons), 1);
  EXPECT_EQ(controls_.told, "Ribbon(1)");
  EXPECT_FALSE(controls_.IsSet(RowOf(Small::Ribbons), 0));
  EXPECT_TRUE(controls_.IsSet(RowOf(Small::Ribbons), 1));
}

TEST_F(Postures, AnyControlOfAnArrayNamesItsChoices) {
  controls_.Set(RowOf(Small::Ribbons), 2);
  EXPECT_EQ(controls_.told, "Ribbon(2)");
  EXPECT_TRUE(controls_.IsSet(RowOf(Small::AddOn), 2));
  EXPECT_EQ(Chosen(Small::Ribbons), PostureControls::kNone);
  controls_.Release(RowOf(Small::Ribbons), 2);
  EXPECT_FALSE(controls_.IsSet(RowOf(Small::AddOn), 2));
}

TEST_F(Postures, CountedBoxesSumWhateverIsSaved) {
  controls_.Set(RowOf(Small::FirstCounted), 0);
  EXPECT_EQ(Factor(Small::FirstCounted), 1);
  controls_.Set(RowOf(Small::SecondCounted), 1);
  EXPECT_EQ(Factor(Small::FirstCounted), 2);
  Saved(Small::SecondCounted) = 5;
  controls_.Release(RowOf(Small::FirstCounted), 0);
  EXPECT_EQ(Factor(Small::FirstCounted), 5);
}

TEST_F(Postures, CountThatIsTooLargeFailsAndLeavesTheFactor) {
  Factor(Small::FirstCounted) = 3;
  Saved(Small::SecondCounted) = 32767;
  EXPECT_EQ(FailureOf([this] { controls_.Set(RowOf(Small::FirstCounted), 0); }), "Overflow");
  EXPECT_EQ(Factor(Small::FirstCounted), 3);
  EXPECT_EQ(Saved(Small::FirstCounted), 1);
}

TEST_F(Postures, ChoiceThatThereIsNotFailsAndChangesNothing) {
  const std::array other{PostureChoice{"other", {}, {}, 1}};
  PostureControl foreign = RowOf(Small::Lone);
  foreign.array = other;
  const std::vector<std::pair<PostureControl, int>> rows{
      {RowOf(Small::Ribbons), -1},
      {RowOf(Small::Ribbons), 3},
      {RowOf(Small::Lone), 1},
      {RowOf(Small::List), 2},
      {foreign, 0},
  };
  for (const auto& row : rows) {
    const PostureControl& control = row.first;
    const int index = row.second;
    SCOPED_TRACE(std::string(control.array.front().caption) + " " + std::to_string(index));
    EXPECT_EQ(FailureOf([&] { controls_.Set(control, index); }), "SubscriptOutOfRange");
    EXPECT_EQ(FailureOf([&] { controls_.Release(control, index); }), "SubscriptOutOfRange");
    EXPECT_EQ(FailureOf([&] { controls_.Click(control, index); }), "SubscriptOutOfRange");
    EXPECT_EQ(FailureOf([&] { (void)controls_.IsSet(control, index); }), "SubscriptOutOfRange");
  }
  EXPECT_EQ(Module1, JobState{});
  EXPECT_EQ(controls_.told, "");
}

TEST_F(Postures, ResetPutsEverythingUpAndRunsNothing) {
  Load();
  controls_.Set(RowOf(Small::Lone), 0);
  controls_.told.clear();
  const JobState before = Module1;
  controls_.Reset();
  EXPECT_EQ(controls_.told, "");
  EXPECT_EQ(Module1, before);
  EXPECT_EQ(controls_.hand(), PostureControls::kNone);
  for (const PostureControl& control : kSmall) {
    EXPECT_EQ(controls_.chosen(control), PostureControls::kNone) << control.objectName;
  }
}

}  // namespace
}  // namespace halvane
