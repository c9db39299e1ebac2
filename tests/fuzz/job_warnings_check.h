#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Checks `bytes` as a job file, starting from `JobState{}`. Gives what is wrong with the program;
/// empty when it kept its promises. Anything that the check throws goes through to the caller.
std::string ProblemOfCheck(std::string_view bytes);

}  // namespace halvane
