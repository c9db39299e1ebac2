#include "reporter/job_reports.h"

#include <new>
#include <optional>

#include "core/job_file.h"
#include "core/job_state.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

ReportFailure FailureFrom(FailureKind kind, std::string message) {
  return {std::string(KindName(kind)), std::move(message)};
}

/// Runs `action`; what stopped it, if anything.
template <typename Action>
std::optional<ReportFailure> Try(const Action& action) {
  try {
    return action();
  } catch (const RuntimeFailure& failure) {
    return FailureFrom(failure.kind(), failure.what());
  } catch (const std::bad_alloc&) {
    return FailureFrom(FailureKind::OutOfMemory, RuntimeFailure(FailureKind::OutOfMemory).what());
  }
}

std::optional<ReportFailure> OpenAfresh(const std::string& file, LengthUnit units) {
  return Try([&file, units]() -> std::optional<ReportFailure> {
    Module1 = JobState{};
    Module1.Units = static_cast<Integer>(units);
    Module1.JobFileName = file;
    if (OpenJobFile() == OpenOutcome::Opened) return std::nullopt;
    return ReportFailure{"NotAJobFile", "Not a job file: its first field is not \"qjt\""};
  });
}

const ReportFailure kNoReport{"NoReport", "The job has no task, so the tool has no report on it."};

/// The failures of the file system name the file themselves.
std::string Complaint(const std::string& file, const ReportFailure& failure) {
  const bool namesFile = failure.kind == KindName(FailureKind::FileError);
  return namesFile ? failure.message : file + ": " + failure.message;
}

}  // namespace

std::vector<std::string> AppendReports(std::string& out, ReportWriter& writer,
                                       const std::string& file, LengthUnit units,
                                       std::span<const ToolRow* const> tools) {
  if (const auto failure = OpenAfresh(file, units)) {
    writer.FileFailed(out, file, tools, *failure);
    return {Complaint(file, *failure)};
  }
  std::optional<JobState> opened;
  if (tools.size() > 1) opened = Module1;

  std::vector<std::string> complaints;
  for (std::size_t i = 0; i < tools.size(); ++i) {
    const ToolRow* const tool = tools[i];
    if (i > 0) Module1 = *opened;
    RichText report;
    bool hasReport = false;
    const auto failure = Try([&]() -> std::optional<ReportFailure> {
      hasReport = tool->writeReport(report);
      return std::nullopt;
    });
    if (!failure && !hasReport) {
      writer.NoReport(out, file, *tool, kNoReport);
    } else if (failure) {
      writer.ToolFailed(out, file, *tool, *failure);
      complaints.push_back(
          Complaint(file, {failure->kind, std::string(tool->key) + ": " + failure->message}));
    } else {
      writer.Report(out, file, *tool, report, tool->workingValues());
    }
  }
  return complaints;
}

}  // namespace halvane
