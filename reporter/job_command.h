#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/file_calls.h"
#include "reporter/job_source.h"

namespace halvane {

/// What doing one job came to.
struct JobOutcome {
  bool failed = false;
  std::vector<std::string> complaints;  ///< for standard error, each with the file's name
};

/// The same with what is to be written of the job, which its command puts where it belongs.
struct JobResult {
  std::string text;
  std::optional<double> rank;  ///< of a row that is sorted
  JobOutcome outcome;
  std::string folder;  ///< the name of the job where it is no file but a folder; else empty
};

/// Does one job after the other in one thread. Several of a command may work at once.
class JobWorker {
 public:
  JobWorker() = default;
  virtual ~JobWorker() = default;
  JobWorker(const JobWorker&) = delete;
  JobWorker& operator=(const JobWorker&) = delete;

  virtual JobResult Do(const JobSource& job) = 0;

  /// The same of what may be a folder.
  JobResult DoFileOrFolder(const JobSource& job) {
    JobResult result = Do(job);
    if (result.outcome.failed && files::IsFolder(job.path)) result.folder = job.name;
    return result;
  }
};

/// What is done with each job file that the user names. Each function appends to `out`.
class JobCommand {
 public:
  JobCommand() = default;
  virtual ~JobCommand() = default;
  JobCommand(const JobCommand&) = delete;
  JobCommand& operator=(const JobCommand&) = delete;

  /// Before the first job.
  virtual void Begin(std::string& /*out*/) {}
  /// The command has to outlive its workers, and is called by one thread alone.
  [[nodiscard]] virtual std::unique_ptr<JobWorker> MakeWorker() const = 0;
  /// Takes what a worker made, in the order of the jobs.
  virtual void Take(std::string& out, JobResult& result) { out += result.text; }
  /// Behind the last job, also when the user ends the program before it. True where more is to
  /// come, for which it is called again.
  virtual bool End(std::string& /*out*/) { return false; }

  /// Whether the output of a job comes with it, rather than at the end.
  [[nodiscard]] virtual bool writesAsItGoes() const { return true; }

  /// Does a job and takes what it came to.
  JobOutcome Do(std::string& out, const JobSource& job) {
    if (!worker_) worker_ = MakeWorker();
    JobResult result = worker_->Do(job);
    Take(out, result);
    return std::move(result.outcome);
  }

 private:
  std::unique_ptr<JobWorker> worker_;  ///< of this thread
};

}  // namespace halvane
