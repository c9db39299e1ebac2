#pragma once

#include <string>
#include <vector>

namespace halvane {

/// What a program did: its exit status (128 + n when signal n ended it) and what it wrote.
struct ProgramRun {
  int status;
  std::string output;
  std::string error;
};

/// Where a program's standard output goes.
enum class OutputTo { Test, FullDevice, ClosedPipe };

/// Runs `program` (a path, or a name that is searched for) in `folder` until it ends.
ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                      const std::string& folder = ".", OutputTo output = OutputTo::Test);

/// Whether the system finds a program of this name.
bool HasProgram(const std::string& name);

/// Runs the built halvane-report in the folder of the sample jobs.
ProgramRun RunReport(const std::vector<std::string>& arguments, OutputTo output = OutputTo::Test);

/// A file of the project, by its path in the source tree.
std::string SourcePath(const std::string& path);

}  // namespace halvane
