#include "tools/strain_index/si_score.h"

#include "core/checked_array.h"
#include "core/checked_math.h"
#include "core/job_state.h"
#include "tools/strain_index/si_controls.h"
#include "tools/strain_index/si_report.h"

namespace halvane {
namespace {

/// Stands for an observation time of 0 or less, in minutes.
constexpr double kLeastObservationMinutes = 0.001;
/// At this duty cycle the exertion never stops, and the efforts per minute have no meaning of their
/// own.
constexpr double kStaticDutyPercent = 100;
constexpr Integer kStaticEffortsRating = 5;

constexpr std::string_view kRiskLabel = "Risk Level = ";

/// Values from `least` to `most`, both included.
struct RatingBand {
  double least;
  double most;
};

/// Below the first band a value rates 1, in the bands 2, 3 and 4, from `highest` on 5.
struct RatingScale {
  std::array<RatingBand, 3> bands;
  double highest;
};

// The gaps between a band's end and the next one's start are wanted: a value in a gap matches
// nothing.
constexpr RatingScale kDutyScale{{{{10, 29}, {30, 49}, {50, 79}}}, 80};  // per cent
constexpr RatingScale kEffortsScale{{{{4, 8}, {9, 14}, {15, 19}}}, 20};  // efforts a minute

/// Rates `value`; `rating` keeps what it had where the value lies in a gap.
void Rate(double value, const RatingScale& scale, Integer& rating) {
  if (value < scale.bands.front().least) {
    rating = 1;
    return;
  }
  for (std::size_t i = 0; i < scale.bands.size(); ++i) {
    if (value >= scale.bands[i].least && value <= scale.bands[i].most) {
      rating = static_cast<Integer>(i + 2);
      return;
    }
  }
  if (value >= scale.highest) rating = kSiRatings;
}

/// The gap that a value lies in, if any.
std::optional<SiGap> GapAt(std::string_view name, double value, const RatingScale& scale) {
  for (std::size_t i = 0; i < scale.bands.size(); ++i) {
    const bool isLast = i + 1 == scale.bands.size();
    const double begin = isLast ? scale.highest : scale.bands[i + 1].least;
    const double end = scale.bands[i].most;
    if (value > end && value < begin) return SiGap{name, value, end, begin};
  }
  return std::nullopt;
}

/// Hours worked per day; bounds differ in which side they belong to.
Integer DurationRating(double hours) {
  if (hours <= 1) return 1;
  if (hours < 2) return 2;
  if (hours < 4) return 3;
  if (hours <= 8) return 4;
  return 5;
}

double StrainIndexScore() {
  // Each rating is tested before the first multiplication, in this order.
  const double intensity = SiMultipliersAt(Module1.SiIntensityRating).SiIntensityMultipliers;
  const double duty = SiMultipliersAt(Module1.SiDutyRating).SiDutyMultipliers;
  const double efforts = SiMultipliersAt(Module1.SiEffortsRating).SiEffortsMultipliers;
  const double posture = SiMultipliersAt(Module1.SiPostureRating).SiPostureMultipliers;
  const double speed = SiMultipliersAt(Module1.SiSpeedRating).SiSpeedMultipliers;
  const double duration = SiMultipliersAt(Module1.SiDurationRating).SiDurationMultipliers;
  return duration * (speed * (posture * (efforts * (duty * intensity))));
}

}  // namespace

// clang-format off
constexpr std::array<SiMultiplierRow, 5> kSiMultipliers{{
    // intensity, duty, efforts, posture, speed, duration
    { 1, 0.5, 0.5, 1,   1,   0.25},  // rating 1
    { 3, 1,   1,   1,   1,   0.5 },  // rating 2
    { 6, 1.5, 1.5, 1.5, 1,   0.75},  // rating 3
    { 9, 2,   2,   2,   1.5, 1   },  // rating 4
    {13, 3,   3,   3,   2,   1.5 },  // rating 5
}};

constexpr std::array<SiLabelRow, 5> kSiLabels{{
    // intensity,       posture,     speed
    {"Light",         "Very Good", "Very Slow"},  // rating 1
    {"Somewhat Hard", "Good",      "Slow"     },  // rating 2
    {"Hard",          "Fair",      "Fair"     },  // rating 3
    {"Very Hard",     "Bad",       "Fast"     },  // rating 4
    {"Near Maximal",  "Very Bad",  "Very Fast"},  // rating 5
}};
// clang-format on

const SiMultiplierRow& SiMultipliersAt(int rating) {
  return kSiMultipliers[CheckedSubscript(rating - 1, kSiMultipliers.size())];
}

const SiLabelRow& SiLabelsAt(int rating) {
  return kSiLabels[CheckedSubscript(rating - 1, kSiLabels.size())];
}

void SiComputeScore() {
  // The fields themselves change, and are saved so; the boxes on screen do not follow.
  if (Module1.SiDutyObservationMinutes.AsDouble() <= 0) {
    Module1.SiDutyObservationMinutes = kLeastObservationMinutes;
  }
  Module1.SiDutyCyclePercent = Product(100, Quotient(Module1.SiExertionMinutes.AsDouble(),
                                                     Module1.SiDutyObservationMinutes.AsDouble()));
  Rate(Module1.SiDutyCyclePercent, kDutyScale, Module1.SiDutyRating);

  if (Module1.SiEffortObservationMinutes <= 0) {
    Module1.SiEffortObservationMinutes = kLeastObservationMinutes;
  }
  Module1.SiEffortsPerMinute =
      Quotient(Module1.SiExertionCount.AsDouble(), Module1.SiEffortObservationMinutes);
  Rate(Module1.SiEffortsPerMinute, kEffortsScale, Module1.SiEffortsRating);
  if (Module1.SiDutyCyclePercent == kStaticDutyPercent) {
    Module1.SiEffortsRating = kStaticEffortsRating;
  }

  Module1.SiDurationRating = DurationRating(Module1.JobDurationPerDay.AsDouble());
  Module1.SiStrainIndexScore = StrainIndexScore();
}

std::optional<SiGap> SiGapMet() {
  if (Module1.SiDutyRating == 0) {
    return GapAt("SiDutyCyclePercent", Module1.SiDutyCyclePercent, kDutyScale);
  }
  if (Module1.SiEffortsRating != 0) return std::nullopt;
  return GapAt("SiEffortsPerMinute", Module1.SiEffortsPerMinute, kEffortsScale);
}

void SI_Calculate(RichText& RichTextBox1) {
  SiComputeScore();
  SI_Report(RichTextBox1);
}

std::string_view SiRisk::name() const { return line.substr(kRiskLabel.size()); }

SiRisk SiRiskOf(double strainIndexScore) {
  if (strainIndexScore < 5) return {"Risk Level = Low", ZoneColour::Green};
  if (strainIndexScore < 7) return {"Risk Level = Moderate", ZoneColour::Orange};
  return {"Risk Level = High", ZoneColour::Red};
}

std::vector<WorkingValue> SiWorkingValues() {
  return {
      {"SiIntensityRating", Module1.SiIntensityRating, "",
       "rating of the intensity of exertion, 1 to 5"},
      {"SiPostureRating", Module1.SiPostureRating, "",
       "rating of the hand and wrist posture, 1 to 5"},
      {"SiSpeedRating", Module1.SiSpeedRating, "", "rating of the speed of work, 1 to 5"},
      {"SiDutyCyclePercent", Module1.SiDutyCyclePercent, "per cent",
       "duration of all exertions over the observation time"},
      {"SiDutyRating", Module1.SiDutyRating, "", "rating of the duration of exertion, 1 to 5"},
      {"SiEffortsPerMinute", Module1.SiEffortsPerMinute, "exertions a minute",
       "exertions over the observation time"},
      {"SiEffortsRating", Module1.SiEffortsRating, "", "rating of the efforts a minute, 1 to 5"},
      {"SiDurationRating", Module1.SiDurationRating, "",
       "rating of the duration of the task a day, 1 to 5"},
      {"SiStrainIndexScore", Module1.SiStrainIndexScore, "", "product of the six multipliers"},
  };
}

}  // namespace halvane
