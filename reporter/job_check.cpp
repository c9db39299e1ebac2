#include "reporter/job_check.h"

#include <utility>

#include "core/job_file.h"
#include "core/job_state.h"
#include "core/job_text_encoding.h"
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

JobProblem ProblemFrom(JobReadFailure& failure) {
  const std::string message = MessageOf(failure);
  return {false, failure.line(), failure.field(), failure.TakeFound(), message};
}

JobProblem ForeignMarker(const JobText& text) {
  JobTextReader reader = text.Reader();
  std::string marker;
  try {
    reader.Line(Named("marker", marker));
  } catch (const JobReadFailure&) {
    // Nothing but blanks, as far as a long file was looked at.
  }
  // Of a long file the field may be cut anywhere.
  marker.resize(WholeCharacters(marker));
  return {false, reader.LineAt(reader.lastStart()), "marker", DecodeJobText(std::move(marker)),
          "is not \"" + std::string(kJobFileMarker) + "\", so this is no job file"};
}

/// Tells of a task count that no reading can come to the end of.
void WarnOfTooManyTasks(std::vector<JobProblem>& problems, const JobText& text) {
  if (Module1.TaskCount.AsDouble() < kHighestTask + 1) return;
  JobTextReader reader = text.Reader();
  reader.HeaderLine();
  reader.Line(Named("TaskCount", Module1.TaskCount));
  problems.push_back({true, reader.LineAt(reader.lastStart()), "TaskCount",
                      std::string(reader.lastText()),
                      "is more than the " + PlainText(kHighestTask) + " tasks of a job"});
}

/// Frees the texts of the job, of which one may be as long as its file, and keeps the places of its
/// tasks.
void EmptyJob() {
  const JobState released = std::exchange(Module1, JobState{});
  Module1.TaskCount = released.TaskCount;
  ResizeTaskArrays();
}

void CheckText(JobCheck& check, const std::string& path) {
  check.verdict = JobVerdict::Refused;
  InputFile file(path);
  JobText text(file);
  try {
    if (SizeForJobText(text) == OpenOutcome::NotAJobFile) {
      check.problems.push_back(ForeignMarker(text));
      return;
    }
    check.verdict = JobVerdict::ReadInPart;
    WarnOfTooManyTasks(check.problems, text);
    ReadJobText(text);
  } catch (JobReadFailure& failure) {
    check.problems.push_back(ProblemFrom(failure));
    return;
  }
  check.verdict = JobVerdict::Good;
  EmptyJob();
  check.problems = WarningsOn(text);
  text.TestUnchanged();
}

}  // namespace

JobCheck CheckJobFile(const std::string& file) {
  JobCheck check;
  check.failure = Try([&]() -> std::optional<ReportFailure> {
    Module1 = JobState{};
    CheckText(check, file);
    return std::nullopt;
  });
  if (check.failure) check.verdict = JobVerdict::Refused;
  return check;
}

}  // namespace halvane
