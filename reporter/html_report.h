#pragma once

#include <string>
#include <string_view>

#include "core/rich_text.h"

namespace halvane {

/// Appends a report as part of a page, for eyes and for screen readers: its first line is a heading
/// of the third level where it stands in the look of headings (otherwise `title` is), such lines
/// further down are of the fourth, and a line of them with tabs heads a table of the lines behind
/// it.
void AppendReportHtml(std::string& out, const RichText& report, std::string_view title);

/// Appends a heading of the third level.
void AppendReportHeading(std::string& out, std::string_view title);

}  // namespace halvane
