#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "tools/working_value.h"

namespace halvane {

/// Actions a minute that are recommended for a task with nothing against it.
inline constexpr double kOcraReferenceActions = 30;

/// The multiplier of a force rating; nothing for one that matches no row.
std::optional<double> OcraForceMultiplierOf(double rating);
/// The multiplier of hours without recovery by their text: " 3" and "3.0" match no row, nor do the
/// 9 and 10 of the slider.
std::optional<double> OcraRecoveryMultiplierOf(std::string_view hours);

/// Rebuilds the scores of the 14 exposure lists from `OcraComboChoice`. Throws
/// `SubscriptOutOfRange` for an answer that is none.
void OcraScoreLists();

/// Computes `OcraRiskIndex`, actions observed over actions recommended, from job and list scores.
/// `OcraScoreLists` has to run before each call: the grip score that feeds the extra multiplier is
/// widened in place. Force, grip extra and recovery multipliers keep the value of the last
/// computation where their lookup finds nothing, which is wanted.
///
/// Throws `Overflow` for a sum or product beyond its field.
void OcraCalculate();

/// Both in their order.
void OcraScoreAndCalculate();

/// The working values of the last computation.
std::vector<WorkingValue> OcraWorkingValues();

}  // namespace halvane
