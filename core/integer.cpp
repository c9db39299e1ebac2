#include "core/integer.h"

#include <cmath>
#include <limits>

#include "core/runtime_failure.h"

namespace halvane {

Integer ToInteger(double value) {
  const double rounded = std::nearbyint(value);
  // Written so that a value that is no number fails too.
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max())) {
    throw RuntimeFailure(FailureKind::Overflow);
  }
  return static_cast<Integer>(rounded);
}

}  // namespace halvane
