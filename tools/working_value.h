#pragma once

#include <string_view>

#include "core/tagged_field.h"

namespace halvane {

/// A working value of a tool under its own name, for programs that read results.
struct WorkingValue {
  std::string_view name;
  TaggedField value;
};

}  // namespace halvane
