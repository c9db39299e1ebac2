#pragma once

#include <array>
#include <vector>

#include "tools/working_value.h"

namespace halvane {

/// Computes Force Frequency Factor, Posture Factor and Grand Score, the predicted incidence rate
/// per 200,000 worked hours, from the job and its active tasks. All effects are working values,
/// `CtdRestTime` of each active task, and values of exactly 0.01 that become 0: work time, hours a
/// shift, cycle time.
///
/// Throws `DivisionByZero` for an unknown grip, wrist or deviation code, `InvalidCall` for a
/// negative load base or duration, `SubscriptOutOfRange` at task 41, `Overflow`.
void CTDcalculate();

/// Per cent of full strength that a grip leaves; 0 for codes that are none. A wrist code of 0 reads
/// as 2.
double CtdRelativeStrength(double grip, int wrist, double radialUlnar, double flexionExtension);

/// Per cent of full strength at a hand span in centimetres; 0 for a grip code that is none.
double CtdSpanStrength(double grip, double centimetres);

/// The working values of the last computation.
std::vector<WorkingValue> CtdWorkingValues();

}  // namespace halvane
