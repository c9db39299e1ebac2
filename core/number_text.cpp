#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <system_error>

#include "core/runtime_failure.h"

// The library of one of the systems that this is to be built on writes doubles but does not read
// them.
#if !defined(HALVANE_WITHOUT_FROM_CHARS) && \
    (!defined(_LIBCPP_VERSION) || defined(__cpp_lib_to_chars))
#define HALVANE_FROM_CHARS
#else
#include <clocale>
#ifdef __APPLE__
#include <xlocale.h>
#endif
#endif

namespace halvane {
namespace {

constexpr int kSignificantDigits = 15;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view WithoutLeadingBlanks(std::string_view text) {
  std::size_t start = 0;
  while (start < text.size() && IsBlank(text[start])) ++start;
  return text.substr(start);
}

std::size_t CountDigits(std::string_view text, std::size_t from) {
  std::size_t end = from;
  while (end < text.size() && IsDigit(text[end])) ++end;
  return end - from;
}

/// The length of the number at the start of `text`, 0 where there is none.
std::size_t NumberLength(std::string_view text) {
  std::size_t end = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  std::size_t digits = CountDigits(text, end);
  end += digits;
  if (end < text.size() && text[end] == '.') {
    const std::size_t decimals = CountDigits(text, end + 1);
    digits += decimals;
    if (digits > 0) end += 1 + decimals;
  }
  if (digits == 0) return 0;
  if (end < text.size() && (text[end] == 'E' || text[end] == 'e')) {
    std::size_t exponent = end + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t exponentDigits = CountDigits(text, exponent);
    if (exponentDigits > 0) end = exponent + exponentDigits;
  }
  return end;
}

#ifdef HALVANE_FROM_CHARS
/// Whether a number that does not fit a double is too small rather than too large: the sign of the
/// decimal exponent of its first digit that counts.
bool IsTiny(std::string_view number) {
  const std::size_t mark = number.find_first_of("Ee");
  const std::string_view mantissa = number.substr(0, mark);
  long exponent = 0;
  if (mark != std::string_view::npos) {
    std::string_view digits = number.substr(mark + 1);
    const bool negative = digits.front() == '-';
    if (negative || digits.front() == '+') digits.remove_prefix(1);
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (error == std::errc::result_out_of_range) return negative;
    if (negative) exponent = -exponent;
  }
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return true;
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  return exponent + static_cast<long>(point) - static_cast<long>(first) < 0;
}
#endif

/// The value of `number`, which has to be a number from end to end, as a double; infinite beyond
/// one, and 0 for what is too small.
double NearestDouble(std::string_view number) {
#ifdef HALVANE_FROM_CHARS
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error != std::errc::result_out_of_range) return value;
  return IsTiny(number) ? 0 : std::numeric_limits<double>::infinity();
#else
  // Whatever the user's locale, the point is the decimal separator.
  static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  return strtod_l(std::string(number).c_str(), nullptr, plain);
#endif
}

double ValueOf(std::string_view number) {
  if (number.front() == '+') number.remove_prefix(1);
  const double value = NearestDouble(number);
  if (!std::isfinite(value)) throw RuntimeFailure(FailureKind::Overflow);
  return value;
}

/// A finite value taken apart: |value| = 0.d1d2d3... x 10^exponent with exactly 15 digits.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;
};

Decimal ToDecimal(double value) {
  std::array<char, 32> buffer{};
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                    std::chars_format::scientific, kSignificantDigits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t mark = text.find('e');
  Decimal decimal;
  decimal.negative = std::signbit(value);
  decimal.digits.reserve(kSignificantDigits);
  decimal.digits.append(text.substr(0, 1)).append(text.substr(2, mark - 2));
  const std::string_view exponent = text.substr(mark + (text[mark + 1] == '+' ? 2 : 1));
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
  ++decimal.exponent;
  return decimal;
}

/// Adds one to the last of a row of decimal digits; a carry out of the first makes the row longer.
void AddOne(std::string& digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return;
    }
    digits[i] = '0';
  }
  digits.insert(digits.begin(), '1');
}

}  // namespace

double ReadsAs(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  const std::size_t length = NumberLength(text);
  return length == 0 ? 0 : ValueOf(text.substr(0, length));
}

double TypedNumber(std::string_view text) {
  try {
    return ReadsAs(text);
  } catch (const RuntimeFailure&) {
    return 0;
  }
}

std::optional<double> WholeTextAsNumber(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  const std::size_t length = NumberLength(text);
  if (length == 0 || !WithoutLeadingBlanks(text.substr(length)).empty()) return std::nullopt;
  return ValueOf(text.substr(0, length));
}

std::string PlainText(double value) {
  if (value == 0) return "0";
  std::array<char, 32> buffer{};
  char* const begin = buffer.data();
  // Whole numbers without an exponent have no digit behind the point; to write them so is faster.
  constexpr double kFirstWithExponent = 1e15;
  if (std::fabs(value) < kFirstWithExponent && std::trunc(value) == value) {
    return {begin,
            std::to_chars(begin, begin + buffer.size(), static_cast<std::int64_t>(value)).ptr};
  }
  auto end = std::to_chars(begin, begin + buffer.size(), value, std::chars_format::general,
                           kSignificantDigits)
                 .ptr;
  if (std::fabs(value) > 1e308 && !std::isfinite(NearestDouble({begin, end}))) {
    // The 15 digits of the very largest doubles round up to a number beyond a double.
    end = std::to_chars(begin, begin + buffer.size(), std::copysign(1.79769313486231E+308, value),
                        std::chars_format::general, kSignificantDigits)
              .ptr;
  }
  for (char* c = begin; c != end; ++c) {
    if (*c == 'e') *c = 'E';
  }
  return {begin, end};
}

std::string PlainText(int value) {
  std::array<char, 16> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  return {buffer.data(), end};
}

std::string Format(double value, Pattern pattern) {
  const int decimals = static_cast<int>(pattern);
  Decimal decimal = ToDecimal(value);
  // How many of the digits stand before the place at which the pattern cuts.
  const int kept = decimal.exponent + decimals;
  std::string digits;
  if (kept >= kSignificantDigits) {
    digits = decimal.digits + std::string(static_cast<std::size_t>(kept - kSignificantDigits), '0');
  } else if (kept >= 0) {
    const auto cut = static_cast<std::size_t>(kept);
    digits = decimal.digits.substr(0, cut);
    if (decimal.digits[cut] >= '5') AddOne(digits);
  }
  const auto width = static_cast<std::size_t>(decimals) + 1;
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  if (decimals > 0) digits.insert(digits.size() - static_cast<std::size_t>(decimals), 1, '.');
  const bool isZero = digits.find_first_of("123456789") == std::string::npos;
  if (decimal.negative && !isZero) digits.insert(0, 1, '-');
  return digits;
}

}  // namespace halvane
