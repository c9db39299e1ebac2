#include "tests/fuzz/job_file_check.h"

#include <variant>

#include "core/job_fields.h"
#include "core/job_file.h"
#include "core/job_text.h"
#include "core/job_text_encoding.h"
#include "core/runtime_failure.h"
#include "tests/fuzz/memory_file.h"

namespace halvane {
namespace {

/// Looks at every text of a job.
class TextScan {
 public:
  void HeaderLine() {}
  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (Look(fields.value), ...);
  }

  [[nodiscard]] bool foundQuote() const { return foundQuote_; }
  [[nodiscard]] bool allUtf8() const { return allUtf8_; }

 private:
  void Look(const std::string& text) {
    foundQuote_ = foundQuote_ || text.find('"') != std::string::npos;
    allUtf8_ = allUtf8_ && IsUtf8(text);
  }
  void Look(const TaggedField& field) {
    if (const auto* text = std::get_if<std::string>(&field.value())) Look(*text);
  }
  void Look(Integer /*number*/) {}
  void Look(double /*number*/) {}

  bool foundQuote_ = false;
  bool allUtf8_ = true;
};

void StartAfresh(const MemoryFile& file) {
  Module1 = JobState{};
  Module1.JobFileName = file.path();
}

/// Starts from `JobState{}`; `open` opens `JobFileName`. What stopped it, if anything, is put into
/// `told`.
template <typename Action>
std::string OutcomeOf(const MemoryFile& file, std::string& told, const Action& open) {
  StartAfresh(file);
  try {
    return open() == OpenOutcome::Opened ? "Opened" : "NotAJobFile";
  } catch (const JobReadFailure& failure) {
    told = failure.what() + failure.found();
    return std::string(KindName(failure.kind()));
  } catch (const RuntimeFailure& failure) {
    told = failure.what();
    return std::string(KindName(failure.kind()));
  }
}

/// Opens the file as one that is too long to be held in memory. The blocks are so small that many
/// fields cross from one into the next.
OpenOutcome OpenAsLong(std::size_t size) {
  constexpr std::size_t kBlock = 61;
  InputFile file(Module1.JobFileName);
  Module1.JobFileOpen = true;
  JobText text(file, {size, kBlock});
  if (SizeForJobText(text) == OpenOutcome::NotAJobFile) return OpenOutcome::NotAJobFile;
  ReadJobText(text);
  return OpenOutcome::Opened;
}

/// What differs between the two ways to read a file; leaves the job of the way for short files.
std::string DifferenceOfWays(std::string_view bytes) {
  const MemoryFile file(bytes);
  std::string told;
  const std::string outcome = OutcomeOf(file, told, [&] { return OpenAsLong(bytes.size()); });
  const JobState job = Module1;
  std::string toldOfShort;
  const std::string expected = OutcomeOf(file, toldOfShort, OpenJobFile);
  // A long file needs no five fields to be foreign.
  if (bytes.empty() || outcome == "NotAJobFile") return {};
  if (outcome != expected) return "as a long file: " + outcome;
  if (told != toldOfShort) return "as a long file: " + told;
  return job == Module1 ? "" : "as a long file: another job";
}

std::string Open(std::string_view bytes) {
  const MemoryFile file(bytes);
  std::string told;
  return OutcomeOf(file, told, OpenJobFile);
}

/// What has to hold of the job after any try to open a file.
std::string ProblemOf(const std::string& outcome) {
  if (Module1.JobDirty != kFalse) return "JobDirty is set";
  if (outcome == "Opened" && Module1.JobFileOpen) return "a file read whole stays open";
  if (outcome == "NotAJobFile") {
    JobState untouched;
    untouched.JobFileName = Module1.JobFileName;
    if (Module1 != untouched) return "a refused file changed the job";
  }
  if ((outcome == "InputPastEnd" || outcome == "TypeMismatch") && !Module1.JobFileOpen) {
    return "a file that failed half way does not stay open";
  }
  return {};
}

}  // namespace

JobFileVerdict CheckJobFile(std::string_view bytes) {
  JobFileVerdict verdict;
  verdict.problem = DifferenceOfWays(bytes);
  if (!verdict.problem.empty()) return verdict;
  verdict.outcome = Open(bytes);
  verdict.problem = ProblemOf(verdict.outcome);
  if (!verdict.problem.empty() || verdict.outcome != "Opened") return verdict;

  TextScan texts;
  VisitJobFields(Module1, texts);
  if (!texts.allUtf8()) verdict.problem = "a text of the job is no UTF-8";
  if (texts.foundQuote()) return verdict;

  verdict.roundTripTried = true;
  const std::string first = JobFileBytes(Module1);
  const std::string outcome = Open(first);
  if (outcome != "Opened") {
    verdict.problem = "what was written does not read: " + outcome;
  } else if (JobFileBytes(Module1) != first) {
    verdict.problem = "writing, reading and writing again gives other bytes";
  }
  return verdict;
}

}  // namespace halvane
