#include "tools/hal/hal_headline.h"

#include "core/job_state.h"
#include "tools/hal/hal_controls.h"
#include "tools/hal/hal_score.h"

namespace halvane {
namespace {

constexpr std::array kColumns{
    HeadlineColumn{"level", "HAL level", Pattern::OneDecimal},
    HeadlineColumn{"threshold_limit", "threshold limit", Pattern::TwoDecimals},
    HeadlineColumn{"action_limit", "action limit", Pattern::TwoDecimals},
};
/// The end of the level scale.
constexpr double kFullBar = 10;

bool Compute() {
  HalLoad();
  HalComputeLimits();
  return true;
}

Headline Read() {
  return {{Module1.HalActivityLevel.AsDouble(), Module1.HalLimits.at(kHalThresholdLimitValue),
           Module1.HalLimits.at(kHalActionLevel)},
          ZoneColour::None};
}

}  // namespace

const ToolHeadline kHalHeadline{kColumns, kFullBar, Compute, Read};

}  // namespace halvane
