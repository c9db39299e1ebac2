#include "reporter/failure.h"

namespace halvane {

const ReportFailure kNoReport{"NoReport", "The job has no task, so the tool has no report on it."};

ReportFailure FailureFrom(const RuntimeFailure& failure) {
  return {std::string(KindName(failure.kind())), failure.what()};
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
