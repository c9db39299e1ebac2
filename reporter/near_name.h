#pragma once

#include <span>
#include <string>
#include <string_view>

namespace halvane {

/// `; did you mean "--format"?` for what is a slip away from one of the names, the first of the
/// nearest ones; empty where none is near.
std::string HintFor(std::string_view typed, std::span<const std::string> names);

}  // namespace halvane
