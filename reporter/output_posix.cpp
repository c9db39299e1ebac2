#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <system_error>

#include "reporter/output.h"

namespace halvane {

StandardOutput::StandardOutput() {
  struct stat status {};
  if (fstat(STDOUT_FILENO, &status) == 0 && S_ISFIFO(status.st_mode)) mostAtOnce_ = PIPE_BUF;
}

std::string_view StandardOutput::NextPiece(std::string_view rest) const {
  if (rest.size() <= mostAtOnce_) return rest;
  std::size_t end = rest.rfind('\n', mostAtOnce_ - 1);
  if (end == std::string_view::npos) end = rest.find('\n');
  return end == std::string_view::npos ? rest : rest.substr(0, end + 1);
}

void StandardOutput::Flush() {
  std::string_view rest = pending_;
  while (!rest.empty()) {
    std::string_view piece = NextPiece(rest);
    rest.remove_prefix(piece.size());
    while (!piece.empty()) {
      const ssize_t written = write(STDOUT_FILENO, piece.data(), piece.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) {
        const int error = errno;
        pending_.clear();
        throw OutputFailure(std::generic_category().message(error));
      }
      piece.remove_prefix(static_cast<std::size_t>(written));
    }
  }
  pending_.clear();
}

bool OutputIsTerminal() { return isatty(STDOUT_FILENO) != 0; }

bool ErrorIsTerminal() { return isatty(STDERR_FILENO) != 0; }

void WriteErrorText(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stderr); }

}  // namespace halvane
