#pragma once

#include <string>
#include <vector>

#include "core/rich_text.h"
#include "tools/working_value.h"

namespace halvane {

/// Elements of `HalLimits`.
inline constexpr int kHalThresholdLimitValue = 0;
inline constexpr int kHalActionLevel = 1;

/// Puts the Hand Activity Level of the job's exertions per minute and duty cycle into
/// `HalActivityLevel`, a whole number from 1 to 8. Up to 7.5 exertions a minute with a duty cycle
/// above 100 per cent give none: the level stays. Throws `Overflow` for a text that reads as a
/// number beyond a double.
void GetExertionLevel();

/// Computes `HalLimits`. In force-limit mode the limits are forces on the 10-point scale for the
/// level of the job, in activity-limit mode levels for its force rating. They may be negative.
/// Throws `Overflow`.
void HalComputeLimits();

/// Computes `HalLimits` and writes the report into `RichTextBox1`. Throws `Overflow`.
void HAL_Calculate(RichText& RichTextBox1);

/// A limit on the form: with two decimals, and "0" for one below 0.
std::string HalLimitText(double limit);

/// The working values of the last computation.
std::vector<WorkingValue> HalWorkingValues();

}  // namespace halvane
