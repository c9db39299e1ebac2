#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reporter/job_problem.h"

namespace halvane {

/// What would surprise the user of a job file that can be read whole. `text` is the one that has
/// just been read into `Module1`.
std::vector<JobProblem> WarningsOn(std::string_view text);

}  // namespace halvane
