#include "reporter/job_check.h"

#include "core/job_file.h"
#include "core/job_state.h"
#include "core/job_text_encoding.h"
#include "core/job_text_reader.h"
#include "core/platform_file.h"
#include "reporter/job_warnings.h"

namespace halvane {
namespace {

std::string MessageOf(const JobReadFailure& failure) {
  switch (failure.kind()) {
    case FailureKind::InputPastEnd: return "the file ends where this field should stand";
    case FailureKind::TypeMismatch: return "is no number";
    case FailureKind::Overflow: return "is beyond what the field can hold";
    case FailureKind::SubscriptOutOfRange:
      return failure.field() == "TaskCount" ? "is no number of tasks"
                                            : "belongs to task 41, which has no place in a job";
    default: return failure.what();
  }
}

JobProblem ProblemFrom(const JobReadFailure& failure) {
  return {false, failure.line(), failure.field(), failure.found(), MessageOf(failure)};
}

JobProblem ForeignMarker(std::string_view text) {
  JobTextReader reader(text);
  TaggedField marker;
  reader.Line(Named("marker", marker));
  return {false, reader.LineAt(reader.lastStart()), "marker", std::string(reader.lastText()),
          "is not \"" + std::string(kJobFileMarker) + "\", so this is no job file"};
}

/// Tells of a task count that no reading can come to the end of.
void WarnOfTooManyTasks(std::vector<JobProblem>& problems, std::string_view text) {
  if (Module1.TaskCount.AsDouble() < kHighestTask + 1) return;
  JobTextReader reader(text);
  reader.HeaderLine();
  reader.Line(Named("TaskCount", Module1.TaskCount));
  problems.push_back({true, reader.LineAt(reader.lastStart()), "TaskCount",
                      std::string(reader.lastText()),
                      "is more than the " + PlainText(kHighestTask) + " tasks of a job"});
}

void CheckText(JobCheck& check, std::string_view text) {
  check.verdict = JobVerdict::Refused;
  try {
    if (SizeForJobText(text) == OpenOutcome::NotAJobFile) {
      check.problems.push_back(ForeignMarker(text));
      return;
    }
    check.verdict = JobVerdict::ReadInPart;
    WarnOfTooManyTasks(check.problems, text);
    ReadJobText(text);
  } catch (const JobReadFailure& failure) {
    check.problems.push_back(ProblemFrom(failure));
    return;
  }
  check.verdict = JobVerdict::Good;
  check.problems = WarningsOn(text);
}

}  // namespace

JobCheck CheckJobFile(const std::string& file) {
  JobCheck check;
  check.failure = Try([&]() -> std::optional<ReportFailure> {
    Module1 = JobState{};
    CheckText(check, DecodeJobText(InputFile(file).ReadAll()));
    return std::nullopt;
  });
  if (check.failure) check.verdict = JobVerdict::Refused;
  return check;
}

}  // namespace halvane
