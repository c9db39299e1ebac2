#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace halvane {

/// A line of the table of contents, in UTF-8.
struct HelpContentsEntry {
  std::string title;
  /// Page inside the help file, perhaps with an anchor; empty for a heading without one.
  std::string topic;
  std::vector<HelpContentsEntry> children;
};

namespace help_limits {
inline constexpr std::size_t kContentsEntries = 20000;
inline constexpr std::size_t kContentsDepth = 40;
}  // namespace help_limits

/// Reads a table of contents as help files have it: nested lists of `OBJECT`s with `param`s. Takes
/// what it can of anything else: missing end tags, lists without an entry above them, unknown tags.
/// Entries beyond the limits are left out, lists deeper than the limit stand at its level.
std::vector<HelpContentsEntry> ReadHelpContents(std::string_view text);

}  // namespace halvane
