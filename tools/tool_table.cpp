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

bool WriteOcraReport(RichText& RichTextBox1) {
  kOcraHeadline.compute();
  OcraReport(RichTextBox1);
  return true;
}

bool WriteCtdReport(RichText& RichTextBox1) {
  if (!kCtdHeadline.compute()) return false;
  CTDprint(RichTextBox1);
  return true;
}

bool WriteStrainIndexReport(RichText& RichTextBox1) {
  kSiHeadline.compute();
  SI_Report(RichTextBox1);
  return true;
}

bool WriteRebaReport(RichText& RichTextBox1) {
  kRebaHeadline.compute();
  REBA_Report(RichTextBox1);
  return true;
}

bool WriteRulaReport(RichText& RichTextBox1) {
  kRulaHeadline.compute();
  RULA_Report(RichTextBox1);
  return true;
}

bool WriteHalReport(RichText& RichTextBox1) {
  kHalHeadline.compute();
  HAL_Print(RichTextBox1);
  return true;
}

constexpr std::array kTools{
    ToolRow{Tool::Ocra, "ocra", "OCRA", "Occupational Repetitive Actions Index",
            "Occupational Repetitive Actions Index",
            "Occupational Repetitive Actions Index (OCRA)2.htm", WriteOcraReport, OcraWorkingValues,
            &kOcraHeadline},
    ToolRow{Tool::Ctd, "ctd", "CTD Risk Index", "Cumulative Trauma Disorders Risk Assessment Model",
            "Cumulative Trauma Disorders Risk Assessment Model", "CTD2.htm", WriteCtdReport,
            CtdWorkingValues, &kCtdHeadline},
    ToolRow{Tool::StrainIndex, "si", "SI", "Strain Index", "Strain Index", "Strain Index2.htm",
            WriteStrainIndexReport, SiWorkingValues, &kSiHeadline},
    ToolRow{Tool::Reba, "reba", "REBA", "Rapid Entire Body Assessment",
            "Rapid Entire Body Assessment", "REBA (Rapid Entire Body Assessment)2.htm",
            WriteRebaReport, RebaWorkingValues, &kRebaHeadline},
    // The form's title differs from the button's tip, which is wanted.
    ToolRow{Tool::Rula, "rula", "RULA", "Rapid Upper Limb Assessment",
            "Repetitive Upper Limb Assessment", "RULA (Rapid Upper Limb Assessment)2.htm",
            WriteRulaReport, RulaWorkingValues, &kRulaHeadline},
    ToolRow{Tool::Hal, "hal", "", "", "ACGIH: Hand Activity Level",
            "ACGIH Hand Activity Level2.htm", WriteHalReport, HalWorkingValues, &kHalHeadline},
};

}  // namespace

std::span<const ToolRow> Tools() { return kTools; }

const ToolRow& RowOf(Tool tool) { return kTools[static_cast<std::size_t>(tool)]; }

}  // namespace halvane
