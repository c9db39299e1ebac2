#include "tools/strain_index/si_headline.h"

#include "core/job_state.h"
#include "tools/strain_index/si_controls.h"
#include "tools/strain_index/si_score.h"

namespace halvane {
namespace {

constexpr std::array kColumns{
    HeadlineColumn{"score", "SI score", Pattern::OneDecimal},
    HeadlineColumn{"risk_level", "risk level"},
};
/// Twice the score at which the risk is high.
constexpr double kFullBar = 14;

bool Compute() {
  SiControls controls;
  controls.Load();
  SiComputeScore();
  return true;
}

Headline Read() {
  const SiRisk risk = SiRiskOf(Module1.SiStrainIndexScore);
  return {{Module1.SiStrainIndexScore, risk.name()}, risk.colour};
}

}  // namespace

const ToolHeadline kSiHeadline{kColumns, kFullBar, Compute, Read};

}  // namespace halvane
