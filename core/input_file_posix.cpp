#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "core/file_calls.h"
#include "core/input_file.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

/// How much more room a file gets that turns out longer than the system told.
constexpr std::size_t kMoreRoom = 65536;

using files::Fail;

}  // namespace

InputFile::InputFile(const std::string& path) : path_(path) {
  // Without O_NONBLOCK, opening a pipe would wait for somebody to write into it.
  descriptor_ = files::Open(path, O_RDONLY | O_NONBLOCK);
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

std::string InputFile::ReadAll(std::size_t most) {
  const auto told = static_cast<std::size_t>(opened_.size);
  std::string bytes;
  std::size_t used = 0;
  // One byte more than told, so that more of it is seen without growing.
  bytes.resize(told < most ? told + 1 : most);
  while (const std::size_t count = ReadSome(used, bytes.data() + used, bytes.size() - used)) {
    used += count;
    // All of it. That no more has come meanwhile shows below.
    if (used == told || used == most) break;
    if (used == bytes.size()) bytes.resize(std::min(most, used + std::max(used, kMoreRoom)));
  }
  bytes.resize(used);
  TestUnchanged();
  return bytes;
}

std::size_t InputFile::ReadAt(std::uint64_t position, char* buffer, std::size_t size) const {
  std::size_t used = 0;
  while (used < size) {
    const std::size_t count = ReadSome(position + used, buffer + used, size - used);
    if (count == 0) break;
    used += count;
  }
  return used;
}

std::size_t InputFile::ReadSome(std::uint64_t position, char* buffer, std::size_t size) const {
  const ssize_t count =
      files::Again([&] { return pread(descriptor_, buffer, size, static_cast<off_t>(position)); });
  if (count < 0) Fail(path_, errno);
  return static_cast<std::size_t>(count);
}

void InputFile::TestUnchanged() const {
  struct stat status {};
  if (fstat(descriptor_, &status) != 0) Fail(path_, errno);
  if (Stamp{status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec} != opened_) {
    FailAsChanged();
  }
}

void InputFile::FailAsChanged() const {
  throw RuntimeFailure(FailureKind::FileError, path_ + ": changed while it was read");
}

}  // namespace halvane
