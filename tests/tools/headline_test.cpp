#include "tools/headline.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"
#include "tools/ocra/ocra_report.h"
#include "tools/reba/reba_score.h"
#include "tools/rula/rula_score.h"
#include "tools/strain_index/si_score.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

Headline HeadlineOf(Tool tool) { return RowOf(tool).headline->read(); }

double NumberOf(const Headline& headline) { return std::get<double>(headline.values.front()); }
int WholeOf(const Headline& headline, std::size_t column = 0) {
  return std::get<int>(headline.values.at(column));
}
std::string_view TextOf(const Headline& headline) {
  return std::get<std::string_view>(headline.values.at(1));
}

TEST(Headlines, EachToolHasItsColumns) {
  std::set<std::string> headings;
  for (const ToolRow& row : Tools()) {
    ASSERT_FALSE(row.headline->columns.empty()) << row.key;
    EXPECT_LE(row.headline->columns.size(), Headline::kMostValues) << row.key;
    EXPECT_GT(row.headline->fullBar, 0) << row.key;
    for (const HeadlineColumn& column : row.headline->columns) {
      EXPECT_FALSE(column.key.empty()) << row.key;
      EXPECT_TRUE(headings.insert(std::string(column.heading)).second) << column.heading;
    }
  }
}

TEST(Headlines, BarsAreFullAtTheHighestScoreOrWhereTheWorstZoneIsWellEntered) {
  const std::map<std::string_view, double> expected{{"ocra", 8},  {"ctd", 20}, {"si", 14},
                                                    {"reba", 15}, {"rula", 7}, {"hal", 10}};
  for (const ToolRow& row : Tools()) EXPECT_EQ(row.headline->fullBar, expected.at(row.key));
}

TEST(Headlines, OcraHasIndexAndZone) {
  struct Row {
    double index;
    std::string_view zone;
    ZoneColour colour;
  };
  const std::vector<Row> rows = {
      {0, "Green", ZoneColour::Green},
      {1, "Green", ZoneColour::Green},
      {1.001, "Yellow/Green", ZoneColour::YellowGreen},
      {2, "Yellow/Green", ZoneColour::YellowGreen},
      {2.001, "Yellow", ZoneColour::Yellow},
      {3.9, "Yellow", ZoneColour::Yellow},
      {3.95, "", ZoneColour::None},
      {4, "Red", ZoneColour::Red},
      {14400000, "Red", ZoneColour::Red},
  };
  for (const Row& row : rows) {
    Module1 = JobState{};
    Module1.OcraRiskIndex = row.index;
    const Headline headline = HeadlineOf(Tool::Ocra);
    EXPECT_EQ(NumberOf(headline), row.index);
    EXPECT_EQ(TextOf(headline), row.zone) << row.index;
    EXPECT_EQ(headline.colour, row.colour) << row.index;
  }
}

TEST(Headlines, StrainIndexHasScoreAndRiskLevel) {
  struct Row {
    double score;
    std::string_view level;
    ZoneColour colour;
  };
  const std::vector<Row> rows = {
      {0.25, "Low", ZoneColour::Green},    {4.999, "Low", ZoneColour::Green},
      {5, "Moderate", ZoneColour::Orange}, {6.999, "Moderate", ZoneColour::Orange},
      {7, "High", ZoneColour::Red},        {1053, "High", ZoneColour::Red}};
  for (const Row& row : rows) {
    Module1 = JobState{};
    Module1.SiStrainIndexScore = row.score;
    const Headline headline = HeadlineOf(Tool::StrainIndex);
    EXPECT_EQ(NumberOf(headline), row.score);
    EXPECT_EQ(TextOf(headline), row.level) << row.score;
    EXPECT_EQ(headline.colour, row.colour) << row.score;
  }
}

TEST(Headlines, CtdHasItsGrandScoreAndNoZone) {
  Module1 = JobState{};
  Module1.CtdGrandScore = 5.125;
  EXPECT_EQ(NumberOf(HeadlineOf(Tool::Ctd)), 5.125);
  EXPECT_EQ(HeadlineOf(Tool::Ctd).colour, ZoneColour::None);
}

TEST(Headlines, RulaHasItsGrandScoreInTheColourOfTheAdvice) {
  constexpr std::array<ZoneColour, 8> kColours{
      ZoneColour::Green,  ZoneColour::Green,  ZoneColour::Green,  ZoneColour::Yellow,
      ZoneColour::Yellow, ZoneColour::Orange, ZoneColour::Orange, ZoneColour::Red};
  for (Integer score = 0; score < 8; ++score) {
    Module1 = JobState{};
    Module1.RulaGrandScore = score;
    EXPECT_EQ(WholeOf(HeadlineOf(Tool::Rula)), score);
    EXPECT_EQ(HeadlineOf(Tool::Rula).colour, kColours.at(static_cast<std::size_t>(score))) << score;
  }
}

TEST(Headlines, RebaHasGrandScoreAndActionLevel) {
  constexpr std::array<int, 16> kLevels{0, 0, 1, 1, 2, 2, 2, 2, 3, 3, 3, 4, 4, 4, 4, 4};
  constexpr std::array<ZoneColour, 5> kColours{ZoneColour::Green, ZoneColour::YellowGreen,
                                               ZoneColour::Yellow, ZoneColour::Orange,
                                               ZoneColour::Red};
  for (Integer score = 0; score < 16; ++score) {
    Module1 = JobState{};
    Module1.RebaGrandScore = score;
    const Headline headline = HeadlineOf(Tool::Reba);
    const int level = kLevels.at(static_cast<std::size_t>(score));
    EXPECT_EQ(WholeOf(headline), score);
    EXPECT_EQ(WholeOf(headline, 1), level) << score;
    EXPECT_EQ(headline.colour, kColours.at(static_cast<std::size_t>(level))) << score;
  }
}

TEST(Headlines, HalHasLevelAndBothLimitsAndNoZone) {
  struct Row {
    TaggedField level;
    double shown;
    double threshold;
    double action;
  };
  // 5.6 at level 3 and 0.8 less with each level beyond it; the action limit is two thirds of it.
  const std::vector<Row> rows = {
      {"3.0", 3, 5.6, 5.6 * 2 / 3},
      {Integer{5}, 5, 4, 4 * 2.0 / 3},
      {"6", 6, 3.2, 3.2 * 2 / 3},
      {Integer{12}, 12, -1.6, -1.6 * 2 / 3},
  };
  for (const Row& row : rows) {
    Module1 = JobState{};
    Module1.HalActivityLevel = row.level;
    ASSERT_TRUE(RowOf(Tool::Hal).headline->compute());
    const Headline headline = HeadlineOf(Tool::Hal);
    EXPECT_EQ(NumberOf(headline), row.shown);
    EXPECT_NEAR(std::get<double>(headline.values.at(1)), row.threshold, 1e-12) << row.shown;
    EXPECT_NEAR(std::get<double>(headline.values.at(2)), row.action, 1e-12) << row.shown;
    EXPECT_EQ(headline.colour, ZoneColour::None);
  }
}

/// A job with a value of -1 to 5 in every field that a tool takes for a choice.
void FillOddJob(std::mt19937& random) {
  // Mostly good, so that many jobs get past their first field.
  const auto odd = [&random](int most) -> Integer {
    if (random() % 40 == 0) return static_cast<Integer>(random() % 7) - 1;
    return static_cast<Integer>(random() % static_cast<unsigned>(most + 1));
  };
  Module1 = JobState{};
  Module1.Units = odd(1);
  Module1.Hand = odd(1);
  Module1.JobCycleTime = odd(3);
  Module1.OcraRecoveryHours = odd(3);
  for (int i = 0; i < Module1.OcraComboChoice.size(); ++i) Module1.OcraComboChoice.at(i) = odd(3);
  for (int i = 0; i < Module1.RulaControlState.size(); ++i) Module1.RulaControlState.at(i) = odd(1);
  for (int i = 0; i < Module1.RebaControlState.size(); ++i) Module1.RebaControlState.at(i) = odd(1);
  Module1.SiIntensityPick = odd(14);
  Module1.HalActivityLevel = odd(9) == 0 ? TaggedField("1E999") : TaggedField(odd(10));
  Module1.SiExertionMinutes = odd(5);
  Module1.SiDutyObservationMinutes = odd(5);
  Module1.JobDurationPerDay = odd(2) == 0 ? TaggedField(0.01) : TaggedField(odd(5));
  for (int task = 1; task <= 2; ++task) {
    AddTaskRecord();
    Module1.TaskActive.at(task) = odd(1);
    Module1.CtdHandSpan.at(task) = odd(6);
    Module1.CtdWorkTime.at(task) = odd(1) == 0 ? TaggedField(0.01) : TaggedField(odd(2));
    Module1.CtdRepetitions.at(task) = odd(3);
    Module1.CtdForceMvc.at(task) = odd(3);
    Module1.CtdGripType.at(task) = Integer{static_cast<Integer>(odd(3) == 0 ? 0 : 2)};
    Module1.CtdWristPosition.at(task) = odd(1);
    Module1.CtdRadUlnDeviation.at(task) = odd(4);
    Module1.CtdFlexExtDeviation.at(task) = Integer{0};
    if (random() % 10 == 0) Module1.CtdWristPosition.at(task) = 2;
    Module1.CtdLtShoulderFlexion.at(task) = odd(3);
    Module1.CtdRtElbowFlexion.at(task) = odd(2);
    Module1.CtdBackFlexion.at(task) = odd(3);
    Module1.CtdNeckFlexion.at(task) = odd(3);
    for (int slot = 0; slot < kPostureSlots; ++slot) {
      Module1.CtdLoadHeld.at(task, slot) = odd(3);
      Module1.CtdPostureDuration.at(task, slot) = odd(1);
    }
  }
  if (odd(9) == 0) Module1.TaskCount = Integer{0};
}

/// What comes of a tool on the present job: the failure's kind, no report, or the values.
std::string OutcomeOf(const std::function<bool()>& run, const ToolRow& row) {
  bool hasReport = false;
  const std::string failure = FailureOf([&] { hasReport = run(); });
  if (failure != "none") return failure;
  if (!hasReport) return "no report";
  std::string values;
  const Headline headline = row.headline->read();
  for (std::size_t i = 0; i < row.headline->columns.size(); ++i) {
    const Headline::Value& value = headline.values.at(i);
    if (const auto* whole = std::get_if<int>(&value)) values += PlainText(*whole) + " ";
    if (const auto* number = std::get_if<double>(&value)) values += PlainText(*number) + " ";
    if (const auto* text = std::get_if<std::string_view>(&value)) values += *text;
  }
  return values;
}

TEST(Headlines, OddJobsComeToWhatTheReportComesTo) {
  std::mt19937 random(5);
  std::set<std::string> outcomes;
  for (int i = 0; i < 3000; ++i) {
    FillOddJob(random);
    const JobState job = Module1;
    for (const ToolRow& row : Tools()) {
      Module1 = job;
      const std::string report = OutcomeOf(
          [&row] {
            RichText pane;
            return row.WriteReport(pane);
          },
          row);
      Module1 = job;
      ASSERT_EQ(OutcomeOf(row.headline->compute, row), report) << row.key << ", job " << i;
      outcomes.insert(std::string(row.key) + " " + report);
    }
  }
  // The jobs are odd enough to come to each of these.
  for (const std::string outcome :
       {"ctd SubscriptOutOfRange", "ctd DivisionByZero", "ctd InvalidCall", "ctd no report",
        "ocra SubscriptOutOfRange", "si SubscriptOutOfRange", "rula SubscriptOutOfRange",
        "reba SubscriptOutOfRange", "hal SubscriptOutOfRange", "hal Overflow"}) {
    EXPECT_TRUE(outcomes.contains(outcome)) << outcome;
  }
  EXPECT_GT(outcomes.size(), 200U);
}

TEST(Headlines, CtdFailsAtAWristThatComputesAndHasNoRibbon) {
  Module1 = JobState{};
  AddTaskRecord();
  Module1.CtdWristPosition.at(1) = 2;
  EXPECT_EQ(FailureOf([] { RowOf(Tool::Ctd).headline->compute(); }), "SubscriptOutOfRange");
  Module1.CtdWristPosition.at(1) = 3;
  EXPECT_EQ(FailureOf([] { RowOf(Tool::Ctd).headline->compute(); }), "none");
  Module1.CtdBackFlexion.at(1) = Integer{4};
  EXPECT_EQ(FailureOf([] { RowOf(Tool::Ctd).headline->compute(); }), "SubscriptOutOfRange");
}

}  // namespace
}  // namespace halvane
