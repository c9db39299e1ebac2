#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// An ASCII letter in lower case, any other character as it is.
constexpr char LowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The ASCII letters of `text` in lower case, whatever language the user has.
inline std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = LowerCase(c);
  return lower;
}

}  // namespace halvane
