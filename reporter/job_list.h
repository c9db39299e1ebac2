#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "reporter/folder_walk.h"
#include "reporter/input.h"

namespace halvane {

/// The job files that the user means, one after the other: those named, those in the folders named,
/// and those that a list names.
class JobList {
 public:
  /// `names`: files and folders, and "-" for a job on standard input. `list` has more files and
  /// folders.
  explicit JobList(std::vector<std::string> names, std::optional<InputLines> list = std::nullopt);

  /// Those in a folder, whatever its name.
  static JobList OfFolder(std::string name);

  /// The path of the next one; nothing behind the last one. What is wrong with a name on the way
  /// comes as a sentence in `complaints`. A folder that is named as job files are is given as one:
  /// to ask the system for each of them takes longer than to see it when one cannot be read.
  std::optional<std::string> Next(std::vector<std::string>& complaints);

  /// Whether asking for the next one does not wait for who writes the list.
  [[nodiscard]] bool isNextAtHand() const;

  /// Whether the job that came last is standard input.
  [[nodiscard]] bool isStandardInput() const { return isStandardInput_; }

  /// How many there are from here on; nothing while only the list knows. Walks through the
  /// folders.
  [[nodiscard]] std::optional<std::size_t> CountLeft() const;

 private:
  void Enter(std::string folder);
  std::optional<std::string> NextName(std::vector<std::string>& complaints);
  std::optional<std::string> NextInFolder(std::vector<std::string>& complaints);

  std::vector<std::string> names_;
  std::size_t nextName_ = 0;
  std::optional<InputLines> list_;
  bool isStandardInput_ = false;
  std::optional<FolderWalk> folder_;  ///< under way
  std::string folderName_;
  bool folderHasFiles_ = false;
};

}  // namespace halvane
