#include "reporter/folder_walk.h"

#include <algorithm>
#include <functional>

#include "core/ascii.h"
#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/folder_reader.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

constexpr std::string_view kJobFileEnd = ".qjt";
/// How many names of a folder are held at a time, and up to twice as many while it is read.
constexpr std::size_t kMostNames = 4096;

/// Whether a name, with or without a slash behind it, comes before or behind `other`; false where
/// the slash would decide.
bool IsBefore(std::string_view name, std::string_view other) {
  return name < other.substr(0, name.size());
}
bool IsBehind(std::string_view name, std::string_view other) {
  return name > other.substr(0, name.size());
}

/// The name that the walk goes on with, a slash behind a folder's; empty where it does not.
std::string WantedName(const FolderReader& entry) {
  std::string name(entry.name());
  if (entry.IsFolder()) return name + '/';
  return IsJobFileName(name) && !entry.IsLinkToFolder() ? name : std::string();
}

/// Leaves the lowest names, as many as are held; the highest of them is the last one then.
void KeepLowest(std::vector<std::string>& names) {
  std::ranges::nth_element(names, names.begin() + (kMostNames - 1));
  names.resize(kMostNames);
}

}  // namespace

bool IsJobFileName(std::string_view name) {
  if (name.size() <= kJobFileEnd.size()) return false;
  const std::string_view end = name.substr(name.size() - kJobFileEnd.size());
  return std::ranges::equal(end, kJobFileEnd,
                            [](char c, char wanted) { return LowerCase(c) == wanted; });
}

FolderWalk::FolderWalk(std::string folder) { Enter(std::move(folder)); }

void FolderWalk::Enter(std::string path) {
  if (!FileNameOf(path).empty()) path += '/';
  levels_.push_back({std::move(path), {}, {}, false});
}

/// Reads the names behind `level.last`; gives what went wrong.
std::optional<std::string> FolderWalk::Refill(Level& level) {
  std::vector<std::string>& names = level.names;
  // Whether names were left out, and `highest` is the highest that was not.
  bool isCut = false;
  std::string highest;
  const auto cut = [&] {
    if (names.size() <= kMostNames) return;
    KeepLowest(names);
    highest = names.back();
    isCut = true;
  };
  FolderReader reader(level.path);
  while (reader.Next()) {
    // Most entries of a large folder are decided by their name, which is much faster.
    if (IsBefore(reader.name(), level.last)) continue;
    if (isCut && IsBehind(reader.name(), highest)) continue;
    std::string name = WantedName(reader);
    if (name <= level.last) continue;
    names.push_back(std::move(name));
    if (names.size() == 2 * kMostNames) cut();
  }
  cut();
  level.isComplete = !isCut;
  std::ranges::sort(names, std::greater<>());
  if (!names.empty()) level.last = names.front();
  if (!reader.error()) return std::nullopt;
  level.isComplete = true;
  return RuntimeFailure(FailureKind::FileError, level.path + ": " + files::ReasonOf(reader.error()))
      .what();
}

std::optional<std::string> FolderWalk::Next(std::vector<std::string>& complaints) {
  while (!levels_.empty()) {
    Level& level = levels_.back();
    if (level.names.empty()) {
      if (level.isComplete) {
        levels_.pop_back();
      } else if (auto complaint = Refill(level)) {
        complaints.push_back(*std::move(complaint));
      }
      continue;
    }
    std::string path = level.path + level.names.back();
    level.names.pop_back();
    if (!path.ends_with('/')) return path;
    Enter(std::move(path));
  }
  return std::nullopt;
}

}  // namespace halvane
