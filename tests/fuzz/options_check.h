#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Reads `bytes` as a command line, one argument a line. Gives what is wrong with the program;
/// empty when it kept its promises. Anything that is thrown goes through to the caller.
std::string ProblemOfOptions(std::string_view bytes);

}  // namespace halvane
