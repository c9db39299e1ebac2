#pragma once

#include <cstdint>

namespace halvane {

/// The program's whole number: signed, 16 bits, as the job file stores it.
using Integer = std::int16_t;

/// Booleans held in an `Integer`.
inline constexpr Integer kTrue = -1;
inline constexpr Integer kFalse = 0;

/// `value` rounded to the nearest whole number, ties to the even one.
/// Throws `Overflow` when the result needs more than 16 bits.
Integer ToInteger(double value);

}  // namespace halvane
