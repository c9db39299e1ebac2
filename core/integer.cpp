#include "core/integer.h"

#include <cmath>
#include <limits>

#include "core/runtime_failure.h"

namespace halvane {

Integer RoundedToInteger(double value) {
  constexpr double kLeast = std::numeric_limits<Integer>::min();
  constexpr double kMost = std::numeric_limits<Integer>::max();
  const double rounded = std::nearbyint(value);
  // Written so that a value that is no number fails too.
  if (!(rounded >= kLeast && rounded <= kMost)) {
    throw RuntimeFailure(FailureKind::Overflow);
  }
  return static_cast<Integer>(rounded);
}

}  // namespace halvane
