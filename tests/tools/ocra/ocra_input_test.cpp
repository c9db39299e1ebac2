// What the boxes, sliders and task frames of the OCRA form do to the job, without the form.
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string_view>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"
#include "tools/ocra/ocra_controls.h"

namespace halvane {
namespace {

class OcraInputs : public testing::Test {
 protected:
  /// Two tasks, the second on screen.
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() {
    Module1 = JobState{};
    AddTaskRecord();
    AddTaskRecord();
    Module1.CurrentTask = Integer{2};
    expected_ = Module1;
    expected_.JobDirty = kTrue;
  }
  JobState expected_;
};

TEST(OcraCaptions, TabsFramesAndButtonsReadAsOnTheForm) {
  EXPECT_EQ(kOcraTabs, (std::array<std::string_view, 3>{"Repetitive Task Factors",
                                                        "Arm Posture Factors", "Estimated Risk"}));
  EXPECT_EQ(kOcraReportTab, 2);
  EXPECT_EQ(kOcraJobCaption, "Job Information");
  EXPECT_EQ(kOcraHoursCaption, "Number Of Hours Without Adequate Recovery");
  EXPECT_EQ(kOcraForceCaption, "Rate Each Action According To The Following Force Level");
  EXPECT_EQ(kOcraTicksCaption, "Lack of variation:");
  EXPECT_EQ(kOcraForceTip, " ");
  const std::array<std::string_view, 3> buttons{"&Add Task", "&Delete Task", "&Edit Task"};
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    EXPECT_EQ(kOcraTaskButtons.at(i).caption, buttons.at(i));
    EXPECT_EQ(kOcraTaskButtons.at(i).tip, "");
  }
  for (std::size_t i = 0; i < kOcraHourMarks.size(); ++i) {
    EXPECT_EQ(kOcraHourMarks.at(i), PlainText(static_cast<int>(i)));
  }
}

TEST(OcraCaptions, BoxesHaveTheirFramesAndUnits) {
  EXPECT_EQ(kOcraCycleTime.caption, "Job Cycle Time");
  EXPECT_EQ(kOcraCycleTime.unit, "min");
  EXPECT_EQ(OcraTaskBoxAt(2).caption, "Task Duration ");
  EXPECT_EQ(OcraTaskBoxAt(2).unit, "total minutes per shift");
  EXPECT_EQ(OcraTaskBoxAt(5).caption, "Action Frequency");
  EXPECT_EQ(OcraTaskBoxAt(5).unit, "no. of action per min");
  EXPECT_EQ(FailureOf([] { (void)OcraTaskBoxAt(3); }), "SubscriptOutOfRange");
}

TEST_F(OcraInputs, EachBoxStoresItsFieldAndTouchesNothingElse) {
  NumberTyped(kOcraCycleTime.field, "0.5");
  expected_.JobCycleTime = 0.5;
  EXPECT_TRUE(Module1 == expected_);
  NumberTyped(OcraTaskBoxAt(2).field, "480");
  expected_.OcraTaskDuration.at(2) = 480;
  EXPECT_TRUE(Module1 == expected_);
  NumberTyped(OcraTaskBoxAt(5).field, "30");
  expected_.OcraActionFrequency.at(2) = 30.0;
  EXPECT_TRUE(Module1 == expected_);
}

TEST_F(OcraInputs, HoursAreStoredAsAWholeNumber) {
  for (const int hours : {0, 7, 10}) {
    StartFresh();
    OcraHoursMoved(hours);
    expected_.OcraRecoveryHours = static_cast<Integer>(hours);
    EXPECT_TRUE(Module1 == expected_) << hours;
  }
}

TEST_F(OcraInputs, ForceIsRatedInHalvesForTheTaskOnScreen) {
  EXPECT_EQ(OcraForceMoved(5), 5);
  expected_.OcraForceRating.at(2) = 2.5;
  EXPECT_TRUE(Module1 == expected_);
  EXPECT_EQ(OcraRatingText(5), "2.5");
  EXPECT_EQ(OcraRatingText(10), "5.0");
  EXPECT_EQ(OcraRatingText(0), "0.0");
}

TEST_F(OcraInputs, ForceWithoutATaskGoesBackAndMarksTheJob) {
  Module1.TaskActive.at(1) = Integer{0};
  Module1.TaskActive.at(2) = Integer{0};
  expected_ = Module1;
  EXPECT_EQ(OcraForceMoved(8), 0);
  expected_.JobDirty = kTrue;
  EXPECT_TRUE(Module1 == expected_);
}

TEST_F(OcraInputs, TaskFramesGoWithTheLastTaskAndStayAsTheyWereWithoutAny) {
  EXPECT_TRUE(OcraEverHadTasks());
  EXPECT_EQ(OcraShowsTaskFrames(), std::optional(true));
  Module1.TaskActive.at(1) = Integer{0};
  EXPECT_EQ(OcraShowsTaskFrames(), std::optional(true));
  Module1.TaskActive.at(2) = Integer{0};
  EXPECT_TRUE(OcraEverHadTasks());
  EXPECT_EQ(OcraShowsTaskFrames(), std::optional(false));
  Module1 = JobState{};
  EXPECT_FALSE(OcraEverHadTasks());
  EXPECT_EQ(OcraShowsTaskFrames(), std::nullopt);
  Module1.TaskCount = Integer{1};
  EXPECT_TRUE(OcraEverHadTasks());
}

}  // namespace
}  // namespace halvane
