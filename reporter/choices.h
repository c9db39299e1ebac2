#pragma once

#include <vector>

#include "core/job_fields.h"

namespace halvane {

/// The values that the controls of the tools store in a field, in rising order; empty for a field
/// that is no choice.
const std::vector<double>& ChoicesOf(const FieldName& name);

}  // namespace halvane
