#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "reporter/input.h"
#include "reporter/interruption.h"

namespace halvane {
namespace {

/// While it lives, Ctrl-C and whatever else asks for the end have to wait.
class InterruptionsHeld {
 public:
  InterruptionsHeld() {
    sigset_t held;
    sigemptyset(&held);
    sigaddset(&held, SIGINT);
    sigaddset(&held, SIGTERM);
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

InputBytes::~InputBytes() {
  if (isOpened_) close(static_cast<int>(handle_));
}

std::error_code InputBytes::Open(const std::string& path) {
  const int opened = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (opened < 0) return {errno, std::generic_category()};
  handle_ = opened;
  isOpened_ = true;
  return {};
}

std::size_t InputBytes::Read(std::span<char> room, std::error_code& error) const {
  const int descriptor = static_cast<int>(handle_);
  // Ctrl-C comes through while the program waits and at no other moment. One that came just before
  // the waiting would else be noted when it is over.
  const InterruptionsHeld held;
  while (!IsInterrupted()) {
    pollfd input{descriptor, POLLIN, 0};
    const int ready = ppoll(&input, 1, nullptr, &held.before());
    if (ready < 0 && errno == EINTR) continue;
    const ssize_t count = read(descriptor, room.data(), room.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    error = {errno, std::generic_category()};
    return 0;
  }
  return 0;
}

}  // namespace halvane
