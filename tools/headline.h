#pragma once

#include <array>
#include <span>
#include <string_view>
#include <variant>

#include "core/number_text.h"

namespace halvane {

/// The colour of the zone that a result lies in, from best to worst, as the charts of the reports
/// have it. None where the tool knows no zones or its bounds leave a gap.
enum class ZoneColour { None, Green, YellowGreen, Yellow, Orange, Red };

/// One value of a tool's headline.
struct HeadlineColumn {
  std::string_view key;              ///< for programs, behind the tool's own key: "risk_level"
  std::string_view heading;          ///< for people; the first one names the tool
  Pattern pattern = Pattern::Whole;  ///< of a number, for people
};

/// What a tool says of a job in one line.
struct Headline {
  static constexpr std::size_t kMostValues = 3;
  using Value = std::variant<int, double, std::string_view>;

  std::array<Value, kMostValues>
      values;  ///< by column; the first is a number, the higher the worse
  ZoneColour colour = ZoneColour::None;
};

/// How a tool comes to its headline.
struct ToolHeadline {
  std::span<const HeadlineColumn> columns;  ///< at least one, at most `Headline::kMostValues`
  double fullBar;                           ///< first value that fills a bar; fixed for all jobs
  /// Does what opening the tool and its report tab does on the present job, form load included, but
  /// for a report that anyone sees. False for a job that the tool has no report on. Throws what the
  /// report would throw.
  bool (*compute)();
  /// The headline of the last computation.
  Headline (*read)();
};

}  // namespace halvane
