#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Appends `text` as text of a page, good between tags and in quoted attributes. What is no
/// well-formed UTF-8 and control characters come out as U+FFFD.
void AppendHtml(std::string& out, std::string_view text);

/// Appends the head of a page of ours, up to what is its own: `title`, which is its first heading
/// too, and the rules of its style sheet behind those of all pages.
void AppendPageHead(std::string& out, std::string_view title, std::string_view style);

inline constexpr std::string_view kPageFoot = "</main>\n</body>\n</html>\n";

}  // namespace halvane
