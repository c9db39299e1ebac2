#include "tools/ctd/ctd_report.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"
#include "tests/tools/report_page.h"
#include "tools/ctd/ctd_controls.h"

namespace halvane {
namespace {

using TextRun = Run;
using Stops = std::vector<int>;

class CtdReport : public testing::Test {
 protected:
  void SetUp() override {
    Module1 = JobState{};
    Module1.CtdPostureFactorTask = 1;
  }
  /// The report of results that are put in place, so that each number has one source.
  std::string Write() {
    CTDprint(pane_);
    return pane_.text();
  }
  /// A task whose loads and durations tell task and slot: 12 and 1.2 for slot 2 of task 1.
  static int AddTask() {
    const int task = AddTaskRecord();
    for (int slot = 0; slot < kCtdSlotCount; ++slot) {
      if (slot < 7) Module1.CtdLoadHeld.at(task, slot) = 10 * task + slot;
      Module1.CtdPostureDuration.at(task, slot) = task + slot / 10.0;
    }
    return task;
  }
  static void FillResults() {
    for (int slot = 0; slot < kCtdSlotCount; ++slot) {
      Module1.CtdPostureScore.at(slot) = 100.0 + slot;
    }
    Module1.CtdForceFrequencyFactor = 0.60181;
    Module1.CtdPostureFactor = 1.2246;
    Module1.CtdGrandScore = 5.125;
  }
  /// Tasks 1 and 3, with task 2 deleted; 3 is the worst one.
  static void FillJob() {
    Module1.Units = 1;
    Module1.Hand = 1;
    Module1.JobAnalyst = "Ann Árnason";
    Module1.JobName = "Press line";
    Module1.JobWorkstationId = "W-17";
    Module1.JobDurationPerDay = 7.5;
    Module1.JobCycleTime = 1.255;
    for (int i = 0; i < 3; ++i) AddTask();
    Module1.TaskActive.at(2) = Integer{0};
    // 30 characters, some of two bytes; 25 are shown.
    Module1.TaskNames.at(3) = "Fälten och sträcka på ämnet nu";
    Module1.CtdWorkTime.at(3) = "0.055 min";
    Module1.CtdRepetitions.at(3) = 12.25;
    Module1.CtdForceMvc.at(3) = 45.5;
    Module1.CtdHandSpan.at(3) = 2.55;
    Module1.CtdGripType.at(3) = Integer{4};
    Module1.CtdWristPosition.at(3) = 3;
    Module1.CtdRadUlnDeviation.at(3) = 1;
    Module1.CtdFlexExtDeviation.at(3) = Integer{8};
    constexpr std::array<Integer, 8> kCategories{1, 2, 3, 1, 2, 1, 3, 2};
    for (int slot = 0; slot < kCtdSlotCount; ++slot) {
      StoreCtdCategory(slot, 3, kCategories.at(static_cast<std::size_t>(slot)));
    }
    Module1.CtdPostureFactorTask = 3;
    FillResults();
  }

  RichText pane_;
};

// Each shoulder row shows load and duration of the other side; the neck shows no load and the
// back's score.
constexpr std::string_view kFilledPage =
    R"(Cumulative Trauma Disorders Risk Assessment Model

Hand: Left Side

Analyst: Ann Árnason
Job Name: Press line
Workstation ID: W-17

Hours Worked per Shift: 8
Job Cycle Time (min): 1.26


Task ID|Task Dur. (min)|Action (#/min)|Force (%MVC)|Hand Span (in)
Task 1|0.00|0.0|0.0|0.0
Fälten och sträcka på ämn|0.06|12.3|45.5|2.6

Task ID  |Grip Type|Wrist Position|Rad/Uln Dev.|Flex/Ext Dev.
Task 1|Power Grip|Mid-Position (Neutral)|Neutral|Neutral
Fälten och sträcka på ämn|2-Point Pinch|Supination|Radial Deviation >15 deg.|Extension 5-15 deg.

Body Posture        |Angle   |Load Held|Duration|Max. Posture Score
Lt Shoulder Flex/Ext|Greater Than 20|31.0|3.10|100.00
Rt Shoulder Flex/Ext|Greater Than 45|30.0|3.00|101.00
Lt Shoulder Abd/Add|Greater Than 90|33.0|3.30|102.00
Rt Shoulder Abd/Add|Greater Than 30|32.0|3.20|103.00
Lt Elbow Flex/Ext   |>30 deg Extension|34.0|3.40|104.00
Rt elbow Flex/Ext   |> 10 deg. Flexion|35.0|3.50|105.00
Back Flexion          |Greater Than 45|36.0|3.60|106.00
Neck Flexion          |Greater Than 45|    |3.70|106.00

Force Frequency Factor: 0.60
Posture Factor   : 1.22

Grand Score: 5.13
(Note: Grand Score is predicted incidence rate per 200,000 worked hours)

^)";

TEST_F(CtdReport, JobOfTwoTasksAndADeletedOne) {
  FillJob();
  EXPECT_EQ(Write(), Printed(kFilledPage));
  EXPECT_EQ(Write(), Printed(kFilledPage)) << "again";
  EXPECT_TRUE(pane_.locked());
  EXPECT_EQ(pane_.pictures(), std::vector<std::string>{"ctd/report"});
}

constexpr std::string_view kPlainPosture =
    R"(Body Posture        |Angle   |Load Held|Duration|Max. Posture Score
Lt Shoulder Flex/Ext|Neutral Posture|11.0|1.10|0.00
Rt Shoulder Flex/Ext|Neutral Posture|10.0|1.00|0.00
Lt Shoulder Abd/Add|Neutral Posture|13.0|1.30|0.00
Rt Shoulder Abd/Add|Neutral Posture|12.0|1.20|0.00
Lt Elbow Flex/Ext   |Neutral Posture|14.0|1.40|0.00
Rt elbow Flex/Ext   |Neutral Posture|15.0|1.50|0.00
Back Flexion          |Neutral Posture|16.0|1.60|0.00
Neck Flexion          |Neutral Posture|    |1.70|0.00

Force Frequency Factor: 0.00
Posture Factor   : 0.00

Grand Score: 0.00
(Note: Grand Score is predicted incidence rate per 200,000 worked hours)

^)";
constexpr std::string_view kPlainTop = R"(Cumulative Trauma Disorders Risk Assessment Model

Hand: Right Side

Analyst: 
Job Name: 
Workstation ID: 

Hours Worked per Shift: 8
Job Cycle Time (min): 0.00


Task ID|Task Dur. (min)|Action (#/min)|Force (%MVC)|Hand Span (cm)
)";
constexpr std::string_view kGripHeading =
    "\nTask ID  |Grip Type|Wrist Position|Rad/Uln Dev.|Flex/Ext Dev.\n";

TEST_F(CtdReport, MetricJobOfOneTaskPrintsTheSpanAsTyped) {
  AddTask();
  Module1.CtdHandSpan.at(1) = "6.3";
  EXPECT_EQ(Write(), Printed(std::string(kPlainTop) + "Task 1|0.00|0.0|0.0|6.3\n" +
                             std::string(kGripHeading) +
                             "Task 1|Power Grip|Mid-Position (Neutral)|Neutral|Neutral\n\n" +
                             std::string(kPlainPosture)));
}

TEST_F(CtdReport, JobWithoutActiveTaskPrintsThePosturesOfTaskOne) {
  AddTask();
  Module1.TaskActive.at(1) = Integer{0};
  EXPECT_EQ(Write(), Printed(std::string(kPlainTop) + std::string(kGripHeading) + "\n" +
                             std::string(kPlainPosture)));
}

TEST_F(CtdReport, JobWithoutTaskOneFails) {
  EXPECT_EQ(FailureOf([this] { Write(); }), "SubscriptOutOfRange");
}

TEST_F(CtdReport, CodeWithoutRibbonFails) {
  FillJob();
  Module1.CtdWristPosition.at(3) = 2;
  EXPECT_EQ(FailureOf([this] { Write(); }), "SubscriptOutOfRange") << "wrist";
  Module1.CtdWristPosition.at(3) = 1;
  StoreCtdCategory(4, 3, 3);
  EXPECT_EQ(FailureOf([this] { Write(); }), "SubscriptOutOfRange") << "elbow";
}

constexpr CharacterFormat kHeading{.size = 10, .bold = true, .underline = true};
constexpr CharacterFormat kBold{.size = 10, .bold = true, .underline = false};
constexpr CharacterFormat kPlain{.size = 10, .bold = false, .underline = false};

TEST_F(CtdReport, EachParagraphHasItsAlignmentStopsAndLooks) {
  FillJob();
  pane_.SetLocked(true);
  pane_.SetTabCount(6);
  pane_.Append("old report");
  Write();
  const Stops none;
  // Headings stand on other stops than their rows.
  const Stops firstHeading{2500, 2500, 2500, 2500};
  const Stops heading{2500, 4300, 2500, 2500};
  const Stops rows{2500, 4300, 5750, 7200};
  const auto& paragraphs = pane_.paragraphs();
  ASSERT_EQ(paragraphs.size(), 37U);
  for (std::size_t i = 0; i < paragraphs.size(); ++i) {
    const Paragraph& paragraph = paragraphs[i];
    EXPECT_EQ(paragraph.format.alignment, i < 2 ? Alignment::Center : Alignment::Left) << i;
    const bool isHeading = i == 12 || i == 16 || i == 20;
    const Stops& stops = i < 12               ? none
                         : i == 12            ? firstHeading
                         : i == 16 || i == 20 ? heading
                                              : rows;
    EXPECT_EQ(paragraph.format.tabStops, stops) << i;
    if (i == 30 || i == 31 || i == 33) {
      ASSERT_EQ(paragraph.runs.size(), 2U) << i;
      EXPECT_EQ(paragraph.runs[0].format, kBold) << i;
      EXPECT_EQ(paragraph.runs[1].format, kPlain) << i;
      continue;
    }
    for (const TextRun& run : paragraph.runs) {
      EXPECT_EQ(run.format, i == 0 || isHeading ? kHeading : kPlain) << i << " " << run.text;
    }
  }
}

}  // namespace
}  // namespace halvane
