#include "core/units.h"

#include "core/checked_math.h"
#include "core/job_state.h"

namespace halvane {

void ChooseUnits(LengthUnit unit) {
  Module1.Units = static_cast<Integer>(unit);
  const double taskCount = Module1.TaskCount.AsDouble();
  for (int task = 1; task <= taskCount; ++task) {
    const double span = Module1.CtdHandSpan.at(task).AsDouble();
    const double converted = unit == LengthUnit::English ? Quotient(span, kCentimetresPerInch)
                                                         : Product(span, kCentimetresPerInch);
    Module1.CtdHandSpan.at(task) = ReadsAs(Format(converted, Pattern::TwoDecimals));
  }
}

}  // namespace halvane
