#include "reporter/tool_warnings.h"

#include <algorithm>
#include <set>
#include <utility>

#include "core/units.h"
#include "reporter/failure_cause.h"
#include "reporter/opened_job.h"
#include "tools/ctd/ctd_input.h"
#include "tools/ctd/ctd_score.h"

namespace halvane {
namespace {

/// The copy of a field that counts.
const FieldNote& NoteOf(const FieldNotes& notes, const FieldName& name) {
  const std::string text = name.text();
  return *std::find_if(notes.notes().rbegin(), notes.notes().rend(),
                       [&text](const FieldNote& note) { return note.name.text() == text; });
}

/// Adds to a warning that a tool fails, which it may say already, of one or of all.
void Add(JobProblem& warning, std::string_view tool) {
  const std::string fails = std::string(tool) + " fails";
  const auto says = [&warning](std::string_view words) {
    return warning.message.find(words) != std::string::npos;
  };
  if (!says(fails) && !says("every tool") && !says("each tool")) warning.message += "; " + fails;
}

class ToolWarnings {
 public:
  ToolWarnings(std::vector<JobProblem>& warnings, const FieldNotes& notes)
      : warnings_(warnings), notes_(notes) {}

  /// Runs a tool on `Module1`; `compute` is what it computes, `openedState` gives the job as it was
  /// before, which `Module1` is again after a failure.
  template <typename OpenedState, typename Compute>
  void Try(const ToolRow& tool, const OpenedState& openedState, const Compute& compute) {
    const auto failure = FailureOf(compute);
    if (!failure || !failed_.insert(tool.tool).second) return;
    const auto gap = GapMet(tool);
    const auto& opened = openedState();
    const auto field = FieldThatFails(opened, [&] {
      const auto stopped = FailureOf(compute);
      return stopped && stopped->kind == failure->kind;
    });
    Module1 = opened;
    if (!field) return;
    const FieldNote& note = NoteOf(notes_, field->name);
    if (gap) {
      Warn({true, note.line, gap->field, gap->value, gap->reason}, tool);
    } else {
      Warn({true, note.line, field->name.text(), std::string(note.found()),
            ReasonOfFailure(failure->kind, *field)},
           tool);
    }
  }

 private:
  template <typename Compute>
  static std::optional<ReportFailure> FailureOf(const Compute& compute) {
    return halvane::Try([&compute]() -> std::optional<ReportFailure> {
      compute();
      return std::nullopt;
    });
  }

  void Warn(JobProblem warning, const ToolRow& tool) {
    auto known = std::ranges::find_if(warnings_, [&warning](const JobProblem& one) {
      return one.line == warning.line && one.field == warning.field;
    });
    if (known == warnings_.end()) known = warnings_.insert(known, std::move(warning));
    Add(*known, tool.key);
  }

  std::vector<JobProblem>& warnings_;
  const FieldNotes& notes_;
  std::set<Tool> failed_;
};

}  // namespace

void WarnOfFailures(std::vector<JobProblem>& warnings, const FieldNotes& notes) {
  std::vector<const ToolRow*> all;
  for (const ToolRow& tool : Tools()) all.push_back(&tool);
  ToolWarnings told(warnings, notes);
  JobState job = Module1;
  Module1.Units = static_cast<Integer>(LengthUnit::Metric);
  ForEachTool(all, [&told](const ToolRow& tool, std::size_t /*place*/) {
    told.Try(tool, OpenedState, [&tool] { tool.headline->compute(); });
  });
  // Files do not say what their hand spans are taken in, and only one computation asks.
  Module1 = job;
  Module1.Units = static_cast<Integer>(LengthUnit::English);
  const JobState english = Module1;
  told.Try(
      RowOf(Tool::Ctd), [&english]() -> const JobState& { return english; },
      [] {
        if (CtdOpen()) CTDcalculate();
      });
  Module1 = std::move(job);
}

}  // namespace halvane
