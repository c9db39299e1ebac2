#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

#include "platform/end_signals.h"

namespace halvane {
namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// The pipe's reading end and its writing end. A handler reaches nothing else.
std::array<int, 2> ends{-1, -1};
volatile std::sig_atomic_t lastSignal = 0;

extern "C" void NoteEndSignal(int number) {
  const int error = errno;
  lastSignal = number;
  const auto byte = static_cast<char>(number);
  // A full pipe has told already.
  [[maybe_unused]] const auto written = write(ends[1], &byte, 1);
  errno = error;
}

void Handle(int number, void (*handler)(int)) {
  struct sigaction present {};
  if (sigaction(number, nullptr, &present) == 0 && present.sa_handler == SIG_IGN) return;
  struct sigaction wanted {};
  wanted.sa_handler = handler;
  wanted.sa_flags = SA_RESTART;
  sigemptyset(&wanted.sa_mask);
  sigaction(number, &wanted, nullptr);
}

}  // namespace

EndSignals::EndSignals() {
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
  connect(notifier_, &QSocketNotifier::activated, this, &EndSignals::Read);
  for (const int number : kSignals) Handle(number, NoteEndSignal);
}

EndSignals::~EndSignals() {
  if (notifier_ == nullptr) return;
  // One that comes from here on finds the program ending as it is.
  for (const int number : kSignals) Handle(number, SIG_DFL);
  for (int& end : ends) {
    close(end);
    end = -1;
  }
}

void EndSignals::Read() {
  unsigned char byte = 0;
  int number = 0;
  while (read(ends[0], &byte, 1) == 1) number = byte;
  if (number != 0) emit came(number);
}

void EndSignals::EndByThem() {
  if (lastSignal == 0) return;
  std::signal(lastSignal, SIG_DFL);
  std::raise(lastSignal);
}

}  // namespace halvane
