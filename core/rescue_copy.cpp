#include "core/rescue_copy.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/job_file.h"
#include "core/platform_file.h"
#include "core/runtime_failure.h"
#include "core/user_folders.h"

namespace halvane {
namespace {

constexpr std::string_view kExtension = ".qjt";
constexpr std::string_view kRescueEnd = ".rescue.qjt";
constexpr std::string_view kNameless = "Job";
/// A file system that takes no name of this length takes none.
constexpr std::size_t kShortestTried = 32;
/// Of the number of a copy.
constexpr std::size_t kMostDigits = 6;

/// The name of the job without its extension.
std::string_view BaseName(std::string_view name) {
  if (name.ends_with(kExtension)) name.remove_suffix(kExtension.size());
  return name.empty() ? kNameless : name;
}

/// The number in the name of a copy; 0 where it is no such name.
int NumberIn(std::string_view name) {
  if (!name.ends_with(kRescueEnd)) return 0;
  name.remove_suffix(kRescueEnd.size());
  const std::size_t open = name.rfind(" (");
  if (open == std::string_view::npos || !name.ends_with(')')) return 1;
  const std::string_view digits = name.substr(open + 2, name.size() - open - 3);
  if (digits.empty() || digits.size() > kMostDigits) return 1;
  int number = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return 1;
    number = number * 10 + (digit - '0');
  }
  // The first copy has none.
  return number > 1 ? number : 1;
}

bool IsNameOfCopy(std::string_view name, std::string_view jobFileName, std::size_t longest) {
  const int number = NumberIn(name);
  // The job's own name may end in such a number.
  return number > 0 && (name == RescueName(jobFileName, number, longest) ||
                        name == RescueName(jobFileName, 1, longest));
}

/// A place for a copy: a folder with a separator behind it (empty: the current one), and how long
/// names may be in it.
struct Place {
  std::string folder;
  std::size_t longest = kLongestFileName;
};

/// Whether a file system takes no such name; one that has a shorter limit than others says so of a
/// file that is not there, too.
bool IsTooLong(const std::string& path) {
  files::Status status;
  return files::StatusOfName(path, status) == std::errc::filename_too_long;
}

Place PlaceIn(std::string folder, std::string_view jobFileName) {
  Place place{std::move(folder)};
  while (place.longest > kShortestTried &&
         IsTooLong(place.folder + RescueName(jobFileName, 1, place.longest))) {
    place.longest = std::max(kShortestTried, place.longest * 3 / 4);
  }
  return place;
}

bool HasBytes(const std::string& path, const std::string& bytes) {
  files::File file;
  files::Status status;
  // A link may lead to a file that somebody changes meanwhile.
  if (file.Open(path, files::Access::ReadItself) || file.GetStatus(status)) return false;
  if (status.kind != files::Kind::Regular || status.size != bytes.size()) return false;
  std::string found;
  return !files::ReadWhole(file, bytes.size(), found) && found == bytes;
}

/// The copy with these bytes that stands in a place already. Copies are looked for by what their
/// names may be: somebody may have removed one with a lower number.
std::optional<std::string> FindEqual(const Place& place, std::string_view jobFileName,
                                     const std::string& bytes) {
  const auto found = files::NamesIn(place.folder, [&](std::string_view name) {
    return IsNameOfCopy(name, jobFileName, place.longest) &&
           HasBytes(place.folder + std::string(name), bytes);
  });
  if (found.empty()) return std::nullopt;
  return place.folder + *std::ranges::min_element(found);
}

/// Another number of tasks for as long as it lives. The job itself is written, since the memory for
/// a copy of many tasks may be what has failed, and the journal takes the job every second.
class StorableCount {
 public:
  StorableCount(TaggedField& count, Integer storable)
      : count_(count), own_(std::exchange(count, storable)) {}
  ~StorableCount() { count_ = std::move(own_); }
  StorableCount(const StorableCount&) = delete;
  StorableCount& operator=(const StorableCount&) = delete;

 private:
  TaggedField& count_;
  TaggedField own_;
};

/// Writes under the first name that is free.
std::string WriteUnderFreeName(const Place& place, std::string_view jobFileName,
                               const std::string& bytes) {
  for (int number = 1;; ++number) {
    const std::string path = place.folder + RescueName(jobFileName, number, place.longest);
    if (WriteNewFile(path, bytes)) return path;
  }
}

}  // namespace

bool NeedsRescue(const JobState& job) { return job.JobDirty != kFalse || job.JobInNoFile; }

std::string RescueBytes(JobState& job) {
  // From the arrays, since the failure may be that `TaskCount` is none.
  const StorableCount count(job.TaskCount,
                            ToInteger(std::min(kHighestTask, job.TaskNames.upperBound())));
  return JobFileBytes(job);
}

std::string RescueName(std::string_view jobFileName, int number, std::size_t longest) {
  const std::string counter = number == 1 ? "" : " (" + std::to_string(number) + ")";
  const std::string end = counter + std::string(kRescueEnd);
  return std::string(ShortenedName(BaseName(jobFileName), longest - end.size())) + end;
}

bool IsRescueName(std::string_view name, std::string_view jobFileName) {
  return IsNameOfCopy(name, jobFileName, kLongestFileName);
}

std::string WriteRescueCopy(const std::string& jobFile, const std::string& bytes,
                            const std::vector<std::string>& folders) {
  const std::string_view name = FileNameOf(jobFile);
  std::vector<Place> places;
  if (!jobFile.empty()) places.push_back(PlaceIn(std::string(FolderOf(jobFile)), name));
  for (const std::string& folder : folders) {
    if (!folder.empty()) places.push_back(PlaceIn(WithSeparator(folder), name));
  }
  for (const Place& place : places) {
    if (auto equal = FindEqual(place, name, bytes)) return *equal;
  }
  std::exception_ptr last;
  for (const Place& place : places) {
    // The job's own folder is not made anew where somebody has removed it.
    if (&place != &places.front() || jobFile.empty()) MakeFolder(place.folder);
    try {
      return WriteUnderFreeName(place, name, bytes);
    } catch (const RuntimeFailure&) {
      last = std::current_exception();
    }
  }
  if (last) std::rethrow_exception(last);
  throw RuntimeFailure(FailureKind::FileError);
}

}  // namespace halvane
