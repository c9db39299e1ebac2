#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// The report as it reads in a source: a line an end, "|" for a tab, "^" for a picture.
inline std::string Printed(std::string_view page) {
  std::string text;
  for (const char c : page) {
    if (c == '\n') {
      text += "\r\n";
    } else if (c == '|') {
      text += '\t';
    } else if (c == '^') {
      text += "\xEF\xBF\xBC";
    } else {
      text += c;
    }
  }
  return text;
}

}  // namespace halvane
