#pragma once

#include <string>

namespace halvane {

// The completions of the shells, from the table of the options.

std::string BashCompletion();
std::string ZshCompletion();
std::string FishCompletion();

}  // namespace halvane
