#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

#include "core/file_calls.h"
#include "reporter/input.h"
#include "reporter/interruption.h"
#include "reporter/piped_job.h"

namespace halvane {
namespace {

/// No pipe that never ends may fill the disk.
constexpr std::size_t kLongestJob = std::size_t{1} << 30;
constexpr std::size_t kBlock = std::size_t{1} << 16;
constexpr std::string_view kOpenFiles = "/dev/fd/";
constexpr std::string_view kOwnOpenFiles = "/proc/self/fd/";

std::error_code LastError() { return {errno, std::generic_category()}; }

bool IsPipeOfTheProgram(const std::string& name) {
  if (!name.starts_with(kOpenFiles) && !name.starts_with(kOwnOpenFiles) && name != "/dev/stdin") {
    return false;
  }
  files::Status status;
  return !files::StatusOf(name, status) && status.kind != files::Kind::Regular;
}

/// A file in the folder for temporary ones that has no name any more.
int NamelessFile(const std::string& name) {
  const char* folder = std::getenv("TMPDIR");
  std::string path = std::string(folder == nullptr || *folder == '\0' ? "/tmp" : folder) +
                     "/halvane-report-XXXXXX";
  const int file = mkstemp(path.data());
  if (file < 0) files::Fail(name + ": " + path, LastError());
  unlink(path.c_str());
  return file;
}

void WriteAll(int file, std::string_view bytes, const std::string& name) {
  while (!bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) files::Fail(name, LastError(), "It came through a pipe and found no room");
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void Copy(InputBytes& from, int to, const std::string& name) {
  std::vector<char> block(kBlock);
  std::size_t size = 0;
  while (!IsInterrupted()) {
    std::error_code error;
    const std::size_t count = from.Read(block, error);
    if (error) files::Fail(name, error);
    if (count == 0) return;
    size += count;
    if (size > kLongestJob) {
      files::Fail(name, std::make_error_code(std::errc::file_too_large));
    }
    WriteAll(to, {block.data(), count}, name);
  }
}

}  // namespace

PipedJob::~PipedJob() {
  if (copy_ >= 0) close(static_cast<int>(copy_));
}

JobSource PipedJob::SourceOf(const std::string& name, bool isStandardInput) {
  if (copy_ >= 0) close(static_cast<int>(copy_));
  copy_ = -1;
  if (!isStandardInput && !IsPipeOfTheProgram(name)) return name;
  InputBytes input;
  if (!isStandardInput) {
    if (const auto error = input.Open(name)) files::Fail(name, error);
  }
  const int file = NamelessFile(name);
  copy_ = file;
  Copy(input, file, name);
  return {name, std::string(kOpenFiles) + std::to_string(file)};
}

}  // namespace halvane
