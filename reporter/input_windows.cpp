#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>
#include <thread>

#include "core/file_calls_windows.h"
#include "core/wide_text_windows.h"
#include "reporter/input.h"
#include "reporter/interruption_windows.h"

namespace halvane {
namespace {

/// One call that waits for input. It may outlive who asked for it.
struct Reading {
  HANDLE input;
  std::vector<char> bytes;
  DWORD count = 0;
  DWORD error = ERROR_SUCCESS;
  HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);

  Reading(HANDLE from, std::size_t size) : input(from), bytes(size) {}
  ~Reading() { CloseHandle(done); }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;
};

void ReadInto(Reading& reading) {
  const auto size = static_cast<DWORD>(reading.bytes.size());
  if (ReadFile(reading.input, reading.bytes.data(), size, &reading.count, nullptr) == 0) {
    reading.error = GetLastError();
  }
  SetEvent(reading.done);
}

HANDLE InputOf(std::intptr_t handle, bool isOpened) {
  return isOpened ? files::HandleOf(handle) : GetStdHandle(STD_INPUT_HANDLE);
}

}  // namespace

InputBytes::~InputBytes() {
  if (isOpened_) CloseHandle(files::HandleOf(handle_));
}

std::error_code InputBytes::Open(const std::string& path) {
  auto* const opened = CreateFileW(WideText(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return files::LastError();
  handle_ = reinterpret_cast<std::intptr_t>(opened);
  isOpened_ = true;
  return {};
}

std::size_t InputBytes::Read(std::span<char> room, std::error_code& error) const {
  auto* const input = InputOf(handle_, isOpened_);
  // No wait for input ends when the user presses Ctrl-C, so another thread waits for it. One that
  // waits for ever ends with the program.
  const auto reading = std::make_shared<Reading>(input, room.size());
  std::thread([reading] { ReadInto(*reading); }).detach();
  const std::array<HANDLE, 2> events{InterruptionEvent(), reading->done};
  const auto count = static_cast<DWORD>(events.size());
  if (WaitForMultipleObjects(count, events.data(), FALSE, INFINITE) == WAIT_OBJECT_0) return 0;
  // A pipe tells its end as an error.
  if (reading->error != ERROR_SUCCESS && reading->error != ERROR_BROKEN_PIPE) {
    error = files::ErrorOf(reading->error);
  }
  std::copy_n(reading->bytes.begin(), reading->count, room.begin());
  return reading->count;
}

bool InputBytes::IsReady() const {
  auto* const input = InputOf(handle_, isOpened_);
  if (GetFileType(input) == FILE_TYPE_DISK) return true;
  // Of a console nobody knows, and a pipe tells its end as an error.
  DWORD count = 0;
  return PeekNamedPipe(input, nullptr, 0, nullptr, &count, nullptr) != 0 && count > 0;
}

}  // namespace halvane
