#include "reporter/interruption_windows.h"

#include <utility>

#include "reporter/interruption.h"

namespace halvane {
namespace {

/// Runs in a thread of its own.
BOOL WINAPI NoteInterruption(DWORD event) {
  // What is not handled here ends the program: the second one, and all else that asks for its end.
  if (event != CTRL_C_EVENT || IsInterrupted()) return FALSE;
  return SetEvent(InterruptionEvent());
}

}  // namespace

HANDLE InterruptionEvent() {
  static auto* const event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  return event;
}

void WatchForInterruption() {
  // Made before the other thread can ask for it.
  InterruptionEvent();
  // A program that was started to ignore Ctrl-C is never asked.
  SetConsoleCtrlHandler(NoteInterruption, TRUE);
}

std::thread StartUninterrupted(std::function<void()> work) {
  // The system has a thread of its own for what asks for the end.
  return std::thread(std::move(work));
}

bool IsInterrupted() { return WaitForSingleObject(InterruptionEvent(), 0) == WAIT_OBJECT_0; }

std::string_view InterruptionWord() { return "interrupted"; }

int EndByInterruption() {
  // There is no end here by which a caller could tell it from a crash. The exit status tells it.
  constexpr int kInterrupted = 130;
  return kInterrupted;
}

}  // namespace halvane
