#include "tools/tool_table.h"

#include <array>

#include "tools/ctd/ctd_headline.h"
#include "tools/ctd/ctd_report.h"
#include "tools/ctd/ctd_score.h"
#include "tools/hal/hal_headline.h"
#include "tools/hal/hal_report.h"
#include "tools/hal/hal_score.h"
#include "tools/ocra/ocra_headline.h"
#include "tools/ocra/ocra_report.h"
#include "tools/ocra/ocra_score.h"
#include "tools/reba/reba_headline.h"
#include "tools/reba/reba_report.h"
#include "tools/reba/reba_score.h"
#include "tools/rula/rula_headline.h"
#include "tools/rula/rula_report.h"
#include "tools/rula/rula_score.h"
#include "tools/strain_index/si_headline.h"
#include "tools/strain_index/si_report.h"
#include "tools/strain_index/si_score.h"

namespace halvane {
namespace {

constexpr std::array kTools{
    ToolRow{NameOf(Tool::Ocra), &kOcraHeadline, OcraReport, OcraWorkingValues},
    ToolRow{NameOf(Tool::Ctd), &kCtdHeadline, CTDprint, CtdWorkingValues},
    ToolRow{NameOf(Tool::StrainIndex), &kSiHeadline, SI_Report, SiWorkingValues},
    ToolRow{NameOf(Tool::Reba), &kRebaHeadline, REBA_Report, RebaWorkingValues},
    ToolRow{NameOf(Tool::Rula), &kRulaHeadline, RULA_Report, RulaWorkingValues},
    ToolRow{NameOf(Tool::Hal), &kHalHeadline, HAL_Print, HalWorkingValues},
};
static_assert(kTools.size() == kToolNames.size(), "each tool that has a name does something");

}  // namespace

bool ToolRow::WriteReport(RichText& RichTextBox1) const {
  if (!headline->compute()) return false;
  print(RichTextBox1);
  return true;
}

std::span<const ToolRow> Tools() { return kTools; }

const ToolRow& RowOf(Tool tool) { return kTools[static_cast<std::size_t>(tool)]; }

}  // namespace halvane
