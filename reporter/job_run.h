#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "reporter/exit_status.h"
#include "reporter/job_command.h"
#include "reporter/job_crew.h"
#include "reporter/job_list.h"
#include "reporter/options.h"
#include "reporter/output.h"
#include "reporter/piped_job.h"
#include "reporter/progress.h"

namespace halvane {

/// What begins each sentence on standard error.
void Complain(const std::string& complaint);

/// The way of the program through the jobs.
class JobRun {
 public:
  /// `list`: the names that standard input or a file has, where the user gave one.
  JobRun(StandardOutput& output, const Options& options, std::optional<InputLines> list);

  /// Gives the exit status: 0 all done, 1 some job failed, or that of an interruption. Throws
  /// `OutputFailure`, and `FileError` of the temporary file that rows wait in.
  int Do();

 private:
  [[nodiscard]] bool DoesAtOnce(const std::string& file) const;
  void DoHere(const std::string& file, bool isStandardInput);
  void DoFolder(const std::string& folder);
  void TakeAll();
  void TakeOne();
  void Finish(JobResult& result);
  void Tell(std::vector<std::string>& complaints);
  [[nodiscard]] int EndInterrupted() const;

  StandardOutput& output_;
  JobList list_;
  PipedJob piped_;
  std::unique_ptr<JobCommand> command_;
  std::unique_ptr<JobWorker> worker_;  ///< of this thread
  std::optional<JobCrew> crew_;        ///< nothing where one thread does all
  bool flushesEachJob_;
  std::optional<Progress> progress_;
  std::size_t jobs_ = 0;
  int status_ = kAllDone;
};

}  // namespace halvane
