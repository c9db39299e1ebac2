#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Replaces the content of a file in place, so that a symbolic link, the mode and the owner stay as
/// they are. Until `Commit` the old content stands beside it as `<path>.previous`; whatever fails,
/// and whenever the program is killed, one of the two files is whole. A `.previous` that an earlier
/// failure left is the last whole one: it is not overwritten, and goes with the next commit.
///
/// Every failure is a `RuntimeFailure` of kind `FileError` that names the file and the system's
/// reason.
class FileReplacement {
 public:
  /// Keeps the old content, then opens and empties the file; creates it where there is none. Throws
  /// with the file unchanged when either fails.
  explicit FileReplacement(const std::string& path);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  void Write(std::string_view bytes);
  /// Brings everything to the disk, closes the file and removes the old content.
  void Commit();

 private:
  std::string path_;
  int descriptor_ = -1;
  bool isRegular_ = true;
};

/// Writes a new file and brings it to the disk; false, with nothing done, when `path` is taken. Any
/// other failure is a `RuntimeFailure` of kind `FileError`; a part of the file may then be there.
bool WriteNewFile(const std::string& path, std::string_view bytes);

}  // namespace halvane
