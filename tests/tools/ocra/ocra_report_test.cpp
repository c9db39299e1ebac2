#include "tools/ocra/ocra_report.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"
#include "tests/tools/report_page.h"
#include "tools/ocra/ocra_score.h"

namespace halvane {
namespace {

using TextRun = Run;
using Stops = std::vector<int>;

class OcraReportText : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
  /// What opening the report tab does.
  std::string Open() {
    OcraScoreLists();
    OcraCalculate();
    OcraReport(pane_);
    return pane_.text();
  }
  static void AddTask(double minutes, double frequency, double rating) {
    const int task = AddTaskRecord();
    Module1.OcraTaskDuration.at(task) = minutes;
    Module1.OcraActionFrequency.at(task) = frequency;
    Module1.OcraForceRating.at(task) = rating;
  }
  /// Tasks 1 and 3, with task 2 deleted.
  static void FillJob() {
    Module1.Hand = 1;
    Module1.JobAnalyst = "Ann Árnason";
    Module1.JobName = "Press line";
    Module1.JobWorkstationId = "W-17";
    Module1.JobCycleTime = 1.255;
    Module1.OcraRecoveryHours = Integer{3};
    Module1.OcraComboChoice.at(2) = 2;
    Module1.OcraSameFingers = Integer{4};
    AddTask(100, 30, 0);
    AddTask(60, 20, 1);
    AddTask(50, 12.25, 2.5);
    Module1.TaskActive.at(2) = Integer{0};
    // 30 characters, some of two bytes; 25 are shown.
    Module1.TaskNames.at(3) = "Fälten och sträcka på ämnet nu";
  }

  RichText pane_;
};

TEST_F(OcraReportText, JobWithoutTasks) {
  EXPECT_EQ(Open(), Printed(R"(Occupational Repetitive Actions Index

Hand: Right Side

Analyst: 
Job Name: 
Workstation ID: 

Job Cycle Time (min): 0.00
Numbers Of Hours Without Adequate Recovery: 0

Task ID|Task Dur. (min)|Action (#/min)|Force Level

Task ID|Force Multiplier|Posture Multiplier|Recovery Multiplier

Total No. Of Actions Observed: 0.0
Total No. Of Recommended Actions: 0.0

OCRA Risk Index: 0.00

Recommendation:
|Zone: Green
|Risk Level: ABSENT
|Consequences: None

^^)"));
}

TEST_F(OcraReportText, JobOfOneTask) {
  AddTask(480, 30, 2.0);
  EXPECT_EQ(Open(), Printed(R"(Occupational Repetitive Actions Index

Hand: Right Side

Analyst: 
Job Name: 
Workstation ID: 

Job Cycle Time (min): 0.00
Numbers Of Hours Without Adequate Recovery: 0

Task ID|Task Dur. (min)|Action (#/min)|Force Level
Task 1|480.00|30.0|2.0

Task ID|Force Multiplier|Posture Multiplier|Recovery Multiplier
Task 1|0.65|1.00|1.00

Total No. Of Actions Observed: 14400.0
Total No. Of Recommended Actions: 9360.0

OCRA Risk Index: 1.54

Recommendation:
|Zone: Yellow/Green
|Risk Level: NEGLIGIBLE, predicted Work-related Musculoskeletal Disorders similar to reference groups.
|Consequences: None

^^)"));
}

// Posture 0.5 x 0.95 = 0.475; observed 3000 + 612.5; recommended 30 x 0.475 x 0.7 x (100 + 27.5) =
// 1271.8125; index 2.8404...
constexpr std::string_view kFilledPage = R"(Occupational Repetitive Actions Index

Hand: Left Side

Analyst: Ann Árnason
Job Name: Press line
Workstation ID: W-17

Job Cycle Time (min): 1.26
Numbers Of Hours Without Adequate Recovery: 3

Task ID|Task Dur. (min)|Action (#/min)|Force Level
Task 1|100.00|30.0|0.0
Fälten och sträcka på ämn|50.00|12.3|2.5

Task ID|Force Multiplier|Posture Multiplier|Recovery Multiplier
Task 1|1.00|0.48|0.70
Fälten och sträcka på ämn|0.55|0.48|0.70

Total No. Of Actions Observed: 3612.5
Total No. Of Recommended Actions: 1271.8

OCRA Risk Index: 2.84

Recommendation:
|Zone: Yellow
|Risk Level: SLIGHT, slight excess of Work-related Musculoskeletal Disorders predicted (upto 3 times).
|Consequences: 
||-Health surveillance recommended
||-Recommended to seek ways to improve exposure conditions (especially for higher values)

^^)";

TEST_F(OcraReportText, JobOfTwoTasksAndADeletedOne) {
  FillJob();
  EXPECT_EQ(Open(), Printed(kFilledPage));
}

TEST_F(OcraReportText, SecondOpeningGivesTheSame) {
  FillJob();
  Open();
  EXPECT_EQ(Open(), Printed(kFilledPage));
  EXPECT_TRUE(pane_.locked());
  EXPECT_EQ(pane_.pictures(), (std::vector<std::string>{"ocra/zones", "ocra/multipliers"}));
}

TEST_F(OcraReportText, HandThatIsNotZeroIsTheLeftOne) {
  for (const Integer hand : std::array<Integer, 3>{1, 2, -1}) {
    Module1.Hand = hand;
    EXPECT_NE(Open().find("\r\nHand: Left Side\r\n"), std::string::npos) << hand;
  }
}

TEST_F(OcraReportText, ZoneByIndex) {
  constexpr std::string_view kGreen = "|Zone: Green\n|Risk Level: ABSENT\n|Consequences: None\n";
  constexpr std::string_view kYellowGreen =
      "|Zone: Yellow/Green\n|Risk Level: NEGLIGIBLE, predicted Work-related Musculoskeletal "
      "Disorders similar to reference groups.\n|Consequences: None\n";
  constexpr std::string_view kYellow =
      "|Zone: Yellow\n|Risk Level: SLIGHT, slight excess of Work-related Musculoskeletal Disorders "
      "predicted (upto 3 times).\n|Consequences: \n||-Health surveillance recommended\n"
      "||-Recommended to seek ways to improve exposure conditions (especially for higher values)\n";
  constexpr std::string_view kRed =
      "|Zone: Red\n|Risk Level: PRESENT, significant excess of Work-related Musculoskeletal "
      "Disorders predicted.\n|Consequences: \n||-Redesign of tasks at workstations according to "
      "priority.\n||-Health surveillance plus training/information of exposed subjects.\n";
  struct Row {
    double index;
    std::string_view shown;
    std::string_view zone;
  };
  // The bounds leave a gap between 3.9 and 4.0 in which the block is empty.
  for (const Row& row : std::array<Row, 14>{{
           {-1, "-1.00", kGreen},
           {0, "0.00", kGreen},
           {1.0, "1.00", kGreen},
           {1.0001, "1.00", kYellowGreen},
           {2.0, "2.00", kYellowGreen},
           {2.0001, "2.00", kYellow},
           {3.9, "3.90", kYellow},
           {3.9001, "3.90", ""},
           {3.95, "3.95", ""},
           {3.9999, "4.00", ""},
           {4.0, "4.00", kRed},
           {4.0001, "4.00", kRed},
           {14400000, "14400000.00", kRed},
           {3, "3.00", kYellow},
       }}) {
    Module1.OcraRiskIndex = row.index;
    OcraReport(pane_);
    const std::string expected = Printed("OCRA Risk Index: " + std::string(row.shown) +
                                         "\n\nRecommendation:\n" + std::string(row.zone) + "\n^^");
    const std::string text = pane_.text();
    const std::size_t start = text.find("OCRA Risk Index:");
    ASSERT_NE(start, std::string::npos);
    EXPECT_EQ(text.substr(start), expected) << row.index;
  }
}

constexpr CharacterFormat kTitle{.size = 12, .bold = true, .underline = true};
constexpr CharacterFormat kHeading{.size = 10, .bold = true, .underline = true};
constexpr CharacterFormat kPlain{.size = 10, .bold = false, .underline = false};

TEST_F(OcraReportText, EachParagraphHasItsAlignmentStopsAndLooks) {
  FillJob();
  pane_.SetLocked(true);
  pane_.SetTabCount(5);
  pane_.Append("old report");
  Open();
  const Stops none;
  const Stops table{2500, 4500, 6500};
  const Stops zone{200, 700};
  for (std::size_t i = 0; i < pane_.paragraphs().size(); ++i) {
    const Paragraph& paragraph = pane_.paragraphs()[i];
    EXPECT_EQ(paragraph.format.alignment, i < 2 ? Alignment::Center : Alignment::Left) << i;
    const Stops& stops = i < 11 ? none : i < 25 ? table : zone;
    EXPECT_EQ(paragraph.format.tabStops, stops) << i;
    const bool heading = i == 11 || i == 15;
    if (i == 22) {
      EXPECT_EQ(paragraph.runs,
                (std::vector<TextRun>{{"OCRA Risk Index:", kHeading, {}}, {" 2.84", kPlain, {}}}));
      continue;
    }
    for (const TextRun& run : paragraph.runs) {
      EXPECT_EQ(run.format, i == 0 ? kTitle : heading ? kHeading : kPlain) << i << " " << run.text;
    }
  }
}

}  // namespace
}  // namespace halvane
