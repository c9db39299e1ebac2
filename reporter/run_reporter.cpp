#include "reporter/run_reporter.h"

#include <optional>

#include "core/file_calls.h"
#include "reporter/exit_status.h"
#include "reporter/interruption.h"
#include "reporter/job_run.h"
#include "reporter/options.h"
#include "reporter/output.h"
#include "reporter/piped_job.h"

namespace halvane {
namespace {

int WriteNotice(StandardOutput& output, const Notice& notice) {
  if (notice.isError) {
    WriteErrorText(notice.text);
    return kWrongUse;
  }
  output.pending() += notice.text;
  output.Flush();
  return kAllDone;
}

/// Opens the list of names that the user gave, if any; false where it cannot be read.
bool OpenList(const Options& options, std::optional<InputLines>& list) {
  if (!options.list) return true;
  list.emplace(options.namesEndInZero ? InputLines::End::Zero : InputLines::End::Line);
  if (*options.list == kStandardInput) return true;
  const auto error = list->Open(*options.list);
  if (error) Complain("--files-from: " + *options.list + ": " + files::ReasonOf(error));
  return !error;
}

}  // namespace

int RunReporter(std::vector<std::string> arguments) {
  const auto asked = ParseOptions(std::move(arguments), Tools());
  StandardOutput output;
  try {
    if (const auto* notice = std::get_if<Notice>(&asked)) return WriteNotice(output, *notice);
    WatchForInterruption();
    const auto& options = std::get<Options>(asked);
    std::optional<InputLines> list;
    if (!OpenList(options, list)) return kWrongUse;
    return JobRun(output, options, std::move(list)).Do();
  } catch (const OutputFailure& failure) {
    Complain(std::string("standard output: ") + failure.what());
    return kSomeFailed;
  } catch (const RuntimeFailure& failure) {
    // Of the temporary file that rows wait in.
    Complain(failure.what());
    return kSomeFailed;
  }
}

}  // namespace halvane
