#pragma once

#include <vector>

#include "core/job_text.h"
#include "reporter/job_problem.h"

namespace halvane {

/// What would surprise the user of a job file that can be read whole. `text` is that of the file;
/// it is read into `Module1` again, whose per-task arrays have its size.
std::vector<JobProblem> WarningsOn(const JobText& text);

}  // namespace halvane
