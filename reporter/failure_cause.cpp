#include "reporter/failure_cause.h"

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>
#include <variant>
#include <vector>

#include "core/input_file.h"
#include "core/job_text.h"
#include "reporter/field_notes.h"
#include "reporter/field_rules.h"
#include "tools/strain_index/si_score.h"

namespace halvane {
namespace {

/// The fields of a job in the order of the file, each once.
class FieldPlaces {
 public:
  struct Entry {
    FieldName name;
    std::variant<std::string*, Integer*, double*, TaggedField*> place;
  };

  explicit FieldPlaces(JobState& job) { VisitJobFields(job, *this); }

  void HeaderLine() {}
  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (Collect(fields), ...);
  }

  [[nodiscard]] const std::vector<Entry>& entries() const { return entries_; }

 private:
  template <typename T>
  void Collect(const JobField<T>& field) {
    if (seen_.insert(&field.value).second) entries_.push_back({field.name, &field.value});
  }

  std::vector<Entry> entries_;
  std::unordered_set<const void*> seen_;
};

/// An empty job with as many tasks as `job`, none of which exists.
JobState EmptyJobLike(const JobState& job) {
  Module1 = JobState{};
  Module1.Units = job.Units;
  Module1.TaskCount = job.TaskCount;
  ResizeTaskArrays();
  return Module1;
}

/// A job of which a number of fields are filled in from another one.
class PartOfJob {
 public:
  explicit PartOfJob(const JobState& job)
      : job_(job), empty_(EmptyJobLike(job)), from_(FieldPlaces(job_).entries()) {}

  [[nodiscard]] std::size_t size() const { return from_.size(); }
  [[nodiscard]] FieldValue At(std::size_t field) const {
    const auto valueOf = [](const auto* place) { return TaggedField(*place); };
    return {from_[field].name, std::visit(valueOf, from_[field].place)};
  }

  /// Makes `Module1` the job with its first `count` fields.
  void Take(std::size_t count) {
    Module1 = empty_;
    const FieldPlaces to(Module1);
    for (std::size_t i = 0; i < count; ++i) {
      const auto take = [&](auto* place) { *place = *std::get<decltype(place)>(from_[i].place); };
      std::visit(take, to.entries()[i].place);
    }
  }

 private:
  JobState job_;
  JobState empty_;
  std::vector<FieldPlaces::Entry> from_;
};

/// The note of the copy of a field that counts, and nothing where the file can be read no more.
std::optional<FieldNote> NoteOf(const std::string& file, const FieldName& name) {
  std::optional<FieldNote> found;
  (void)Try([&]() -> std::optional<ReportFailure> {
    InputFile input(file);
    JobText text(input);
    text.FindFields();
    FieldNotes notes(text.Reader());
    VisitJobFields(Module1, notes);
    for (const FieldNote& note : notes.notes()) {
      if (note.name.text() == name.text()) found = note;
    }
    return std::nullopt;
  });
  return found;
}

/// The number of tasks, where it is what a tool fails on: a job without any field but this one does
/// not fail once it has no task.
std::optional<FieldValue> TaskCountThatFails(const JobState& job,
                                             const std::function<bool()>& fails) {
  Module1 = JobState{};
  Module1.Units = job.Units;
  ResizeTaskArrays();
  if (fails()) return std::nullopt;
  return FieldValue{{"TaskCount"}, job.TaskCount};
}

struct KindReason {
  FailureKind kind;
  std::string_view text;
};
constexpr std::array kReasons{
    KindReason{FailureKind::SubscriptOutOfRange, "leads to a score that no table has"},
    KindReason{FailureKind::Overflow, "leads to a result beyond what can be held"},
    KindReason{FailureKind::DivisionByZero, "leads to a division by 0"},
    KindReason{FailureKind::InvalidCall, "leads to a power of a number below 0"},
};

}  // namespace

std::optional<FieldValue> FieldThatFails(const JobState& job, const std::function<bool()>& fails) {
  PartOfJob part(job);
  const auto failsWith = [&](std::size_t count) {
    part.Take(count);
    return fails();
  };
  std::size_t good = 0;
  std::size_t bad = part.size();
  if (!failsWith(bad)) return std::nullopt;
  if (failsWith(good)) return TaskCountThatFails(job, fails);
  while (bad - good > 1) {
    const std::size_t middle = good + (bad - good) / 2;
    (failsWith(middle) ? bad : good) = middle;
  }
  return part.At(bad - 1);
}

std::string ReasonOfFailure(std::string_view kind, const FieldValue& field) {
  if (const auto wrong = WrongWith(field.name, field.value)) return wrong->expected;
  const auto* const row = std::ranges::find_if(
      kReasons, [kind](const KindReason& reason) { return KindName(reason.kind) == kind; });
  return row == kReasons.end() ? "stops the tool" : std::string(row->text);
}

std::optional<ReportFailure::Place> GapMet(const ToolRow& tool) {
  if (tool.tool != Tool::StrainIndex) return std::nullopt;
  const auto gap = SiGapMet();
  if (!gap) return std::nullopt;
  return ReportFailure::Place{0, std::string(gap->name), PlainText(gap->value),
                              "has no rating: one band ends at " + PlainText(gap->end) +
                                  " and the next begins at " + PlainText(gap->begin)};
}

void ExplainFailure(ReportFailure& failure, const ToolRow& tool, const JobState& opened,
                    const std::string& file, const std::function<void()>& run) {
  auto place = GapMet(tool);
  JobState present = std::exchange(Module1, JobState{});
  const auto fails = [&] {
    const auto stopped = Try([&run]() -> std::optional<ReportFailure> {
      run();
      return std::nullopt;
    });
    // A part of the job may be stopped by something else, which is not looked for.
    return stopped && stopped->kind == failure.kind;
  };
  if (const auto field = FieldThatFails(opened, fails)) {
    Module1 = opened;
    const auto note = NoteOf(file, field->name);
    if (!place) {
      place = {0, field->name.text(), note ? std::string(note->found()) : field->value.AsText(),
               ReasonOfFailure(failure.kind, *field)};
    }
    if (note) place->line = note->line;
    SetPlace(failure, *std::move(place));
  }
  Module1 = std::move(present);
}

}  // namespace halvane
