#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/job_fields.h"

namespace halvane {

/// What the controls of the tools store in a field.
enum class FieldRule {
  Choice,  ///< one of a list of values, see `ChoicesOf`
  Number,  ///< what is typed into a box for a number
  None     ///< nothing that a tool computes from; `WhyWithoutRule` says why
};
FieldRule RuleOf(const FieldName& name);

/// Why a value of the field makes no figure wrong; empty for a field that has a rule.
std::string_view WhyWithoutRule(std::string_view field);

/// What is wrong with a value, in words.
struct WrongValue {
  std::string expected;  ///< what is expected in its place, that it is not
  std::string effect;    ///< what the program makes of it
};
/// Nothing for a value that a control stores and a tool computes with.
std::optional<WrongValue> WrongWith(const FieldName& name, const TaggedField& value);

}  // namespace halvane
