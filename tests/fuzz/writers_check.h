#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Writes reports and summaries of `bytes` as a job file in every format. Gives what is wrong with
/// the output; empty when it has the shape of its format. Anything that is thrown goes through to
/// the caller.
std::string ProblemOfWriters(std::string_view bytes);

}  // namespace halvane
