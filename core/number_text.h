#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace halvane {

/// The only place of the program that turns text into numbers and back. The decimal separator is
/// the point whatever the locale.

/// Fixed-point patterns of reports and boxes.
enum class Pattern {
  Whole,        ///< "0"
  OneDecimal,   ///< "0.0"
  TwoDecimals,  ///< "0.00"
};

/// The longest leading part of `text` that is a number, or 0 where there is none. Blanks and tabs
/// in front are skipped; then a sign, digits with at most one point, and an exponent `E` or `e`
/// where digits follow it. Throws `Overflow` for a number beyond a double.
double ReadsAs(std::string_view text);

/// The number that text typed into a box stands for: as `ReadsAs`, but 0 for a number beyond a
/// double too, as for text that is none. A slip of the finger must not end the program.
double TypedNumber(std::string_view text);

/// The number that the whole of `text` is, blanks and tabs around it aside; nothing when it is no
/// number or when other text follows. Throws `Overflow` for a number beyond a double.
std::optional<double> WholeTextAsNumber(std::string_view text);

/// `value` in up to 15 significant digits, in exponent form below 1E-04 and from 1E+15 on, with a
/// zero before the point and without a negative zero. Reads back to the same 15 digits.
std::string PlainText(double value);
/// The same of a whole number.
std::string PlainText(int value);

/// `value` in fixed point, rounded half away from zero on its 15-digit decimal text (so 0.25 gives
/// "0.3" and 1.005 gives "1.01"). No minus sign before a result of zero.
std::string Format(double value, Pattern pattern);

}  // namespace halvane
