#include "reporter/failure.h"

#include "core/job_file.h"
#include "core/job_state.h"

namespace halvane {

const ReportFailure kNoReport{"NoReport", "The job has no task, so the tool has no report on it."};

ReportFailure FailureFrom(const RuntimeFailure& failure) {
  return {std::string(KindName(failure.kind())), failure.what()};
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

std::string Complaint(const std::string& file, const ReportFailure& failure) {
  // The failures of the file system name the file themselves.
  const bool namesFile = failure.kind == KindName(FailureKind::FileError);
  return namesFile ? failure.message : file + ": " + failure.message;
}

std::string Complaint(const std::string& file, std::string_view tool,
                      const ReportFailure& failure) {
  return Complaint(file, {failure.kind, std::string(tool) + ": " + failure.message});
}

}  // namespace halvane
