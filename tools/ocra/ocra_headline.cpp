#include "tools/ocra/ocra_headline.h"

#include "core/job_state.h"
#include "tools/ocra/ocra_controls.h"
#include "tools/ocra/ocra_report.h"
#include "tools/ocra/ocra_score.h"

namespace halvane {
namespace {

constexpr std::array kColumns{
    HeadlineColumn{"index", "OCRA index", Pattern::TwoDecimals},
    HeadlineColumn{"zone", "zone"},
};
/// Twice the index at which the worst zone begins.
constexpr double kFullBar = 8;

bool Compute() {
  OcraControls controls;
  controls.Load();
  OcraScoreAndCalculate();
  return true;
}

Headline Read() {
  const OcraZone zone = OcraZoneOf(Module1.OcraRiskIndex);
  return {{Module1.OcraRiskIndex, zone.name()}, zone.colour};
}

}  // namespace

const ToolHeadline kOcraHeadline{kColumns, kFullBar, Compute, Read};

}  // namespace halvane
