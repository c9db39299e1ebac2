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
  int number = 0;
  action(number++, Module1.JobAnalyst);
  action(number++, Module1.JobName);
  action(number++, Module1.JobWorkstationId);
  for (int task = 0; task <= Module1.TaskNames.upperBound(); ++task) {
    action(number++, Module1.TaskNames.at(task));
  }
}

std::size_t LengthOf(const std::string& name) { return name.size(); }
std::size_t LengthOf(const TaggedField& name) {
  const auto* text = std::get_if<std::string>(&name.value());
  return text == nullptr ? 0 : text->size();
}

void Store(TaggedField&& name, TaggedField& place) { place = std::move(name); }
void Store(TaggedField&& name, std::string& place) { place = std::move(name).AsText(); }

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

JobState& OpenedState() {
  // Lives on, so that the arrays keep their memory from job to job.
  static thread_local JobState opened;
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
