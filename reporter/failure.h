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
};

ReportFailure FailureFrom(const RuntimeFailure& failure);

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
