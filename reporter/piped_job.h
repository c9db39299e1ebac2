#pragma once

#include <optional>
#include <string>

#include "reporter/job_source.h"
#include "reporter/nameless_file.h"

namespace halvane {

/// What the command line calls standard input.
inline constexpr const char* kStandardInput = "-";

/// Makes a file of a job that comes through a pipe, so that it is read as any other. Only pipes
/// that the program was started with are waited for, standard input and those that a shell names
/// /dev/fd/63; one that lies in a folder is no job file.
class PipedJob {
 public:
  /// Whether a job of this name comes through a pipe.
  static bool IsPiped(const std::string& name, bool isStandardInput);

  /// Where the job of this name is to be read from, until the next one is asked for. Throws
  /// `FileError` where the pipe cannot be read or is longer than any job.
  JobSource SourceOf(const std::string& name, bool isStandardInput);

 private:
  std::optional<NamelessFile> copy_;  ///< what came through the pipe
};

}  // namespace halvane
