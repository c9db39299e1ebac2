#pragma once

#include <csignal>

namespace halvane {

/// While it lives, Ctrl-C and whatever else asks for the end have to wait in this thread, and in
/// the threads that it starts for good.
class InterruptionsHeld {
 public:
  InterruptionsHeld() {
    sigset_t held;
    sigemptyset(&held);
    sigaddset(&held, SIGINT);
    sigaddset(&held, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &held, &before_);
  }
  ~InterruptionsHeld() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  InterruptionsHeld(const InterruptionsHeld&) = delete;
  InterruptionsHeld& operator=(const InterruptionsHeld&) = delete;

  [[nodiscard]] const sigset_t& before() const { return before_; }

 private:
  sigset_t before_{};
};

}  // namespace halvane
