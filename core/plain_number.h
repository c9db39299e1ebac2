#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace halvane {

/// A number that is nothing but a sign, at most 15 digits and perhaps a point.
struct PlainNumber {
  double value = 0;
  bool hasPoint = false;
  std::size_t length = 0;  ///< of its text; 0: there is none
};

/// The plain number that `text` begins with. Nearly all numbers of job files are plain, and reading
/// them is most of the work on a job, so this stands here to be compiled into the reader; all
/// others go the general way of `WholeTextAsNumber`, which gives the same values.
inline PlainNumber PlainNumberAt(std::string_view text) {
  constexpr std::size_t kMostDigits = 15;
  // A double holds each exactly.
  constexpr std::array kPowersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                    1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const bool negative = text.starts_with('-');
  std::size_t end = negative ? 1 : 0;
  std::int64_t digits = 0;
  std::size_t count = 0;
  const auto takeDigits = [&] {
    // One digit too many is enough to see that they are too many.
    while (end < text.size() && text[end] >= '0' && text[end] <= '9' && count <= kMostDigits) {
      digits = digits * 10 + (text[end++] - '0');
      ++count;
    }
  };
  takeDigits();
  const std::size_t wholeDigits = count;
  const bool hasPoint = end < text.size() && text[end] == '.';
  if (hasPoint) {
    ++end;
    takeDigits();
  }
  const std::size_t decimals = count - wholeDigits;
  if (count == 0 || count > kMostDigits) return {};
  auto value = static_cast<double>(digits);
  // Digits and power of ten are exact, so the one division rounds correctly.
  if (decimals > 0) value /= kPowersOfTen[decimals];
  return {negative ? -value : value, hasPoint, end};
}

}  // namespace halvane
