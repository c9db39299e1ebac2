#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace halvane {

/// Gives the entries of a folder, in no order. What stands for the folder itself and for the one
/// above it is left out.
class FolderReader {
 public:
  explicit FolderReader(const std::string& folder);
  ~FolderReader();
  FolderReader(const FolderReader&) = delete;
  FolderReader& operator=(const FolderReader&) = delete;

  /// Goes to the next entry; false behind the last one and on an error.
  bool Next();
  /// What stopped the reading.
  [[nodiscard]] std::error_code error() const { return error_; }

  // Of the present entry.
  [[nodiscard]] std::string_view name() const;
  /// Whether it is a folder; a link to one is none.
  [[nodiscard]] bool IsFolder() const;
  [[nodiscard]] bool IsLinkToFolder() const;

 private:
  struct System;
  std::unique_ptr<System> system_;
  std::error_code error_;
};

}  // namespace halvane
