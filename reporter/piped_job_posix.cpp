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

bool IsPipeOfTheProgram(const std::string& name) {
  if (!name.starts_with(kOpenFiles) && !name.starts_with(kOwnOpenFiles) && name != "/dev/stdin") {
    return false;
  }
  files::Status status;
  return !files::StatusOf(name, status) && status.kind != files::Kind::Regular;
}

void Copy(InputBytes& from, NamelessFile& to, const std::string& name) {
  std::vector<char> block(kBlock);
  while (!IsInterrupted()) {
    std::error_code error;
    const std::size_t count = from.Read(block, error);
    if (error) files::Fail(name, error);
    if (count == 0) return;
    to.Append({block.data(), count});
    if (to.size() > kLongestJob) {
      files::Fail(name, std::make_error_code(std::errc::file_too_large));
    }
  }
}

}  // namespace

bool PipedJob::IsPiped(const std::string& name, bool isStandardInput) {
  return isStandardInput || IsPipeOfTheProgram(name);
}

JobSource PipedJob::SourceOf(const std::string& name, bool isStandardInput) {
  copy_.reset();
  if (!IsPiped(name, isStandardInput)) return name;
  InputBytes input;
  if (!isStandardInput) {
    if (const auto error = input.Open(name)) files::Fail(name, error);
  }
  copy_.emplace();
  Copy(input, *copy_, name);
  return {name, copy_->pathOfOpenFile()};
}

}  // namespace halvane
