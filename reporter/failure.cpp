#include "reporter/failure.h"

#include "core/job_text_reader.h"
#include "core/number_text.h"

namespace halvane {

const ReportFailure kNoReport{"NoReport", "The job has no task, so the tool has no report on it."};

ReportFailure FailureFrom(const RuntimeFailure& failure) {
  ReportFailure known{std::string(KindName(failure.kind())), failure.what()};
  if (const auto* reading = dynamic_cast<const JobReadFailure*>(&failure)) {
    known.place = {reading->line(), reading->field(), reading->found(), {}};
  }
  return known;
}

void SetPlace(ReportFailure& failure, ReportFailure::Place place) {
  failure.message += ": ";
  if (place.line > 0) failure.message += "line " + PlainText(place.line) + ", ";
  failure.message += "field " + place.field + ": \"" + ShownField(place.value) + "\" ";
  failure.message += place.reason;
  failure.place = std::move(place);
}

std::string ShortMessage(const ReportFailure& failure) {
  if (!failure.place) return failure.message;
  return failure.place->field + " " + ShownField(failure.place->value) + ": " + failure.kind;
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
