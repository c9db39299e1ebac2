#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// `text` for a terminal or a page: what is no well-formed UTF-8 and every control character, tabs
/// and line ends included, comes out as U+FFFD, so that nothing in a job file or its name can steer
/// a terminal. A hidden character comes out as its number, "<U+202E>".
std::string PrintableText(std::string_view text);
/// Whether a text is nothing but printable ASCII, as most are, and so comes out as it is.
bool IsPrintableAscii(std::string_view text);

}  // namespace halvane
