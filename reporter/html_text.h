#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// Appends `text` as text of a page, good between tags and in quoted attributes. What is no
/// well-formed UTF-8 and control characters come out as U+FFFD.
void AppendHtml(std::string& out, std::string_view text);

}  // namespace halvane
