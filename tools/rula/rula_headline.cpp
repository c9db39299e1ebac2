#include "tools/rula/rula_headline.h"

#include "core/job_state.h"
#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_score.h"

namespace halvane {
namespace {

constexpr std::array kColumns{HeadlineColumn{"grand_score", "RULA grand score"}};
/// The highest grand score.
constexpr double kFullBar = 7;

bool Compute() {
  RulaControls controls;
  controls.Load();
  RULA_Calculate();
  return true;
}

Headline Read() {
  return {{int{Module1.RulaGrandScore}}, RulaAdviceOn(Module1.RulaGrandScore).colour};
}

}  // namespace

const ToolHeadline kRulaHeadline{kColumns, kFullBar, Compute, Read};

}  // namespace halvane
