#include "tools/number_field.h"

#include <gtest/gtest.h>

#include <array>

#include "core/task_list.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class NumberFields : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() {
    Module1 = JobState{};
    AddTaskRecord();
    AddTaskRecord();
    Module1.CurrentTask = Integer{2};
  }

  static constexpr NumberField kWhole = &JobState::OcraWristHold;
  static constexpr NumberField kDouble = &JobState::JobCycleTime;
  static constexpr NumberField kTagged = &JobState::SiExertionCount;
  static constexpr NumberField kWholeOfTask = &JobState::CtdNeckFlexion;
  static constexpr NumberField kDoubleOfTask = &JobState::OcraTaskDuration;
  static constexpr NumberField kTaggedOfTask = &JobState::CtdHandSpan;
  static constexpr std::array kAll{kWhole,       kDouble,       kTagged,
                                   kWholeOfTask, kDoubleOfTask, kTaggedOfTask};
};

TEST_F(NumberFields, NumberIsReadInItsOwnKindFromItsOwnTask) {
  Module1.OcraWristHold = 4;
  Module1.JobCycleTime = 2.5;
  Module1.SiExertionCount = "7 or 8";
  Module1.CtdNeckFlexion.at(1) = 3;
  Module1.OcraTaskDuration.at(1) = 480;
  Module1.CtdHandSpan.at(1) = Integer{6};
  EXPECT_EQ(NumberIn(kWhole), TaggedField(Integer{4}));
  EXPECT_EQ(NumberIn(kDouble), TaggedField(2.5));
  EXPECT_EQ(NumberIn(kTagged), TaggedField("7 or 8"));
  EXPECT_EQ(NumberIn(kTagged, 99), TaggedField("7 or 8")) << "the job has one";
  EXPECT_EQ(NumberIn(kWholeOfTask, 1), TaggedField(Integer{3}));
  EXPECT_EQ(NumberIn(kDoubleOfTask, 1), TaggedField(480.0));
  EXPECT_EQ(NumberIn(kTaggedOfTask, 1), TaggedField(Integer{6}));
  EXPECT_EQ(NumberIn(kDoubleOfTask, 2), TaggedField(0.0));
  EXPECT_EQ(FailureOf([] { NumberIn(kDoubleOfTask, 3); }), "SubscriptOutOfRange");
}

TEST_F(NumberFields, StoredNumberKeepsItsKindWhereTheFieldDoes) {
  for (const NumberField& field : kAll) StoreNumber(field, 1, Integer{5});
  JobState expected = Module1;
  StartFresh();
  Module1.OcraWristHold = 5;
  Module1.JobCycleTime = 5;
  Module1.SiExertionCount = Integer{5};
  Module1.CtdNeckFlexion.at(1) = 5;
  Module1.OcraTaskDuration.at(1) = 5;
  Module1.CtdHandSpan.at(1) = Integer{5};
  EXPECT_TRUE(expected == Module1);

  StoreNumber(kTagged, 1, 5.0);
  StoreNumber(kTaggedOfTask, 1, 0.5);
  StoreNumber(kWhole, 1, 2.5);
  EXPECT_EQ(Module1.SiExertionCount, TaggedField(5.0));
  EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(0.5));
  EXPECT_EQ(Module1.OcraWristHold, 2) << "rounded as every whole number is";
  EXPECT_EQ(Module1.JobDirty, kFalse) << "the input marks it";
}

TEST_F(NumberFields, NumberWithoutAPlaceFails) {
  EXPECT_EQ(FailureOf([] { StoreNumber(kTaggedOfTask, 3, 1.0); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([] { StoreNumber(kWhole, 0, 40000.0); }), "Overflow");
}

TEST_F(NumberFields, NumberOnScreenGoesToTheCurrentTask) {
  StoreOnScreen(kWholeOfTask, Integer{2});
  StoreOnScreen(kDoubleOfTask, 30.0);
  StoreOnScreen(kDouble, 1.5);
  EXPECT_EQ(Module1.CtdNeckFlexion.at(1), 0);
  EXPECT_EQ(Module1.CtdNeckFlexion.at(2), 2);
  EXPECT_EQ(Module1.OcraTaskDuration.at(2), 30);
  EXPECT_EQ(Module1.JobCycleTime, 1.5);
}

TEST_F(NumberFields, WithoutATaskTheJobsOwnFieldsAloneAreStored) {
  Module1 = JobState{};
  Module1.CurrentTask = Integer{12};
  JobState expected = Module1;
  for (const NumberField& field : kAll) NumberTyped(field, "9");
  expected.JobDirty = kTrue;
  expected.OcraWristHold = 9;
  expected.JobCycleTime = 9;
  expected.SiExertionCount = 9.0;
  EXPECT_TRUE(Module1 == expected);
}

struct TypedRow {
  const char* text;
  double number;
};

TEST_F(NumberFields, TypedTextIsStoredAsTheNumberThatItReadsAs) {
  for (const TypedRow& row : {TypedRow{"20", 20}, TypedRow{" 1.5 min", 1.5}, TypedRow{"-3", -3},
                              TypedRow{"", 0}, TypedRow{"abc", 0}, TypedRow{"1E999", 0}}) {
    StartFresh();
    NumberTyped(kTaggedOfTask, row.text);
    EXPECT_EQ(Module1.CtdHandSpan.at(2), TaggedField(row.number)) << row.text;
    EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(Integer{0})) << row.text;
    EXPECT_EQ(Module1.JobDirty, kTrue) << row.text;
  }
}

}  // namespace
}  // namespace halvane
