#pragma once

#include <string>
#include <string_view>

#include "core/file_calls.h"
#include "core/kept_copy.h"

namespace halvane {

/// Replaces the content of a file in place, so that links, mode and owner stay as they are, and one
/// whole version is on the disk at any moment, whatever fails and whenever the program is killed:
/// the new content is written to a copy first (`core/kept_copy.h`), then over the old, then the
/// copy goes. Where no place takes a copy the file is overwritten without one, with its room on
/// the disk reserved. A file that is not there yet is made whole under another name. Programs that
/// replace the same file at once take turns.
///
/// Every failure is a `RuntimeFailure` of kind `FileError` that names the file, the system's reason
/// and where a whole version stands. Devices are written as they are; pipes are refused.
class FileReplacement {
 public:
  /// Opens the file, or what is to become it, and changes nothing. Throws where it cannot be opened
  /// and where another program keeps it locked for seconds.
  explicit FileReplacement(const std::string& path);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  /// Replaces the content; done when it is on the disk. Once, and nothing may be written after it.
  /// When nothing of the old content has changed at a failure, nothing is left but the old file;
  /// else the copy stays.
  void Write(std::string_view bytes);

  /// Replaces the content by one that is known to be no whole job, after the old content has been
  /// copied. The copy stays; gives its path. Where none can be made the file stays as it is, and
  /// its own path is given. Gives nothing when there was no file.
  std::string WriteIncomplete(std::string_view bytes);

 private:
  /// Opens the file and waits for its turn; false when there is none.
  bool OpenExisting();
  /// Waits while another program lets nobody write.
  std::error_code OpenWhenShared();
  /// What stands at a path that could not be opened; empty where that cannot be said.
  [[nodiscard]] std::string UntouchedSentence() const;
  void Lock();
  /// Whether the opened file is still the one of that name.
  bool IsStillThere() const;
  void OpenPart();
  void WriteToDevice(std::string_view bytes);
  void WriteNew(std::string_view bytes);
  /// Gives the part the file's name; false when another program took that meanwhile.
  bool PlacePart();
  /// Writes over the old content. `sentence` tells what `copy` holds, for a failure; the copy goes
  /// while the old content is whole.
  void Overwrite(std::string_view bytes, const KeptCopy& copy, const std::string& sentence);

  std::string path_;
  std::string target_;  ///< behind symbolic links
  std::string part_;    ///< of a file that is not there yet, else empty
  files::File file_;
  bool isRegular_ = true;
};

/// Writes a new file for the writer's eyes alone and brings it to the disk; false, with nothing
/// done, when `path` is taken. Any other failure is a `RuntimeFailure` of kind `FileError`, and the
/// file is not there then.
bool WriteNewFile(const std::string& path, std::string_view bytes);

}  // namespace halvane
