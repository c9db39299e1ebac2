#include "core/units.h"

#include <gtest/gtest.h>

#include "core/job_state.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

void MakeTasks(Integer count) {
  Module1 = JobState{};
  Module1.TaskCount = count;
  ResizeTaskArrays();
}

TEST(Units, WithoutTasksOnlyTheUnitChanges) {
  Module1 = JobState{};
  JobState expected;
  expected.Units = 1;
  ChooseUnits(LengthUnit::English);
  EXPECT_EQ(Module1, expected);
  ChooseUnits(LengthUnit::Metric);
  EXPECT_EQ(Module1, JobState{});
}

TEST(Units, EnglishAndBackNeedNotGiveTheStartingValue) {
  MakeTasks(1);
  Module1.CtdHandSpan.at(1) = 20.0;
  ChooseUnits(LengthUnit::English);
  EXPECT_EQ(Module1.Units, 1);
  EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(7.87));
  ChooseUnits(LengthUnit::Metric);
  EXPECT_EQ(Module1.Units, 0);
  EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(19.99));
}

TEST(Units, EnglishChosenTwiceDividesTwice) {
  MakeTasks(1);
  Module1.CtdHandSpan.at(1) = "25.4";
  ChooseUnits(LengthUnit::English);
  EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(10.0));
  ChooseUnits(LengthUnit::English);
  EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(3.94));
}

TEST(Units, EmptyAndDeletedTasksAreConvertedLikeTheOthers) {
  MakeTasks(3);
  Module1.TaskActive.at(2) = Integer{0};
  Module1.CtdHandSpan.at(2) = Integer{1};
  Module1.CtdHandSpan.at(3) = "wide";
  ChooseUnits(LengthUnit::Metric);
  EXPECT_EQ(Module1.CtdHandSpan.at(0), TaggedField());
  EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(0.0));
  EXPECT_EQ(Module1.CtdHandSpan.at(2), TaggedField(2.54));
  EXPECT_EQ(Module1.CtdHandSpan.at(3), TaggedField(0.0));
}

TEST(Units, ChoosingLeavesTheJobUnchangedMark) {
  for (const Integer dirty : {kFalse, kTrue}) {
    MakeTasks(1);
    Module1.JobDirty = dirty;
    ChooseUnits(LengthUnit::English);
    EXPECT_EQ(Module1.JobDirty, dirty);
  }
}

TEST(Units, SpanBeyondADoubleOverflows) {
  MakeTasks(2);
  Module1.CtdHandSpan.at(1) = 1.0;
  Module1.CtdHandSpan.at(2) = 1E308;
  EXPECT_EQ(FailureOf([] { ChooseUnits(LengthUnit::Metric); }), "Overflow");
  EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(2.54));
  EXPECT_EQ(Module1.CtdHandSpan.at(2), TaggedField(1E308));
}

TEST(Units, TaskCountBeyondTheArraysFails) {
  MakeTasks(1);
  Module1.TaskCount = Integer{2};
  EXPECT_EQ(FailureOf([] { ChooseUnits(LengthUnit::English); }), "SubscriptOutOfRange");
}

}  // namespace
}  // namespace halvane
