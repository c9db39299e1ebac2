#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <system_error>

#include "reporter/output.h"

namespace halvane {

StandardOutput::StandardOutput() { std::signal(SIGPIPE, SIG_IGN); }

void StandardOutput::Flush() {
  std::string_view rest = pending_;
  while (!rest.empty()) {
    const ssize_t written = write(STDOUT_FILENO, rest.data(), rest.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) {
      const int error = errno;
      pending_.clear();
      throw OutputFailure(std::generic_category().message(error));
    }
    rest.remove_prefix(static_cast<std::size_t>(written));
  }
  pending_.clear();
}

bool OutputIsTerminal() { return isatty(STDOUT_FILENO) != 0; }

bool ErrorIsTerminal() { return isatty(STDERR_FILENO) != 0; }

void WriteErrorText(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stderr); }

}  // namespace halvane
