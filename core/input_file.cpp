#include "core/input_file.h"

#include <algorithm>
#include <tuple>

#include "core/runtime_failure.h"

namespace halvane {
namespace {

/// How much more room a file gets that turns out longer than the system told.
constexpr std::size_t kMoreRoom = 65536;

/// What changes when somebody writes into a file, as well as the system can tell.
auto StampOf(const files::Status& status) {
  return std::tuple(status.size, status.seconds, status.fraction);
}

}  // namespace

InputFile::InputFile(const std::string& path) : path_(path) {
  if (const auto error = file_.Open(path, files::Access::Read)) files::Fail(path, error);
  const std::error_code error = file_.GetStatus(opened_);
  if (!error && opened_.kind == files::Kind::Regular) return;
  if (!error && opened_.kind == files::Kind::Folder) {
    files::Fail(path, std::make_error_code(std::errc::is_a_directory));
  }
  throw RuntimeFailure(FailureKind::FileError, path + ": not a regular file");
}

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
  std::size_t count = 0;
  const auto error = file_.ReadSomeAt(position, buffer, size, count);
  if (error) files::Fail(path_, error);
  return count;
}

void InputFile::TestUnchanged() const {
  files::Status status;
  if (const auto error = file_.GetStatus(status)) files::Fail(path_, error);
  if (StampOf(status) != StampOf(opened_)) FailAsChanged();
}

void InputFile::FailAsChanged() const {
  throw RuntimeFailure(FailureKind::FileError, path_ + ": changed while it was read");
}

}  // namespace halvane
