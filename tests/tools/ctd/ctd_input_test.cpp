#include "tools/ctd/ctd_input.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string_view>

#include "core/task_list.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

TEST(CtdCaptions, TabsFramesAndButtonsReadAsOnTheForm) {
  EXPECT_EQ(kCtdTabs, (std::array<std::string_view, 3>{"Force Freq. Factors",
                                                       "Body Posture Factors", "Grand Score"}));
  EXPECT_EQ(kCtdReportTab, 2);
  EXPECT_EQ(kCtdJobCaption, "Job Duration");
  EXPECT_EQ(kCtdTaskCaption, "Task Duration (per Cycle Time)");
  EXPECT_EQ(kCtdRepetitionCaption, "Repetition");
  EXPECT_EQ(kCtdStrengthCaption, "Strength Data:");
  EXPECT_EQ(kCtdSpanCaption, "Hand Span");
  EXPECT_EQ(kCtdChoosePart, "Choose a body part");
  const std::array<std::array<std::string_view, 2>, 3> buttons{
      {{"&Add", "Add Task"}, {"&Delete", "Delete Task"}, {"&Edit", "Edit Task"}}};
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    EXPECT_EQ(kCtdTaskButtons.at(i).caption, buttons.at(i)[0]);
    EXPECT_EQ(kCtdTaskButtons.at(i).tip, buttons.at(i)[1]);
  }
}

TEST(CtdCaptions, BoxesHaveTheirLabels) {
  EXPECT_EQ(CtdBoxAt(kCtdText1, 2).label, "Work Time (min):");
  EXPECT_EQ(CtdBoxAt(kCtdText1, 3).label, "Rest Time (min):");
  EXPECT_EQ(CtdBoxAt(kCtdText1, 5).label, "No. Of Rep.");
  EXPECT_EQ(CtdBoxAt(kCtdText1, 6).label, "Hand Span");
  EXPECT_EQ(CtdBoxAt(kCtdText2, 0).label, "Hours Worked per Shift:");
  EXPECT_EQ(CtdBoxAt(kCtdText2, 1).label, "Job Cycle Time (min):");
  EXPECT_EQ(CtdBoxAt(kCtdText2, 2).label, "No. Of Cycles:");
  EXPECT_EQ(kCtdText5.label, "MVC % Required:");
  EXPECT_EQ(FailureOf([] { (void)CtdBoxAt(kCtdText1, 4); }), "SubscriptOutOfRange");
  EXPECT_EQ(kCtdLoad.caption, "Load Held");
  EXPECT_EQ(kCtdLoad.unit, "kg");
  EXPECT_EQ(kCtdDuration.caption, "Duration Posture Held");
  EXPECT_EQ(kCtdDuration.unit, "min");
}

class CtdInputs : public testing::Test {
 protected:
  /// Two tasks, the second on screen.
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() {
    Module1 = JobState{};
    AddTaskRecord();
    AddTaskRecord();
    Module1.CurrentTask = Integer{2};
  }
  static void DeleteBoth() {
    Module1.TaskActive.at(1) = Integer{0};
    Module1.TaskActive.at(2) = Integer{0};
  }
};

/// A box, and what "2.5" typed in it leaves in the job beside the mark.
struct BoxRow {
  const char* label;
  const CtdBox* box;
  std::function<void(JobState& job)> store;
  bool ofTheJob;
};

TEST_F(CtdInputs, EachBoxStoresItsFieldAndTouchesNothingElse) {
  const auto nothing = [](JobState&) {};
  const std::array rows{
      BoxRow{"work time", &CtdBoxAt(kCtdText1, 2),
             [](JobState& job) { job.CtdWorkTime.at(2) = 2.5; }, false},
      BoxRow{"rest time", &CtdBoxAt(kCtdText1, 3), nothing, false},
      BoxRow{"repetitions", &CtdBoxAt(kCtdText1, 5),
             [](JobState& job) { job.CtdRepetitions.at(2) = 2.5; }, false},
      BoxRow{"hand span", &CtdBoxAt(kCtdText1, 6),
             [](JobState& job) { job.CtdHandSpan.at(2) = 2.5; }, false},
      BoxRow{"force", &kCtdText5, [](JobState& job) { job.CtdForceMvc.at(2) = 2.5; }, false},
      BoxRow{"hours", &CtdBoxAt(kCtdText2, 0), [](JobState& job) { job.JobDurationPerDay = 2.5; },
             true},
      BoxRow{"cycle time", &CtdBoxAt(kCtdText2, 1), [](JobState& job) { job.JobCycleTime = 2.5; },
             true},
      BoxRow{"cycles", &CtdBoxAt(kCtdText2, 2), nothing, true},
  };
  for (const BoxRow& row : rows) {
    StartFresh();
    JobState expected = Module1;
    expected.JobDirty = kTrue;
    row.store(expected);
    CtdTyped(*row.box, "2.5");
    EXPECT_TRUE(Module1 == expected) << row.label;

    StartFresh();
    DeleteBoth();
    expected = Module1;
    expected.JobDirty = kTrue;
    if (row.ofTheJob) row.store(expected);
    CtdTyped(*row.box, "2.5");
    EXPECT_TRUE(Module1 == expected) << row.label << " without a task";
  }
}

TEST_F(CtdInputs, SlotBoxesStoreForTaskAndSlot) {
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    StartFresh();
    JobState expected = Module1;
    expected.JobDirty = kTrue;
    expected.CtdLoadHeld.at(2, slot) = 7;
    CtdTyped(kCtdLoad, slot, "7 kg");
    EXPECT_TRUE(Module1 == expected) << slot;
    expected.CtdPostureDuration.at(2, slot) = 0.25;
    CtdTyped(kCtdDuration, slot, "0.25");
    EXPECT_TRUE(Module1 == expected) << slot;
    EXPECT_EQ(CtdSlotText(kCtdLoad, slot), "7");
    EXPECT_EQ(CtdSlotText(kCtdDuration, slot), "0.25");
  }
}

TEST_F(CtdInputs, SlotBoxesWithoutATaskAreNobodys) {
  Module1.CtdLoadHeld.at(2, 0) = 7;
  DeleteBoth();
  CtdTyped(kCtdLoad, 0, "3");
  EXPECT_EQ(Module1.CtdLoadHeld.at(2, 0), 7);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(CtdSlotText(kCtdLoad, 0), "");
}

TEST_F(CtdInputs, SlotBoxesOfTask41Fail) {
  Module1.CurrentTask = Integer{41};
  EXPECT_EQ(FailureOf([] { CtdTyped(kCtdLoad, 0, "3"); }), "SubscriptOutOfRange");
  EXPECT_EQ(Module1.JobDirty, kTrue) << "is set before";
  EXPECT_EQ(FailureOf([] { (void)CtdSlotText(kCtdDuration, 0); }), "SubscriptOutOfRange");
}

TEST_F(CtdInputs, RestTimeIsComputedForTheTaskOnScreen) {
  Module1.JobCycleTime = 1;
  Module1.CtdWorkTime.at(2) = 0.25;
  Module1.CtdRepetitions.at(2) = 3;
  EXPECT_EQ(CtdRestTimeText(), "0.25");
  EXPECT_EQ(Module1.CtdRestTime.at(2), TaggedField(0.25));
  EXPECT_EQ(Module1.CtdRestTime.at(1), TaggedField(Integer{0}));
  DeleteBoth();
  Module1.JobCycleTime = 2;
  EXPECT_EQ(CtdRestTimeText(), "0.00");
  EXPECT_EQ(Module1.CtdRestTime.at(2), TaggedField(0.25)) << "stays";
}

TEST_F(CtdInputs, RestTimeIsWhatTheCycleLeavesAndNeverBelowZero) {
  Module1.JobCycleTime = 1;
  Module1.CtdWorkTime.at(1) = "0.25 min";
  Module1.CtdRepetitions.at(1) = 3;
  ComputeCtdRestTime(1);
  EXPECT_EQ(Module1.CtdRestTime.at(1), TaggedField(0.25));
  Module1.CtdRepetitions.at(1) = 5;
  ComputeCtdRestTime(1);
  EXPECT_EQ(Module1.CtdRestTime.at(1), TaggedField(0.0));
}

TEST_F(CtdInputs, CyclesPerShiftKeepTheirValueWithoutACycleTime) {
  Module1.JobCycleTime = 2.5;
  EXPECT_EQ(ComputeCtdCyclesPerShift(), 192);
  EXPECT_EQ(CtdCyclesText(), "192.00");
  Module1.JobCycleTime = 0.5;
  EXPECT_EQ(ComputeCtdCyclesPerShift(), 960);
  EXPECT_EQ(CtdCyclesText(), "960.00");
  Module1.JobCycleTime = 2.5;
  ComputeCtdCyclesPerShift();
  for (const double cycle : {0.0, -1.0}) {
    Module1.JobCycleTime = cycle;
    EXPECT_EQ(ComputeCtdCyclesPerShift(), 0) << cycle;
    EXPECT_EQ(CtdCyclesText(), "0") << cycle;
    EXPECT_EQ(Module1.CtdCyclesPerShift, 192) << cycle;
  }
}

TEST_F(CtdInputs, SpanIsInInchesInEnglishJobsAlone) {
  EXPECT_EQ(CtdSpanUnit(), "cm");
  Module1.Units = 1;
  EXPECT_EQ(CtdSpanUnit(), "in");
}

TEST_F(CtdInputs, JobThatNeverHadATaskOpensWithoutAReport) {
  EXPECT_TRUE(CtdOpen());
  EXPECT_EQ(CurrentTaskNumber(), 2);
  DeleteBoth();
  EXPECT_TRUE(CtdEverHadTasks());
  EXPECT_TRUE(CtdOpen());
  Module1 = JobState{};
  Module1.Hand = 1;
  EXPECT_FALSE(CtdEverHadTasks());
  EXPECT_FALSE(CtdOpen());
  EXPECT_EQ(Module1.JobDirty, kTrue) << "the load has chosen the hand";
  Module1.Hand = 2;
  EXPECT_EQ(FailureOf(CtdOpen), "SubscriptOutOfRange");
}

}  // namespace
}  // namespace halvane
