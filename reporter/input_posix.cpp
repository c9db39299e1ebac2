#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "reporter/input.h"
#include "reporter/interruption.h"
#include "reporter/interruptions_held_posix.h"

namespace halvane {
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

bool InputBytes::IsReady() const {
  pollfd input{static_cast<int>(handle_), POLLIN, 0};
  return poll(&input, 1, 0) > 0;
}

}  // namespace halvane
