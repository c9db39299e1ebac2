#pragma once

#include <array>
#include <string_view>

#include "core/rich_text.h"

namespace halvane {

/// A picture at the end of a report, and what it shows in words.
struct ReportChart {
  std::string_view assetName;
  std::string_view sense;
};
extern const std::array<ReportChart, 4> kReportCharts;

/// Appends one of them with its sense. Throws `SubscriptOutOfRange` for a name that is none of
/// theirs.
void AppendChart(RichText& RichTextBox1, std::string_view assetName);

}  // namespace halvane
