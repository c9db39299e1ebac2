#include "tools/rula/rula_report.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/report_page.h"
#include "tests/tools/rula/rula_support.h"
#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_score.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

using TextRun = Run;
using Stops = std::vector<int>;

class RulaReport : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
  /// What opening the tool and its report tab does.
  std::string Open() {
    EXPECT_TRUE(RowOf(Tool::Rula).WriteReport(pane_));
    return pane_.text();
  }
  /// The report of results that are put in place.
  std::string Write() {
    RULA_Report(pane_);
    return pane_.text();
  }
  RichText pane_;
};

constexpr std::string_view kShortestPage = R"(Rapid Upper Limb Assessment (RULA)

Analyst: 
Job Name: 
Workstation ID: 

Hand: Right Side

Body Parts|Posture|RULA Score
Wrist|Neutral|1
Wrist|In mid-range of wrist twisting range|1
Upper Arms|-20 to 20|1
Lower Arms|0 to 90|1
Neck|0 - 10|1
Trunk|Neutral|1
Legs|Legs/feet well-supported|1

Body Parts|Posture Score|Muscle Score|Force Score|Total
Arm+Wrist|1|0|0|1
Neck+Leg+Trunk|1|0|0|1


RULA Grand Score: 1

Recommendation:
|The Posture is acceptable if it is not maintained or repeated for long periods.)";

TEST_F(RulaReport, FreshJobIsTheShortest) {
  EXPECT_EQ(Open(), Printed(kShortestPage));
  EXPECT_EQ(Module1.JobDirty, kTrue) << "the form's load ran";
  EXPECT_EQ(pane_.pictures(), std::vector<std::string>{});
}

/// Every control that adds a row, with choices that are not the first.
void FillJob() {
  Module1.JobAnalyst = "Ann Árnason";
  Module1.JobName = "Press line, 2nd shift";
  Module1.JobWorkstationId = "W-17";
  Module1.Hand = 1;
  constexpr std::array<Integer, 20> kStates{3, 1, 1, 1, 1, 1, 2, 1, 1, 1,
                                            1, 1, 2, 1, 1, 1, 1, 2, 1, 1};
  for (int i = 0; i < 20; ++i) {
    Module1.RulaControlState.at(i) = kStates.at(static_cast<std::size_t>(i));
  }
}

constexpr std::string_view kFilledPage = R"(Rapid Upper Limb Assessment (RULA)

Analyst: Ann Árnason
Job Name: Press line, 2nd shift
Workstation ID: W-17

Hand: Left Side

Body Parts|Posture|RULA Score
Wrist|<-20|3
Wrist|At/near end of wrist twisting range|2
Wrist|Side Bent|1
Upper Arms|46 to 90 |3
Upper Arms|Shoulder is raised|1
Upper Arms|Upper arm is abducted|1
Upper Arms|Arm is supported|-1
Lower Arms|> 90|2
Lower Arms|Lower arm cross body midline|1
Neck|Exten.|4
Neck|Neck is twisting|1
Neck|Neck is side bending|1
Trunk|21 - 60|3
Trunk|Twisting|1
Trunk|Side Bend|1
Trunk|Not well supported while seated|1
Legs|Legs/feet not supported + uneven|2

Body Parts|Posture Score|Muscle Score|Force Score|Total
Arm+Wrist|6|2|2|10
Neck+Leg+Trunk|6|2|2|10


RULA Grand Score: 7

Recommendation:
|Investigate and change now.)";

TEST_F(RulaReport, JobWithEveryAddOn) {
  FillJob();
  EXPECT_EQ(Open(), Printed(kFilledPage));
}

TEST_F(RulaReport, SecondOpeningGivesTheSame) {
  FillJob();
  Open();
  const std::vector<Paragraph> first = pane_.paragraphs();
  RULA_Calculate();
  EXPECT_EQ(Write(), Printed(kFilledPage));
  EXPECT_EQ(pane_.paragraphs(), first);
}

TEST_F(RulaReport, EachNumberHasItsPlace) {
  FillJob();
  Integer next = 101;
  for (Integer* value : {&Module1.RulaWristFactors.at(0),
                         &Module1.RulaWristTwistFactor,
                         &Module1.RulaWristFactors.at(1),
                         &Module1.RulaUpperArmFactors.at(0),
                         &Module1.RulaUpperArmFactors.at(1),
                         &Module1.RulaUpperArmFactors.at(2),
                         &Module1.RulaUpperArmFactors.at(3),
                         &Module1.RulaLowerArmFactors.at(0),
                         &Module1.RulaLowerArmFactors.at(1),
                         &Module1.RulaNeckFactors.at(0),
                         &Module1.RulaNeckFactors.at(1),
                         &Module1.RulaNeckFactors.at(2),
                         &Module1.RulaTrunkFactors.at(0),
                         &Module1.RulaTrunkFactors.at(1),
                         &Module1.RulaTrunkFactors.at(2),
                         &Module1.RulaTrunkFactors.at(3),
                         &Module1.RulaLegFactor,
                         &Module1.RulaArmWristPosture,
                         &Module1.RulaMuscleScore,
                         &Module1.RulaForceScore,
                         &Module1.RulaArmWristTotal,
                         &Module1.RulaNeckTrunkLegPosture,
                         &Module1.RulaNeckTrunkLegTotal}) {
    *value = next++;
  }
  Module1.RulaGrandScore = -32768;
  Write();
  constexpr std::string_view kNumbers = R"(Body Parts|Posture|RULA Score
Wrist|<-20|101
Wrist|At/near end of wrist twisting range|102
Wrist|Side Bent|103
Upper Arms|46 to 90 |104
Upper Arms|Shoulder is raised|105
Upper Arms|Upper arm is abducted|106
Upper Arms|Arm is supported|107
Lower Arms|> 90|108
Lower Arms|Lower arm cross body midline|109
Neck|Exten.|110
Neck|Neck is twisting|111
Neck|Neck is side bending|112
Trunk|21 - 60|113
Trunk|Twisting|114
Trunk|Side Bend|115
Trunk|Not well supported while seated|116
Legs|Legs/feet not supported + uneven|117

Body Parts|Posture Score|Muscle Score|Force Score|Total
Arm+Wrist|118|119|120|121
Neck+Leg+Trunk|122|119|120|123


RULA Grand Score: -32768

Recommendation:
|The Posture is acceptable if it is not maintained or repeated for long periods.)";
  EXPECT_TRUE(pane_.text().ends_with(Printed(kNumbers))) << pane_.text();
}

struct AddOnRow {
  int state;
  std::string_view text;
};

TEST_F(RulaReport, AddOnHasItsRowForAStateOfOneAlone) {
  constexpr auto kRows = std::to_array<AddOnRow>({
      {7, "\r\nWrist\tSide Bent\t"},
      {1, "\r\nUpper Arms\tShoulder is raised\t"},
      {2, "\r\nUpper Arms\tUpper arm is abducted\t"},
      {3, "\r\nUpper Arms\tArm is supported\t"},
      {5, "\r\nLower Arms\tLower arm cross body midline\t"},
      {10, "\r\nNeck\tNeck is twisting\t"},
      {11, "\r\nNeck\tNeck is side bending\t"},
      {13, "\r\nTrunk\tTwisting\t"},
      {14, "\r\nTrunk\tSide Bend\t"},
      {19, "\r\nTrunk\tNot well supported while seated\t"},
  });
  const std::size_t shortest = Write().size();
  for (const AddOnRow& row : kRows) {
    for (const Integer value : std::array<Integer, 4>{0, 2, -1, 32767}) {
      Module1.RulaControlState.at(row.state) = value;
      EXPECT_EQ(Write().size(), shortest) << row.state << " " << value;
    }
    Module1.RulaControlState.at(row.state) = 1;
    EXPECT_EQ(Write().size(), shortest + row.text.size() + 1) << row.state;
    EXPECT_NE(pane_.text().find(row.text), std::string::npos) << row.state;
    Module1.RulaControlState.at(row.state) = 0;
  }
}

struct CaptionRow {
  std::string_view array;
  int state;
  std::string_view region;
};

TEST_F(RulaReport, RowShowsTheCaptionOfItsChoiceWithTrailingBlanks) {
  constexpr auto kRows = std::to_array<CaptionRow>({
      {"SSRibbon1", 0, "Upper Arms"},
      {"SSRibbon2", 4, "Lower Arms"},
      {"SSRibbon3", 6, "Wrist"},
      {"SSRibbon4", 9, "Neck"},
      {"SSRibbon5", 12, "Trunk"},
  });
  FillRulaFactors(9);
  for (const CaptionRow& row : kRows) {
    const auto choices = ChoicesOf(row.array);
    const auto count = static_cast<int>(choices.size());
    for (int i = 0; i < count; ++i) {
      Module1.RulaControlState.at(row.state) = static_cast<Integer>(i);
      const std::string caption(choices[static_cast<std::size_t>(i)].caption);
      const std::string line = "\r\n" + std::string(row.region) + "\t" + caption + "\t9\r\n";
      EXPECT_NE(Write().find(line), std::string::npos) << row.array << i << pane_.text();
    }
    for (const int index : {-1, count}) {
      Module1.RulaControlState.at(row.state) = static_cast<Integer>(index);
      EXPECT_EQ(FailureOf([this] { Write(); }), "SubscriptOutOfRange") << row.array << index;
    }
    Module1.RulaControlState.at(row.state) = 0;
  }
  Module1.RulaControlState.at(0) = 1;
  EXPECT_NE(Write().find("\r\nUpper Arms\t<-20        \t9\r\n"), std::string::npos);
}

TEST_F(RulaReport, TwistThatIsNoOptionFails) {
  for (const Integer twist : std::array<Integer, 2>{-1, 2}) {
    Module1.RulaControlState.at(8) = twist;
    EXPECT_EQ(FailureOf([this] { Write(); }), "SubscriptOutOfRange") << twist;
  }
}

TEST_F(RulaReport, LegsThatAreNeitherPrintNoRow) {
  for (const Integer legs : std::array<Integer, 3>{2, -1, 32767}) {
    Module1.RulaControlState.at(15) = legs;
    EXPECT_EQ(Write().find("Legs"), std::string::npos) << legs;
    EXPECT_NE(pane_.text().find("\r\nTrunk\tNeutral\t0\r\n\r\nBody Parts"), std::string::npos);
  }
}

TEST_F(RulaReport, RecommendationFollowsTheGrandScore) {
  constexpr std::array<std::string_view, 8> kTexts{
      "The Posture is acceptable if it is not maintained or repeated for long periods.",
      "The Posture is acceptable if it is not maintained or repeated for long periods.",
      "The Posture is acceptable if it is not maintained or repeated for long periods.",
      "Further investigation is needed.",
      "Further investigation is needed.",
      "Further investigation and changes are required soon.",
      "Further investigation and changes are required soon.",
      "Investigate and change now.",
  };
  for (Integer grand = 0; grand < 8; ++grand) {
    Module1.RulaGrandScore = grand;
    const std::string end = "RULA Grand Score: " + std::to_string(grand) +
                            "\r\n\r\nRecommendation:\r\n\t" +
                            std::string(kTexts.at(static_cast<std::size_t>(grand)));
    EXPECT_TRUE(Write().ends_with(end)) << pane_.text();
  }
}

TEST_F(RulaReport, HandThatIsNotZeroIsTheLeftOne) {
  for (const Integer hand : std::array<Integer, 3>{1, 2, -1}) {
    Module1.Hand = hand;
    EXPECT_NE(Write().find("\r\nHand: Left Side\r\n"), std::string::npos) << hand;
  }
}

TEST_F(RulaReport, PaneStaysOpenAndStartsWithoutWhatWasInIt) {
  pane_.SetFont({.size = 20, .bold = true, .underline = true});
  pane_.SetAlignment(Alignment::Right);
  pane_.SetTabCount(6);
  pane_.Append("old report");
  EXPECT_EQ(Open(), Printed(kShortestPage));
  EXPECT_FALSE(pane_.locked());
  EXPECT_EQ(pane_.paragraphs().front().format.tabStops, Stops{});
}

TEST_F(RulaReport, SavedChoiceThatIsNoneWritesNothing) {
  Module1.RulaControlState.at(9) = 4;
  EXPECT_EQ(FailureOf([this] { RowOf(Tool::Rula).WriteReport(pane_); }), "SubscriptOutOfRange");
  EXPECT_EQ(pane_.text(), "");
}

constexpr CharacterFormat kTitle{.size = 12, .bold = true, .underline = true};
constexpr CharacterFormat kHeading{.size = 10, .bold = true, .underline = true};
constexpr CharacterFormat kPlain{.size = 10, .bold = false, .underline = false};

struct ParagraphRow {
  Alignment alignment;
  Stops stops;
  std::vector<TextRun> runs;
};

std::vector<ParagraphRow> ShortestParagraphs() {
  constexpr Alignment kLeft = Alignment::Left;
  const Stops none;
  const Stops postures{2500, 8000, 7500, 8000};
  const Stops totals{2500, 4500, 6500, 8000};
  const Stops advice{500, 4500, 6500, 8000};
  const auto plain = [](std::string text) {
    return std::vector<TextRun>{{std::move(text), kPlain, {}}};
  };
  return {
      {Alignment::Center, none, {{"Rapid Upper Limb Assessment (RULA)", kTitle, {}}}},
      // Made by the line end of the title, and nothing is written into it.
      {Alignment::Center, none, {}},
      {kLeft, none, plain("Analyst: ")},
      {kLeft, none, plain("Job Name: ")},
      {kLeft, none, plain("Workstation ID: ")},
      {kLeft, none, {}},
      {kLeft, none, plain("Hand: Right Side")},
      {kLeft, none, {}},
      {kLeft, postures, {{"Body Parts\tPosture\tRULA Score", kHeading, {}}}},
      {kLeft, postures, plain("Wrist\tNeutral\t1")},
      {kLeft, postures, plain("Wrist\tIn mid-range of wrist twisting range\t1")},
      {kLeft, postures, plain("Upper Arms\t-20 to 20\t1")},
      {kLeft, postures, plain("Lower Arms\t0 to 90\t1")},
      {kLeft, postures, plain("Neck\t0 - 10\t1")},
      {kLeft, postures, plain("Trunk\tNeutral\t1")},
      {kLeft, postures, plain("Legs\tLegs/feet well-supported\t1")},
      {kLeft, postures, {}},
      {kLeft,
       totals,
       {{"Body Parts\tPosture Score\tMuscle Score\tForce Score\tTotal", kHeading, {}}}},
      {kLeft, totals, plain("Arm+Wrist\t1\t0\t0\t1")},
      {kLeft, totals, plain("Neck+Leg+Trunk\t1\t0\t0\t1")},
      {kLeft, totals, {}},
      {kLeft, totals, {}},
      {kLeft, totals, {{"RULA Grand Score:", kHeading, {}}, {" 1", kPlain, {}}}},
      {kLeft, totals, {}},
      {kLeft, advice, plain("Recommendation:")},
      {kLeft, advice,
       plain("\tThe Posture is acceptable if it is not maintained or repeated for long periods.")},
  };
}

TEST_F(RulaReport, EachParagraphHasItsAlignmentStopsAndLooks) {
  Open();
  const std::vector<ParagraphRow> expected = ShortestParagraphs();
  const std::vector<Paragraph>& paragraphs = pane_.paragraphs();
  ASSERT_EQ(paragraphs.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(paragraphs[i].format.alignment, expected[i].alignment) << i;
    EXPECT_EQ(paragraphs[i].format.tabStops, expected[i].stops) << i;
    EXPECT_EQ(paragraphs[i].lineEnd, i + 1 < expected.size() ? "\r\n" : "") << i;
    EXPECT_EQ(paragraphs[i].runs, expected[i].runs) << i;
  }
}

}  // namespace
}  // namespace halvane
