#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/input_file.h"
#include "core/job_text_reader.h"
#include "core/long_job_text.h"

namespace halvane {

/// The text of a job file: in memory where the file is short, field by field from the file where it
/// is long, so that a job takes little more memory than its own fields.
///
/// Only what belongs to the job decides whether the file is UTF-8 or Windows-1252, not what follows
/// its last task.
class JobText {
 public:
  struct Limits {
    std::size_t inMemory = std::size_t{1} << 20;  ///< bytes; a file of this size or more is long
    std::size_t block = std::size_t{1}
                        << 16;  ///< bytes of a long file looked at together, 4 or more
  };

  /// Reads a short file, and of a long one no more than its first `Limits::inMemory` bytes. `file`
  /// has to outlive this. Throws `FileError` when it cannot be read or changes meanwhile.
  explicit JobText(InputFile& file) : JobText(file, Limits{}) {}
  JobText(InputFile& file, Limits limits);

  /// Whether the first bytes of a long file show that it is no job file: its first field is not the
  /// marker. Of a short file all is known when its fields are read, so this is false.
  ///
  /// Throws `JobReadFailure` where one of the first five fields, none of them cut, cannot be read.
  [[nodiscard]] bool IsForeign() const;

  /// Finds the fields of a long job file, which has to be done before it is read. Throws as the
  /// constructor does.
  void FindFields();

  /// A reader from the first field on. Of a long file whose fields have not been found it sees the
  /// first bytes alone.
  [[nodiscard]] JobTextReader Reader() const;

  /// What stands from `position` of a reader on, as far as it is in memory; of a long file up to
  /// `Limits::inMemory` bytes.
  [[nodiscard]] std::string From(std::uint64_t position) const;

  /// Throws `FileError` when a long file has changed since it was opened. A short one is in memory.
  void TestUnchanged() const;

 private:
  const InputFile& file_;
  Limits limits_;
  bool isLong_ = false;
  std::string text_;  ///< UTF-8; of a long file its first bytes as they are
  std::optional<LongJobText> fields_;
};

}  // namespace halvane
