#include "reporter/opened_job.h"

#include <utility>

#include "core/job_file.h"

namespace halvane {

void Names::Swap() {
  std::swap(analyst_, Module1.JobAnalyst);
  std::swap(job_, Module1.JobName);
  std::swap(workstation_, Module1.JobWorkstationId);
  std::swap(tasks_, Module1.TaskNames);
}

std::optional<ReportFailure> OpenAfresh(const std::string& file, LengthUnit units) {
  return Try([&file, units]() -> std::optional<ReportFailure> {
    // Assigned from one that lives on, so that the arrays keep their memory from job to job.
    static const JobState fresh;
    Module1 = fresh;
    Module1.Units = static_cast<Integer>(units);
    Module1.JobFileName = file;
    if (OpenJobFile() == OpenOutcome::Opened) return std::nullopt;
    return ReportFailure{"NotAJobFile", "Not a job file: its first field is not \"qjt\""};
  });
}

}  // namespace halvane
