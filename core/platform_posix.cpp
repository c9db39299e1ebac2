#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/file_calls.h"
#include "core/platform_file.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

using files::Fail;
using files::Open;
using files::ReadSome;

constexpr std::size_t kCopyBlock = 65536;

}  // namespace

InputFile::InputFile(const std::string& path) : path_(path) {
  // Without O_NONBLOCK, opening a pipe would wait for somebody to write into it.
  descriptor_ = Open(path, O_RDONLY | O_NONBLOCK);
  if (descriptor_ < 0) Fail(path, errno);
  struct stat status {};
  const bool known = fstat(descriptor_, &status) == 0;
  if (known && S_ISREG(status.st_mode)) {
    opened_ = {status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
    return;
  }
  close(descriptor_);
  if (known && S_ISDIR(status.st_mode)) Fail(path, EISDIR);
  throw RuntimeFailure(FailureKind::FileError, path + ": not a regular file");
}

InputFile::~InputFile() { close(descriptor_); }

std::string InputFile::ReadAll() {
  std::string bytes;
  std::size_t used = 0;
  // One byte more than expected, so that more of it is seen without growing.
  bytes.resize(static_cast<std::size_t>(opened_.size) + 1);
  while (const std::size_t count =
             ReadSome(descriptor_, bytes.data() + used, bytes.size() - used, path_)) {
    used += count;
    // All of it. That no more has come meanwhile shows below.
    if (used == static_cast<std::size_t>(opened_.size)) break;
    if (used == bytes.size()) bytes.resize(used + kCopyBlock);
  }
  bytes.resize(used);
  struct stat status {};
  if (fstat(descriptor_, &status) != 0) Fail(path_, errno);
  if (Stamp{status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec} != opened_) {
    throw RuntimeFailure(FailureKind::FileError, path_ + ": changed while it was read");
  }
  return bytes;
}

}  // namespace halvane
