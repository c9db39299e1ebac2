#pragma once

#include <cstdint>
#include <limits>

namespace halvane {

/// The program's whole number: signed, 16 bits, as the job file stores it.
using Integer = std::int16_t;

/// Booleans held in an `Integer`.
inline constexpr Integer kTrue = -1;
inline constexpr Integer kFalse = 0;

/// What `ToInteger` does with the few values that are not whole.
Integer RoundedToInteger(double value);

/// `value` rounded to the nearest whole number, ties to the even one.
/// Throws `Overflow` when the result needs more than 16 bits.
inline Integer ToInteger(double value) {
  constexpr double kLeast = std::numeric_limits<Integer>::min();
  constexpr double kMost = std::numeric_limits<Integer>::max();
  // Nearly all values are whole, and rounding takes longer than all the rest.
  if (value >= kLeast && value <= kMost && static_cast<Integer>(value) == value) {
    return static_cast<Integer>(value);
  }
  return RoundedToInteger(value);
}

}  // namespace halvane
