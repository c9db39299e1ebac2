#include "reporter/job_run.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "core/file_calls.h"
#include "core/number_text.h"
#include "core/user_folders.h"
#include "reporter/check_command.h"
#include "reporter/exit_status.h"
#include "reporter/interruption.h"
#include "reporter/job_reports.h"
#include "reporter/printable_text.h"
#include "reporter/summary_command.h"

namespace halvane {
namespace {

/// Whether one job file was named, and nothing that may be more.
bool IsOneFile(const Options& options) {
  // Who names a folder means all that is in it.
  return !options.list && options.files.size() == 1 && !files::IsFolder(options.files.front());
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
  const bool one = IsOneFile(options) && options.tools.size() == 1;
  return std::make_unique<ReportCommand>(options.tools, options.units, options.format, !one);
}

/// How many threads the jobs are done in.
int ThreadsFor(const Options& options) {
  if (IsOneFile(options)) return 1;
  if (options.jobsAtOnce) return *options.jobsAtOnce;
  // The library may not know.
  return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostJobsAtOnce);
}

double Seconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double>(now).count();
}

}  // namespace

void Complain(const std::string& complaint) {
  WriteErrorText(std::string(kProgramName) + ": " + PrintableText(complaint) +
                 std::string(kLineEnd));
}

JobRun::JobRun(StandardOutput& output, const Options& options, std::optional<InputLines> list)
    : output_(output),
      list_(options.files, std::move(list)),
      command_(CommandFor(options)),
      worker_(command_->MakeWorker()),
      flushesEachJob_(options.list == kStandardInput && command_->writesAsItGoes()) {
  const int threads = ThreadsFor(options);
  if (threads > 1) crew_.emplace(*command_, threads);
  // Output that comes on the same terminal tells itself how far the work is.
  const bool outputShows = command_->writesAsItGoes() && OutputIsTerminal();
  if (!ErrorIsTerminal() || outputShows) return;
  const auto jobsLeft = [this]() -> std::optional<std::size_t> {
    const auto inList = list_.CountLeft();
    if (!inList) return std::nullopt;
    return *inList + (crew_ ? crew_->size() : 0);
  };
  progress_.emplace(Progress::Surroundings{Seconds, WriteErrorText, jobsLeft});
}

int JobRun::Do() {
  command_->Begin(output_.pending());
  std::vector<std::string> complaints;
  while (!IsInterrupted()) {
    // Nobody knows how long the next name is waited for, or for what.
    if (crew_ && !list_.isNextAtHand()) TakeAll();
    const auto file = list_.Next(complaints);
    if (!complaints.empty()) {
      TakeAll();
      Tell(complaints);
    }
    // What came of an interrupted waiting may be half a name.
    if (!file || IsInterrupted()) break;
    if (DoesAtOnce(*file)) {
      TakeAll();
      DoHere(*file, list_.isStandardInput());
    } else {
      while (crew_->isFull()) TakeOne();
      // What was dropped for an interruption leaves no gap that another job may stand behind.
      if (!IsInterrupted()) crew_->Give(*file);
    }
  }
  TakeAll();
  if (progress_) progress_->Clear();
  while (command_->End(output_.pending())) output_.WriteSome();
  output_.Flush();
  return IsInterrupted() ? EndInterrupted() : status_;
}

/// Whether this thread has to do the job: it alone is told when the user interrupts a waiting.
bool JobRun::DoesAtOnce(const std::string& file) const {
  return !crew_ || PipedJob::IsPiped(file, list_.isStandardInput());
}

void JobRun::DoHere(const std::string& file, bool isStandardInput) {
  std::optional<JobSource> job;
  const auto unread = Try([&]() -> std::optional<ReportFailure> {
    job = piped_.SourceOf(file, isStandardInput);
    return std::nullopt;
  });
  // What cannot be taken from its pipe fails as a file of this name does.
  JobResult result = worker_->DoFileOrFolder(job.value_or(JobSource(file)));
  if (unread) result.outcome.complaints = {Complaint(file, *unread)};
  Finish(result);
}

/// Does what is in a folder that was taken for a job file by its name.
void JobRun::DoFolder(const std::string& folder) {
  JobList files = JobList::OfFolder(folder);
  std::vector<std::string> complaints;
  while (!IsInterrupted()) {
    const auto file = files.Next(complaints);
    Tell(complaints);
    if (!file) break;
    DoHere(*file, false);
  }
}

void JobRun::TakeAll() {
  if (!crew_) return;
  while (!crew_->isEmpty()) TakeOne();
}

void JobRun::TakeOne() {
  // What is under way is finished, as it is where one job is done after the other.
  if (IsInterrupted()) crew_->DropWaiting();
  if (crew_->isEmpty()) return;
  JobResult result = crew_->Take(flushesEachJob_);
  Finish(result);
}

void JobRun::Finish(JobResult& result) {
  if (!result.folder.empty()) {
    DoFolder(result.folder);
    return;
  }
  command_->Take(output_.pending(), result);
  ++jobs_;
  if (result.outcome.failed) status_ = kSomeFailed;
  // Who reads along waits for nothing that is done.
  if (flushesEachJob_ && !(crew_ && crew_->hasTaken())) {
    output_.Flush();
  } else {
    output_.WriteSome();
  }
  Tell(result.outcome.complaints);
  if (progress_) progress_->Advance();
}

void JobRun::Tell(std::vector<std::string>& complaints) {
  if (complaints.empty()) return;
  status_ = kSomeFailed;
  if (progress_) progress_->Clear();
  // Where both streams go to one terminal, they come in the order of the files.
  output_.Flush();
  for (const std::string& complaint : complaints) Complain(complaint);
  complaints.clear();
}

int JobRun::EndInterrupted() const {
  const std::string count = PlainText(static_cast<double>(jobs_));
  Complain(std::string(InterruptionWord()) + "; done so far: " + count +
           (jobs_ == 1 ? " job" : " jobs"));
  return EndByInterruption();
}

}  // namespace halvane
