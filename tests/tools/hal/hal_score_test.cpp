#include "tools/hal/hal_score.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class HalLevel : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }

  /// The level of a frequency and a duty cycle, as the field's text; `before` where there is none.
  static std::string LevelOf(const TaggedField& frequency, const TaggedField& duty,
                             const TaggedField& before = "before") {
    Module1.HalExertionFrequency = frequency;
    Module1.HalDutyCycle = duty;
    Module1.HalActivityLevel = before;
    GetExertionLevel();
    return Module1.HalActivityLevel.AsText();
  }
};

struct LevelRow {
  double frequency;
  const char* band;
  std::array<const char*, 5> levels;  ///< duty up to 20, 40, 60, 80, and 100 or below
};

// Each row of the table at both of its ends and within.
constexpr std::array kLevelRows{
    LevelRow{-10, "up to 7.5", {"1", "1", "1", "1", "1"}},
    LevelRow{0, "up to 7.5", {"1", "1", "1", "1", "1"}},
    LevelRow{7.5, "up to 7.5", {"1", "1", "1", "1", "1"}},
    LevelRow{7.51, "above 7.5", {"2", "2", "3", "3", "3"}},
    LevelRow{10, "above 7.5", {"2", "2", "3", "3", "3"}},
    LevelRow{15, "above 7.5", {"2", "2", "3", "3", "3"}},
    LevelRow{15.01, "above 15", {"3", "4", "5", "5", "6"}},
    LevelRow{20, "above 15", {"3", "4", "5", "5", "6"}},
    LevelRow{30, "above 15", {"3", "4", "5", "5", "6"}},
    LevelRow{30.01, "above 30", {"4", "5", "5", "6", "7"}},
    LevelRow{45, "above 30", {"4", "5", "5", "6", "7"}},
    LevelRow{60, "above 30", {"4", "5", "5", "6", "7"}},
    LevelRow{60.01, "above 60", {"4", "5", "6", "7", "8"}},
    LevelRow{61, "above 60", {"4", "5", "6", "7", "8"}},
    LevelRow{1E300, "above 60", {"4", "5", "6", "7", "8"}},
};

// The same for the columns.
constexpr std::array<std::array<double, 4>, 5> kDutyColumns{{
    {-1E300, 0, 19.99, 20},
    {20.01, 21, 30, 40},
    {40.01, 40.5, 50, 60},
    {60.01, 61, 70, 80},
    {80.01, 81, 90, 100},
}};

TEST_F(HalLevel, EveryCellOfTheTableAtTheEndsOfItsBands) {
  int cells = 0;
  for (const LevelRow& row : kLevelRows) {
    for (std::size_t column = 0; column < kDutyColumns.size(); ++column) {
      for (const double duty : kDutyColumns[column]) {
        EXPECT_EQ(LevelOf(row.frequency, duty), row.levels[column])
            << row.band << ": " << row.frequency << " a minute, " << duty << " per cent";
        ++cells;
      }
    }
  }
  EXPECT_EQ(cells, 300);
}

TEST_F(HalLevel, DutyAbove100CountsInTheLastColumnOfEveryRowButTheFirst) {
  for (const double duty : {100.01, 101.0, 150.0, 1E300}) {
    EXPECT_EQ(LevelOf(5.0, duty), "before") << duty;
    EXPECT_EQ(LevelOf(-5.0, duty), "before") << duty;
    EXPECT_EQ(LevelOf(7.5, duty), "before") << duty;
    EXPECT_EQ(LevelOf(7.51, duty), "3") << duty;
    EXPECT_EQ(LevelOf(20.0, duty), "6") << duty;
    EXPECT_EQ(LevelOf(60.0, duty), "7") << duty;
    EXPECT_EQ(LevelOf(61.0, duty), "8") << duty;
  }
}

TEST_F(HalLevel, WhereThereIsNoneTheFieldKeepsItsKind) {
  LevelOf(5.0, 101.0, TaggedField("7.0"));
  EXPECT_EQ(Module1.HalActivityLevel, TaggedField("7.0"));
  LevelOf(5.0, 101.0, TaggedField());
  EXPECT_EQ(Module1.HalActivityLevel, TaggedField());
}

TEST_F(HalLevel, IsAWholeNumber) {
  LevelOf(20.0, 50.0);
  EXPECT_EQ(Module1.HalActivityLevel, TaggedField(Integer{5}));
}

TEST_F(HalLevel, TextsCountAsTheNumbersThatTheyReadAs) {
  EXPECT_EQ(LevelOf("61 a minute", " 81%"), "8");
  EXPECT_EQ(LevelOf("6.1E1", "8.1E1"), "8");
  EXPECT_EQ(LevelOf("many", "always"), "1");
  EXPECT_EQ(LevelOf(TaggedField(), TaggedField()), "1");
  EXPECT_EQ(LevelOf(Integer{61}, Integer{81}), "8");
}

TEST_F(HalLevel, EntersNothingButTheLevel) {
  Module1.Hand = 1;
  LevelOf(20.0, 50.0);
  JobState expected;
  expected.Hand = 1;
  expected.HalExertionFrequency = 20.0;
  expected.HalDutyCycle = 50.0;
  expected.HalActivityLevel = Integer{5};
  EXPECT_EQ(Module1, expected);
}

TEST_F(HalLevel, NumberBeyondADoubleOverflowsAndLeavesTheLevel) {
  EXPECT_EQ(FailureOf([] { LevelOf("1E999", 50.0); }), "Overflow");
  EXPECT_EQ(FailureOf([] { LevelOf(20.0, "1E999"); }), "Overflow");
  EXPECT_EQ(Module1.HalActivityLevel, TaggedField("before"));
}

class HalLimits : public testing::Test {
 protected:
  void SetUp() override {
    Module1 = JobState{};
    Module1.HalForceMode = kTrue;
  }

  void Compute(Integer mode, const TaggedField& level, const TaggedField& rating) {
    Module1.HalForceMode = mode;
    Module1.HalActivityLevel = level;
    Module1.HalForceRating = rating;
    HAL_Calculate(pane_);
  }
  static double ThresholdLimitValue() { return Module1.HalLimits.at(0); }
  static double ActionLevel() { return Module1.HalLimits.at(1); }

  RichText pane_;
};

struct LimitRow {
  double input;
  const char* thresholdLimit;  ///< in the report
  const char* actionLevel;
  const char* shownThresholdLimit;  ///< on the form
  const char* shownActionLevel;
};

void ExpectLimits(const LimitRow& row) {
  const double threshold = Module1.HalLimits.at(kHalThresholdLimitValue);
  const double action = Module1.HalLimits.at(kHalActionLevel);
  EXPECT_EQ(Format(threshold, Pattern::TwoDecimals), row.thresholdLimit) << row.input;
  EXPECT_EQ(Format(action, Pattern::TwoDecimals), row.actionLevel) << row.input;
  EXPECT_EQ(HalLimitText(threshold), row.shownThresholdLimit) << row.input;
  EXPECT_EQ(HalLimitText(action), row.shownActionLevel) << row.input;
}

TEST_F(HalLimits, OfEveryLevel) {
  constexpr std::array rows{
      LimitRow{-1, "8.80", "5.87", "8.80", "5.87"},  LimitRow{0, "8.00", "5.33", "8.00", "5.33"},
      LimitRow{1, "7.20", "4.80", "7.20", "4.80"},   LimitRow{2, "6.40", "4.27", "6.40", "4.27"},
      LimitRow{2.5, "6.00", "4.00", "6.00", "4.00"}, LimitRow{3, "5.60", "3.73", "5.60", "3.73"},
      LimitRow{4, "4.80", "3.20", "4.80", "3.20"},   LimitRow{5, "4.00", "2.67", "4.00", "2.67"},
      LimitRow{6, "3.20", "2.13", "3.20", "2.13"},   LimitRow{7, "2.40", "1.60", "2.40", "1.60"},
      LimitRow{8, "1.60", "1.07", "1.60", "1.07"},   LimitRow{9, "0.80", "0.53", "0.80", "0.53"},
      LimitRow{10, "0.00", "0.00", "0.00", "0.00"},  LimitRow{10.001, "0.00", "0.00", "0", "0"},
      LimitRow{11, "-0.80", "-0.53", "0", "0"},      LimitRow{100, "-72.00", "-48.00", "0", "0"},
  };
  for (const LimitRow& row : rows) {
    // The rating is not read.
    Compute(kTrue, row.input, "1E999");
    ExpectLimits(row);
  }
}

TEST_F(HalLimits, OfEveryForceRating) {
  // The Action Level of 5 is a little less than 0.625 in doubles.
  constexpr std::array rows{
      LimitRow{0, "10.00", "10.00", "10.00", "10.00"}, LimitRow{1, "8.75", "8.13", "8.75", "8.13"},
      LimitRow{2, "7.50", "6.25", "7.50", "6.25"},     LimitRow{3, "6.25", "4.38", "6.25", "4.38"},
      LimitRow{4, "5.00", "2.50", "5.00", "2.50"},     LimitRow{5, "3.75", "0.62", "3.75", "0.62"},
      LimitRow{6, "2.50", "-1.25", "2.50", "0"},       LimitRow{7, "1.25", "-3.13", "1.25", "0"},
      LimitRow{8, "0.00", "-5.00", "0.00", "0"},       LimitRow{9, "-1.25", "-6.88", "0", "0"},
      LimitRow{10, "-2.50", "-8.75", "0", "0"},
  };
  for (const LimitRow& row : rows) {
    // The level is not read.
    Compute(kFalse, TaggedField(), row.input);
    ExpectLimits(row);
  }
}

// The bits that the order of the operations gives: a fused or rearranged product has others.
TEST_F(HalLimits, AreComputedInPlainDoubles) {
  Compute(kTrue, 7.0, TaggedField());
  EXPECT_EQ(ThresholdLimitValue(), 2.3999999999999995);
  EXPECT_EQ(ActionLevel(), 1.5999999999999996);
  Compute(kTrue, 6.0, TaggedField());
  EXPECT_EQ(ThresholdLimitValue(), 3.1999999999999993);
  EXPECT_EQ(ActionLevel(), 2.133333333333333);
  Compute(kTrue, 10.0, TaggedField());
  EXPECT_EQ(ThresholdLimitValue(), 0);
  EXPECT_EQ(ActionLevel(), 0);
  Compute(kFalse, TaggedField(), 3.0);
  EXPECT_EQ(ThresholdLimitValue(), 6.25);
  EXPECT_EQ(ActionLevel(), 4.374999999999999);
}

TEST_F(HalLimits, TextsCountAsTheNumbersThatTheyReadAs) {
  Compute(kTrue, "3.0", {});
  EXPECT_EQ(ThresholdLimitValue(), 5.6);
  Compute(kTrue, "high", {});
  EXPECT_EQ(ThresholdLimitValue(), 8);
  Compute(kTrue, TaggedField(), {});
  EXPECT_EQ(ThresholdLimitValue(), 8);
  Compute(kFalse, {}, "4 of 10");
  EXPECT_EQ(ThresholdLimitValue(), 5);
  Compute(kFalse, {}, TaggedField());
  EXPECT_EQ(ThresholdLimitValue(), 10);
}

TEST_F(HalLimits, HandEntersNoNumber) {
  for (const Integer hand : std::array<Integer, 2>{0, 1}) {
    Module1.Hand = hand;
    Compute(kTrue, 5.0, {});
    EXPECT_EQ(ThresholdLimitValue(), 4) << hand;
    EXPECT_EQ(Module1.Hand, hand);
  }
}

TEST_F(HalLimits, ComputationEndsWithTheReport) {
  Compute(kTrue, 5.0, {});
  EXPECT_TRUE(pane_.text().starts_with("ACGIH Hand Activity Level (HAL)\r\n"));
  EXPECT_TRUE(pane_.text().ends_with("Action Level: 2.67\r\nThreshold Limit Value: 4.00"));
}

TEST_F(HalLimits, NothingButTheLimitsChanges) {
  Module1.HalExertionFrequency = 20.0;
  Module1.HalDutyCycle = 50.0;
  Compute(kTrue, "3.0", "2");
  JobState expected;
  expected.HalForceMode = kTrue;
  expected.HalExertionFrequency = 20.0;
  expected.HalDutyCycle = 50.0;
  expected.HalActivityLevel = "3.0";
  expected.HalForceRating = "2";
  expected.HalLimits.at(0) = 5.6;
  expected.HalLimits.at(1) = 3.733333333333333;
  EXPECT_EQ(Module1, expected);
}

TEST_F(HalLimits, NumberBeyondADoubleOverflowsBeforeTheReport) {
  EXPECT_EQ(FailureOf([this] { Compute(kTrue, "1E999", {}); }), "Overflow");
  EXPECT_EQ(FailureOf([this] { Compute(kFalse, {}, "-1E999"); }), "Overflow");
  // The force itself is a double, the level that it would stand for is none.
  EXPECT_EQ(FailureOf([this] { Compute(kFalse, {}, 1.7E308); }), "Overflow");
  EXPECT_EQ(pane_.text(), "");
}

TEST_F(HalLimits, AreTheWorkingValuesWithTheMode) {
  Compute(kTrue, 5.0, {});
  const std::vector<WorkingValue> values = HalWorkingValues();
  ASSERT_EQ(values.size(), 2U);
  EXPECT_EQ(values[0].name, "HalForceMode");
  EXPECT_EQ(std::get<TaggedField>(values[0].value), TaggedField(kTrue));
  EXPECT_EQ(values[1].name, "HalLimits");
  EXPECT_EQ(std::get<std::vector<TaggedField>>(values[1].value),
            (std::vector<TaggedField>{4.0, 2.6666666666666665}));
}

}  // namespace
}  // namespace halvane
