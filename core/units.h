#pragma once

namespace halvane {

/// The two values of `Units`.
enum class LengthUnit {
  Metric = 0,   ///< centimetres
  English = 1,  ///< inches
};

/// Centimetres an inch.
inline constexpr double kCentimetresPerInch = 2.54;
inline constexpr double kMinutesPerHour = 60;

/// Makes `unit` the unit of hand spans and converts the hand span of every task, deleted ones
/// included, rounded to two decimals. Whether the unit really changes is not tested: choosing
/// English twice divides twice, which is wanted. `JobDirty` stays as it is.
///
/// Throws `Overflow` for a span that becomes too large.
void ChooseUnits(LengthUnit unit);

}  // namespace halvane
