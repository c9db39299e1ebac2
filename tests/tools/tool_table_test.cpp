#include "tools/tool_table.h"

#include <gtest/gtest.h>

#include <array>

#include "core/job_state.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

struct Expected {
  Tool tool;
  std::string_view key;
  std::string_view buttonCaption;
  std::string_view buttonTip;
  std::string_view title;
  std::string_view helpTopic;
};

constexpr std::array kExpected{
    Expected{Tool::Ocra, "ocra", "OCRA", "Occupational Repetitive Actions Index",
             "Occupational Repetitive Actions Index",
             "Occupational Repetitive Actions Index (OCRA)2.htm"},
    Expected{Tool::Ctd, "ctd", "CTD Risk Index",
             "Cumulative Trauma Disorders Risk Assessment Model",
             "Cumulative Trauma Disorders Risk Assessment Model", "CTD2.htm"},
    Expected{Tool::StrainIndex, "si", "SI", "Strain Index", "Strain Index", "Strain Index2.htm"},
    Expected{Tool::Reba, "reba", "REBA", "Rapid Entire Body Assessment",
             "Rapid Entire Body Assessment", "REBA (Rapid Entire Body Assessment)2.htm"},
    Expected{Tool::Rula, "rula", "RULA", "Rapid Upper Limb Assessment",
             "Repetitive Upper Limb Assessment", "RULA (Rapid Upper Limb Assessment)2.htm"},
    Expected{Tool::Hal, "hal", "", "", "ACGIH: Hand Activity Level",
             "ACGIH Hand Activity Level2.htm"},
};

TEST(ToolTable, EachToolHasItsRow) {
  ASSERT_EQ(Tools().size(), kExpected.size());
  for (std::size_t i = 0; i < kExpected.size(); ++i) {
    const Expected& expected = kExpected[i];
    const ToolRow& row = RowOf(expected.tool);
    EXPECT_EQ(&row, &Tools()[i]) << expected.key;
    EXPECT_EQ(row.tool, expected.tool) << expected.key;
    EXPECT_EQ(row.key, expected.key);
    EXPECT_EQ(row.buttonCaption, expected.buttonCaption) << expected.key;
    EXPECT_EQ(row.buttonTip, expected.buttonTip) << expected.key;
    EXPECT_EQ(row.title, expected.title) << expected.key;
    EXPECT_EQ(row.helpTopic, expected.helpTopic) << expected.key;
    EXPECT_NE(row.open, nullptr) << expected.key;
    EXPECT_NE(row.report, nullptr) << expected.key;
    EXPECT_NE(row.workingValues, nullptr) << expected.key;
    EXPECT_NE(row.headline, nullptr) << expected.key;
  }
}

TEST(ToolTable, StrainIndexReportLoadsTheFormFirst) {
  Module1 = JobState{};
  RichText pane;
  RowOf(Tool::StrainIndex).WriteReport(pane);
  EXPECT_NE(pane.text().find("Strain Index Score: 0.3"), std::string::npos);
  // The form's load chose the hand and pressed the ribbons, with their marks on the job.
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(Module1.SiIntensityPick, TaggedField(Integer{10}));
  EXPECT_EQ(Module1.SiPosturePick, TaggedField(Integer{15}));
  EXPECT_EQ(Module1.SiSpeedPick, 5);
}

TEST(ToolTable, StrainIndexReportOfASavedHandThatIsNoneFails) {
  Module1 = JobState{};
  Module1.Hand = 2;
  RichText pane;
  EXPECT_EQ(FailureOf([&] { RowOf(Tool::StrainIndex).WriteReport(pane); }), "SubscriptOutOfRange");
  EXPECT_EQ(pane.text(), "");
}

TEST(ToolTable, HalReportLoadsTheFormFirstAndLeavesTheJobClean) {
  Module1 = JobState{};
  Module1.HalActivityLevel = "3.0";
  RichText pane;
  EXPECT_TRUE(RowOf(Tool::Hal).WriteReport(pane));
  EXPECT_TRUE(pane.text().ends_with("Action Level: 3.73\r\nThreshold Limit Value: 5.60"));
  EXPECT_EQ(Module1.HalForceMode, kTrue);
  EXPECT_EQ(Module1.JobDirty, kFalse);
  const std::vector<WorkingValue> values = RowOf(Tool::Hal).workingValues();
  ASSERT_EQ(values.size(), 2U);
  EXPECT_EQ(values[0].name, "HalForceMode");
  EXPECT_EQ(values[1].name, "HalLimits");
}

TEST(ToolTable, HalReportOfASavedHandThatIsNoneFails) {
  Module1 = JobState{};
  Module1.Hand = 2;
  RichText pane;
  EXPECT_EQ(FailureOf([&] { RowOf(Tool::Hal).WriteReport(pane); }), "SubscriptOutOfRange");
  EXPECT_EQ(pane.text(), "");
}

TEST(ToolTable, RebaReportLoadsTheFormFirst) {
  Module1 = JobState{};
  RichText pane;
  EXPECT_TRUE(RowOf(Tool::Reba).WriteReport(pane));
  EXPECT_NE(pane.text().find("REBA Grand Score: 1\r\n"), std::string::npos);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(Module1.RebaControlState.at(15), 1);
  EXPECT_EQ(Module1.RebaGrandScore, 1);
}

TEST(ToolTable, RebaReportOfASavedControlThatIsNoneFails) {
  Module1 = JobState{};
  Module1.RebaControlState.at(12) = 6;
  RichText pane;
  EXPECT_EQ(FailureOf([&] { RowOf(Tool::Reba).WriteReport(pane); }), "SubscriptOutOfRange");
  EXPECT_EQ(pane.text(), "");
}

TEST(ToolTable, RebaGivesItsWorkingValues) {
  Module1 = JobState{};
  RichText pane;
  RowOf(Tool::Reba).WriteReport(pane);
  const std::vector<WorkingValue> values = RowOf(Tool::Reba).workingValues();
  ASSERT_EQ(values.size(), 23U);
  EXPECT_EQ(values.back().name, "RebaGrandScore");
  EXPECT_EQ(values.back().value, WorkingValue({"", Integer{1}}).value);
}

TEST(ToolTable, StrainIndexGivesItsWorkingValuesByName) {
  Module1 = JobState{};
  Module1.SiIntensityRating = 1;
  Module1.SiPostureRating = 2;
  Module1.SiSpeedRating = 3;
  Module1.SiDutyCyclePercent = 4.5;
  Module1.SiDutyRating = 5;
  Module1.SiEffortsPerMinute = 6.5;
  Module1.SiEffortsRating = 7;
  Module1.SiDurationRating = 8;
  Module1.SiStrainIndexScore = 9.5;
  const std::array<WorkingValue, 9> expected{{
      {"SiIntensityRating", Integer{1}},
      {"SiPostureRating", Integer{2}},
      {"SiSpeedRating", Integer{3}},
      {"SiDutyCyclePercent", 4.5},
      {"SiDutyRating", Integer{5}},
      {"SiEffortsPerMinute", 6.5},
      {"SiEffortsRating", Integer{7}},
      {"SiDurationRating", Integer{8}},
      {"SiStrainIndexScore", 9.5},
  }};
  const std::vector<WorkingValue> values = RowOf(Tool::StrainIndex).workingValues();
  ASSERT_EQ(values.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(values[i].name, expected[i].name);
    EXPECT_EQ(values[i].value, expected[i].value) << expected[i].name;
  }
}

}  // namespace
}  // namespace halvane
