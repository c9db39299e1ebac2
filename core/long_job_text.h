#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/input_file.h"

namespace halvane {

/// Where a field stands in a file, in bytes from its begin.
struct FieldPlace {
  std::uint64_t start = 0;      ///< behind the blanks in front, at the quote of a quoted field
  std::uint64_t textStart = 0;  ///< of its text, without quotes
  std::uint64_t textEnd = 0;
  std::uint64_t next = 0;  ///< behind its separator
  bool isQuoted = false;
};

/// A job file that is too long to be held in memory beside the job that is made from it. Its fields
/// are found first, by a walk over its bytes that keeps none of them, and each is then read from
/// the file straight into its own text. What follows the last field of the job is not read.
class LongJobText {
 public:
  /// Finds the fields of the job. `file` has to outlive this; `block` is how many bytes are looked
  /// at together. Throws `FileError` when it cannot be read or has changed.
  LongJobText(const InputFile& file, std::size_t block);

  /// As many as the job has, fewer where the file ends before.
  [[nodiscard]] const std::vector<FieldPlace>& fields() const { return fields_; }
  /// Behind the last of them: where they are all there behind its separator, else the end of the
  /// file.
  [[nodiscard]] std::uint64_t end() const { return end_; }
  /// Whether the bytes of the job are UTF-8, and not Windows-1252.
  [[nodiscard]] bool isUtf8() const { return isUtf8_; }

  /// The text of a field as UTF-8, in a string of just that size. Throws as the constructor does.
  [[nodiscard]] std::string TextOf(const FieldPlace& field) const;
  /// How many lines there are from one field's begin to another's.
  [[nodiscard]] int LinesBetween(std::uint64_t from, std::uint64_t to) const;

 private:
  void FindFields();
  [[nodiscard]] bool FindWhetherUtf8() const;

  template <typename Action>
  void ForEachBlock(std::uint64_t from, std::uint64_t to, const Action& action) const;

  const InputFile& file_;
  std::size_t block_;
  std::vector<FieldPlace> fields_;
  std::uint64_t end_ = 0;
  bool isUtf8_ = true;
};

}  // namespace halvane
