#pragma once

#include <string_view>
#include <vector>

#include "tools/headline.h"
#include "tools/score_table.h"
#include "tools/working_value.h"

namespace halvane {

/// The three lookup tables. Cells with a subscript of 0 hold 0, and a supported arm that is
/// otherwise neutral reads one.
struct RulaTables {
  ScoreTable<6, 3, 4, 2> RulaTableA;  ///< upper arm, lower arm, wrist, wrist twist
  ScoreTable<5, 6, 2> RulaTableB;     ///< neck, trunk, leg
  ScoreTable<8, 7> RulaTableC;        ///< total of arm and wrist, total of neck, trunk and leg
};

/// The tables, filled.
RulaTables RULA_InitTables();

/// Computes all RULA scores from the working factors.
///
/// Throws `SubscriptOutOfRange` for a score outside its table (an upper arm below 0), with both
/// totals and the grand score left at 0 and the posture scores as they were, and `Overflow`.
void RULA_Calculate();

/// What the report advises at a grand score.
struct RulaAdvice {
  std::string_view recommendation;
  ZoneColour colour;
};
/// Bounds are 2, 4 and 6, each included below.
RulaAdvice RulaAdviceOn(int grandScore);

/// The working factors and scores of the last computation.
std::vector<WorkingValue> RulaWorkingValues();

}  // namespace halvane
