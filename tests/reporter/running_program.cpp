#include "tests/reporter/running_program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <system_error>

namespace halvane {
namespace {

constexpr int kPatience = 60'000;  // milliseconds

/// The two ends of a pipe or of a terminal: what the test reads and what the program writes.
struct Channel {
  int reading;
  int writing;
};

[[noreturn]] void Fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

Channel MakePipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) Fail("pipe2");
  return {ends[0], ends[1]};
}

Channel MakeTerminal() {
  const int master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) Fail("posix_openpt");
  std::array<char, 128> name{};
  if (ptsname_r(master, name.data(), name.size()) != 0) Fail("ptsname_r");
  const int slave = open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (slave < 0) Fail(name.data());
  return {master, slave};
}

}  // namespace

RunningProgram::RunningProgram(const std::vector<std::string>& arguments, Connections connections) {
  std::vector<std::string> all{HALVANE_REPORT};
  all.insert(all.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& argument : all) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  const std::string folder = SourcePath("docs/samples");

  const Channel input = MakePipe();
  const Channel output = connections.outputIsTerminal ? MakeTerminal() : MakePipe();
  const Channel error = connections.errorIsTerminal ? MakeTerminal() : MakePipe();
  child_ = fork();
  if (child_ == 0) {
    std::signal(SIGPIPE, SIG_DFL);
    std::signal(SIGINT, connections.ignoresInterruption ? SIG_IGN : SIG_DFL);
    if (chdir(folder.c_str()) == 0 && dup2(input.reading, STDIN_FILENO) >= 0 &&
        dup2(output.writing, STDOUT_FILENO) >= 0 && dup2(error.writing, STDERR_FILENO) >= 0) {
      execv(pointers[0], pointers.data());
    }
    _exit(127);
  }
  if (child_ < 0) Fail("fork");
  close(input.reading);
  close(output.writing);
  close(error.writing);
  input_ = input.writing;
  outputEnd_ = output.reading;
  errorEnd_ = error.reading;
}

RunningProgram::~RunningProgram() {
  CloseInput();
  if (child_ > 0) {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
  }
  close(outputEnd_);
  close(errorEnd_);
}

void RunningProgram::Write(std::string_view text) const {
  while (!text.empty()) {
    const ssize_t written = write(input_, text.data(), text.size());
    if (written < 0) Fail("write");
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

void RunningProgram::WaitUntilTaken() const {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(kPatience);
  int left = 1;
  while (ioctl(input_, FIONREAD, &left) == 0 && left > 0) {
    if (std::chrono::steady_clock::now() > end) {
      ADD_FAILURE() << left << " bytes of the input are not taken";
      return;
    }
    sched_yield();
  }
}

std::size_t RunningProgram::memory() const {
  std::ifstream file("/proc/" + std::to_string(child_) + "/statm");
  std::size_t size = 0;
  std::size_t resident = 0;
  file >> size >> resident;
  EXPECT_GT(resident, 0U);
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

void RunningProgram::CloseInput() {
  if (input_ >= 0) close(input_);
  input_ = -1;
}

/// Appends what comes; false at the end, or when nothing comes in `timeout` milliseconds.
bool RunningProgram::ReadSome(int descriptor, std::string& text, int timeout) const {
  pollfd wanted{descriptor, POLLIN, 0};
  if (poll(&wanted, 1, timeout) <= 0) return false;
  std::array<char, 4096> block{};
  const ssize_t count = read(descriptor, block.data(), block.size());
  // A terminal whose program has ended gives an error.
  if (count <= 0) return false;
  text.append(block.data(), static_cast<std::size_t>(count));
  return true;
}

std::string RunningProgram::ReadLine() {
  std::size_t end = 0;
  while ((end = output_.find('\n')) == std::string::npos) {
    if (!ReadSome(outputEnd_, output_, kPatience)) {
      ADD_FAILURE() << "no further line; standard error: " << error();
      return std::exchange(output_, {});
    }
  }
  std::string line = output_.substr(0, end + 1);
  output_.erase(0, end + 1);
  return line;
}

void RunningProgram::WaitForError(std::string_view text) {
  while (error_.find(text) == std::string::npos) {
    if (!ReadSome(errorEnd_, error_, kPatience)) {
      ADD_FAILURE() << "\"" << text << "\" does not come; standard error: " << error_;
      return;
    }
  }
}

const std::string& RunningProgram::error() {
  while (ReadSome(errorEnd_, error_, 0)) {
  }
  return error_;
}

void RunningProgram::Interrupt(int signal) const { kill(child_, signal); }

ProgramRun RunningProgram::Finish() {
  CloseInput();
  return End();
}

ProgramRun RunningProgram::End() {
  // What the tests write is little, so the other stream never fills up meanwhile.
  while (ReadSome(outputEnd_, output_, kPatience)) {
  }
  while (ReadSome(errorEnd_, error_, kPatience)) {
  }
  // Has no effect on one that has ended.
  kill(child_, SIGKILL);
  int status = 0;
  while (waitpid(child_, &status, 0) < 0 && errno == EINTR) {
  }
  child_ = -1;
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), output_, error_};
}

}  // namespace halvane
