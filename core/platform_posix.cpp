#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

#include "core/platform_file.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

constexpr mode_t kNewFileMode = 0666;
constexpr std::size_t kCopyBlock = 65536;

[[noreturn]] void Fail(const std::string& path, int error) {
  throw RuntimeFailure(FailureKind::FileError,
                       path + ": " + std::generic_category().message(error));
}

/// A descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  [[nodiscard]] int get() const { return number_; }

 private:
  int number_;
};

int Open(const std::string& path, int flags, mode_t mode = 0) {
  int descriptor = -1;
  do {
    descriptor = open(path.c_str(), flags | O_CLOEXEC, mode);
  } while (descriptor < 0 && errno == EINTR);
  return descriptor;
}

void WriteAll(int descriptor, std::string_view bytes, const std::string& path) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) Fail(path, errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

/// Reads into `buffer`; 0 at the end of the file.
std::size_t ReadSome(int descriptor, char* buffer, std::size_t size, const std::string& path) {
  ssize_t count = -1;
  do {
    count = read(descriptor, buffer, size);
  } while (count < 0 && errno == EINTR);
  if (count < 0) Fail(path, errno);
  return static_cast<std::size_t>(count);
}

void Sync(int descriptor, const std::string& path) {
  if (fsync(descriptor) != 0) Fail(path, errno);
}

/// Brings names made or removed in the folder of `path` to the disk. A file system that cannot do
/// so for folders has nothing to bring.
void SyncFolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const Descriptor descriptor(Open(folder, O_RDONLY | O_DIRECTORY));
  if (descriptor.get() < 0) Fail(folder, errno);
  if (fsync(descriptor.get()) != 0 && errno != EINVAL) Fail(folder, errno);
}

std::string PreviousOf(const std::string& path) { return path + ".previous"; }

/// Copies what stands at `path` to its `.previous`, unless one is there; tells whether it did. The
/// copy is made under another name and gets its own only when it is whole on the disk.
bool KeepPrevious(const std::string& path) {
  const std::string previous = PreviousOf(path);
  struct stat kept {};
  if (stat(previous.c_str(), &kept) == 0) {
    if (S_ISREG(kept.st_mode)) return false;
    // A folder or the like of that name holds no job and is in the way of the copy.
    Fail(previous, EEXIST);
  }
  // One that is there and cannot be looked at must not be overwritten.
  if (errno != ENOENT) Fail(previous, errno);
  const Descriptor source(Open(path, O_RDONLY));
  if (source.get() < 0) Fail(path, errno);
  struct stat status {};
  if (fstat(source.get(), &status) != 0) Fail(path, errno);

  const std::string part = previous + ".part";
  unlink(part.c_str());  // what a kill left
  {
    const Descriptor copy(Open(part, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR));
    if (copy.get() < 0) Fail(part, errno);
    try {
      std::array<char, kCopyBlock> block{};
      while (const std::size_t count = ReadSome(source.get(), block.data(), block.size(), path)) {
        WriteAll(copy.get(), {block.data(), count}, part);
      }
      // The copy of a job is for the same eyes as the job; where that is refused it stays private.
      if (fchown(copy.get(), status.st_uid, status.st_gid) == 0) {
        fchmod(copy.get(), status.st_mode & 07777U);
      }
      Sync(copy.get(), part);
      if (rename(part.c_str(), previous.c_str()) != 0) Fail(previous, errno);
    } catch (const RuntimeFailure&) {
      unlink(part.c_str());
      throw;
    }
  }
  SyncFolderOf(path);
  return true;
}

}  // namespace

FileReplacement::FileReplacement(const std::string& path) : path_(path) {
  struct stat status {};
  const bool exists = stat(path.c_str(), &status) == 0;
  if (!exists && errno != ENOENT) Fail(path, errno);
  isRegular_ = !exists || S_ISREG(status.st_mode);
  // Opening a pipe would wait for somebody to read from it.
  if (exists && S_ISFIFO(status.st_mode)) {
    throw RuntimeFailure(FailureKind::FileError, path + ": not a regular file");
  }
  bool kept = false;
  if (exists && isRegular_) {
    // Tested first, so that a file that may not be written leaves no copy behind.
    if (access(path.c_str(), W_OK) != 0) Fail(path, errno);
    kept = KeepPrevious(path);
  }
  descriptor_ = Open(path, O_WRONLY | O_CREAT | O_TRUNC | O_NOCTTY, kNewFileMode);
  if (descriptor_ >= 0) return;
  const int error = errno;
  // The file is as it was, so a copy made just now would only grow old.
  if (kept) unlink(PreviousOf(path).c_str());
  Fail(path, error);
}

FileReplacement::~FileReplacement() {
  if (descriptor_ >= 0) close(descriptor_);
}

void FileReplacement::Write(std::string_view bytes) { WriteAll(descriptor_, bytes, path_); }

void FileReplacement::Commit() {
  if (isRegular_) Sync(descriptor_, path_);
  const int descriptor = descriptor_;
  descriptor_ = -1;
  if (close(descriptor) != 0) Fail(path_, errno);
  if (!isRegular_) return;
  SyncFolderOf(path_);
  const std::string previous = PreviousOf(path_);
  if (unlink(previous.c_str()) != 0 && errno != ENOENT) Fail(previous, errno);
}

bool WriteNewFile(const std::string& path, std::string_view bytes) {
  const Descriptor file(Open(path, O_WRONLY | O_CREAT | O_EXCL, kNewFileMode));
  if (file.get() < 0 && errno == EEXIST) return false;
  if (file.get() < 0) Fail(path, errno);
  WriteAll(file.get(), bytes, path);
  Sync(file.get(), path);
  SyncFolderOf(path);
  return true;
}

}  // namespace halvane
