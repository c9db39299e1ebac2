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

/// A double holds each exactly. Outside the function, which else would write them down each time.
inline constexpr std::array kPowersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// The plain number that `text` begins with. Nearly all numbers of job files are plain, and reading
/// them is most of the work on a job, so this stands here to be compiled into the reader; all
/// others go the general way of `WholeTextAsNumber`, which gives the same values.
inline PlainNumber PlainNumberAt(std::string_view text) {
  constexpr std::size_t kMostDigits = 15;
  const bool negative = text.starts_with('-');
  std::size_t end = negative ? 1 : 0;
  // Goes round where there are too many digits, which their count tells.
  std::uint64_t digits = 0;
  const auto takeDigits = [&] {
    const std::size_t first = end;
    for (; end < text.size(); ++end) {
      const unsigned digit = static_cast<unsigned char>(text[end]) - unsigned{'0'};
      if (digit > 9) break;
      digits = digits * 10 + digit;
    }
    return end - first;
  };
  std::size_t count = takeDigits();
  const bool hasPoint = end < text.size() && text[end] == '.';
  std::size_t decimals = 0;
  if (hasPoint) {
    ++end;
    decimals = takeDigits();
    count += decimals;
  }
  if (count == 0 || count > kMostDigits) return {};
  // So few digits fit; the processor turns signed numbers into doubles, and no others.
  auto value = static_cast<double>(static_cast<std::int64_t>(digits));
  // Digits and power of ten are exact, so the one division rounds correctly.
  if (decimals > 0) value /= kPowersOfTen[decimals];
  return {negative ? -value : value, hasPoint, end};
}

}  // namespace halvane
