#pragma once

#include <span>
#include <string_view>

#include "core/rich_text.h"
#include "tools/headline.h"

namespace halvane {

/// What the report says of a risk index: lines behind one tab stop, then lines behind two.
struct OcraZone {
  std::span<const std::string_view> lines;
  std::span<const std::string_view> dashLines;
  ZoneColour colour = ZoneColour::None;

  /// "Yellow/Green"; empty where no zone is named.
  [[nodiscard]] std::string_view name() const;
};

/// The zone of an index; empty between 3.9 and 4.0, where the bounds leave a gap on purpose.
OcraZone OcraZoneOf(double riskIndex);

/// Writes the result of the last `OcraCalculate` into the pane and locks it.
void OcraReport(RichText& RichTextBox1);

/// Computes the job and writes its report. Throws what the computation throws.
void OcraComputeAndReport(RichText& RichTextBox1);

}  // namespace halvane
