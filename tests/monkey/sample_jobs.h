#pragma once

#include <QString>
#include <vector>

#include "tests/monkey/dice.h"

namespace halvane {

/// A file that the user may open.
struct SampleJob {
  QString path;
  bool isOdd;  ///< no form has to be able to show it, no computation to end on it
};

/// Makes job files in `folder`: plain ones of few tasks, one of forty, and odd ones, whose values
/// name no control, are too large for a computation, or are no values at all.
std::vector<SampleJob> MakeSampleJobs(const QString& folder, Dice& dice);

}  // namespace halvane
