#pragma once

#include <string>
#include <vector>

#include "reporter/job_source.h"

namespace halvane {

/// What doing one job came to.
struct JobOutcome {
  bool failed = false;
  std::vector<std::string> complaints;  ///< for standard error, each with the file's name
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
  virtual JobOutcome Do(std::string& out, const JobSource& job) = 0;
  /// Behind the last job, also when the user ends the program before it. True where more is to
  /// come, for which it is called again.
  virtual bool End(std::string& /*out*/) { return false; }

  /// Whether the output of a job comes with it, rather than at the end.
  [[nodiscard]] virtual bool writesAsItGoes() const { return true; }
};

}  // namespace halvane
