#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "core/integer.h"
#include "core/number_text.h"

namespace halvane {

/// A field of the job that keeps the kind of what was put into it: nothing, a whole number, a
/// double or a text. Text boxes store texts, computations store numbers, and the job file writes
/// each by the kind that it holds at that moment.
class TaggedField {
 public:
  using Value = std::variant<std::monostate, Integer, double, std::string>;

  TaggedField() = default;
  // Implicit, since assigning a number or a text to a field is what the class is for.
  // NOLINTBEGIN(google-explicit-constructor)
  TaggedField(Integer value) : value_(value) {}
  TaggedField(double value) : value_(value) {}
  TaggedField(std::string value) : value_(std::move(value)) {}
  TaggedField(std::string_view value) : value_(std::string(value)) {}
  TaggedField(const char* value) : value_(std::string(value)) {}
  // NOLINTEND(google-explicit-constructor)

  TaggedField(const TaggedField&) = default;
  TaggedField(TaggedField&&) = default;
  TaggedField& operator=(TaggedField&&) = default;
  ~TaggedField() = default;
  /// Jobs are copied for every tool that reports on them, and nearly all of their fields hold a
  /// number; asking for those first takes a third of the time of the variant's own way.
  TaggedField& operator=(const TaggedField& other) {
    if (const auto* integer = std::get_if<Integer>(&other.value_)) {
      value_ = *integer;
    } else if (const auto* number = std::get_if<double>(&other.value_)) {
      value_ = *number;
    } else {
      value_ = other.value_;
    }
    return *this;
  }

  // A number goes to its place without a field in between that would have to be taken apart again.
  TaggedField& operator=(Integer value) {
    value_ = value;
    return *this;
  }
  TaggedField& operator=(double value) {
    value_ = value;
    return *this;
  }

  /// An `int` would have to become one of the two kinds of number; the caller has to say which.
  TaggedField(int value) = delete;
  TaggedField& operator=(int value) = delete;

  /// What the field counts as in a calculation: its number, the number that its text reads as, 0
  /// when empty. Throws `Overflow` for a text that reads as a number beyond a double.
  [[nodiscard]] double AsDouble() const {
    if (const auto* integer = std::get_if<Integer>(&value_)) return *integer;
    if (const auto* number = std::get_if<double>(&value_)) return *number;
    return NumberOfText();
  }

  /// What a text box shows: the text, the plain text of the number, nothing when empty.
  [[nodiscard]] std::string AsText() const&;
  /// The same of a field that is not needed any longer, whose text may be long.
  [[nodiscard]] std::string AsText() &&;

  /// The kind and its content, for the job file.
  [[nodiscard]] const Value& value() const { return value_; }

  bool operator==(const TaggedField&) const = default;

 private:
  /// What a field without a number counts as.
  [[nodiscard]] double NumberOfText() const;

  Value value_;
};

/// The number of the field in a fixed-point pattern; 0 when it is empty or holds no number.
std::string Format(const TaggedField& field, Pattern pattern);

}  // namespace halvane
