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
    ToolRow{Tool::Ocra, "ocra", "OCRA", "Occupational Repetitive Actions Index",
            "Occupational Repetitive Actions Index",
            "Occupational Repetitive Actions Index (OCRA)2.htm", &kOcraHeadline, OcraReport,
            OcraWorkingValues},
    ToolRow{Tool::Ctd, "ctd", "CTD Risk Index", "Cumulative Trauma Disorders Risk Assessment Model",
            "Cumulative Trauma Disorders Risk Assessment Model", "CTD2.htm", &kCtdHeadline,
            CTDprint, CtdWorkingValues},
    ToolRow{Tool::StrainIndex, "si", "SI", "Strain Index", "Strain Index", "Strain Index2.htm",
            &kSiHeadline, SI_Report, SiWorkingValues},
    ToolRow{Tool::Reba, "reba", "REBA", "Rapid Entire Body Assessment",
            "Rapid Entire Body Assessment", "REBA (Rapid Entire Body Assessment)2.htm",
            &kRebaHeadline, REBA_Report, RebaWorkingValues},
    // The form's title differs from the button's tip, which is wanted.
    ToolRow{Tool::Rula, "rula", "RULA", "Rapid Upper Limb Assessment",
            "Repetitive Upper Limb Assessment", "RULA (Rapid Upper Limb Assessment)2.htm",
            &kRulaHeadline, RULA_Report, RulaWorkingValues},
    ToolRow{Tool::Hal, "hal", "", "", "ACGIH: Hand Activity Level",
            "ACGIH Hand Activity Level2.htm", &kHalHeadline, HAL_Print, HalWorkingValues},
};

}  // namespace

bool ToolRow::WriteReport(RichText& RichTextBox1) const {
  if (!headline->compute()) return false;
  print(RichTextBox1);
  return true;
}

std::span<const ToolRow> Tools() { return kTools; }

const ToolRow& RowOf(Tool tool) { return kTools[static_cast<std::size_t>(tool)]; }

}  // namespace halvane
