#include <array>
#include <string>

#include "core/file_calls.h"
#include "core/file_calls_windows.h"
#include "core/wide_text_windows.h"

namespace halvane::files {
namespace {

struct ErrorRow {
  DWORD number;
  std::errc condition;
};

/// Not every compiler's headers name it.
constexpr DWORD kDiskQuotaExceeded = 1295;

/// The errors of calls on files that other systems have too.
constexpr std::array kErrors{
    ErrorRow{ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    ErrorRow{ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    ErrorRow{ERROR_BAD_NETPATH, std::errc::no_such_file_or_directory},
    ErrorRow{ERROR_BAD_NET_NAME, std::errc::no_such_file_or_directory},
    ErrorRow{ERROR_BAD_PATHNAME, std::errc::no_such_file_or_directory},
    ErrorRow{ERROR_INVALID_DRIVE, std::errc::no_such_file_or_directory},
    ErrorRow{ERROR_ACCESS_DENIED, std::errc::permission_denied},
    ErrorRow{ERROR_PRIVILEGE_NOT_HELD, std::errc::permission_denied},
    ErrorRow{ERROR_SHARING_VIOLATION, std::errc::device_or_resource_busy},
    ErrorRow{ERROR_LOCK_VIOLATION, std::errc::operation_would_block},
    ErrorRow{ERROR_FILE_EXISTS, std::errc::file_exists},
    ErrorRow{ERROR_ALREADY_EXISTS, std::errc::file_exists},
    ErrorRow{ERROR_DIRECTORY, std::errc::not_a_directory},
    ErrorRow{ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    ErrorRow{ERROR_DISK_FULL, std::errc::no_space_on_device},
    ErrorRow{ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    ErrorRow{kDiskQuotaExceeded, std::errc::no_space_on_device},
    ErrorRow{ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    ErrorRow{ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    ErrorRow{ERROR_TOO_MANY_OPEN_FILES, std::errc::too_many_files_open},
    ErrorRow{ERROR_NOT_ENOUGH_MEMORY, std::errc::not_enough_memory},
    ErrorRow{ERROR_OUTOFMEMORY, std::errc::not_enough_memory},
    ErrorRow{ERROR_BROKEN_PIPE, std::errc::broken_pipe},
    ErrorRow{ERROR_NO_DATA, std::errc::broken_pipe},
    ErrorRow{ERROR_INVALID_HANDLE, std::errc::bad_file_descriptor},
    ErrorRow{ERROR_IO_DEVICE, std::errc::io_error},
    ErrorRow{ERROR_CRC, std::errc::io_error},
    ErrorRow{ERROR_READ_FAULT, std::errc::io_error},
    ErrorRow{ERROR_WRITE_FAULT, std::errc::io_error},
};

/// What the system says of an error that it alone has, without its full stop and line end.
std::string TextOf(DWORD number) {
  constexpr DWORD kFlags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
  std::array<wchar_t, 1024> text{};
  const DWORD length = FormatMessageW(kFlags, nullptr, number, 0, text.data(),
                                      static_cast<DWORD>(text.size()), nullptr);
  std::string utf8 = Utf8Text({text.data(), length});
  while (!utf8.empty() && (utf8.back() == '.' || utf8.back() <= ' ')) utf8.pop_back();
  return utf8;
}

}  // namespace

std::error_code ErrorOf(DWORD number) {
  for (const ErrorRow& row : kErrors) {
    if (row.number == number) return std::make_error_code(row.condition);
  }
  return {static_cast<int>(number), std::system_category()};
}

std::error_code LastError() { return ErrorOf(GetLastError()); }

std::string ReasonOf(const std::error_code& error) {
  if (error.category() == std::generic_category()) return error.message();
  return TextOf(static_cast<DWORD>(error.value()));
}

}  // namespace halvane::files
