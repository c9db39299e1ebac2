#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "reporter/folder_walk.h"
#include "reporter/input.h"

namespace halvane {

/// The job files that the user means, one after the other: those named, those in the folders named,
/// and those that standard input names.
class JobList {
 public:
  /// `names`: files and folders. `fromInput`: standard input has more of them, one a line.
  JobList(std::vector<std::string> names, bool fromInput);

  /// The path of the next one; nothing behind the last one. What is wrong with a name on the way
  /// comes as a sentence in `complaints`.
  std::optional<std::string> Next(std::vector<std::string>& complaints);

  /// How many there are from here on; nothing while only standard input knows. Walks through the
  /// folders.
  [[nodiscard]] std::optional<std::size_t> CountLeft() const;

 private:
  std::optional<std::string> NextName(std::vector<std::string>& complaints);
  std::optional<std::string> NextInFolder(std::vector<std::string>& complaints);

  std::vector<std::string> names_;
  std::size_t nextName_ = 0;
  bool fromInput_;
  InputLines input_;
  std::optional<FolderWalk> folder_;  ///< under way
  std::string folderName_;
  bool folderHasFiles_ = false;
};

}  // namespace halvane
