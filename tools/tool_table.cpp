#include "tools/tool_table.h"

#include <array>

#include "tools/ctd/ctd_headline.h"
#include "tools/ctd/ctd_input.h"
#include "tools/ctd/ctd_report.h"
#include "tools/ctd/ctd_score.h"
#include "tools/hal/hal_controls.h"
#include "tools/hal/hal_headline.h"
#include "tools/hal/hal_score.h"
#include "tools/ocra/ocra_controls.h"
#include "tools/ocra/ocra_headline.h"
#include "tools/ocra/ocra_report.h"
#include "tools/ocra/ocra_score.h"
#include "tools/reba/reba_controls.h"
#include "tools/reba/reba_headline.h"
#include "tools/reba/reba_report.h"
#include "tools/reba/reba_score.h"
#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_headline.h"
#include "tools/rula/rula_report.h"
#include "tools/rula/rula_score.h"
#include "tools/strain_index/si_controls.h"
#include "tools/strain_index/si_headline.h"
#include "tools/strain_index/si_score.h"

namespace halvane {
namespace {

/// Loads controls that nobody sees.
template <typename Controls>
bool Open() {
  Controls controls;
  controls.Load();
  return true;
}

bool OpenHal() {
  HalLoad();
  return true;
}

// clang-format off
constexpr std::array kTools{
    //      name,                      headline,       open,               report,               working values
    ToolRow{NameOf(Tool::Ocra),        &kOcraHeadline, Open<OcraControls>, OcraComputeAndReport, OcraWorkingValues},
    ToolRow{NameOf(Tool::Ctd),         &kCtdHeadline,  CtdOpen,            CtdComputeAndReport,  CtdWorkingValues},
    ToolRow{NameOf(Tool::StrainIndex), &kSiHeadline,   Open<SiControls>,   SI_Calculate,         SiWorkingValues},
    ToolRow{NameOf(Tool::Reba),        &kRebaHeadline, Open<RebaControls>, RebaComputeAndReport, RebaWorkingValues},
    ToolRow{NameOf(Tool::Rula),        &kRulaHeadline, Open<RulaControls>, RulaComputeAndReport, RulaWorkingValues},
    ToolRow{NameOf(Tool::Hal),         &kHalHeadline,  OpenHal,            HAL_Calculate,        HalWorkingValues},
};
// clang-format on
static_assert(
    [] {
      for (std::size_t i = 0; i < kTools.size(); ++i) {
        if (kTools[i].tool != kToolNames[i].tool) return false;
      }
      return kTools.size() == kToolNames.size();
    }(),
    "each tool that has a name does something, at its place");

}  // namespace

bool ToolRow::WriteReport(RichText& RichTextBox1) const {
  if (!open()) return false;
  report(RichTextBox1);
  return true;
}

std::span<const ToolRow> Tools() { return kTools; }

const ToolRow& RowOf(Tool tool) { return kTools[static_cast<std::size_t>(tool)]; }

}  // namespace halvane
