#include "core/rescue_copy.h"

#include <algorithm>
#include <string_view>

#include "core/job_file.h"
#include "core/platform_file.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

constexpr std::string_view kExtension = ".qjt";
constexpr std::string_view kNameless = "Job";

std::string_view FileNameOf(std::string_view path) { return path.substr(path.rfind('/') + 1); }

std::string_view FolderOf(std::string_view path) { return path.substr(0, path.rfind('/') + 1); }

/// The name of the job without its extension.
std::string_view BaseName(std::string_view path) {
  std::string_view name = FileNameOf(path);
  if (name.ends_with(kExtension)) name.remove_suffix(kExtension.size());
  return name.empty() ? kNameless : name;
}

/// Writes under the first name that is free: "<base>.rescue.qjt", "<base> (2).rescue.qjt" and so
/// on.
std::string WriteUnderFreeName(const std::string& base, const std::string& bytes) {
  for (int number = 1;; ++number) {
    const std::string counter = number == 1 ? "" : " (" + std::to_string(number) + ")";
    const std::string path = base + counter + ".rescue" + std::string(kExtension);
    if (WriteNewFile(path, bytes)) return path;
  }
}

/// The job with as many of its tasks as a file can hold. The count comes from the arrays, since the
/// failure may be that `TaskCount` is none.
std::string StorableBytes() {
  JobState job = Module1;
  job.TaskCount = ToInteger(std::min(kHighestTask, job.TaskNames.upperBound()));
  return JobFileBytes(job);
}

}  // namespace

std::string WriteRescueCopy(const std::string& fallbackFolder) {
  const std::string bytes = StorableBytes();
  const std::string name(BaseName(Module1.JobFileName));
  if (!Module1.JobFileName.empty()) {
    try {
      return WriteUnderFreeName(std::string(FolderOf(Module1.JobFileName)) + name, bytes);
    } catch (const RuntimeFailure&) {
      // A folder that takes no file: the fallback does.
    }
  }
  return WriteUnderFreeName(fallbackFolder + "/" + name, bytes);
}

}  // namespace halvane
