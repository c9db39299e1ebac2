#pragma once

#include <string_view>
#include <vector>

#include "core/job_text_reader.h"

namespace halvane {

/// One field of a job file as it stands there.
struct FieldNote {
  FieldName name;
  std::size_t start;       ///< where it begins in the text
  std::string_view found;  ///< its text, without quotes
  TaggedField value;       ///< what was read, as a number where its place holds one
};

/// Reads a job and notes every field, repeated ones as often as they stand. For `VisitJobFields`;
/// throws as `JobTextReader` does.
class FieldNotes {
 public:
  /// `text` is UTF-8 and has to outlive the notes.
  explicit FieldNotes(std::string_view text) : reader_(text) {}

  void HeaderLine() { reader_.HeaderLine(); }

  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (Note(fields), ...);
  }

  /// In the order of the file.
  [[nodiscard]] const std::vector<FieldNote>& notes() const { return notes_; }
  [[nodiscard]] int LineOf(const FieldNote& note) const { return reader_.LineAt(note.start); }
  /// Behind the last field that was read.
  [[nodiscard]] const JobTextReader& reader() const { return reader_; }

 private:
  template <typename T>
  void Note(const JobField<T>& field) {
    reader_.Line(field);
    notes_.push_back({field.name, reader_.lastStart(), reader_.lastText(), field.value});
  }

  JobTextReader reader_;
  std::vector<FieldNote> notes_;
};

}  // namespace halvane
