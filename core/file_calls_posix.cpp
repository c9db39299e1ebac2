#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <system_error>

#include "core/file_calls.h"
#include "core/runtime_failure.h"

namespace halvane::files {

void Fail(const std::string& path, int error, const std::string& sentence) {
  const std::string reason = path + ": " + std::generic_category().message(error);
  throw RuntimeFailure(FailureKind::FileError,
                       sentence.empty() ? reason : reason + ". " + sentence);
}

int Descriptor::Reset(int number) {
  // Closing is the one call that is not made again: the descriptor is gone after it in any case.
  const bool failed = number_ >= 0 && close(number_) != 0 && errno != EINTR;
  number_ = number;
  return failed ? errno : 0;
}

int Open(const std::string& path, int flags, unsigned mode) {
  return Again([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); });
}

std::size_t ReadSome(int descriptor, char* buffer, std::size_t size, const std::string& path) {
  const ssize_t count = Again([&] { return read(descriptor, buffer, size); });
  if (count < 0) Fail(path, errno);
  return static_cast<std::size_t>(count);
}

int WriteAll(int descriptor, std::string_view bytes, std::size_t& written) {
  written = 0;
  while (written < bytes.size()) {
    const ssize_t count =
        Again([&] { return write(descriptor, bytes.data() + written, bytes.size() - written); });
    if (count < 0) return errno;
    written += static_cast<std::size_t>(count);
  }
  return 0;
}

int Sync(int descriptor) {
  const bool done = Again([&] { return fsync(descriptor); }) == 0;
  return done || errno == EINVAL ? 0 : errno;
}

int SyncFolder(const std::string& folder) {
  const Descriptor descriptor(Open(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY));
  if (!descriptor.isOpen()) return errno;
  return Sync(descriptor.get());
}

bool Remove(const std::string& path) {
  return Again([&] { return unlink(path.c_str()); }) == 0;
}

bool RenameToFree(const std::string& from, const std::string& to) {
  return Again([&] {
           return renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
         }) == 0;
}

bool RenameOver(const std::string& from, const std::string& to) {
  return Again([&] { return rename(from.c_str(), to.c_str()); }) == 0;
}

bool StatusOf(int descriptor, struct stat& status) {
  return Again([&] { return fstat(descriptor, &status); }) == 0;
}

bool StatusOf(const std::string& path, struct stat& status) {
  return Again([&] { return stat(path.c_str(), &status); }) == 0;
}

bool StatusOfName(const std::string& path, struct stat& status) {
  return Again([&] { return lstat(path.c_str(), &status); }) == 0;
}

bool IsTaken(const std::string& path) {
  struct stat status {};
  return StatusOfName(path, status) || errno != ENOENT;
}

bool IsRegularFile(const std::string& path) {
  struct stat status {};
  return StatusOfName(path, status) && S_ISREG(status.st_mode);
}

}  // namespace halvane::files
