#pragma once

#include <exception>
#include <new>
#include <optional>
#include <string>

#include "core/runtime_failure.h"

namespace halvane {

/// Why there is no report: a name for programs, a sentence for people.
struct ReportFailure {
  std::string kind;
  std::string message;
  /// Where it comes from, as far as it is known.
  struct Place {
    int line = 0;        ///< of the job file, counted from 1; 0: not known
    std::string field;   ///< "Hand", "CtdLoadHeld(2, 7)", or a working value of the tool
    std::string value;   ///< as it stands in the file
    std::string reason;  ///< why it is the place
  };
  std::optional<Place> place = std::nullopt;
};

ReportFailure FailureFrom(const RuntimeFailure& failure);

/// Gives a failure its place, which its message tells from there on.
void SetPlace(ReportFailure& failure, ReportFailure::Place place);

/// What a table has room for of a failure: its place and its kind.
std::string ShortMessage(const ReportFailure& failure);

/// Runs `action`, which gives what stopped it, if anything; a failure that it throws counts as
/// such.
template <typename Action>
std::optional<ReportFailure> Try(const Action& action) {
  try {
    return action();
  } catch (const RuntimeFailure& failure) {
    return FailureFrom(failure);
  } catch (const std::bad_alloc&) {
    return FailureFrom(RuntimeFailure(FailureKind::OutOfMemory));
  } catch (const std::exception& failure) {
    // No job may end the run of those behind it.
    return ReportFailure{"Unexpected", failure.what()};
  }
}

/// The tool has no report on the job, which is no failure.
extern const ReportFailure kNoReport;

/// What the user is told of a failure on `file`.
std::string Complaint(const std::string& file, const ReportFailure& failure);
/// The same of one that befell a tool.
std::string Complaint(const std::string& file, std::string_view tool, const ReportFailure& failure);

}  // namespace halvane
