#pragma once

#include <cmath>

#include "core/runtime_failure.h"

namespace halvane {

/// `value`, the result of a calculation with finite numbers. Throws `Overflow` when it is beyond a
/// double, so that nothing that is no number travels on.
inline double Finite(double value) {
  if (!std::isfinite(value)) throw RuntimeFailure(FailureKind::Overflow);
  return value;
}

/// `dividend` / `divisor`. Throws `DivisionByZero` for a divisor of exactly 0, 0 / 0 included, and
/// `Overflow`.
inline double Quotient(double dividend, double divisor) {
  if (divisor == 0) throw RuntimeFailure(FailureKind::DivisionByZero);
  return Finite(dividend / divisor);
}

/// `factor1` x `factor2`. Throws `Overflow`.
inline double Product(double factor1, double factor2) { return Finite(factor1 * factor2); }

}  // namespace halvane
