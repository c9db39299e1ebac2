#include "tools/posture/posture_rows.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>
#include <vector>

#include "tests/support/test_support.h"
#include "tests/tools/posture/small_tool.h"

namespace halvane {
namespace {

/// A field with its last element, and where that stands.
struct FieldRow {
  std::string_view label;
  JobInteger place;
  Integer& value;
};

TEST(JobIntegers, AreTheFieldOrTheElement) {
  const std::vector<FieldRow> rows{
      {"one number", {&JobState::RulaLegFactor}, Module1.RulaLegFactor},
      {"first of 2", {&JobState::RulaWristFactors}, Module1.RulaWristFactors.at(0)},
      {"last of 2", {&JobState::RulaWristFactors, 1}, Module1.RulaWristFactors.at(1)},
      {"last of 3", {&JobState::RulaNeckFactors, 2}, Module1.RulaNeckFactors.at(2)},
      {"last of 4", {&JobState::RulaTrunkFactors, 3}, Module1.RulaTrunkFactors.at(3)},
      {"last of 20", {&JobState::RulaControlState, 19}, Module1.RulaControlState.at(19)},
      {"last of 23", {&JobState::RebaControlState, 22}, Module1.RebaControlState.at(22)},
  };
  for (const FieldRow& row : rows) EXPECT_EQ(&row.place.Value(), &row.value) << row.label;
}

TEST(JobIntegers, BeyondTheFieldFail) {
  const std::vector<JobInteger> places{
      {&JobState::RulaWristFactors, 2},  {&JobState::RulaNeckFactors, 3},
      {&JobState::RulaTrunkFactors, 4},  {&JobState::RulaControlState, 20},
      {&JobState::RebaControlState, 23}, {&JobState::RebaControlState, -1},
  };
  for (const JobInteger& place : places) {
    EXPECT_EQ(FailureOf([&] { (void)place.Value(); }), "SubscriptOutOfRange") << place.element;
  }
}

TEST(PostureRows, WidgetsOfAnArrayHaveTheIndexInTheirName) {
  EXPECT_EQ(WidgetName(RowOf(Small::Ribbons), 1), "Ribbon(1)");
  EXPECT_EQ(WidgetName(RowOf(Small::AddOn), 2), "Ribbon(2)");
  EXPECT_EQ(WidgetName(RowOf(Small::Strict), 0), "Strict(0)");
  EXPECT_EQ(WidgetName(RowOf(Small::Lone), 0), "Lone");
  EXPECT_EQ(WidgetName(RowOf(Small::SecondCounted), 1), "Counted(1)");
  EXPECT_EQ(WidgetName(RowOf(Small::List), 1), "List");
}

TEST(PostureRows, ChoiceIsThatOfTheArray) {
  EXPECT_EQ(ChoiceAt(RowOf(Small::Ribbons), 0).caption, "Low ");
  EXPECT_EQ(ChoiceAt(RowOf(Small::Ribbons), 2).caption, "Bent");
  EXPECT_EQ(ChoiceAt(RowOf(Small::AddOn), 0).caption, "Low ");
  for (const int index : {-1, 3}) {
    EXPECT_EQ(FailureOf([&] { (void)ChoiceAt(RowOf(Small::Ribbons), index); }),
              "SubscriptOutOfRange")
        << index;
  }
}

TEST(PostureRows, AddOnsAndBoxesMayBeUp) {
  const std::array<bool, kSmallCount> mayBeUp{false, true,  false, true,  true, true,
                                              true,  false, false, false, false};
  for (std::size_t i = 0; i < kSmallCount; ++i) EXPECT_EQ(kSmall.at(i).mayBeUp(), mayBeUp.at(i));
}

TEST(PostureRows, SavedValueCountsFromThatOfTheFirstChoice) {
  EXPECT_EQ(RowOf(Small::Ribbons).IndexOf(1), 1);
  EXPECT_EQ(RowOf(Small::AddOn).IndexOf(1), 2);
  EXPECT_EQ(RowOf(Small::Knees).IndexOf(2), 3);
  EXPECT_EQ(RowOf(Small::Pair).IndexOf(0), -1);
  EXPECT_EQ(RowOf(Small::Knees).IndexOf(-32768), -32767);
}

TEST(PostureRows, HighestStateIsThatOfTheLastChoice) {
  const std::array<int, 23> highest{1, 1, 2, 1, 1, 1, 1, 1, 1, 1, 2};
  for (int element = 0; element < 23; ++element) {
    EXPECT_EQ(HighestState(kSmall, element), highest.at(static_cast<std::size_t>(element)))
        << element;
  }
  for (const int element : {-1, 23}) {
    EXPECT_EQ(FailureOf([&] { HighestState(kSmall, element); }), "SubscriptOutOfRange") << element;
  }
}

TEST(PostureRows, RowsOfARegionRunFromItsFirstToItsLast) {
  const auto rows = Rows(kSmall, Small::AddOn, Small::Knees);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(&rows.front(), &RowOf(Small::AddOn));
  EXPECT_EQ(&rows.back(), &RowOf(Small::Knees));
}

using TwoRows = std::array<PostureControl, 2>;

TEST(PostureRows, TableWithASlipIsNotWellFormed) {
  const TwoRows good{RowOf(Small::Ribbons), RowOf(Small::AddOn)};
  EXPECT_TRUE(AreWellFormed(good));
  TwoRows rows = good;
  rows[1].state.element = rows[0].state.element;
  EXPECT_FALSE(AreWellFormed(rows)) << "two in one element";
  rows = good;
  rows[1].first = 1;
  EXPECT_FALSE(AreWellFormed(rows)) << "a choice of two controls";
  rows = good;
  rows[1].count = 2;
  EXPECT_FALSE(AreWellFormed(rows)) << "a choice beyond the array";
  rows = good;
  rows[0].first = -1;
  EXPECT_FALSE(AreWellFormed(rows)) << "a choice before the array";
  rows = good;
  rows[1] = RowOf(Small::Lone);
  EXPECT_TRUE(AreWellFormed(rows));
  rows[1].count = 0;
  EXPECT_FALSE(AreWellFormed(rows)) << "no choice";
  rows = good;
  rows[1] = PostureControl{};
  EXPECT_FALSE(AreWellFormed(rows)) << "a row that was left out";
}

TEST(PostureRows, FramesHoldEachControlOnce) {
  const auto all = Rows(kSmall, Small::Ribbons, Small::List);
  const PostureRegion first{"first", all.first(4), {}};
  const PostureRegion second{"second", all.subspan(4), {}};
  using Regions = std::array<PostureRegion, 2>;
  EXPECT_TRUE(HoldEachOnce(Regions{first, second}, kSmall));
  EXPECT_TRUE(HoldEachOnce(Regions{second, first}, kSmall));
  EXPECT_FALSE(HoldEachOnce(Regions{first, first}, kSmall));
  EXPECT_FALSE(HoldEachOnce(Regions{first, {"second", all.subspan(5), {}}}, kSmall));
  EXPECT_FALSE(HoldEachOnce(Regions{first, {"second", all.subspan(3), {}}}, kSmall));
}

}  // namespace
}  // namespace halvane
