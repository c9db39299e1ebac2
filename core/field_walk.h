#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/long_job_text.h"

namespace halvane {

/// Finds one field of a job file after the other on its bytes, whatever their encoding: quotes,
/// blanks and separators are the same bytes in both. Keeps one block of the file in memory.
class FieldWalk {
 public:
  /// `file` has to outlive the walk.
  FieldWalk(const InputFile& file, std::size_t block) : file_(file), block_(block, '\0') {}

  /// The next field; nothing where the file ends before one.
  std::optional<FieldPlace> Next();
  /// Behind what was passed so far.
  [[nodiscard]] std::uint64_t position() const { return position_; }

 private:
  /// The bytes from `position` on that stand in one block; none at the end of the file.
  std::string_view From(std::uint64_t position);
  /// The first position from `from` on that `find` gives in a block, else the end of the file.
  template <typename Find>
  std::uint64_t FindFrom(std::uint64_t from, const Find& find);
  std::uint64_t BlanksEnd(std::uint64_t from);
  std::uint64_t Separator(std::uint64_t from);
  std::uint64_t BehindSeparator(std::uint64_t separator);

  const InputFile& file_;
  std::string block_;
  std::uint64_t blockStart_ = 0;
  std::size_t blockSize_ = 0;
  std::uint64_t position_ = 0;
};

}  // namespace halvane
