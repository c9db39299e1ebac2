#include "core/job_file.h"

#include <memory>
#include <optional>

#include "core/job_fields.h"
#include "core/job_text_encoding.h"
#include "core/job_text_reader.h"
#include "core/job_text_writer.h"
#include "core/platform_file.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

void TestThatNoFileIsOpen() {
  if (Module1.JobFileOpen) throw RuntimeFailure(FailureKind::FileAlreadyOpen);
}

/// What the steps before a read do: the posture factors are not in the file, and the forms of RULA
/// and REBA set them again when they load.
void PrepareRead() {
  Module1.JobDirty = kFalse;
  // Until all of it is read.
  Module1.JobInNoFile = true;
  Module1.RebaUpperArmFactors.fill(0);
  Module1.RebaWristFactors.fill(0);
  Module1.RebaNeckFactors.fill(0);
  Module1.RebaTrunkFactors.fill(0);
  Module1.RebaLegFactors.fill(0);
  Module1.RebaForceFactors.fill(0);
  Module1.RulaUpperArmFactors.fill(0);
  Module1.RulaLowerArmFactors.fill(0);
  Module1.RulaWristFactors.fill(0);
  Module1.RulaNeckFactors.fill(0);
  Module1.RulaTrunkFactors.fill(0);
}

/// Opens the file, which counts as open from here on.
std::unique_ptr<InputFile> OpenForInput() {
  TestThatNoFileIsOpen();
  auto file = std::make_unique<InputFile>(Module1.JobFileName);
  Module1.JobFileOpen = true;
  return file;
}

void ReadFields(const JobText& text) {
  JobTextReader reader = text.Reader();
  try {
    VisitJobFields(Module1, reader);
  } catch (const JobReadFailure&) {
    throw;
  } catch (const RuntimeFailure& failure) {
    const bool isTask41 = failure.kind() == FailureKind::SubscriptOutOfRange;
    if (!isTask41 || Module1.TaskNames.upperBound() <= kHighestTask) throw;
    throw reader.FailureAtNextField(failure.kind(), {"CtdLoadHeld", kHighestTask + 1, 0});
  }
  text.TestUnchanged();
  Module1.JobFileOpen = false;
  Module1.JobInNoFile = false;
}

/// Sizes the per-task arrays for the count that `reader` has just read.
void SizeTaskArrays(const JobTextReader& reader) {
  try {
    ResizeTaskArrays();
  } catch (const RuntimeFailure& failure) {
    throw reader.FailureAtLastField(failure.kind(), {"TaskCount"});
  }
}

/// Fails a save whose file has the lines before the failure. `old` is where the old job stands.
[[noreturn]] void FailBehindItsLines(FailureKind kind, const std::string& old) {
  const std::string& path = Module1.JobFileName;
  const std::string lines = path + " could not be written whole";
  if (old.empty()) throw RuntimeFailure(kind, lines);
  throw RuntimeFailure(kind, lines + ". " + old + " holds the job as it was before");
}

}  // namespace

void WriteJobFile() {
  // Until the whole file is written. A cancelled dialog gives no name, and a save that was not even
  // tried takes nothing away from a job that is as it was saved.
  if (!Module1.JobFileName.empty() || Module1.JobDirty != kFalse) Module1.JobInNoFile = true;
  Module1.JobDirty = kFalse;
  TestThatNoFileIsOpen();
  // All of the text before anything of the old file changes.
  JobTextWriter writer;
  std::optional<FailureKind> failure;
  try {
    VisitJobFields(Module1, writer);
  } catch (const RuntimeFailure& thrown) {
    failure = thrown.kind();
  }
  const std::string bytes = EncodeJobText(writer.text());
  FileReplacement file(Module1.JobFileName);
  Module1.JobFileOpen = true;
  if (failure) FailBehindItsLines(*failure, file.WriteIncomplete(bytes));
  file.Write(bytes);
  Module1.JobFileOpen = false;
  Module1.JobInNoFile = false;
}

void ReadJobFile() {
  PrepareRead();
  const auto file = OpenForInput();
  JobText text(*file);
  text.FindFields();
  ReadFields(text);
}

OpenOutcome OpenJobFile() {
  const auto file = OpenForInput();
  JobText text(*file);
  if (SizeForJobText(text) == OpenOutcome::NotAJobFile) return OpenOutcome::NotAJobFile;
  // The same text again, so that no change in between can come through.
  ReadJobText(text);
  return OpenOutcome::Opened;
}

OpenOutcome SizeForJobText(JobText& text) {
  if (text.IsForeign()) {
    Module1.JobFileOpen = false;
    return OpenOutcome::NotAJobFile;
  }
  text.FindFields();
  JobTextReader reader = text.Reader();
  const bool isJobFile = reader.ReadMarkerLine();
  if (isJobFile) reader.Line(Named("TaskCount", Module1.TaskCount));
  Module1.JobFileOpen = false;
  if (!isJobFile) return OpenOutcome::NotAJobFile;
  SizeTaskArrays(reader);
  return OpenOutcome::Opened;
}

void ReadJobText(const JobText& text) {
  PrepareRead();
  Module1.JobFileOpen = true;
  ReadFields(text);
}

std::string JobFileBytes(JobState& job) {
  JobTextWriter writer;
  VisitJobFields(job, writer);
  return EncodeJobText(writer.text());
}

}  // namespace halvane
