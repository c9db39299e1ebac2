#include "tools/reba/reba_report.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/report_page.h"
#include "tools/reba/reba_controls.h"
#include "tools/reba/reba_score.h"

namespace halvane {
namespace {

// Inside a test, `Run` is a member of the test class.
using TextRun = Run;
using Stops = std::vector<int>;

class RebaReportText : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() { Module1 = JobState{}; }
  /// What opening the tool and its report tab does.
  std::string Open() {
    RebaControls controls;
    controls.Load();
    REBA_Calculate();
    REBA_Report(pane_);
    return pane_.text();
  }
  static void SaveStates(const std::array<Integer, 23>& states) {
    for (int i = 0; i < 23; ++i) {
      Module1.RebaControlState.at(i) = states.at(static_cast<std::size_t>(i));
    }
  }
  /// Every control away from its first choice, every box checked.
  static void FillJob() {
    Module1.JobAnalyst = "Ann Árnason";
    Module1.JobName = "Press line, 2nd shift";
    Module1.JobWorkstationId = "W-17";
    Module1.Hand = 1;
    SaveStates({4, 1, 1, 1, 2, 0, 2, 1, 0, 1, 1, 0, 3, 1, 0, 2, 2, 2, 1, 3, 1, 1, 1});
  }
  /// The rows of the factor table.
  std::string FactorRows() {
    const std::string text = pane_.text();
    constexpr std::string_view kHeader = "REBA Score\r\n";
    const std::size_t start = text.find(kHeader);
    const std::size_t end = text.find("\r\n\r\nBody Parts");
    if (start == std::string::npos || end == std::string::npos) return "no table";
    return text.substr(start + kHeader.size(), end - start - kHeader.size());
  }

  RichText pane_;
};

TEST_F(RebaReportText, FreshJob) {
  EXPECT_EQ(Open(), Printed(R"(Rapid Entire Body Assessment (REBA)

Analyst: 
Job Name: 
Workstation ID: 

Hand: Right Side

Job Factors|Categories|REBA Score
Wrist|Neutral|1
Upper Arms|-20 to 20|1
Lower Arms|60-100|1
Neck|0 to 20|1
Trunk|Neutral   |1
Legs|Legs/feet well-supported|1
Force|<5 kg     |0
Coupling|Good       |0

Body Parts|Posture Score|Force Score|Grip Score|Total
Neck+Leg+Trunk|1|0|  |1
Arm+Wrist|1|  |0|1


REBA Grand Score: 1

Recommendation:
|Action Level = 0
|Risk Level = Negligible
|Action (including further assessment) = None necessary)"));
}

// Trunk 5, neck 3, legs 4 give 9; upper arm 5, lower arm 2, wrist 3 give 8; 12 and 11 give 12.
constexpr std::string_view kFullPage = R"(Rapid Entire Body Assessment (REBA)

Analyst: Ann Árnason
Job Name: Press line, 2nd shift
Workstation ID: W-17

Hand: Left Side

Job Factors|Categories|REBA Score
Wrist|<-15|2
Wrist|Side Bent or Twist|1
Upper Arms|>+90       |4
Upper Arms|Shoulder is raised|1
Upper Arms|Upper arm is abducted     |1
Upper Arms|Arm is supported|-1
Lower Arms|0 to 60|2
Neck|< -20   |2
Neck|Neck is twisting or side bending   |1
Trunk|> 60       |4
Trunk|Trunk is twisting or side bending   |1
Legs|Leg/foot not supported + uneven   |2
Legs|30 to 60|2
Force|>10 kg    |2
Force|Shock/rapid build up of force|1
Coupling|Unacceptable|3
Muscle Use|Static, eg. held for longer than 1 min|1
Muscle Use|Repeated +4 times/min   |1
Muscle Use|Rapid large posture change or unstable base|1

Body Parts|Posture Score|Force Score|Grip Score|Total
Neck+Leg+Trunk|9|3|  |12
Arm+Wrist|8|  |3|11


REBA Grand Score: 15

Recommendation:
|Action Level = 4
|Risk Level = Very High
|Action (including further assessment) = Necessary NOW)";

TEST_F(RebaReportText, FullJob) {
  FillJob();
  EXPECT_EQ(Open(), Printed(kFullPage));
}

TEST_F(RebaReportText, SecondOpeningGivesTheSame) {
  FillJob();
  Open();
  const std::vector<Paragraph> first = pane_.paragraphs();
  EXPECT_EQ(Open(), Printed(kFullPage));
  EXPECT_EQ(pane_.paragraphs(), first);
  EXPECT_EQ(pane_.pictures(), std::vector<std::string>{});
}

TEST_F(RebaReportText, PaneIsNotLocked) {
  Open();
  EXPECT_FALSE(pane_.locked());
}

TEST_F(RebaReportText, TaggedNamesAreShownAsText) {
  Module1.JobAnalyst = Integer{7};
  Module1.JobName = TaggedField();
  EXPECT_NE(Open().find("\r\nAnalyst: 7\r\nJob Name: \r\nWorkstation ID: \r\n"), std::string::npos);
}

TEST_F(RebaReportText, HandThatIsNotZeroIsTheLeftOne) {
  Open();
  for (const Integer hand : std::array<Integer, 3>{1, 2, -1}) {
    Module1.Hand = hand;
    REBA_Report(pane_);
    EXPECT_NE(pane_.text().find("\r\nHand: Left Side\r\n"), std::string::npos) << hand;
  }
}

struct FactorRow {
  int entry;
  Integer state;
  std::string_view row;  ///< of the factor table, which the entry brings
};

TEST_F(RebaReportText, EachStateHasItsRow) {
  const std::vector<FactorRow> rows{
      {0, 0, "Upper Arms|-20 to 20|11"},
      {0, 1, "Upper Arms|<-20         |11"},
      {0, 2, "Upper Arms|21 to 45 |11"},
      {0, 3, "Upper Arms|46 to 90 |11"},
      {0, 4, "Upper Arms|>+90       |11"},
      {1, 1, "Upper Arms|Shoulder is raised|12"},
      {2, 1, "Upper Arms|Upper arm is abducted     |13"},
      {3, 1, "Upper Arms|Arm is supported|-14"},
      {4, 0, "Lower Arms|60-100|15"},
      {4, 1, "Lower Arms|> 100|15"},
      {4, 2, "Lower Arms|0 to 60|15"},
      {6, 0, "Wrist|Neutral|16"},
      {6, 1, "Wrist|> 15|16"},
      {6, 2, "Wrist|<-15|16"},
      {6, 3, "Wrist|Side Bent or Twist|16"},
      {7, 1, "Wrist|Side Bent or Twist|17"},
      {9, 0, "Neck|0 to 20|18"},
      {9, 1, "Neck|< -20   |18"},
      {9, 2, "Neck|> 20    |18"},
      {10, 1, "Neck|Neck is twisting or side bending   |19"},
      {12, 0, "Trunk|Neutral   |21"},
      {12, 1, "Trunk|0 to 20   |21"},
      {12, 2, "Trunk|21 to 60   |21"},
      {12, 3, "Trunk|> 60       |21"},
      {12, 4, "Trunk|-20 to 0   |21"},
      {12, 5, "Trunk|< -20       |21"},
      {13, 1, "Trunk|Trunk is twisting or side bending   |22"},
      {15, 1, "Legs|Legs/feet well-supported|24"},
      {15, 2, "Legs|Leg/foot not supported + uneven   |24"},
      {16, 1, "Legs|30 to 60   |25"},
      {16, 2, "Legs|30 to 60|25"},
      {17, 0, "Force|<5 kg     |26"},
      {17, 1, "Force|5-10 kg   |26"},
      {17, 2, "Force|>10 kg    |26"},
      {18, 1, "Force|Shock/rapid build up of force|27"},
      {19, 0, "Coupling|Good       |28"},
      {19, 1, "Coupling|Fair       |28"},
      {19, 2, "Coupling|Poor        |28"},
      {19, 3, "Coupling|Unacceptable|28"},
      {20, 1, "Muscle Use|Static, eg. held for longer than 1 min|1"},
      {21, 1, "Muscle Use|Repeated +4 times/min   |1"},
      {22, 1, "Muscle Use|Rapid large posture change or unstable base|1"},
  };
  for (const FactorRow& row : rows) {
    SCOPED_TRACE(row.row);
    StartFresh();
    Module1.RebaUpperArmFactors.at(0) = 11;
    Module1.RebaUpperArmFactors.at(1) = 12;
    Module1.RebaUpperArmFactors.at(2) = 13;
    Module1.RebaUpperArmFactors.at(3) = -14;
    Module1.RebaLowerArmFactor = 15;
    Module1.RebaWristFactors.at(0) = 16;
    Module1.RebaWristFactors.at(1) = 17;
    Module1.RebaNeckFactors.at(0) = 18;
    Module1.RebaNeckFactors.at(1) = 19;
    Module1.RebaNeckFactors.at(2) = 20;
    Module1.RebaTrunkFactors.at(0) = 21;
    Module1.RebaTrunkFactors.at(1) = 22;
    Module1.RebaTrunkFactors.at(2) = 23;
    Module1.RebaLegFactors.at(0) = 24;
    Module1.RebaLegFactors.at(1) = 25;
    Module1.RebaForceFactors.at(0) = 26;
    Module1.RebaForceFactors.at(1) = 27;
    Module1.RebaCouplingFactor = 28;
    Module1.RebaActivityFactor = 29;
    Module1.RebaControlState.at(row.entry) = row.state;
    REBA_Report(pane_);
    // The row comes once, and nothing but the seven rows that are always there beside it.
    const std::string table = "\r\n" + FactorRows() + "\r\n";
    const std::string line = "\r\n" + Printed(row.row) + "\r\n";
    const std::size_t at = table.find(line);
    ASSERT_NE(at, std::string::npos) << table;
    EXPECT_EQ(table.find(line, at + 1), std::string::npos);
    const bool always = row.entry == 0 || row.entry == 4 || row.entry == 6 || row.entry == 9 ||
                        row.entry == 12 || row.entry == 17 || row.entry == 19;
    std::size_t lines = 0;
    for (const char c : table) lines += c == '\n' ? 1 : 0;
    EXPECT_EQ(lines - 1, always ? 7U : 8U) << table;
  }
}

TEST_F(RebaReportText, JobWithNeitherLegRibbonDownHasNoStabilityRow) {
  REBA_Report(pane_);
  EXPECT_EQ(FactorRows(), Printed(R"(Wrist|Neutral|0
Upper Arms|-20 to 20|0
Lower Arms|60-100|0
Neck|0 to 20|0
Trunk|Neutral   |0
Force|<5 kg     |0
Coupling|Good       |0)"));
}

TEST_F(RebaReportText, StateThatIsNot1BringsNoRow) {
  Open();
  const std::string fresh = FactorRows();
  for (const int entry : {1, 2, 3, 7, 10, 13, 16, 18, 20, 21, 22}) {
    for (const Integer state : std::array<Integer, 3>{0, 3, -1}) {
      Module1.RebaControlState.at(entry) = state;
      REBA_Report(pane_);
      EXPECT_EQ(FactorRows(), fresh) << entry << " = " << state;
    }
    Module1.RebaControlState.at(entry) = 0;
  }
}

TEST_F(RebaReportText, AddOnLeftFromTheJobBeforeIsInTheScoresAndInNoRow) {
  FillJob();
  Open();
  JobReset();
  Open();
  EXPECT_EQ(FactorRows(), Printed(R"(Wrist|Neutral|1
Upper Arms|-20 to 20|1
Lower Arms|60-100|1
Neck|0 to 20|1
Trunk|Neutral   |1
Legs|Legs/feet well-supported|1
Force|<5 kg     |0
Coupling|Good       |0)"));
  EXPECT_NE(pane_.text().find("\r\nREBA Grand Score: 9\r\n"), std::string::npos);
}

TEST_F(RebaReportText, WristOf3IsCalledSideBentTwice) {
  Module1.RebaControlState.at(6) = 3;
  Open();
  EXPECT_TRUE(FactorRows().starts_with(
      Printed("Wrist|Side Bent or Twist|0\nWrist|Side Bent or Twist|1\nUpper Arms|")))
      << FactorRows();
}

TEST_F(RebaReportText, ScoresAndRecommendationByGrandScore) {
  struct ScoreRow {
    Integer grandScore;
    std::string_view recommendation;
  };
  constexpr std::string_view kNone =
      "|Action Level = 0\n|Risk Level = Negligible\n"
      "|Action (including further assessment) = None necessary";
  constexpr std::string_view kMaybe =
      "|Action Level = 1\n|Risk Level = Low\n"
      "|Action (including further assessment) = May be necessary";
  constexpr std::string_view kNecessary =
      "|Action Level = 2\n|Risk Level = Medium\n"
      "|Action (including further assessment) = Necessary";
  constexpr std::string_view kSoon =
      "|Action Level = 3\n|Risk Level = High\n"
      "|Action (including further assessment) = Necessary soon";
  constexpr std::string_view kNow =
      "|Action Level = 4\n|Risk Level = Very High\n"
      "|Action (including further assessment) = Necessary NOW";
  Module1.RebaScoreA = 21;
  Module1.RebaForceScore = 22;
  Module1.RebaScoreATotal = 23;
  Module1.RebaScoreB = 24;
  Module1.RebaCouplingScore = 25;
  Module1.RebaScoreBTotal = 26;
  // It is not shown.
  Module1.RebaActivityScore = 27;
  const std::vector<ScoreRow> rows{
      {-1, kNone},     {0, kNone}, {1, kNone},  {2, kMaybe}, {3, kMaybe}, {4, kNecessary},
      {7, kNecessary}, {8, kSoon}, {10, kSoon}, {11, kNow},  {15, kNow},
  };
  for (const ScoreRow& row : rows) {
    Module1.RebaGrandScore = row.grandScore;
    REBA_Report(pane_);
    const std::string text = pane_.text();
    const std::size_t start = text.find("Body Parts");
    ASSERT_NE(start, std::string::npos);
    EXPECT_EQ(text.substr(start),
              Printed("Body Parts|Posture Score|Force Score|Grip Score|Total\n"
                      "Neck+Leg+Trunk|21|22|  |23\nArm+Wrist|24|  |25|26\n\n\nREBA Grand Score: " +
                      std::to_string(row.grandScore) + "\n\nRecommendation:\n" +
                      std::string(row.recommendation)));
  }
}

TEST_F(RebaReportText, StateThatNamesNoControlFails) {
  struct StateRow {
    int entry;
    Integer beyond;
  };
  for (const StateRow& row :
       std::array<StateRow, 7>{{{0, 5}, {4, 3}, {6, 4}, {9, 3}, {12, 6}, {17, 3}, {19, 4}}}) {
    for (const Integer state : std::array<Integer, 2>{row.beyond, -1}) {
      StartFresh();
      Module1.RebaControlState.at(row.entry) = state;
      EXPECT_EQ(FailureOf([this] { REBA_Report(pane_); }), "SubscriptOutOfRange")
          << row.entry << " = " << state;
    }
  }
}

constexpr CharacterFormat kTitle{.size = 12, .bold = true, .underline = true};
constexpr CharacterFormat kHeading{.size = 10, .bold = true, .underline = true};
constexpr CharacterFormat kPlain{.size = 10, .bold = false, .underline = false};

struct ParagraphRow {
  Alignment alignment;
  Stops stops;
  std::vector<TextRun> runs;
};

std::vector<ParagraphRow> FreshParagraphs() {
  constexpr Alignment kLeft = Alignment::Left;
  const Stops none;
  const Stops factors{2500, 8000, 7500, 8000};
  const Stops scores{2500, 4500, 6300, 8000};
  const Stops advice{500, 4500, 6300, 8000};
  const auto plain = [](std::string text) {
    return std::vector<TextRun>{{std::move(text), kPlain, {}}};
  };
  const auto heading = [](std::string text) {
    return std::vector<TextRun>{{std::move(text), kHeading, {}}};
  };
  return {
      {Alignment::Center, none, {{"Rapid Entire Body Assessment (REBA)", kTitle, {}}}},
      // Made by the line end of the title, and nothing is written into it.
      {Alignment::Center, none, {}},
      {kLeft, none, plain("Analyst: ")},
      {kLeft, none, plain("Job Name: ")},
      {kLeft, none, plain("Workstation ID: ")},
      {kLeft, none, {}},
      {kLeft, none, plain("Hand: Right Side")},
      {kLeft, none, {}},
      {kLeft, factors, heading("Job Factors\tCategories\tREBA Score")},
      {kLeft, factors, plain("Wrist\tNeutral\t1")},
      {kLeft, factors, plain("Upper Arms\t-20 to 20\t1")},
      {kLeft, factors, plain("Lower Arms\t60-100\t1")},
      {kLeft, factors, plain("Neck\t0 to 20\t1")},
      {kLeft, factors, plain("Trunk\tNeutral   \t1")},
      {kLeft, factors, plain("Legs\tLegs/feet well-supported\t1")},
      {kLeft, factors, plain("Force\t<5 kg     \t0")},
      {kLeft, factors, plain("Coupling\tGood       \t0")},
      {kLeft, factors, {}},
      // The header has the stops of the table above, its rows have their own.
      {kLeft, factors, heading("Body Parts\tPosture Score\tForce Score\tGrip Score\tTotal")},
      {kLeft, scores, plain("Neck+Leg+Trunk\t1\t0\t  \t1")},
      {kLeft, scores, plain("Arm+Wrist\t1\t  \t0\t1")},
      {kLeft, scores, {}},
      {kLeft, scores, {}},
      {kLeft, scores, {{"REBA Grand Score: ", kHeading, {}}, {"1", kPlain, {}}}},
      {kLeft, scores, {}},
      {kLeft, advice, plain("Recommendation:")},
      {kLeft, advice, plain("\tAction Level = 0")},
      {kLeft, advice, plain("\tRisk Level = Negligible")},
      {kLeft, advice, plain("\tAction (including further assessment) = None necessary")},
  };
}

TEST_F(RebaReportText, EachParagraphHasItsAlignmentStopsAndLooks) {
  pane_.SetFont({.size = 20, .bold = true, .underline = true});
  pane_.SetAlignment(Alignment::Right);
  pane_.SetTabCount(5);
  pane_.Append("old report");
  Open();
  const std::vector<ParagraphRow> expected = FreshParagraphs();
  const std::vector<Paragraph>& paragraphs = pane_.paragraphs();
  ASSERT_EQ(paragraphs.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(paragraphs[i].format.alignment, expected[i].alignment) << i;
    EXPECT_EQ(paragraphs[i].format.tabStops, expected[i].stops) << i;
    EXPECT_EQ(paragraphs[i].lineEnd, i + 1 < expected.size() ? "\r\n" : "") << i;
    ASSERT_EQ(paragraphs[i].runs.size(), expected[i].runs.size()) << i;
    for (std::size_t run = 0; run < expected[i].runs.size(); ++run) {
      EXPECT_EQ(paragraphs[i].runs[run].text, expected[i].runs[run].text) << i;
      EXPECT_EQ(paragraphs[i].runs[run].format, expected[i].runs[run].format) << i;
    }
  }
}

}  // namespace
}  // namespace halvane
