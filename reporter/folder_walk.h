#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace halvane {

/// Whether a name is that of a job file: *.qjt in upper or lower case.
bool IsJobFileName(std::string_view name);

/// The job files (*.qjt in upper or lower case) below a folder, sorted by the bytes of their paths.
/// Links to files are files, links to folders are passed over, since they can lead back.
///
/// However many files a folder has, a fixed number of names is held at a time; the folder is read
/// again for the next ones. So files may come and go meanwhile, and none is given twice.
class FolderWalk {
 public:
  /// `folder` as the user named it; paths begin with it.
  explicit FolderWalk(std::string folder);

  /// The path of the next job file; nothing behind the last one. A folder that cannot be read gives
  /// a sentence in `complaints`, and the walk goes on behind it.
  std::optional<std::string> Next(std::vector<std::string>& complaints);

 private:
  /// A folder on the way.
  struct Level {
    std::string path;                ///< with the slash behind it
    std::vector<std::string> names;  ///< the next names in it, last first; folders with a slash
    std::string last;                ///< the highest name that `names` had
    bool isComplete = false;         ///< there are no names behind `names`
  };

  void Enter(std::string path);
  static std::optional<std::string> Refill(Level& level);

  std::vector<Level> levels_;
};

}  // namespace halvane
