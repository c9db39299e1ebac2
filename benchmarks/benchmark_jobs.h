#pragma once

#include <string>

namespace halvane {

/// Makes `Module1` a job as an analyst leaves it: identification, a Strain Index that computes, and
/// `tasks` tasks with values in their fields. `number` varies names and values, so that no two jobs
/// are the same.
void FillJob(int tasks, int number);

/// A folder of its own for the files of a benchmark, removed at the end of the program.
const std::string& BenchmarkFolder();

}  // namespace halvane
