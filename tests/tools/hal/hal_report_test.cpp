#include "tools/hal/hal_report.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/report_page.h"
#include "tools/hal/hal_controls.h"
#include "tools/hal/hal_score.h"

namespace halvane {
namespace {

// Inside a test, `Run` is a member of the test class.
using TextRun = Run;

class HalReport : public testing::Test {
 protected:
  void SetUp() override {
    Module1 = JobState{};
    Module1.HalForceMode = kTrue;
  }
  /// What opening the tool does.
  void Open() {
    HalLoad();
    HAL_Calculate(pane_);
  }

  RichText pane_;
};

TEST_F(HalReport, FreshJobHasNoInputLines) {
  Open();
  EXPECT_EQ(pane_.text(), Printed(R"(ACGIH Hand Activity Level (HAL)

Analyst: 
Job Name: 
Workstation ID: 

Hand: Right Side

Input Data: 

Hand Activity Level: 0.0

Force Limit (% of maximum strength on a normalized 10-point scale):

Action Level: 5.33
Threshold Limit Value: 8.00)"));
}

// An accent in each name moves no look, since positions count characters.
void FillJob() {
  Module1.JobAnalyst = "Ann Árnason";
  Module1.JobName = "Café line, 2nd shift";
  Module1.JobWorkstationId = "Wörk 17";
  Module1.Hand = 1;
  HalTyped(kHalFrequency, "20");
  HalTyped(kHalDuty, "50");
}

constexpr std::string_view kFilledPage = R"(ACGIH Hand Activity Level (HAL)

Analyst: Ann Árnason
Job Name: Café line, 2nd shift
Workstation ID: Wörk 17

Hand: Left Side

Input Data: 

Exertion Frequency: 20.0 (# of exertion per minute)'& CR$
Duty Cycle: 50.0 (% of cycle time)'& CR$
Hand Activity Level: 5.0

Force Limit (% of maximum strength on a normalized 10-point scale):

Action Level: 2.67
Threshold Limit Value: 4.00)";

TEST_F(HalReport, FilledJobHasItsInputLinesWithTheirTails) {
  FillJob();
  Open();
  EXPECT_EQ(pane_.text(), Printed(kFilledPage));
}

TEST_F(HalReport, LevelSetByHandLeavesTheInputLinesOut) {
  FillJob();
  HalLevelMoved(7);
  Open();
  EXPECT_EQ(pane_.text(), Printed(R"(ACGIH Hand Activity Level (HAL)

Analyst: Ann Árnason
Job Name: Café line, 2nd shift
Workstation ID: Wörk 17

Hand: Left Side

Input Data: 

Hand Activity Level: 7.0

Force Limit (% of maximum strength on a normalized 10-point scale):

Action Level: 1.60
Threshold Limit Value: 2.40)"));
}

struct InputRow {
  const char* label;
  TaggedField frequency;
  TaggedField duty;
  const char* lines;
};

TEST_F(HalReport, InputLinesStandWhereBothNumbersAreAboveZero) {
  const std::array rows{
      InputRow{"both", 20.25, "5,5 per cent",
               "Exertion Frequency: 20.3 (# of exertion per minute)'& CR$\r\n"
               "Duty Cycle: 5.0 (% of cycle time)'& CR$\r\n"},
      InputRow{"both hardly above", 0.01, 0.04,
               "Exertion Frequency: 0.0 (# of exertion per minute)'& CR$\r\n"
               "Duty Cycle: 0.0 (% of cycle time)'& CR$\r\n"},
      InputRow{"duty above 100", Integer{20}, Integer{150},
               "Exertion Frequency: 20.0 (# of exertion per minute)'& CR$\r\n"
               "Duty Cycle: 150.0 (% of cycle time)'& CR$\r\n"},
      InputRow{"no duty", 20.0, 0.0, ""},
      InputRow{"negative duty", 20.0, -1.0, ""},
      InputRow{"no frequency", 0.0, 50.0, ""},
      InputRow{"negative frequency", -20.0, 50.0, ""},
      InputRow{"both negative", -20.0, -50.0, ""},
      InputRow{"letters", "abc", "def", ""},
      InputRow{"empty", TaggedField(), TaggedField(), ""},
  };
  for (const InputRow& row : rows) {
    Module1.HalExertionFrequency = row.frequency;
    Module1.HalDutyCycle = row.duty;
    HAL_Print(pane_);
    const std::string expected =
        std::string("\r\nInput Data: \r\n\r\n") + row.lines + "Hand Activity Level: ";
    EXPECT_NE(pane_.text().find(expected), std::string::npos) << row.label << pane_.text();
  }
}

struct LimitRow {
  TaggedField level;
  const char* lines;
};

TEST_F(HalReport, LimitsStandAsComputedNegativeOnesToo) {
  const std::array rows{
      LimitRow{"3.0",
               "Hand Activity Level: 3.0\r\n\r\nForce Limit (% of maximum strength on a normalized "
               "10-point scale):\r\n\r\nAction Level: 3.73\r\nThreshold Limit Value: 5.60"},
      LimitRow{Integer{10},
               "Hand Activity Level: 10.0\r\n\r\nForce Limit (% of maximum strength on a "
               "normalized 10-point scale):\r\n\r\nAction Level: 0.00\r\n"
               "Threshold Limit Value: 0.00"},
      LimitRow{11.0,
               "Hand Activity Level: 11.0\r\n\r\nForce Limit (% of maximum strength on a "
               "normalized 10-point scale):\r\n\r\nAction Level: -0.53\r\n"
               "Threshold Limit Value: -0.80"},
      LimitRow{TaggedField(),
               "Hand Activity Level: 0.0\r\n\r\nForce Limit (% of maximum strength on a "
               "normalized 10-point scale):\r\n\r\nAction Level: 5.33\r\n"
               "Threshold Limit Value: 8.00"},
  };
  for (const LimitRow& row : rows) {
    Module1.HalActivityLevel = row.level;
    HAL_Calculate(pane_);
    EXPECT_TRUE(pane_.text().ends_with(row.lines)) << row.level.AsText() << pane_.text();
  }
}

TEST_F(HalReport, ActivityLimitModeHasItsOwnHeading) {
  Module1.HalForceMode = kFalse;
  Module1.HalForceRating = Integer{3};
  HAL_Calculate(pane_);
  EXPECT_TRUE(pane_.text().ends_with(
      "\r\n\r\nActivity Limit:\r\n\r\nAction Level: 4.38\r\nThreshold Limit Value: 6.25"));
}

TEST_F(HalReport, HandThatIsNotZeroIsTheLeftOne) {
  for (const Integer hand : std::array<Integer, 3>{1, 2, -1}) {
    Module1.Hand = hand;
    HAL_Print(pane_);
    EXPECT_NE(pane_.text().find("\r\n\r\nHand: Left Side\r\n\r\n"), std::string::npos) << hand;
  }
}

TEST_F(HalReport, NamesOfAnyKindArePrintedAsTheirTexts) {
  Module1.JobAnalyst = Integer{7};
  Module1.JobName = TaggedField();
  Module1.JobWorkstationId = "W";
  HAL_Print(pane_);
  EXPECT_NE(pane_.text().find("\r\nAnalyst: 7\r\nJob Name: \r\nWorkstation ID: W\r\n"),
            std::string::npos);
}

constexpr CharacterFormat kTitle{.size = 12, .bold = true, .underline = true};
constexpr CharacterFormat kHeading{.size = 10, .bold = true, .underline = true};
constexpr CharacterFormat kPlain{.size = 10, .bold = false, .underline = false};

/// A paragraph: how it stands, its text and the one look that the whole of it has.
struct ParagraphRow {
  Alignment alignment;
  const char* text;
  CharacterFormat look;
};

void ExpectParagraphs(const RichText& pane, const std::vector<ParagraphRow>& expected) {
  const std::vector<Paragraph>& paragraphs = pane.paragraphs();
  ASSERT_EQ(paragraphs.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(paragraphs[i].format, (ParagraphFormat{expected[i].alignment, {}})) << i;
    EXPECT_EQ(paragraphs[i].lineEnd, i + 1 < expected.size() ? "\r\n" : "") << i;
    std::vector<TextRun> runs;
    if (*expected[i].text != '\0') runs.push_back({expected[i].text, expected[i].look, {}});
    EXPECT_EQ(paragraphs[i].runs, runs) << i << " " << expected[i].text;
  }
}

TEST_F(HalReport, EachParagraphHasItsAlignmentAndLook) {
  FillJob();
  Open();
  constexpr auto kLeft = Alignment::Left;
  ExpectParagraphs(
      pane_,
      {
          {Alignment::Center, "ACGIH Hand Activity Level (HAL)", kTitle},
          {Alignment::Center, "", kTitle},
          {kLeft, "Analyst: Ann Árnason", kPlain},
          {kLeft, "Job Name: Café line, 2nd shift", kPlain},
          {kLeft, "Workstation ID: Wörk 17", kPlain},
          {kLeft, "", kPlain},
          {kLeft, "Hand: Left Side", kPlain},
          {kLeft, "", kPlain},
          {kLeft, "Input Data: ", kHeading},
          {kLeft, "", kPlain},
          {kLeft, "Exertion Frequency: 20.0 (# of exertion per minute)'& CR$", kPlain},
          {kLeft, "Duty Cycle: 50.0 (% of cycle time)'& CR$", kPlain},
          {kLeft, "Hand Activity Level: 5.0", kPlain},
          {kLeft, "", kPlain},
          {kLeft, "Force Limit (% of maximum strength on a normalized 10-point scale):", kHeading},
          {kLeft, "", kPlain},
          {kLeft, "Action Level: 2.67", kPlain},
          {kLeft, "Threshold Limit Value: 4.00", kPlain},
      });
}

TEST_F(HalReport, LooksFollowTheTextWhereTheNamesAreLongOrMissing) {
  const std::string longName(3000, 'n');
  for (const std::string& name : {std::string(), longName}) {
    Module1.JobAnalyst = name;
    Module1.JobWorkstationId = name;
    Open();
    const std::string analyst = "Analyst: " + name;
    const std::string workstation = "Workstation ID: " + name;
    constexpr auto kLeft = Alignment::Left;
    ExpectParagraphs(
        pane_, {
                   {Alignment::Center, "ACGIH Hand Activity Level (HAL)", kTitle},
                   {Alignment::Center, "", kTitle},
                   {kLeft, analyst.c_str(), kPlain},
                   {kLeft, "Job Name: ", kPlain},
                   {kLeft, workstation.c_str(), kPlain},
                   {kLeft, "", kPlain},
                   {kLeft, "Hand: Right Side", kPlain},
                   {kLeft, "", kPlain},
                   {kLeft, "Input Data: ", kHeading},
                   {kLeft, "", kPlain},
                   {kLeft, "Hand Activity Level: 0.0", kPlain},
                   {kLeft, "", kPlain},
                   {kLeft, "Force Limit (% of maximum strength on a normalized 10-point scale):",
                    kHeading},
                   {kLeft, "", kPlain},
                   {kLeft, "Action Level: 5.33", kPlain},
                   {kLeft, "Threshold Limit Value: 8.00", kPlain},
               });
  }
}

TEST_F(HalReport, IsWrittenAfreshEachTimeAndLeavesTheLock) {
  for (const bool locked : {false, true}) {
    pane_.SetLocked(locked);
    Open();
    const std::vector<Paragraph> once = pane_.paragraphs();
    Open();
    EXPECT_EQ(pane_.paragraphs(), once);
    EXPECT_EQ(pane_.locked(), locked);
    EXPECT_TRUE(pane_.pictures().empty());
  }
}

TEST_F(HalReport, NumberBeyondADoubleOverflows) {
  Module1.HalExertionFrequency = "1E999";
  EXPECT_EQ(FailureOf([this] { HAL_Print(pane_); }), "Overflow");
  Module1.HalExertionFrequency = 1.0;
  Module1.HalDutyCycle = "1E999";
  EXPECT_EQ(FailureOf([this] { HAL_Print(pane_); }), "Overflow");
  Module1.HalDutyCycle = 1.0;
  Module1.HalActivityLevel = "1E999";
  EXPECT_EQ(FailureOf([this] { HAL_Print(pane_); }), "Overflow");
}

}  // namespace
}  // namespace halvane
