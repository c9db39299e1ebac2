#include <sys/select.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "reporter/input.h"
#include "reporter/interruption.h"

namespace halvane {
namespace {

/// While it lives, Ctrl-C has to wait.
class InterruptionsHeld {
 public:
  InterruptionsHeld() {
    sigset_t held;
    sigemptyset(&held);
    sigaddset(&held, SIGINT);
    sigprocmask(SIG_BLOCK, &held, &before_);
  }
  ~InterruptionsHeld() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  InterruptionsHeld(const InterruptionsHeld&) = delete;
  InterruptionsHeld& operator=(const InterruptionsHeld&) = delete;

  [[nodiscard]] const sigset_t& before() const { return before_; }

 private:
  sigset_t before_{};
};

}  // namespace

std::size_t ReadInput(std::span<char> room, std::error_code& error) {
  // Ctrl-C comes through while the program waits and at no other moment. One that came just before
  // the waiting would else be noted when it is over.
  const InterruptionsHeld held;
  while (!IsInterrupted()) {
    fd_set input;
    FD_ZERO(&input);
    FD_SET(STDIN_FILENO, &input);
    const int ready = pselect(STDIN_FILENO + 1, &input, nullptr, nullptr, nullptr, &held.before());
    if (ready < 0 && errno == EINTR) continue;
    const ssize_t count = read(STDIN_FILENO, room.data(), room.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    error = {errno, std::generic_category()};
    return 0;
  }
  return 0;
}

}  // namespace halvane
