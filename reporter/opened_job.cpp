#include "reporter/opened_job.h"

#include <utility>

#include "core/job_file.h"

namespace halvane {

namespace {

/// From this size on, in bytes, a name is long: copying shorter ones takes no time.
constexpr std::size_t kLongName = std::size_t{1} << 16;

/// Runs `action` with each name of the job and its number.
template <typename Action>
void ForEachName(const Action& action) {
  JobState& job = Module1;
  int number = 0;
  action(number++, job.JobAnalyst);
  action(number++, job.JobName);
  action(number++, job.JobWorkstationId);
  for (int task = 0; task <= job.TaskNames.upperBound(); ++task) {
    action(number++, job.TaskNames.at(task));
  }
}

std::size_t LengthOf(const std::string& name) { return name.size(); }
std::size_t LengthOf(const TaggedField& name) {
  const auto* text = std::get_if<std::string>(&name.value());
  return text == nullptr ? 0 : text->size();
}

void Store(TaggedField&& name, TaggedField& place) { place = std::move(name); }
void Store(TaggedField&& name, std::string& place) { place = std::move(name).AsText(); }

/// Runs `action` with what no tool stores and takes most of the time of a copy: the lists that only
/// a user fills in, of two jobs.
template <typename Action>
void ForEachReadOnlyList(JobState& job, JobState& other, const Action& action) {
  action(job.TaskNames, other.TaskNames);
  action(job.TaskActive, other.TaskActive);
  action(job.TaskSpare, other.TaskSpare);
  action(job.OcraActionFrequency, other.OcraActionFrequency);
  action(job.OcraTaskDuration, other.OcraTaskDuration);
  action(job.OcraForceRating, other.OcraForceRating);
  action(job.CtdHandSpan, other.CtdHandSpan);
  action(job.CtdForceMvc, other.CtdForceMvc);
  action(job.CtdLtShoulderFlexion, other.CtdLtShoulderFlexion);
  action(job.CtdRtShoulderFlexion, other.CtdRtShoulderFlexion);
  action(job.CtdLtShoulderAbduction, other.CtdLtShoulderAbduction);
  action(job.CtdRtShoulderAbduction, other.CtdRtShoulderAbduction);
  action(job.CtdLtElbowFlexion, other.CtdLtElbowFlexion);
  action(job.CtdRtElbowFlexion, other.CtdRtElbowFlexion);
  action(job.CtdBackFlexion, other.CtdBackFlexion);
  action(job.CtdNeckFlexion, other.CtdNeckFlexion);
  action(job.CtdRepetitions, other.CtdRepetitions);
  action(job.CtdLoadHeld, other.CtdLoadHeld);
  action(job.CtdPostureDuration, other.CtdPostureDuration);
}

JobState JobWithoutTheseLists() {
  JobState job;
  ForEachReadOnlyList(job, job, [](auto& list, auto& /*same*/) { list.Drop(); });
  return job;
}

/// The job that is kept, without these lists.
JobState& KeptState() {
  // Lives on, so that the arrays keep their memory from job to job.
  static thread_local JobState kept = JobWithoutTheseLists();
  return kept;
}

/// Takes these lists out of `Module1` for as long as it lives, also where a copy fails.
class ListsAside {
 public:
  ListsAside() { Swap(); }
  ~ListsAside() { Swap(); }
  ListsAside(const ListsAside&) = delete;
  ListsAside& operator=(const ListsAside&) = delete;

 private:
  static void Swap() {
    static thread_local JobState aside = JobWithoutTheseLists();
    ForEachReadOnlyList(Module1, aside, [](auto& list, auto& other) { std::swap(list, other); });
  }
};

/// Copies a job but for its long names and for the lists that no tool stores.
void CopyWhatToolsStore(JobState& to, JobState& from) {
  const ListsAside listsAside;
  LongNames longNames;
  longNames.PutAside();
  to = from;
  longNames.PutBack();
}

}  // namespace

std::string NameFrom(TaggedField& name) {
  return LengthOf(name) >= kLongName ? std::move(name).AsText() : name.AsText();
}

std::string NameFrom(std::string& name) {
  return name.size() >= kLongName ? std::move(name) : name;
}

void LongNames::PutAside() {
  ForEachName([this](int number, auto& name) {
    if (LengthOf(name) >= kLongName) names_.emplace_back(number, std::move(name));
  });
}

void LongNames::PutBack() {
  auto next = names_.begin();
  ForEachName([this, &next](int number, auto& name) {
    if (next != names_.end() && next->first == number) Store(std::move((next++)->second), name);
  });
  names_.clear();
}

void KeepOpenedState() { CopyWhatToolsStore(KeptState(), Module1); }

void TakeOpenedState() { CopyWhatToolsStore(Module1, KeptState()); }

JobState OpenedState() {
  LongNames longNames;
  longNames.PutAside();
  JobState opened = KeptState();
  ForEachReadOnlyList(opened, Module1, [](auto& list, const auto& present) { list = present; });
  longNames.PutBack();
  return opened;
}

std::optional<ReportFailure> OpenAfresh(const std::string& file, LengthUnit units) {
  return Try([&file, units]() -> std::optional<ReportFailure> {
    // Assigned from one that lives on, so that the arrays keep their memory from job to job.
    static const JobState fresh;
    // These would keep the memory of a long name, and the next job may have one too.
    Module1.JobAnalyst = TaggedField();
    Module1.JobName = TaggedField();
    std::string().swap(Module1.JobWorkstationId);
    Module1 = fresh;
    Module1.Units = static_cast<Integer>(units);
    Module1.JobFileName = file;
    if (OpenJobFile() == OpenOutcome::Opened) return std::nullopt;
    return ReportFailure{"NotAJobFile", "Not a job file: its first field is not \"qjt\""};
  });
}

}  // namespace halvane
