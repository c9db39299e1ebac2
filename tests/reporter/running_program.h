#pragma once

#include <sys/types.h>

#include <csignal>
#include <string>
#include <vector>

#include "tests/reporter/run_program.h"

namespace halvane {

/// What a running halvane-report is connected to.
struct Connections {
  bool errorIsTerminal = false;
  bool outputIsTerminal = false;
  bool ignoresInterruption = false;  ///< as a program in the background of a script
};

/// The built halvane-report while it runs, in the folder of the sample jobs. The test writes its
/// standard input and reads what it writes. A wait that takes a minute fails the test.
class RunningProgram {
 public:
  explicit RunningProgram(const std::vector<std::string>& arguments, Connections connections = {});
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  void Write(std::string_view text) const;
  /// Waits until the program has taken all that was written.
  void WaitUntilTaken() const;
  void CloseInput();
  /// Waits for one more line of standard output.
  std::string ReadLine();
  /// Waits until standard error has `text`.
  void WaitForError(std::string_view text);
  /// What has come on standard error up to now; waits for nothing.
  const std::string& error();
  /// How much memory it has in use, in bytes.
  [[nodiscard]] std::size_t memory() const;
  /// Ctrl-C, or another signal.
  void Interrupt(int signal = SIGINT) const;
  /// Waits for its end; one that does not come in time is forced. The output is what no `ReadLine`
  /// has taken.
  ProgramRun End();
  /// The same, with its input closed first.
  ProgramRun Finish();

 private:
  bool ReadSome(int descriptor, std::string& text, int timeout) const;

  pid_t child_ = -1;
  int input_ = -1;
  int outputEnd_ = -1;
  int errorEnd_ = -1;
  std::string output_;
  std::string error_;
};

}  // namespace halvane
