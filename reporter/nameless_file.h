#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace halvane {

/// A file in the folder for temporary ones that has no name and is gone with the program, whatever
/// ends it. Each failure is a `RuntimeFailure` of kind `FileError`.
class NamelessFile {
 public:
  NamelessFile();
  ~NamelessFile();
  NamelessFile(const NamelessFile&) = delete;
  NamelessFile& operator=(const NamelessFile&) = delete;

  /// Writes behind what is there.
  void Append(std::string_view bytes);
  /// Reads from a position on; gives how much, less than the room at the end of the file.
  std::size_t ReadAt(std::uint64_t position, std::span<char> room) const;
  [[nodiscard]] std::uint64_t size() const { return size_; }

  /// By which the open file can be opened again, where the system has such names; else empty.
  [[nodiscard]] std::string pathOfOpenFile() const;

 private:
  std::intptr_t handle_;  ///< as the system calls an open file
  std::uint64_t size_ = 0;
};

}  // namespace halvane
