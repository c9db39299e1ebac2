#pragma once

#include <string>
#include <vector>

namespace halvane {

/// The arguments of the command line without the program's name, as UTF-8 where the system has text
/// for them and else as the bytes that they are. `count` and `values` are those of `main`.
std::vector<std::string> Arguments(int count, char** values);

}  // namespace halvane
