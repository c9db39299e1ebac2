#include "tools/strain_index/si_score.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

// A second copy of the multipliers, as fractions of 4 and one column a factor, so that products of
// them are exact in whole numbers.
struct FactorColumn {
  const char* name;
  std::array<long, 5> quarters;
};
constexpr FactorColumn kIntensity{"intensity", {4, 12, 24, 36, 52}};
constexpr FactorColumn kDuty{"duty", {2, 4, 6, 8, 12}};
constexpr FactorColumn kEfforts{"efforts", {2, 4, 6, 8, 12}};
constexpr FactorColumn kPosture{"posture", {4, 4, 6, 8, 12}};
constexpr FactorColumn kSpeed{"speed", {4, 4, 4, 6, 8}};
constexpr FactorColumn kDuration{"duration", {1, 2, 3, 4, 6}};

// Inputs that give each rating, worked out by hand from an observation of 10 minutes.
constexpr std::array<double, 5> kExertionMinutesOf{0.5, 2, 4, 6, 9};  // 5, 20, 40, 60, 90 per cent
constexpr std::array<double, 5> kExertionCountOf{20, 60, 100, 170, 300};  // 2, 6, 10, 17, 30
constexpr std::array<double, 5> kHoursOf{0.5, 1.5, 3, 6, 10};

/// A job that all ribbons have been pressed for, with an observation of 10 minutes for both.
class StrainIndex : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() {
    Module1 = JobState{};
    Rate(1, 1, 1);
    Module1.SiDutyObservationMinutes = 10.0;
    Module1.SiEffortObservationMinutes = 10;
  }
  static void Rate(Integer intensity, Integer posture, Integer speed) {
    Module1.SiIntensityRating = intensity;
    Module1.SiPostureRating = posture;
    Module1.SiSpeedRating = speed;
  }
  std::string Failure() {
    return FailureOf([this] { SI_Calculate(pane_); });
  }
  double Score() {
    SI_Calculate(pane_);
    return Module1.SiStrainIndexScore;
  }

  RichText pane_;
};

TEST(StrainIndexTables, MultipliersAreThoseOfThePaper) {
  ASSERT_EQ(kSiMultipliers.size(), 5U);
  for (int rating = 1; rating <= 5; ++rating) {
    const auto i = static_cast<std::size_t>(rating - 1);
    const SiMultiplierRow& row = SiMultipliersAt(rating);
    EXPECT_EQ(row.SiIntensityMultipliers * 4, kIntensity.quarters[i]) << rating;
    EXPECT_EQ(row.SiDutyMultipliers * 4, kDuty.quarters[i]) << rating;
    EXPECT_EQ(row.SiEffortsMultipliers * 4, kEfforts.quarters[i]) << rating;
    EXPECT_EQ(row.SiPostureMultipliers * 4, kPosture.quarters[i]) << rating;
    EXPECT_EQ(row.SiSpeedMultipliers * 4, kSpeed.quarters[i]) << rating;
    EXPECT_EQ(row.SiDurationMultipliers * 4, kDuration.quarters[i]) << rating;
  }
}

TEST(StrainIndexTables, LabelsNameTheRatings) {
  constexpr std::array<std::array<std::string_view, 3>, 5> labels{{
      {"Light", "Very Good", "Very Slow"},
      {"Somewhat Hard", "Good", "Slow"},
      {"Hard", "Fair", "Fair"},
      {"Very Hard", "Bad", "Fast"},
      {"Near Maximal", "Very Bad", "Very Fast"},
  }};
  for (int rating = 1; rating <= 5; ++rating) {
    const auto& expected = labels[static_cast<std::size_t>(rating - 1)];
    EXPECT_EQ(SiLabelsAt(rating).SiIntensityLabels, expected[0]);
    EXPECT_EQ(SiLabelsAt(rating).SiPostureLabels, expected[1]);
    EXPECT_EQ(SiLabelsAt(rating).SiSpeedLabels, expected[2]);
  }
}

TEST(StrainIndexTables, RatingThatIsNoneFails) {
  for (const int rating : {0, 6, -1}) {
    EXPECT_EQ(FailureOf([rating] { SiMultipliersAt(rating); }), "SubscriptOutOfRange") << rating;
    EXPECT_EQ(FailureOf([rating] { SiLabelsAt(rating); }), "SubscriptOutOfRange") << rating;
  }
}

struct BandRow {
  double value;
  Integer rating;  ///< 0: a gap, keeps the last one
};

constexpr std::array kDutyBands{
    BandRow{-50, 1},    BandRow{0, 1},       BandRow{9.999, 1},   BandRow{10, 2},
    BandRow{10.001, 2}, BandRow{29, 2},      BandRow{29.001, 0},  BandRow{29.5, 0},
    BandRow{29.999, 0}, BandRow{30, 3},      BandRow{49, 3},      BandRow{49.001, 0},
    BandRow{49.5, 0},   BandRow{49.999, 0},  BandRow{50, 4},      BandRow{79, 4},
    BandRow{79.001, 0}, BandRow{79.5, 0},    BandRow{79.999, 0},  BandRow{80, 5},
    BandRow{99.999, 5}, BandRow{100.001, 5}, BandRow{1000000, 5},
};

TEST_F(StrainIndex, DutyCycleIsRatedInBandsWithGaps) {
  for (const BandRow& band : kDutyBands) {
    for (const Integer before : std::array<Integer, 3>{0, 1, 5}) {
      StartFresh();
      Module1.SiDutyRating = before;
      Module1.SiExertionMinutes = band.value / 100;
      Module1.SiDutyObservationMinutes = 1.0;
      const std::string failure = Failure();
      const Integer expected = band.rating == 0 ? before : band.rating;
      EXPECT_NEAR(Module1.SiDutyCyclePercent, band.value, 1E-9);
      EXPECT_EQ(Module1.SiDutyRating, expected) << band.value << " after " << before;
      EXPECT_EQ(failure, expected == 0 ? "SubscriptOutOfRange" : "none") << band.value;
    }
  }
}

constexpr std::array kEffortsBands{
    BandRow{-3, 1},     BandRow{0, 1},       BandRow{3.999, 1},  BandRow{4, 2},
    BandRow{4.001, 2},  BandRow{8, 2},       BandRow{8.001, 0},  BandRow{8.5, 0},
    BandRow{8.999, 0},  BandRow{9, 3},       BandRow{14, 3},     BandRow{14.001, 0},
    BandRow{14.5, 0},   BandRow{14.999, 0},  BandRow{15, 4},     BandRow{19, 4},
    BandRow{19.001, 0}, BandRow{19.5, 0},    BandRow{19.999, 0}, BandRow{20, 5},
    BandRow{20.001, 5}, BandRow{1000000, 5},
};

TEST_F(StrainIndex, EffortsPerMinuteAreRatedInBandsWithGaps) {
  for (const BandRow& band : kEffortsBands) {
    for (const Integer before : std::array<Integer, 3>{0, 1, 5}) {
      StartFresh();
      Module1.SiEffortsRating = before;
      Module1.SiExertionCount = band.value * 2;
      Module1.SiEffortObservationMinutes = 2;
      const std::string failure = Failure();
      const Integer expected = band.rating == 0 ? before : band.rating;
      EXPECT_EQ(Module1.SiEffortsPerMinute, band.value);
      EXPECT_EQ(Module1.SiEffortsRating, expected) << band.value << " after " << before;
      EXPECT_EQ(failure, expected == 0 ? "SubscriptOutOfRange" : "none") << band.value;
    }
  }
}

TEST_F(StrainIndex, HoursPerDayAreRated) {
  constexpr std::array rows{
      BandRow{-1, 1},  BandRow{0, 1},     BandRow{1, 1},    BandRow{1.001, 2},
      BandRow{1.5, 2}, BandRow{1.999, 2}, BandRow{2, 3},    BandRow{3.999, 3},
      BandRow{4, 4},   BandRow{8, 4},     BandRow{8.01, 5}, BandRow{24, 5},
  };
  for (const BandRow& row : rows) {
    Module1.JobDurationPerDay = row.value;
    SI_Calculate(pane_);
    EXPECT_EQ(Module1.SiDurationRating, row.rating) << row.value;
  }
}

TEST_F(StrainIndex, GapInheritsTheRatingOfTheLastComputation) {
  Module1.SiExertionMinutes = 6.0;
  SI_Calculate(pane_);
  EXPECT_EQ(Module1.SiDutyRating, 4);
  // Another job does not forget it.
  JobReset();
  Module1.SiExertionMinutes = 2.95;
  Module1.SiDutyObservationMinutes = 10.0;
  EXPECT_EQ(Failure(), "none");
  EXPECT_EQ(Module1.SiDutyRating, 4);
}

TEST_F(StrainIndex, FirstComputationInAGapFailsBeforeTheReport) {
  Module1.SiExertionMinutes = 2.95;
  EXPECT_EQ(Failure(), "SubscriptOutOfRange");
  EXPECT_EQ(pane_.text(), "");
  EXPECT_EQ(Module1.SiStrainIndexScore, 0);
  // What stands before the score has been done.
  EXPECT_EQ(Module1.SiEffortsRating, 1);
  EXPECT_EQ(Module1.SiDurationRating, 4);
}

TEST_F(StrainIndex, RibbonsThatNoLoadHasPressedFail) {
  for (const int missing : {0, 1, 2}) {
    StartFresh();
    Rate(missing == 0 ? 0 : 1, missing == 1 ? 0 : 1, missing == 2 ? 0 : 1);
    EXPECT_EQ(Failure(), "SubscriptOutOfRange") << missing;
    EXPECT_EQ(pane_.text(), "") << missing;
  }
}

TEST_F(StrainIndex, HundredPerCentRatesTheEffortsHighest) {
  Module1.SiExertionMinutes = 10.0;
  Module1.SiExertionCount = Integer{1};
  SI_Calculate(pane_);
  EXPECT_EQ(Module1.SiDutyCyclePercent, 100);
  EXPECT_EQ(Module1.SiDutyRating, 5);
  EXPECT_EQ(Module1.SiEffortsPerMinute, 0.1);
  EXPECT_EQ(Module1.SiEffortsRating, 5);
  // A gap counts for nothing then, not even in the first computation.
  StartFresh();
  Module1.SiExertionMinutes = 10.0;
  Module1.SiExertionCount = Integer{85};
  EXPECT_EQ(Failure(), "none");
  // Just above, the rule no longer holds.
  Module1.SiExertionMinutes = 10.01;
  Module1.SiExertionCount = Integer{1};
  SI_Calculate(pane_);
  EXPECT_EQ(Module1.SiEffortsRating, 1);
}

TEST_F(StrainIndex, ObservationOfNothingIsReplacedInTheJob) {
  for (const double minutes : {0.0, -5.0}) {
    StartFresh();
    Module1.SiDutyObservationMinutes = minutes;
    Module1.SiEffortObservationMinutes = minutes;
    SI_Calculate(pane_);
    EXPECT_EQ(Module1.SiDutyObservationMinutes, TaggedField(0.001));
    EXPECT_EQ(Module1.SiEffortObservationMinutes, 0.001);
  }
  for (const TaggedField& text : {TaggedField("none"), TaggedField(), TaggedField("-1 min")}) {
    Module1.SiDutyObservationMinutes = text;
    SI_Calculate(pane_);
    EXPECT_EQ(Module1.SiDutyObservationMinutes, TaggedField(0.001));
  }
}

TEST_F(StrainIndex, ObservationAboveZeroStaysAsItIs) {
  Module1.SiDutyObservationMinutes = "0.0005 min";
  Module1.SiEffortObservationMinutes = 0.0005;
  Module1.JobDirty = kFalse;
  SI_Calculate(pane_);
  EXPECT_EQ(Module1.SiDutyObservationMinutes, TaggedField("0.0005 min"));
  EXPECT_EQ(Module1.SiEffortObservationMinutes, 0.0005);
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST_F(StrainIndex, JobOfEmptyBoxesScoresAQuarter) {
  Module1.SiDutyObservationMinutes = Integer{0};
  Module1.SiEffortObservationMinutes = 0;
  EXPECT_EQ(Score(), 0.25);
  EXPECT_EQ(Module1.SiDutyCyclePercent, 0);
  EXPECT_EQ(Module1.SiEffortsPerMinute, 0);
  EXPECT_EQ(Module1.SiDutyRating, 1);
  EXPECT_EQ(Module1.SiEffortsRating, 1);
  EXPECT_EQ(Module1.SiDurationRating, 4);
}

TEST_F(StrainIndex, LargestScoreIs1053) {
  Rate(5, 5, 5);
  Module1.SiExertionMinutes = 10.0;
  Module1.SiExertionCount = Integer{1};
  Module1.JobDurationPerDay = Integer{9};
  EXPECT_EQ(Score(), 1053);
}

TEST_F(StrainIndex, TextsCountAsTheNumbersThatTheyReadAs) {
  Module1.SiExertionMinutes = "3 min";
  Module1.SiDutyObservationMinutes = " 10";
  Module1.SiExertionCount = "6E1";
  Module1.JobDurationPerDay = "1.5h";
  SI_Calculate(pane_);
  EXPECT_EQ(Module1.SiDutyCyclePercent, 30);
  EXPECT_EQ(Module1.SiEffortsPerMinute, 6);
  EXPECT_EQ(Module1.SiDurationRating, 2);
}

// The quotient is made first: 100 * 29 / 100 would be 29 exactly.
TEST_F(StrainIndex, DutyCycleIsCutOnTheUnroundedProduct) {
  Module1.SiExertionMinutes = 29.0;
  Module1.SiDutyObservationMinutes = 100.0;
  SI_Calculate(pane_);
  EXPECT_EQ(Module1.SiDutyCyclePercent, 28.999999999999996);
  EXPECT_EQ(Module1.SiDutyRating, 2);
  Module1.SiExertionMinutes = 7.0;
  Module1.SiDutyObservationMinutes = 25.0;
  SI_Calculate(pane_);
  EXPECT_EQ(Module1.SiDutyCyclePercent, 28.000000000000004);
}

TEST_F(StrainIndex, RatioBeyondADoubleOverflows) {
  Module1.SiExertionMinutes = 1E308;
  Module1.SiDutyObservationMinutes = 0.001;
  EXPECT_EQ(Failure(), "Overflow");
  StartFresh();
  Module1.SiExertionMinutes = 1E308;
  Module1.SiDutyObservationMinutes = 1.0;
  EXPECT_EQ(Failure(), "Overflow");
  StartFresh();
  Module1.SiExertionCount = 1E308;
  Module1.SiEffortObservationMinutes = 0.001;
  EXPECT_EQ(Failure(), "Overflow");
  StartFresh();
  Module1.SiExertionCount = "1E999";
  EXPECT_EQ(Failure(), "Overflow");
  EXPECT_EQ(pane_.text(), "");
}

TEST_F(StrainIndex, EveryCombinationOfRatingsGivesItsProduct) {
  int combinations = 0;
  for (std::size_t i = 0; i < 15625; ++i) {
    const std::size_t intensity = i % 5;
    const std::size_t duty = i / 5 % 5;
    const std::size_t efforts = i / 25 % 5;
    const std::size_t posture = i / 125 % 5;
    const std::size_t speed = i / 625 % 5;
    const std::size_t duration = i / 3125;
    Rate(static_cast<Integer>(intensity + 1), static_cast<Integer>(posture + 1),
         static_cast<Integer>(speed + 1));
    Module1.SiExertionMinutes = kExertionMinutesOf[duty];
    Module1.SiDutyObservationMinutes = 10.0;
    Module1.SiExertionCount = kExertionCountOf[efforts];
    Module1.SiEffortObservationMinutes = 10;
    Module1.JobDurationPerDay = kHoursOf[duration];
    const long quarters = kIntensity.quarters[intensity] * kDuty.quarters[duty] *
                          kEfforts.quarters[efforts] * kPosture.quarters[posture] *
                          kSpeed.quarters[speed] * kDuration.quarters[duration];
    ASSERT_EQ(Score() * 4096, static_cast<double>(quarters)) << i;
    ++combinations;
  }
  EXPECT_EQ(combinations, 15625);
}

TEST(StrainIndexRiskLevel, ChangesAtFiveAndSeven) {
  for (const double low : {-1.0, 0.0, 0.25, 4.999999}) {
    EXPECT_EQ(SiRiskOf(low).line, "Risk Level = Low") << low;
  }
  for (const double moderate : {5.0, 5.000001, 6.999999}) {
    EXPECT_EQ(SiRiskOf(moderate).line, "Risk Level = Moderate") << moderate;
  }
  for (const double high : {7.0, 7.000001, 1053.0}) {
    EXPECT_EQ(SiRiskOf(high).line, "Risk Level = High") << high;
  }
}

}  // namespace
}  // namespace halvane
