#pragma once

#include <string>
#include <vector>

namespace halvane {

/// The program: `arguments` are those of the command line without the program's name. Reports go to
/// standard output, complaints to standard error. Gives the exit status: 0 all done, 1 some file
/// failed or the output took no more, 2 wrong use.
int RunReporter(std::vector<std::string> arguments);

}  // namespace halvane
