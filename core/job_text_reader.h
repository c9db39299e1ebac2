#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "core/job_fields.h"
#include "core/plain_number.h"
#include "core/runtime_failure.h"

namespace halvane {

class LongJobText;

/// The text of a field as messages show it: a long one is cut, which "..." behind it tells.
std::string ShownField(std::string_view found);

/// A job file whose text could not be taken: where, which field, and what stood there.
class JobReadFailure : public RuntimeFailure {
 public:
  JobReadFailure(FailureKind kind, int line, const FieldName& name, std::string found);

  [[nodiscard]] int line() const { return line_; }                   ///< counted from 1
  [[nodiscard]] const std::string& field() const { return field_; }  ///< "Hand", "TaskNames(2)"
  [[nodiscard]] const std::string& found() const { return found_; }  ///< the text as it stands
  /// The same for who needs nothing else of it afterwards: it may be as long as the file.
  [[nodiscard]] std::string TakeFound() { return std::move(found_); }

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
  /// Takes the fields from a long file, which has to outlive the reader. Throws `FileError` besides
  /// when the file cannot be read.
  explicit JobTextReader(const LongJobText& file) : file_(&file) {}

  /// Reads the five fields of the first line and tells whether the first is the marker. All five
  /// are scratch values of any kind.
  bool ReadMarkerLine();
  /// Its two parts.
  bool ReadMarker();
  void ReadConstants();

  void HeaderLine() { ReadMarkerLine(); }

  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (ReadField(fields.name, fields.value), ...);
  }

  /// Where the field that was read last begins, its text as it stands, and the line of a position,
  /// counted from 1.
  [[nodiscard]] std::size_t lastStart() const { return fieldStart_; }
  /// The text stands until another field is read, or until the field's place in the job changes.
  [[nodiscard]] std::string_view lastText() const { return lastText_; }
  [[nodiscard]] int LineAt(std::size_t position) const;
  /// The lines from one field's begin to another's, for who asks for many of them: each byte is
  /// looked at once then.
  [[nodiscard]] int LinesBetween(std::size_t from, std::size_t to) const;
  /// Where the next field begins.
  [[nodiscard]] std::size_t position() const { return position_; }

  /// The failure of what was to be done with the field that was read last.
  [[nodiscard]] JobReadFailure FailureAtLastField(FailureKind kind, const FieldName& name) const;
  /// The failure of a field that has no place in the job: it is passed without being stored.
  [[nodiscard]] JobReadFailure FailureAtNextField(FailureKind kind, const FieldName& name);

 private:
  struct FieldText {
    std::string_view text;
    bool quoted = false;
  };

  template <typename T>
  void ReadField(const FieldName& name, T& target) {
    if constexpr (std::is_same_v<T, std::string>) {
      StoreText(NextField(name).text, target);
    } else {
      const PlainNumber number = TakePlainNumber();
      const FieldText field = number.length > 0 ? FieldText{} : NextField(name);
      try {
        number.length > 0 ? Store(number, target) : Store(field, target);
      } catch (const RuntimeFailure& failure) {
        throw JobReadFailure(failure.kind(), fieldLine(), name, TakeLastText());
      }
    }
  }

  /// Passes a field in memory that is a plain number from end to end, as nearly all are; of any
  /// other gives the length 0, and nothing has happened.
  PlainNumber TakePlainNumber();
  FieldText NextField(const FieldName& name);
  /// Where no text is left in memory.
  FieldText NextFieldOfFile(const FieldName& name);
  void PassSeparator(std::size_t separator);
  [[nodiscard]] int fieldLine() const { return LineAt(fieldStart_); }
  [[nodiscard]] std::string TakeLastText();

  static void Store(const PlainNumber& number, Integer& target) {
    target = ToInteger(number.value);
  }
  static void Store(const PlainNumber& number, double& target) { target = number.value; }
  static void Store(const PlainNumber& number, TaggedField& target) {
    StoreNumber(number.value, !number.hasPoint, target);
  }
  static void Store(const FieldText& field, Integer& target);
  static void Store(const FieldText& field, double& target);
  void Store(const FieldText& field, TaggedField& target);
  /// The number in the kind that a tagged field holds it in: whole digits within 16 bits are an
  /// integer.
  static void StoreNumber(double number, bool wholeDigits, TaggedField& target) {
    const bool fits = number >= std::numeric_limits<Integer>::min() &&
                      number <= std::numeric_limits<Integer>::max();
    if (wholeDigits && fits) {
      target = static_cast<Integer>(number);
    } else {
      target = number;
    }
  }
  template <typename T>
  void StoreText(std::string_view text, T& target);

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t fieldStart_ = 0;
  std::string_view lastText_;

  const LongJobText* file_ = nullptr;  ///< where the fields are taken from one
  std::size_t nextOfFile_ = 0;
  std::string textOfFile_;  ///< of the field that was read last
};

/// Whether a character ends a field. The first test alone decides for digits and letters.
inline bool IsFieldEnd(char c) { return c <= ',' && (c == ',' || c == '\r' || c == '\n'); }

// Here to be compiled into the way through the fields: this is most of the work on a job.
inline PlainNumber JobTextReader::TakePlainNumber() {
  // Positions in a long file are beyond the text that is in memory: there is none.
  if (position_ >= text_.size()) return {};
  const std::string_view rest(text_.data() + position_, text_.size() - position_);
  const PlainNumber number = PlainNumberAt(rest);
  if (number.length == 0 || number.length == rest.size()) return {};
  const char separator = rest[number.length];
  if (!IsFieldEnd(separator)) return {};
  fieldStart_ = position_;
  lastText_ = {rest.data(), number.length};
  position_ += number.length + 1;
  const bool isReturn = separator == '\r';
  if (isReturn && position_ < text_.size() && text_[position_] == '\n') ++position_;
  return number;
}

/// The number of tasks that `reader`, which stands in front of the first field, finds; 0 where it
/// cannot be read. The reader then stands behind it.
double TaskCountAt(JobTextReader& reader);

}  // namespace halvane
