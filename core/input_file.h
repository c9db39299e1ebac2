#pragma once

#include <cstdint>
#include <string>

#include "core/file_calls.h"

namespace halvane {

/// A file opened for reading. Every failure is a `RuntimeFailure` of kind `FileError` that names
/// the file and the system's reason.
class InputFile {
 public:
  /// Throws for a path that cannot be opened or is no regular file (a folder, a pipe, a device).
  explicit InputFile(const std::string& path);

  /// The whole content as bytes, of a longer file the first `most` of them. Throws as
  /// `TestUnchanged` does.
  std::string ReadAll(std::size_t most = SIZE_MAX);

  /// Reads `size` bytes from `position` on into `buffer`; fewer at the end of the file. Gives how
  /// many.
  std::size_t ReadAt(std::uint64_t position, char* buffer, std::size_t size) const;

  /// Throws when the file has changed since it was opened: what was read may be half of the old
  /// content and half of the new.
  void TestUnchanged() const;
  /// The failure that `TestUnchanged` throws, for who sees the change in what was read.
  [[noreturn]] void FailAsChanged() const;

 private:
  /// One try to read, which may give less than there is.
  std::size_t ReadSome(std::uint64_t position, char* buffer, std::size_t size) const;

  std::string path_;
  files::File file_;
  files::Status opened_;
};

}  // namespace halvane
