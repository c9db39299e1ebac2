#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reporter/failure.h"
#include "reporter/job_problem.h"

namespace halvane {

/// What the program makes of a job file.
enum class JobVerdict { Good, ReadInPart, Refused };

struct JobCheck {
  JobVerdict verdict = JobVerdict::Good;
  std::vector<JobProblem> problems;      ///< in the order of the file, then those on other files
  std::optional<ReportFailure> failure;  ///< why the file could not be read at all
};

/// Reads a job file as opening it does, and tells what the program would not take: line, field and
/// what stands there. Of a file that it takes, tells what would surprise: copies of a repeated
/// field that differ, values that no control stores, answers in both lists of a pair, text behind
/// the end.
JobCheck CheckJobFile(const std::string& file);

}  // namespace halvane
