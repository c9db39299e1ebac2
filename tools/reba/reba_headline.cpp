#include "tools/reba/reba_headline.h"

#include "core/job_state.h"
#include "tools/reba/reba_controls.h"
#include "tools/reba/reba_score.h"

namespace halvane {
namespace {

constexpr std::array kColumns{
    HeadlineColumn{"grand_score", "REBA grand score"},
    HeadlineColumn{"action_level", "action level"},
};
/// The highest grand score.
constexpr double kFullBar = 15;

bool Compute() {
  RebaControls controls;
  controls.Load();
  REBA_Calculate();
  return true;
}

Headline Read() {
  const RebaActionLevel level = RebaActionLevelOf(Module1.RebaGrandScore);
  return {{int{Module1.RebaGrandScore}, level.number}, level.colour};
}

}  // namespace

const ToolHeadline kRebaHeadline{kColumns, kFullBar, Compute, Read};

}  // namespace halvane
