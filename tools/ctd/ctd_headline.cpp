#include "tools/ctd/ctd_headline.h"

#include "core/job_state.h"
#include "tools/ctd/ctd_controls.h"
#include "tools/ctd/ctd_report.h"
#include "tools/ctd/ctd_score.h"

namespace halvane {
namespace {

constexpr std::array kColumns{
    HeadlineColumn{"grand_score", "CTD grand score", Pattern::TwoDecimals},
};
/// The tool knows no zones: 20 cases a year among 100 people fill a bar.
constexpr double kFullBar = 20;

bool Compute() {
  CtdControls controls;
  controls.Load();
  // The form's report tab does nothing in a job that never had a task.
  if (Module1.TaskCount.AsDouble() == 0) return false;
  CTDcalculate();
  CtdTestCaptions();
  return true;
}

Headline Read() { return {{Module1.CtdGrandScore.AsDouble()}, ZoneColour::None}; }

}  // namespace

const ToolHeadline kCtdHeadline{kColumns, kFullBar, Compute, Read};

}  // namespace halvane
