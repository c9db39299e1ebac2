#include "tools/ctd/ctd_headline.h"

#include "core/job_state.h"
#include "tools/ctd/ctd_input.h"
#include "tools/ctd/ctd_report.h"

namespace halvane {
namespace {

constexpr std::array kColumns{
    HeadlineColumn{"grand_score", "CTD grand score", Pattern::TwoDecimals},
};
/// The tool knows no zones: 20 cases a year among 100 people fill a bar.
constexpr double kFullBar = 20;

bool Compute() {
  if (!CtdOpen()) return false;
  // The report fails at a code without a caption, which the computation does not look at.
  RichText page(RichText::Appended::Dropped);
  CtdComputeAndReport(page);
  return true;
}

Headline Read() { return {{Module1.CtdGrandScore.AsDouble()}, ZoneColour::None}; }

}  // namespace

const ToolHeadline kCtdHeadline{kColumns, kFullBar, Compute, Read};

}  // namespace halvane
