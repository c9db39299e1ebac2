#include "tools/hal/hal_score.h"

#include <array>

#include "core/checked_math.h"
#include "core/job_state.h"
#include "tools/hal/hal_report.h"

namespace halvane {
namespace {

using Bounds = std::array<double, 4>;

constexpr std::size_t kBands = 5;
// The upper bound of each band but the last, itself included.
constexpr Bounds kFrequencyBounds{7.5, 15, 30, 60};  // exertions a minute
constexpr Bounds kDutyBounds{20, 40, 60, 80};        // per cent of the cycle
constexpr double kHighestDutyOfTheFirstRow = 100;

constexpr std::array<std::array<Integer, kBands>, kBands> kLevels{{
    // rows: band of exertions a minute; columns: band of the duty cycle
    {1, 1, 1, 1, 1},
    {2, 2, 3, 3, 3},
    {3, 4, 5, 5, 6},
    {4, 5, 5, 6, 7},
    {4, 5, 6, 7, 8},
}};

std::size_t BandOf(double value, const Bounds& bounds) {
  std::size_t band = 0;
  while (band < bounds.size() && value > bounds[band]) ++band;
  return band;
}

/// A limit is a straight line over the level. Both lines come to 0 at level 10.
struct Line {
  double slope;
  double atZero;

  [[nodiscard]] double ForceAt(double level) const { return slope * level + atZero; }
  [[nodiscard]] double LevelAt(double force) const { return Quotient(force - atZero, slope); }
};
constexpr Line kThresholdLimitLine{-0.8, 8};
constexpr Line kActionLine{-3.2 / 6, 16.0 / 3};

}  // namespace

void GetExertionLevel() {
  const std::size_t row = BandOf(Module1.HalExertionFrequency.AsDouble(), kFrequencyBounds);
  const double duty = Module1.HalDutyCycle.AsDouble();
  // The other rows have no end, which is wanted.
  if (row == 0 && duty > kHighestDutyOfTheFirstRow) return;
  Module1.HalActivityLevel = kLevels[row][BandOf(duty, kDutyBounds)];
}

void HalComputeLimits() {
  if (Module1.HalForceMode == kFalse) {
    const double force = Module1.HalForceRating.AsDouble();
    Module1.HalLimits.at(kHalThresholdLimitValue) = kThresholdLimitLine.LevelAt(force);
    Module1.HalLimits.at(kHalActionLevel) = kActionLine.LevelAt(force);
  } else {
    const double level = Module1.HalActivityLevel.AsDouble();
    Module1.HalLimits.at(kHalThresholdLimitValue) = kThresholdLimitLine.ForceAt(level);
    Module1.HalLimits.at(kHalActionLevel) = kActionLine.ForceAt(level);
  }
}

void HAL_Calculate(RichText& RichTextBox1) {
  HalComputeLimits();
  HAL_Print(RichTextBox1);
}

std::string HalLimitText(double limit) {
  return limit < 0 ? "0" : Format(limit, Pattern::TwoDecimals);
}

std::vector<WorkingValue> HalWorkingValues() {
  return {
      {"HalForceMode", Module1.HalForceMode, "",
       "-1: the limits are forces for the activity level, 0: levels for the force rating"},
      {"HalLimits", Elements(Module1.HalLimits), "normalized force, 0 to 10",
       "0 Threshold Limit Value, 1 Action Level; below 0 for a level above 10"},
  };
}

}  // namespace halvane
