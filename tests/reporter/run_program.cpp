#include "tests/reporter/run_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

#include "tests/support/test_support.h"

namespace halvane {
namespace {

constexpr int kCannotStart = 127;

int OpenForWriting(const std::string& path) {
  return open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
}

/// The writing end of a pipe that nobody reads.
int ClosedPipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    throw std::system_error(errno, std::generic_category(), "pipe2");
  }
  close(ends[0]);
  return ends[1];
}

int OpenOutput(OutputTo output, const std::string& path) {
  switch (output) {
    case OutputTo::FullDevice: return OpenForWriting("/dev/full");
    case OutputTo::ClosedPipe: return ClosedPipe();
    case OutputTo::Test: break;
  }
  return OpenForWriting(path);
}

std::vector<char*> ArgumentPointers(std::vector<std::string>& arguments) {
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                      const std::string& folder, OutputTo output) {
  const TemporaryFolder files;
  std::vector<std::string> all{program};
  all.insert(all.end(), arguments.begin(), arguments.end());
  const std::vector<char*> pointers = ArgumentPointers(all);
  const int outputFile = OpenOutput(output, files.File("output"));
  const int errorFile = OpenForWriting(files.File("error"));

  const pid_t child = fork();
  if (child == 0) {
    std::signal(SIGPIPE, SIG_DFL);
    if (chdir(folder.c_str()) == 0 && dup2(outputFile, STDOUT_FILENO) >= 0 &&
        dup2(errorFile, STDERR_FILENO) >= 0) {
      execvp(pointers[0], pointers.data());
    }
    _exit(kCannotStart);
  }
  close(outputFile);
  close(errorFile);
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");

  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  const int exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return {exitStatus, output == OutputTo::Test ? BytesOf(files.File("output")) : std::string(),
          BytesOf(files.File("error"))};
}

bool HasProgram(const std::string& name) {
  return RunProgram("sh", {"-c", "command -v \"$1\"", "sh", name}).status == 0;
}

ProgramRun RunReport(const std::vector<std::string>& arguments, OutputTo output) {
  return RunProgram(HALVANE_REPORT, arguments, SourcePath("docs/samples"), output);
}

std::string SourcePath(const std::string& path) {
  return std::string(HALVANE_SOURCE_DIR) + "/" + path;
}

}  // namespace halvane
