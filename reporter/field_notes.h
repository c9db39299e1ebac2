#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "core/job_text_reader.h"

namespace halvane {

/// One field of a job file as it stands there.
struct FieldNote {
  FieldName name;
  const void* place;   ///< in the job; copies of a field have one
  int line;            ///< where it begins, counted from 1
  TaggedField value;   ///< what was read, as a number where its place holds one
  std::string number;  ///< the text of a field that was read as a number, as it stands

  /// Its text, without quotes.
  [[nodiscard]] std::string_view found() const {
    const auto* text = std::get_if<std::string>(&value.value());
    return text != nullptr ? *text : number;
  }
};

/// Reads a job and notes every field, repeated ones as often as they stand. For `VisitJobFields`;
/// throws as `JobTextReader` does. A text that is longer than any name goes into its note alone:
/// the job has no copy of it afterwards.
class FieldNotes {
 public:
  /// `reader` stands in front of the first field; its text has to outlive the notes.
  explicit FieldNotes(JobTextReader reader) : reader_(std::move(reader)) {
    notes_.reserve(CountJobFields(Module1.TaskCount.AsDouble()));
  }

  void HeaderLine() { reader_.HeaderLine(); }

  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (Note(fields), ...);
  }

  /// In the order of the file.
  [[nodiscard]] const std::vector<FieldNote>& notes() const { return notes_; }
  /// The line of a position behind the last field that was read.
  [[nodiscard]] int LineBehind(std::size_t position) const {
    return Line(lines_ + reader_.LinesBetween(counted_, position));
  }
  /// Behind the last field that was read.
  [[nodiscard]] const JobTextReader& reader() const { return reader_; }

 private:
  template <typename T>
  void Note(const JobField<T>& field) {
    reader_.Line(field);
    // From the field before on: the whole way from the file's begin takes as long as the file for
    // each of its fields.
    lines_ += reader_.LinesBetween(counted_, reader_.lastStart());
    counted_ = reader_.lastStart();
    const std::string* text = TextIn(field.value);
    std::string number;
    if (text == nullptr) number = reader_.lastText();
    // The task count is looked at again when the tasks are read.
    const bool isMoved =
        text != nullptr && text->size() > kLongestName && field.name.field != "TaskCount";
    TaggedField value = isMoved ? TaggedField(std::move(field.value)) : TaggedField(field.value);
    notes_.push_back({field.name, &field.value, Line(lines_), std::move(value), std::move(number)});
  }

  static int Line(std::int64_t linesBefore) {
    constexpr std::int64_t kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(linesBefore + 1, kMost));
  }

  static const std::string* TextIn(const std::string& text) { return &text; }
  static const std::string* TextIn(const TaggedField& field) {
    return std::get_if<std::string>(&field.value());
  }
  static const std::string* TextIn(double /*number*/) { return nullptr; }

  static constexpr std::size_t kLongestName = 4096;  ///< bytes

  JobTextReader reader_;
  std::vector<FieldNote> notes_;
  std::int64_t lines_ = 0;   ///< in front of `counted_`
  std::size_t counted_ = 0;  ///< where the field begins that was noted last
};

}  // namespace halvane
