#include "reporter/folder_walk.h"

#include <algorithm>

#include "core/ascii.h"
#include "core/file_calls.h"
#include "core/file_name.h"
#include "core/folder_reader.h"
#include "core/runtime_failure.h"

namespace halvane {
namespace {

constexpr std::string_view kJobFileEnd = ".qjt";
/// How many names of a folder are held at a time.
constexpr std::size_t kMostNames = 4096;

bool IsJobFileName(std::string_view name) {
  if (name.size() <= kJobFileEnd.size()) return false;
  const std::string_view end = name.substr(name.size() - kJobFileEnd.size());
  return std::ranges::equal(end, kJobFileEnd,
                            [](char c, char wanted) { return LowerCase(c) == wanted; });
}

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

}  // namespace

FolderWalk::FolderWalk(std::string folder) { Enter(std::move(folder)); }

void FolderWalk::Enter(std::string path) {
  if (!FileNameOf(path).empty()) path += '/';
  levels_.push_back({std::move(path), {}, {}, false});
}

/// Reads the names behind `level.last`; gives what went wrong.
std::optional<std::string> FolderWalk::Refill(Level& level) {
  // A heap with the highest name on top, so that the lowest ones are kept.
  std::vector<std::string>& names = level.names;
  level.isComplete = true;
  FolderReader reader(level.path);
  while (reader.Next()) {
    // Most entries of a large folder are decided by their name, which is much faster.
    if (IsBefore(reader.name(), level.last)) continue;
    const bool isFull = names.size() == kMostNames;
    if (isFull && IsBehind(reader.name(), names.front())) {
      level.isComplete = false;
      continue;
    }
    std::string name = WantedName(reader);
    if (name <= level.last) continue;
    names.push_back(std::move(name));
    std::ranges::push_heap(names);
    if (!isFull) continue;
    std::ranges::pop_heap(names);
    names.pop_back();
    level.isComplete = false;
  }
  std::ranges::sort_heap(names);
  std::ranges::reverse(names);
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
