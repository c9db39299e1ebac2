#pragma once

#include <string>

#include "core/job_fields.h"

namespace halvane {

/// What the program makes of a value that none of its controls stores in a field of choices.
/// Throws `Overflow` for a text that reads as a number beyond a double.
std::string EffectOf(const FieldName& name, const TaggedField& value);

/// Whether the computation has a row for a value that a control stores. The slider of the hours
/// without recovery goes further than their multipliers.
bool IsComputedWith(const FieldName& name, const TaggedField& value);

}  // namespace halvane
