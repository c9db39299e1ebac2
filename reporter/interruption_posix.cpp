#include <csignal>
#include <utility>

#include "reporter/interruption.h"
#include "reporter/interruptions_held_posix.h"

namespace halvane {
namespace {

constexpr int kSignalBase = 128;

volatile std::sig_atomic_t interruption = 0;

extern "C" void NoteInterruption(int signal) { interruption = signal; }

void Watch(int signal) {
  struct sigaction present {};
  if (sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_IGN) return;
  struct sigaction wanted {};
  wanted.sa_handler = NoteInterruption;
  wanted.sa_flags = static_cast<int>(SA_RESETHAND);
  sigemptyset(&wanted.sa_mask);
  sigaction(signal, &wanted, nullptr);
}

}  // namespace

void WatchForInterruption() {
  for (const int signal : {SIGINT, SIGTERM}) Watch(signal);
}

std::thread StartUninterrupted(std::function<void()> work) {
  const InterruptionsHeld held;
  return std::thread(std::move(work));
}

bool IsInterrupted() { return interruption != 0; }

std::string_view InterruptionWord() {
  return interruption == SIGTERM ? "terminated" : "interrupted";
}

int EndByInterruption() {
  std::signal(interruption, SIG_DFL);
  std::raise(interruption);
  return kSignalBase + interruption;
}

}  // namespace halvane
