#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "core/file_calls.h"

namespace halvane::files {
namespace {

constexpr mode_t kForTheWriterAlone = S_IRUSR | S_IWUSR;
constexpr mode_t kForTheUserAlone = S_IRWXU;
constexpr mode_t kAsTheUserWants = 0666;
/// As many links in a row as the system follows.
constexpr int kMostLinks = 40;

std::error_code ErrorOf(int number) { return {number, std::generic_category()}; }

/// Makes a system call until no signal interrupts it; `errno` is that of the last try.
template <typename Call>
auto Again(const Call& call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// The same, for a call that gives nothing but whether it went well.
template <typename Call>
std::error_code Done(const Call& call) {
  return Again(call) < 0 ? ErrorOf(errno) : std::error_code();
}

int FlagsFor(Access access) {
  // Without O_NONBLOCK, opening a pipe would wait for the one at its other end.
  switch (access) {
    case Access::Read: return O_RDONLY | O_NONBLOCK;
    case Access::ReadItself: return O_RDONLY | O_NONBLOCK | O_NOFOLLOW;
    case Access::Write: return O_WRONLY;
    // File systems over a network lock no file that is opened to be read alone.
    case Access::Watch: return O_RDWR | O_NONBLOCK | O_NOFOLLOW;
    case Access::MakeNew:
    case Access::MakeForWriter: return O_WRONLY | O_CREAT | O_EXCL;
  }
  return O_RDONLY;
}

Kind KindOf(mode_t mode) {
  if (S_ISREG(mode)) return Kind::Regular;
  if (S_ISDIR(mode)) return Kind::Folder;
  if (S_ISLNK(mode)) return Kind::Link;
  return S_ISFIFO(mode) ? Kind::Pipe : Kind::Other;
}

const timespec& TimeOf(const struct stat& status) {
#ifdef __APPLE__
  return status.st_mtimespec;
#else
  return status.st_mtim;
#endif
}

template <typename Call>
std::error_code Ask(const Call& call, Status& status) {
  struct stat told {};
  const std::error_code error = Done([&] { return call(told); });
  if (error) return error;
  status.kind = KindOf(told.st_mode);
  status.size = static_cast<std::uint64_t>(told.st_size);
  status.seconds = TimeOf(told).tv_sec;
  status.fraction = TimeOf(told).tv_nsec;
  status.disk = static_cast<std::uint64_t>(told.st_dev);
  status.number = told.st_ino;
  status.names = told.st_nlink;
  return {};
}

/// Asks for room behind the end of a file without making it longer.
int AskForRoom(int descriptor, off_t size) {
#ifdef __APPLE__
  fstore_t room{F_ALLOCATEALL, F_PEOFPOSMODE, 0, size, 0};
  return fcntl(descriptor, F_PREALLOCATE, &room);
#else
  return fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, size);
#endif
}

/// Where a system's call for it is missing or does not know the file system, a second name of the
/// file takes none from anybody either.
std::error_code LinkAndRemove(const std::string& from, const std::string& to) {
  const std::error_code error = Done([&] { return link(from.c_str(), to.c_str()); });
  if (!error) Remove(from);
  return error;
}

}  // namespace

std::string ReasonOf(const std::error_code& error) { return error.message(); }

std::error_code File::Open(const std::string& path, Access access) {
  Close();
  const bool isForWriter = access == Access::MakeForWriter;
  const mode_t mode = isForWriter ? kForTheWriterAlone : kAsTheUserWants;
  const int flags = FlagsFor(access) | O_NOCTTY | O_CLOEXEC;
  const int descriptor = Again([&] { return open(path.c_str(), flags, mode); });
  if (descriptor < 0) return ErrorOf(errno);
  // The user's mask may have taken rights that reading the file again needs.
  if (isForWriter) Again([&] { return fchmod(descriptor, kForTheWriterAlone); });
  handle_ = descriptor;
  return {};
}

std::error_code File::Close() {
  if (!isOpen()) return {};
  // Closing is the one call that is not made again: the descriptor is gone after it in any case.
  const bool failed = close(static_cast<int>(handle_)) != 0 && errno != EINTR;
  handle_ = kNone;
  return failed ? ErrorOf(errno) : std::error_code();
}

std::error_code File::GetStatus(Status& status) const {
  return Ask([this](struct stat& told) { return fstat(static_cast<int>(handle_), &told); }, status);
}

std::error_code File::ReadSome(char* buffer, std::size_t size, std::size_t& count) {
  const ssize_t result =
      Again([this, buffer, size] { return read(static_cast<int>(handle_), buffer, size); });
  if (result < 0) return ErrorOf(errno);
  count = static_cast<std::size_t>(result);
  return {};
}

std::error_code File::ReadSomeAt(std::uint64_t position, char* buffer, std::size_t size,
                                 std::size_t& count) const {
  const auto place = static_cast<off_t>(position);
  const ssize_t result =
      Again([&] { return pread(static_cast<int>(handle_), buffer, size, place); });
  if (result < 0) return ErrorOf(errno);
  count = static_cast<std::size_t>(result);
  return {};
}

std::error_code File::WriteAll(std::string_view bytes, std::size_t& written) {
  written = 0;
  while (written < bytes.size()) {
    const std::string_view rest = bytes.substr(written);
    const ssize_t count =
        Again([this, rest] { return write(static_cast<int>(handle_), rest.data(), rest.size()); });
    if (count < 0) return ErrorOf(errno);
    written += static_cast<std::size_t>(count);
  }
  return {};
}

std::error_code File::Sync() {
#ifdef __APPLE__
  // This system's own call leaves the bytes in the memory of the disk.
  if (fcntl(static_cast<int>(handle_), F_FULLFSYNC) == 0) return {};
#endif
  const std::error_code error = Done([this] { return fsync(static_cast<int>(handle_)); });
  return error == std::errc::invalid_argument ? std::error_code() : error;
}

std::error_code File::CutTo(std::uint64_t size) {
  const auto length = static_cast<off_t>(size);
  return Done([this, length] { return ftruncate(static_cast<int>(handle_), length); });
}

std::error_code File::Reserve(std::uint64_t size) {
  const auto descriptor = static_cast<int>(handle_);
  struct stat before {};
  if (size == 0 || Again([&] { return fstat(descriptor, &before); }) != 0) return {};
  const auto length = static_cast<off_t>(size);
  if (Again([&] { return AskForRoom(descriptor, length); }) >= 0) return {};
  const std::error_code error = ErrorOf(errno);
  // Any other error tells that the file system cannot reserve, not that the bytes cannot be
  // written.
  if (errno != ENOSPC && errno != EDQUOT && errno != EFBIG) return {};
  struct stat after {};
  // What it reserved before the room ended goes back.
  if (Again([&] { return fstat(descriptor, &after); }) == 0 && after.st_blocks > before.st_blocks) {
    CutTo(static_cast<std::uint64_t>(before.st_size));
  }
  return error;
}

std::error_code File::TryLock() {
  return Done([this] { return flock(static_cast<int>(handle_), LOCK_EX | LOCK_NB); });
}

std::error_code StatusOf(const std::string& path, Status& status) {
  return Ask([&path](struct stat& told) { return stat(path.c_str(), &told); }, status);
}

std::error_code StatusOfName(const std::string& path, Status& status) {
  return Ask([&path](struct stat& told) { return lstat(path.c_str(), &told); }, status);
}

std::error_code Remove(const std::string& path) {
  return Done([&path] { return unlink(path.c_str()); });
}

std::error_code RenameToFree(const std::string& from, const std::string& to) {
  const std::error_code error = Done([&] {
#ifdef __APPLE__
    return renamex_np(from.c_str(), to.c_str(), RENAME_EXCL);
#else
    return renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
#endif
  });
  return error && error != std::errc::file_exists ? LinkAndRemove(from, to) : error;
}

std::error_code RenameOver(const std::string& from, const std::string& to) {
  return Done([&] { return rename(from.c_str(), to.c_str()); });
}

std::error_code SyncFolder(const std::string& folder) {
  const char* const path = folder.empty() ? "." : folder.c_str();
  const int descriptor = Again([path] { return open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  if (descriptor < 0) return ErrorOf(errno);
  const std::error_code error = Done([descriptor] { return fsync(descriptor); });
  close(descriptor);
  return error == std::errc::invalid_argument ? std::error_code() : error;
}

std::error_code MakeOneFolder(const std::string& path) {
  return Done([&path] { return mkdir(path.c_str(), kForTheUserAlone); });
}

std::string WholePathOf(const std::string& path) {
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::canonical(path, error);
  return error ? "" : whole.string();
}

std::string TargetOf(const std::string& path) {
  std::filesystem::path target = path;
  std::error_code error;
  for (int i = 0; i < kMostLinks; ++i) {
    const std::filesystem::path next = std::filesystem::read_symlink(target, error);
    if (error == std::errc::interrupted) continue;
    if (error) break;
    // A whole path as `next` takes the place of the folder.
    target = target.parent_path() / next;
  }
  const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
  const std::filesystem::path whole = std::filesystem::canonical(folder, error);
  return error ? target.string() : (whole / target.filename()).string();
}

std::uint64_t NumberOfProgram() { return static_cast<std::uint64_t>(getpid()); }

}  // namespace halvane::files
