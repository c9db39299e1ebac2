#include "reporter/run_reporter.h"

#include <chrono>
#include <memory>
#include <optional>

#include "core/number_text.h"
#include "core/user_folders.h"
#include "reporter/check_command.h"
#include "reporter/interruption.h"
#include "reporter/job_list.h"
#include "reporter/job_reports.h"
#include "reporter/options.h"
#include "reporter/output.h"
#include "reporter/printable_text.h"
#include "reporter/progress.h"
#include "reporter/summary_command.h"

namespace halvane {
namespace {

constexpr int kAllDone = 0;
constexpr int kSomeFailed = 1;
constexpr int kWrongUse = 2;
constexpr int kInterrupted = 130;

void Complain(const std::string& complaint) {
  WriteErrorText(std::string(kProgramName) + ": " + PrintableText(complaint) +
                 std::string(kLineEnd));
}

int WriteNotice(StandardOutput& output, const Notice& notice) {
  if (notice.isError) {
    WriteErrorText(notice.text);
    return kWrongUse;
  }
  output.pending() += notice.text;
  output.Flush();
  return kAllDone;
}

std::unique_ptr<JobCommand> CommandFor(const Options& options) {
  switch (options.wish) {
    case Wish::Summary:
      return std::make_unique<SummaryCommand>(options.tools, options.units, options.format,
                                              options.sortBy);
    case Wish::Check: return std::make_unique<CheckCommand>(options.format, StateFolder());
    case Wish::Reports: break;
  }
  const bool one = options.files.size() * options.tools.size() == 1;
  return std::make_unique<ReportCommand>(options.tools, options.units, options.format, !one);
}

double Seconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double>(now).count();
}

/// The way of the program through the jobs.
class JobRun {
 public:
  JobRun(StandardOutput& output, const Options& options)
      : output_(output),
        list_(options.files, options.filesFromInput),
        command_(CommandFor(options)),
        flushesEachJob_(options.filesFromInput && command_->writesAsItGoes()) {
    // Output that comes on the same terminal tells itself how far the work is.
    const bool outputShows = command_->writesAsItGoes() && OutputIsTerminal();
    if (ErrorIsTerminal() && !outputShows) {
      progress_.emplace(
          Progress::Surroundings{Seconds, WriteErrorText, [this] { return list_.CountLeft(); }});
    }
  }

  /// Gives the exit status.
  int Do() {
    command_->Begin(output_.pending());
    std::vector<std::string> complaints;
    while (!IsInterrupted()) {
      const auto file = list_.Next(complaints);
      Tell(complaints);
      // What came of an interrupted waiting may be half a name.
      if (!file || IsInterrupted()) break;
      DoJob(*file);
    }
    if (progress_) progress_->Clear();
    command_->End(output_.pending());
    output_.Flush();
    return IsInterrupted() ? EndInterrupted() : status_;
  }

 private:
  void DoJob(const std::string& file) {
    JobOutcome outcome = command_->Do(output_.pending(), file);
    ++jobs_;
    if (outcome.failed) status_ = kSomeFailed;
    if (flushesEachJob_) {
      output_.Flush();
    } else {
      output_.WriteSome();
    }
    Tell(outcome.complaints);
    if (progress_) progress_->Advance();
  }

  void Tell(std::vector<std::string>& complaints) {
    if (complaints.empty()) return;
    status_ = kSomeFailed;
    if (progress_) progress_->Clear();
    // Where both streams go to one terminal, they come in the order of the files.
    output_.Flush();
    for (const std::string& complaint : complaints) Complain(complaint);
    complaints.clear();
  }

  [[nodiscard]] int EndInterrupted() const {
    const std::string count = PlainText(static_cast<double>(jobs_));
    Complain("interrupted; done so far: " + count + (jobs_ == 1 ? " job" : " jobs"));
    EndByInterruption();
    return kInterrupted;
  }

  StandardOutput& output_;
  JobList list_;
  std::unique_ptr<JobCommand> command_;
  bool flushesEachJob_;
  std::optional<Progress> progress_;
  std::size_t jobs_ = 0;
  int status_ = kAllDone;
};

}  // namespace

int RunReporter(std::vector<std::string> arguments) {
  const auto asked = ParseOptions(std::move(arguments), Tools());
  StandardOutput output;
  try {
    if (const auto* notice = std::get_if<Notice>(&asked)) return WriteNotice(output, *notice);
    WatchForInterruption();
    return JobRun(output, std::get<Options>(asked)).Do();
  } catch (const OutputFailure& failure) {
    Complain(std::string("standard output: ") + failure.what());
    return kSomeFailed;
  }
}

}  // namespace halvane
