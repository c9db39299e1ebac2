#include "core/file_calls_windows.h"

#include <sddl.h>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/wide_text_windows.h"

namespace halvane::files {

HANDLE HandleOf(std::intptr_t handle) {
  return reinterpret_cast<HANDLE>(handle);  // NOLINT(performance-no-int-to-ptr)
}

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
/// Locks of this system keep others from reading and writing what is locked, so the byte that is
/// locked stands where no file reaches.
constexpr DWORD kLockedByteHigh = 0x40000000;
/// The most bytes of one call.
constexpr std::size_t kMostAtOnce = std::size_t{1} << 30;
/// Of the unit that the system counts times in.
constexpr std::uint64_t kTicksPerSecond = 10'000'000;

const std::error_code kNotForTheUserAlone = std::make_error_code(std::errc::permission_denied);

/// The error of a call that gives whether it went well.
std::error_code Done(BOOL succeeded) { return succeeded != 0 ? std::error_code() : LastError(); }

std::uint64_t Joined(DWORD high, DWORD low) { return (std::uint64_t{high} << 32U) | low; }

struct FreeLocally {
  void operator()(void* memory) const { LocalFree(memory); }
};
template <typename Type>
using LocalPointer = std::unique_ptr<Type, FreeLocally>;

/// The user who runs the program, as access lists name users; empty where the system does not tell.
std::wstring UserInLists() {
  HANDLE token = nullptr;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0) return {};
  alignas(TOKEN_USER) std::array<char, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> user{};
  DWORD size = 0;
  const BOOL told =
      GetTokenInformation(token, TokenUser, user.data(), static_cast<DWORD>(user.size()), &size);
  CloseHandle(token);
  LPWSTR text = nullptr;
  const auto* const known = reinterpret_cast<const TOKEN_USER*>(user.data());
  if (told == 0 || ConvertSidToStringSidW(known->User.Sid, &text) == 0) return {};
  return LocalPointer<wchar_t>(text).get();
}

/// The access list of what is for the user alone: nothing comes down to it from its folder, and
/// what is made in it has the same one. Empty where none can be made.
PSECURITY_DESCRIPTOR ListForTheUserAlone() {
  static const LocalPointer<void> list = [] {
    const std::wstring user = UserInLists();
    const std::wstring text = L"D:P(A;OICI;FA;;;" + user + L")";
    PSECURITY_DESCRIPTOR made = nullptr;
    if (!user.empty()) {
      ConvertStringSecurityDescriptorToSecurityDescriptorW(text.c_str(), SDDL_REVISION_1, &made,
                                                           nullptr);
    }
    return LocalPointer<void>(made);
  }();
  return list.get();
}

struct Opening {
  DWORD rights;
  DWORD disposition;
  DWORD flags;
};

Opening OpeningFor(Access access) {
  constexpr DWORD kReadAndWrite = GENERIC_READ | GENERIC_WRITE;
  switch (access) {
    case Access::Read: return {GENERIC_READ, OPEN_EXISTING, 0};
    case Access::ReadItself: return {GENERIC_READ, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT};
    case Access::Write: return {GENERIC_WRITE, OPEN_EXISTING, 0};
    case Access::Watch: return {kReadAndWrite, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT};
    case Access::MakeNew:
    case Access::MakeForWriter: return {GENERIC_WRITE, CREATE_NEW, 0};
  }
  return {GENERIC_READ, OPEN_EXISTING, 0};
}

/// Whether the last name of a path is longer than any file system of this system takes.
bool IsNameTooLong(const std::wstring& path) {
  constexpr std::size_t kLongestName = 255;
  return path.size() - path.find_last_of(L'\\') - 1 > kLongestName;
}

/// Why a path cannot be opened: of a folder the system says that it may not be, of a name that is
/// too long that it is none.
std::error_code WhyNot(const std::wstring& path) {
  const std::error_code error = LastError();
  if (IsNameTooLong(path)) return std::make_error_code(std::errc::filename_too_long);
  if (error != std::errc::permission_denied) return error;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  const bool isFolder =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return isFolder ? std::make_error_code(std::errc::is_a_directory) : error;
}

Kind KindOf(HANDLE handle, DWORD attributes) {
  FILE_ATTRIBUTE_TAG_INFO info{};
  if (GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &info, sizeof info) != 0 &&
      IsLink(attributes, info.ReparseTag)) {
    return Kind::Link;
  }
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::Folder : Kind::Regular;
}

/// How many names a file keeps. The last one stays for others as long as the file is open.
std::uint64_t NamesOf(HANDLE handle, DWORD names) {
  FILE_STANDARD_INFO info{};
  const bool isGoing =
      GetFileInformationByHandleEx(handle, FileStandardInfo, &info, sizeof info) != 0 &&
      info.DeletePending != 0;
  return isGoing ? 0 : names;
}

std::error_code Ask(HANDLE handle, Status& status) {
  status = Status();
  switch (GetFileType(handle)) {
    case FILE_TYPE_DISK: break;
    case FILE_TYPE_PIPE: status.kind = Kind::Pipe; return {};
    default: return {};
  }
  BY_HANDLE_FILE_INFORMATION info{};
  if (GetFileInformationByHandle(handle, &info) == 0) return LastError();
  const std::uint64_t time =
      Joined(info.ftLastWriteTime.dwHighDateTime, info.ftLastWriteTime.dwLowDateTime);
  status.kind = KindOf(handle, info.dwFileAttributes);
  status.size = Joined(info.nFileSizeHigh, info.nFileSizeLow);
  status.seconds = static_cast<std::int64_t>(time / kTicksPerSecond);
  status.fraction = static_cast<std::int64_t>(time % kTicksPerSecond);
  status.disk = info.dwVolumeSerialNumber;
  status.number = Joined(info.nFileIndexHigh, info.nFileIndexLow);
  status.names = NamesOf(handle, info.nNumberOfLinks);
  return {};
}

/// Opens whatever stands at a path, a folder too, to ask about it or with other rights.
HANDLE OpenAnything(const std::string& path, DWORD rights, DWORD flags) {
  return CreateFileW(WidePath(path).c_str(), rights, kShareAll, nullptr, OPEN_EXISTING,
                     flags | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

std::error_code Ask(const std::string& path, DWORD flags, Status& status) {
  auto* const handle = OpenAnything(path, FILE_READ_ATTRIBUTES, flags);
  if (handle == INVALID_HANDLE_VALUE) return LastError();
  const std::error_code error = Ask(handle, status);
  CloseHandle(handle);
  return error;
}

/// Reads from where `place` says, or where the file stands.
std::error_code ReadFrom(HANDLE handle, OVERLAPPED* place, char* buffer, std::size_t size,
                         std::size_t& count) {
  DWORD read = 0;
  const auto most = static_cast<DWORD>(std::min(size, kMostAtOnce));
  if (ReadFile(handle, buffer, most, &read, place) == 0 && GetLastError() != ERROR_HANDLE_EOF) {
    return LastError();
  }
  count = read;
  return {};
}

/// Brings what is open to the disk. A file system that cannot do so has nothing to bring.
std::error_code Flush(HANDLE handle) {
  if (FlushFileBuffers(handle) != 0) return {};
  const DWORD error = GetLastError();
  const bool isUnknown = error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED ||
                         error == ERROR_INVALID_PARAMETER;
  return isUnknown ? std::error_code() : ErrorOf(error);
}

}  // namespace

bool IsLink(DWORD attributes, DWORD tag) {
  return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         (tag == IO_REPARSE_TAG_SYMLINK || tag == IO_REPARSE_TAG_MOUNT_POINT);
}

std::error_code File::Open(const std::string& path, Access access) {
  Close();
  SECURITY_ATTRIBUTES security{sizeof security, nullptr, FALSE};
  if (access == Access::MakeForWriter) {
    security.lpSecurityDescriptor = ListForTheUserAlone();
    if (security.lpSecurityDescriptor == nullptr) return kNotForTheUserAlone;
  }
  const std::wstring widePath = WidePath(path);
  const Opening opening = OpeningFor(access);
  auto* const handle =
      CreateFileW(widePath.c_str(), opening.rights, kShareAll, &security, opening.disposition,
                  opening.flags | FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return WhyNot(widePath);
  handle_ = reinterpret_cast<std::intptr_t>(handle);
  return {};
}

std::error_code File::Close() {
  if (!isOpen()) return {};
  const std::error_code error = Done(CloseHandle(HandleOf(handle_)));
  handle_ = kNone;
  return error;
}

std::error_code File::GetStatus(Status& status) const { return Ask(HandleOf(handle_), status); }

// What these do changes the file, though not what this holds of it.
// NOLINTBEGIN(readability-make-member-function-const)
std::error_code File::ReadSome(char* buffer, std::size_t size, std::size_t& count) {
  return ReadFrom(HandleOf(handle_), nullptr, buffer, size, count);
}

std::error_code File::ReadSomeAt(std::uint64_t position, char* buffer, std::size_t size,
                                 std::size_t& count) const {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(position);
  place.OffsetHigh = static_cast<DWORD>(position >> 32U);
  return ReadFrom(HandleOf(handle_), &place, buffer, size, count);
}

std::error_code File::WriteAll(std::string_view bytes, std::size_t& written) {
  written = 0;
  while (written < bytes.size()) {
    const std::string_view piece = bytes.substr(written, kMostAtOnce);
    DWORD count = 0;
    if (WriteFile(HandleOf(handle_), piece.data(), static_cast<DWORD>(piece.size()), &count,
                  nullptr) == 0) {
      return LastError();
    }
    written += count;
  }
  return {};
}

std::error_code File::Sync() { return Flush(HandleOf(handle_)); }

std::error_code File::CutTo(std::uint64_t size) {
  FILE_END_OF_FILE_INFO info{};
  info.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
  return Done(SetFileInformationByHandle(HandleOf(handle_), FileEndOfFileInfo, &info, sizeof info));
}

std::error_code File::Reserve(std::uint64_t size) {
  Status status;
  // Less room than the file has would cut it off.
  if (GetStatus(status) || size <= status.size) return {};
  FILE_ALLOCATION_INFO info{};
  info.AllocationSize.QuadPart = static_cast<LONGLONG>(size);
  const std::error_code error =
      Done(SetFileInformationByHandle(HandleOf(handle_), FileAllocationInfo, &info, sizeof info));
  // Any other error tells that the file system cannot reserve, not that the bytes cannot be
  // written.
  const bool isFull = error == std::errc::no_space_on_device || error == std::errc::file_too_large;
  return isFull ? error : std::error_code();
}

std::error_code File::TryLock() {
  OVERLAPPED place{};
  place.OffsetHigh = kLockedByteHigh;
  return Done(LockFileEx(HandleOf(handle_), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0,
                         1, 0, &place));
}

// NOLINTEND(readability-make-member-function-const)

std::error_code StatusOf(const std::string& path, Status& status) { return Ask(path, 0, status); }

std::error_code StatusOfName(const std::string& path, Status& status) {
  return Ask(path, FILE_FLAG_OPEN_REPARSE_POINT, status);
}

std::error_code Remove(const std::string& path) {
  return Done(DeleteFileW(WidePath(path).c_str()));
}

std::error_code RenameToFree(const std::string& from, const std::string& to) {
  return Done(MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(), MOVEFILE_WRITE_THROUGH));
}

std::error_code RenameOver(const std::string& from, const std::string& to) {
  return Done(MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(),
                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

std::error_code SyncFolder(const std::string& folder) {
  auto* const handle = OpenAnything(folder.empty() ? "." : folder, GENERIC_WRITE, 0);
  if (handle == INVALID_HANDLE_VALUE) return LastError();
  const std::error_code error = Flush(handle);
  CloseHandle(handle);
  return error;
}

std::error_code MakeOneFolder(const std::string& path) {
  SECURITY_ATTRIBUTES security{sizeof security, ListForTheUserAlone(), FALSE};
  if (security.lpSecurityDescriptor == nullptr) return kNotForTheUserAlone;
  return Done(CreateDirectoryW(WidePath(path).c_str(), &security));
}

std::string WholePathOf(const std::string& path) {
  auto* const handle = OpenAnything(path, FILE_READ_ATTRIBUTES, 0);
  if (handle == INVALID_HANDLE_VALUE) return {};
  std::wstring whole(MAX_PATH, L'\0');
  while (true) {
    const auto room = static_cast<DWORD>(whole.size());
    const DWORD length =
        GetFinalPathNameByHandleW(handle, whole.data(), room, FILE_NAME_NORMALIZED);
    whole.resize(length);
    if (length < room) break;
  }
  CloseHandle(handle);
  return Utf8Path(whole);
}

std::string TargetOf(const std::string& path) {
  std::string whole = WholePathOf(path);
  if (!whole.empty()) return whole;
  const std::string folder(FolderOf(path));
  whole = WholePathOf(folder.empty() ? "." : folder);
  return whole.empty() ? path : WithSeparator(whole).append(FileNameOf(path));
}

std::uint64_t NumberOfProgram() { return GetCurrentProcessId(); }

}  // namespace halvane::files
