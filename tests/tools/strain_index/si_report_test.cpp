#include "tools/strain_index/si_report.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tools/strain_index/si_controls.h"
#include "tools/strain_index/si_score.h"

namespace halvane {
namespace {

// Inside a test, `Run` is a member of the test class.
using TextRun = Run;
using Stops = std::vector<int>;

constexpr std::string_view kNote =
    R"(NOTE: Preliminary testing has revealed that jobs associated with distal upper extremity disorders had SI Scores greater than 5.  SI Scores less than or equal to 3 are problably safe.  SI Scores greater than or equal to 7 are probably hazardous.  The strain Index does not consider stresses related to localized mechanical compression.  This risk factor should be considered separately. For additional information see Harl & Venn (1995).)";

/// The report as it reads in the source below: a line an end, "|" for a tab, "#" for the picture,
/// "@" for the note.
std::string Printed(std::string_view page) {
  std::string text;
  for (const char c : page) {
    if (c == '\n') {
      text += "\r\n";
    } else if (c == '|') {
      text += '\t';
    } else if (c == '#') {
      text += "\xEF\xBF\xBC";
    } else if (c == '@') {
      text += kNote;
    } else {
      text += c;
    }
  }
  return text;
}

class StrainIndexReport : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
  /// What opening the tool and its report tab does.
  void OpenReport() {
    SiControls controls;
    controls.Load();
    SI_Calculate(pane_);
  }

  RichText pane_;
};

TEST_F(StrainIndexReport, FreshJob) {
  OpenReport();
  EXPECT_EQ(pane_.text(), Printed(R"(Strain Index (SI)


Analyst: 
Job Name: 
Workstation ID: 

Hand: Right Side

Job Factors|Level|SI Score
Intensity of exertion|Light|1.0
Duration of exertion (%)   |0.0|0.5
Efforts/Minute|0.0|0.5
Hand/Wrist Posture|Very Good|1.0
Speed of work|Very Slow|1.0
Duration per Day (hr)|8.0|1.0

Strain Index Score: 0.3

Recommendation:
|Risk Level = Low

@

#)"));
}

// 5 minutes of 10 are 50 per cent, 30 in 4 minutes 7.5 a minute;
// 9 x 2 x 1 x 1.5 x 1.5 x 0.75 = 30.375.
void FillHighJob() {
  Module1.JobAnalyst = "Ann Árnason";
  Module1.JobName = "Press line, 2nd shift";
  Module1.JobWorkstationId = "W-17";
  Module1.Hand = 1;
  Module1.SiIntensityPick = Integer{8};
  Module1.SiPosturePick = Integer{2};
  Module1.SiSpeedPick = 3;
  Module1.SiExertionMinutes = "5";
  Module1.SiDutyObservationMinutes = 10.0;
  Module1.SiExertionCount = Integer{30};
  Module1.SiEffortObservationMinutes = 4;
  Module1.JobDurationPerDay = "2.25";
}

constexpr std::string_view kHighPage = R"(Strain Index (SI)


Analyst: Ann Árnason
Job Name: Press line, 2nd shift
Workstation ID: W-17

Hand: Left Side

Job Factors|Level|SI Score
Intensity of exertion|Very Hard|9.0
Duration of exertion (%)   |50.0|2.0
Efforts/Minute|7.5|1.0
Hand/Wrist Posture|Fair|1.5
Speed of work|Fast|1.5
Duration per Day (hr)|2.3|0.8

Strain Index Score: 30.4

Recommendation:
|Risk Level = High

@

#)";

TEST_F(StrainIndexReport, JobOfHighRisk) {
  FillHighJob();
  OpenReport();
  EXPECT_EQ(pane_.text(), Printed(kHighPage));
}

// 100 per cent rates the efforts 5 though they are 0.2 a minute; 1 x 3 x 3 x 1 x 1 x 0.75 = 6.75.
TEST_F(StrainIndexReport, JobOfModerateRiskWithoutPause) {
  Module1.JobAnalyst = Integer{7};
  Module1.JobName = TaggedField();
  Module1.SiPosturePick = Integer{6};
  Module1.SiSpeedPick = 7;
  Module1.SiExertionMinutes = 5.0;
  Module1.SiDutyObservationMinutes = 5.0;
  Module1.SiExertionCount = Integer{1};
  Module1.SiEffortObservationMinutes = 5;
  Module1.JobDurationPerDay = "3,9 hours";
  OpenReport();
  EXPECT_EQ(pane_.text(), Printed(R"(Strain Index (SI)


Analyst: 7
Job Name: 
Workstation ID: 

Hand: Right Side

Job Factors|Level|SI Score
Intensity of exertion|Light|1.0
Duration of exertion (%)   |100.0|3.0
Efforts/Minute|0.2|3.0
Hand/Wrist Posture|Good|1.0
Speed of work|Fair|1.0
Duration per Day (hr)|3.0|0.8

Strain Index Score: 6.8

Recommendation:
|Risk Level = Moderate

@

#)"));
}

TEST_F(StrainIndexReport, SecondOpeningGivesTheSameTextAndOnePicture) {
  FillHighJob();
  OpenReport();
  const std::vector<Paragraph> first = pane_.paragraphs();
  SI_Calculate(pane_);
  EXPECT_EQ(pane_.text(), Printed(kHighPage));
  EXPECT_EQ(pane_.paragraphs(), first);
  EXPECT_EQ(pane_.pictures(), std::vector<std::string>{"strain_index/risk_chart"});
}

TEST_F(StrainIndexReport, PaneIsLockedAgainAndStartsWithoutWhatWasInIt) {
  pane_.SetLocked(true);
  pane_.SetFont({.size = 20, .bold = true, .underline = true});
  pane_.SetAlignment(Alignment::Right);
  pane_.SetTabCount(5);
  pane_.Append("old report");
  FillHighJob();
  OpenReport();
  EXPECT_TRUE(pane_.locked());
  EXPECT_EQ(pane_.text(), Printed(kHighPage));
  EXPECT_EQ(pane_.paragraphs()[0].format.tabStops, Stops{});
}

constexpr CharacterFormat kTitle{.size = 12, .bold = true, .underline = true};
constexpr CharacterFormat kHeading{.size = 10, .bold = true, .underline = true};
constexpr CharacterFormat kBold{.size = 10, .bold = true, .underline = false};
constexpr CharacterFormat kPlain{.size = 10, .bold = false, .underline = false};

struct ParagraphRow {
  Alignment alignment;
  Stops stops;
  std::vector<TextRun> runs;
};

std::vector<ParagraphRow> HighParagraphs() {
  constexpr Alignment kLeft = Alignment::Left;
  const Stops none;
  const Stops table{4000, 6500, 7500};
  const Stops advice{500, 6500, 7500};
  const auto plain = [](std::string text) {
    return std::vector<TextRun>{{std::move(text), kPlain, {}}};
  };
  return {
      {Alignment::Center, none, {{"Strain Index (SI)", kTitle, {}}}},
      // Made by the line end of the title, and nothing is written into it.
      {Alignment::Center, none, {}},
      {kLeft, none, {}},
      {kLeft, none, plain("Analyst: Ann Árnason")},
      {kLeft, none, plain("Job Name: Press line, 2nd shift")},
      {kLeft, none, plain("Workstation ID: W-17")},
      {kLeft, none, {}},
      {kLeft, none, plain("Hand: Left Side")},
      {kLeft, none, {}},
      {kLeft, table, {{"Job Factors\tLevel\tSI Score", kHeading, {}}}},
      {kLeft, table, plain("Intensity of exertion\tVery Hard\t9.0")},
      {kLeft, table, plain("Duration of exertion (%)   \t50.0\t2.0")},
      {kLeft, table, plain("Efforts/Minute\t7.5\t1.0")},
      {kLeft, table, plain("Hand/Wrist Posture\tFair\t1.5")},
      {kLeft, table, plain("Speed of work\tFast\t1.5")},
      {kLeft, table, plain("Duration per Day (hr)\t2.3\t0.8")},
      {kLeft, table, {}},
      {kLeft, table, {{"Strain Index Score:", kBold, {}}, {" 30.4", kPlain, {}}}},
      {kLeft, table, {}},
      {kLeft, advice, plain("Recommendation:")},
      {kLeft, advice, plain("\tRisk Level = High")},
      {kLeft, advice, {}},
      {kLeft, advice, plain(std::string(kNote))},
      {kLeft, advice, {}},
      {kLeft, advice, {{"\uFFFC", kPlain, "strain_index/risk_chart"}}},
  };
}

TEST_F(StrainIndexReport, EachParagraphHasItsAlignmentStopsAndLooks) {
  FillHighJob();
  OpenReport();
  const std::vector<ParagraphRow> expected = HighParagraphs();
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
      EXPECT_EQ(paragraphs[i].runs[run].picture, expected[i].runs[run].picture) << i;
    }
  }
}

TEST_F(StrainIndexReport, HandThatIsNotZeroIsTheLeftOne) {
  OpenReport();
  for (const Integer hand : std::array<Integer, 3>{1, 2, -1}) {
    Module1.Hand = hand;
    SI_Report(pane_);
    EXPECT_NE(pane_.text().find("\r\nHand: Left Side\r\n"), std::string::npos) << hand;
  }
}

TEST_F(StrainIndexReport, RatingThatWasNeverSetFails) {
  EXPECT_EQ(FailureOf([this] { SI_Report(pane_); }), "SubscriptOutOfRange");
}

}  // namespace
}  // namespace halvane
