#include <windows.h>

#include <algorithm>
#include <array>

#include "core/file_calls.h"
#include "core/file_calls_windows.h"
#include "reporter/nameless_file.h"

namespace halvane {
namespace {

[[noreturn]] void Fail() { files::Fail("no temporary file", files::LastError()); }

OVERLAPPED At(std::uint64_t position) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(position);
  place.OffsetHigh = static_cast<DWORD>(position >> 32U);
  return place;
}

}  // namespace

NamelessFile::NamelessFile() {
  std::array<wchar_t, MAX_PATH + 1> folder{};
  std::array<wchar_t, MAX_PATH + 1> path{};
  if (GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()) == 0 ||
      GetTempFileNameW(folder.data(), L"hvr", 0, path.data()) == 0) {
    Fail();
  }
  auto* const file =
      CreateFileW(path.data(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                  FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) Fail();
  handle_ = reinterpret_cast<std::intptr_t>(file);
}

NamelessFile::~NamelessFile() { CloseHandle(files::HandleOf(handle_)); }

void NamelessFile::Append(std::string_view bytes) {
  while (!bytes.empty()) {
    OVERLAPPED place = At(size_);
    DWORD count = 0;
    const auto most = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), MAXLONG));
    if (WriteFile(files::HandleOf(handle_), bytes.data(), most, &count, &place) == 0) Fail();
    size_ += count;
    bytes.remove_prefix(count);
  }
}

std::size_t NamelessFile::ReadAt(std::uint64_t position, std::span<char> room) const {
  OVERLAPPED place = At(position);
  DWORD count = 0;
  const auto most = static_cast<DWORD>(std::min<std::size_t>(room.size(), MAXLONG));
  const bool isRead = ReadFile(files::HandleOf(handle_), room.data(), most, &count, &place) != 0;
  if (!isRead && GetLastError() != ERROR_HANDLE_EOF) Fail();
  return count;
}

std::string NamelessFile::pathOfOpenFile() const { return {}; }

}  // namespace halvane
