#pragma once

#include <string>
#include <string_view>

#include "core/job_fields.h"
#include "core/plain_number.h"
#include "core/runtime_failure.h"

namespace halvane {

/// The text of a field as messages show it: a long one is cut, which "..." behind it tells.
std::string ShownField(std::string_view found);

/// A job file whose text could not be taken: where, which field, and what stood there.
class JobReadFailure : public RuntimeFailure {
 public:
  JobReadFailure(FailureKind kind, int line, const FieldName& name, std::string_view found);

  [[nodiscard]] int line() const { return line_; }                   ///< counted from 1
  [[nodiscard]] const std::string& field() const { return field_; }  ///< "Hand", "TaskNames(2)"
  [[nodiscard]] const std::string& found() const { return found_; }  ///< the text as it stands

 private:
  int line_;
  std::string field_;
  std::string found_;
};

/// Takes the fields of a job file one after the other, for `VisitJobFields`. Line ends count only
/// as separators: the number and order of fields matter, not how they lie on lines.
///
/// Throws `JobReadFailure`: `InputPastEnd` where the text ends and a field should start,
/// `TypeMismatch` for other text in a number, `Overflow` for a number that its place cannot hold.
/// The fields before it have been read into their places.
class JobTextReader {
 public:
  /// `text` is UTF-8 and has to outlive the reader.
  explicit JobTextReader(std::string_view text) : text_(text) {}

  /// Reads the five fields of the first line and tells whether the first is the marker. All five
  /// are scratch values of any kind.
  bool ReadMarkerLine();

  void HeaderLine() { ReadMarkerLine(); }

  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (ReadField(fields.name, fields.value), ...);
  }

  /// Where the field that was read last begins, its text as it stands, and the line of a position,
  /// counted from 1.
  [[nodiscard]] std::size_t lastStart() const { return fieldStart_; }
  [[nodiscard]] std::string_view lastText() const { return lastText_; }
  [[nodiscard]] int LineAt(std::size_t position) const;
  /// Where the next field begins.
  [[nodiscard]] std::size_t position() const { return position_; }

  /// The failure of what was to be done with the field that was read last.
  [[nodiscard]] JobReadFailure FailureAtLastField(FailureKind kind, const FieldName& name) const;
  /// The failure of a field that has no place in the job, so that it was not read.
  [[nodiscard]] JobReadFailure FailureAtNextField(FailureKind kind, const FieldName& name) const;

 private:
  struct FieldText {
    std::string_view text;
    bool quoted = false;
    PlainNumber number;  ///< where the whole field is one
  };

  template <typename T>
  void ReadField(const FieldName& name, T& target) {
    const FieldText field = NextField(name);
    try {
      Read(field, target);
    } catch (const JobReadFailure&) {
      throw;
    } catch (const RuntimeFailure& failure) {
      throw JobReadFailure(failure.kind(), fieldLine(), name, field.text);
    }
  }

  FieldText NextField(const FieldName& name);
  void PassSeparator(std::size_t separator);
  [[nodiscard]] int fieldLine() const { return LineAt(fieldStart_); }

  static void Read(FieldText field, std::string& target);
  static void Read(FieldText field, Integer& target);
  static void Read(FieldText field, double& target);
  static void Read(FieldText field, TaggedField& target);

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t fieldStart_ = 0;
  std::string_view lastText_;
};

}  // namespace halvane
