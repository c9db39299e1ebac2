#include "reporter/run_reporter.h"

#include <chrono>
#include <memory>
#include <optional>

#include "core/file_calls.h"
#include "core/number_text.h"
#include "core/user_folders.h"
#include "reporter/check_command.h"
#include "reporter/interruption.h"
#include "reporter/job_list.h"
#include "reporter/job_reports.h"
#include "reporter/options.h"
#include "reporter/output.h"
#include "reporter/piped_job.h"
#include "reporter/printable_text.h"
#include "reporter/progress.h"
#include "reporter/summary_command.h"

namespace halvane {
namespace {

constexpr int kAllDone = 0;
constexpr int kSomeFailed = 1;
constexpr int kWrongUse = 2;

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
    case Wish::Check:
      return std::make_unique<CheckCommand>(
          options.format, StateFolder(), options.namesEndInZero ? NameEnd::Zero : NameEnd::Colon);
    case Wish::Reports: break;
  }
  // Who names a folder means all that is in it.
  const bool one = !options.list && options.files.size() * options.tools.size() == 1 &&
                   !files::IsFolder(options.files.front());
  return std::make_unique<ReportCommand>(options.tools, options.units, options.format, !one);
}

double Seconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double>(now).count();
}

/// The way of the program through the jobs.
class JobRun {
 public:
  JobRun(StandardOutput& output, const Options& options, std::optional<InputLines> list)
      : output_(output),
        list_(options.files, std::move(list)),
        command_(CommandFor(options)),
        flushesEachJob_(options.list == kStandardInput && command_->writesAsItGoes()) {
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
    while (command_->End(output_.pending())) output_.WriteSome();
    output_.Flush();
    return IsInterrupted() ? EndInterrupted() : status_;
  }

 private:
  void DoJob(const std::string& file) {
    std::optional<JobSource> job;
    const auto unread = Try([&]() -> std::optional<ReportFailure> {
      job = piped_.SourceOf(file, list_.isStandardInput());
      return std::nullopt;
    });
    // What cannot be taken from its pipe fails as a file of this name does.
    JobOutcome outcome = command_->Do(output_.pending(), job.value_or(JobSource(file)));
    if (unread) outcome.complaints = {Complaint(file, *unread)};
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
    Complain(std::string(InterruptionWord()) + "; done so far: " + count +
             (jobs_ == 1 ? " job" : " jobs"));
    return EndByInterruption();
  }

  StandardOutput& output_;
  JobList list_;
  PipedJob piped_;
  std::unique_ptr<JobCommand> command_;
  bool flushesEachJob_;
  std::optional<Progress> progress_;
  std::size_t jobs_ = 0;
  int status_ = kAllDone;
};

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
