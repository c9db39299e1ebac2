#pragma once

#include <string_view>
#include <vector>

#include "core/integer.h"
#include "tools/headline.h"
#include "tools/score_table.h"
#include "tools/working_value.h"

namespace halvane {

/// The three lookup tables. Cells with a subscript of 0 hold 0, and a supported arm that is
/// otherwise neutral reads one.
struct RebaTables {
  ScoreTable<5, 3, 4> RebaTableA;  ///< trunk, neck, legs
  ScoreTable<6, 2, 3> RebaTableB;  ///< upper arm, lower arm, wrist
  ScoreTable<12, 12> RebaTableC;   ///< score A total, score B total
};

/// The tables, filled.
RebaTables REBA_InitTables();

/// Computes all derived scores from the working factors, up to `RebaGrandScore`. Throws
/// `SubscriptOutOfRange` for a score beyond its table, and `Overflow`; the scores from there on are
/// 0 then.
void REBA_Calculate();

/// What the report says of a grand score, three lines, and the number of the level.
struct RebaActionLevel {
  std::string_view level;
  std::string_view risk;
  std::string_view action;
  int number;
  ZoneColour colour;
};
RebaActionLevel RebaActionLevelOf(Integer grandScore);

/// The working factors and the scores of the last computation.
std::vector<WorkingValue> RebaWorkingValues();

}  // namespace halvane
