#pragma once

#include <vector>

#include "reporter/field_notes.h"
#include "reporter/job_problem.h"

namespace halvane {

/// Tells of each tool that a freshly started program ends on with the job in `Module1`, and of the
/// field that it fails on: in the warning on that field, where there is one. `notes` are those of
/// the job's fields.
void WarnOfFailures(std::vector<JobProblem>& warnings, const FieldNotes& notes);

}  // namespace halvane
