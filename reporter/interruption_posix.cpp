#include <csignal>

#include "reporter/interruption.h"

namespace halvane {
namespace {

volatile std::sig_atomic_t interrupted = 0;

extern "C" void NoteInterruption(int /*signal*/) { interrupted = 1; }

}  // namespace

void WatchForInterruption() {
  struct sigaction present {};
  if (sigaction(SIGINT, nullptr, &present) == 0 && present.sa_handler == SIG_IGN) return;
  struct sigaction wanted {};
  wanted.sa_handler = NoteInterruption;
  wanted.sa_flags = static_cast<int>(SA_RESETHAND);
  sigemptyset(&wanted.sa_mask);
  sigaction(SIGINT, &wanted, nullptr);
}

bool IsInterrupted() { return interrupted != 0; }

void EndByInterruption() {
  std::signal(SIGINT, SIG_DFL);
  std::raise(SIGINT);
}

}  // namespace halvane
