#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace halvane {

/// A file opened for reading. Every failure is a `RuntimeFailure` of kind `FileError` that names
/// the file and the system's reason.
class InputFile {
 public:
  /// Throws for a path that cannot be opened or is no regular file (a folder, a pipe, a device).
  explicit InputFile(const std::string& path);
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  /// The whole content as bytes. Throws when the file has changed since it was opened: what was
  /// read may be half of the old content and half of the new.
  std::string ReadAll();

 private:
  /// What changes when somebody writes into the file, as well as the system can tell.
  struct Stamp {
    std::int64_t size = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    bool operator==(const Stamp&) const = default;
  };

  std::string path_;
  int descriptor_ = -1;
  Stamp opened_;
};

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

/// Writes a new file for the writer's eyes alone and brings it to the disk; false, with nothing
/// done, when `path` is taken. Any other failure is a `RuntimeFailure` of kind `FileError`, and the
/// file is not there then.
bool WriteNewFile(const std::string& path, std::string_view bytes);

}  // namespace halvane
