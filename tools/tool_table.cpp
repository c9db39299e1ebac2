#include "tools/tool_table.h"

#include <array>

#include "core/job_state.h"
#include "tools/ctd/ctd_controls.h"
#include "tools/ctd/ctd_report.h"
#include "tools/ctd/ctd_score.h"
#include "tools/hal/hal_controls.h"
#include "tools/hal/hal_score.h"
#include "tools/ocra/ocra_controls.h"
#include "tools/ocra/ocra_report.h"
#include "tools/ocra/ocra_score.h"
#include "tools/reba/reba_controls.h"
#include "tools/reba/reba_report.h"
#include "tools/reba/reba_score.h"
#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_report.h"
#include "tools/rula/rula_score.h"
#include "tools/strain_index/si_controls.h"
#include "tools/strain_index/si_score.h"

namespace halvane {
namespace {

bool WriteOcraReport(RichText& RichTextBox1) {
  OcraControls controls;
  controls.Load();
  OcraScoreLists();
  OcraCalculate();
  OcraReport(RichTextBox1);
  return true;
}

bool WriteCtdReport(RichText& RichTextBox1) {
  CtdControls controls;
  controls.Load();
  // The form's report tab does nothing in a job that never had a task.
  if (Module1.TaskCount.AsDouble() == 0) return false;
  CTDcalculate();
  CTDprint(RichTextBox1);
  return true;
}

bool WriteStrainIndexReport(RichText& RichTextBox1) {
  SiControls controls;
  controls.Load();
  SI_Calculate(RichTextBox1);
  return true;
}

bool WriteRebaReport(RichText& RichTextBox1) {
  RebaControls controls;
  controls.Load();
  REBA_Calculate();
  REBA_Report(RichTextBox1);
  return true;
}

bool WriteRulaReport(RichText& RichTextBox1) {
  RulaControls controls;
  controls.Load();
  RULA_Calculate();
  RULA_Report(RichTextBox1);
  return true;
}

bool WriteHalReport(RichText& RichTextBox1) {
  HalLoad();
  HAL_Calculate(RichTextBox1);
  return true;
}

constexpr std::array kTools{
    ToolRow{Tool::Ocra, "ocra", "OCRA", "Occupational Repetitive Actions Index",
            "Occupational Repetitive Actions Index",
            "Occupational Repetitive Actions Index (OCRA)2.htm", WriteOcraReport,
            OcraWorkingValues},
    ToolRow{Tool::Ctd, "ctd", "CTD Risk Index", "Cumulative Trauma Disorders Risk Assessment Model",
            "Cumulative Trauma Disorders Risk Assessment Model", "CTD2.htm", WriteCtdReport,
            CtdWorkingValues},
    ToolRow{Tool::StrainIndex, "si", "SI", "Strain Index", "Strain Index", "Strain Index2.htm",
            WriteStrainIndexReport, SiWorkingValues},
    ToolRow{Tool::Reba, "reba", "REBA", "Rapid Entire Body Assessment",
            "Rapid Entire Body Assessment", "REBA (Rapid Entire Body Assessment)2.htm",
            WriteRebaReport, RebaWorkingValues},
    // The form's title differs from the button's tip, which is wanted.
    ToolRow{Tool::Rula, "rula", "RULA", "Rapid Upper Limb Assessment",
            "Repetitive Upper Limb Assessment", "RULA (Rapid Upper Limb Assessment)2.htm",
            WriteRulaReport, RulaWorkingValues},
    ToolRow{Tool::Hal, "hal", "", "", "ACGIH: Hand Activity Level",
            "ACGIH Hand Activity Level2.htm", WriteHalReport, HalWorkingValues},
};

}  // namespace

std::span<const ToolRow> Tools() { return kTools; }

const ToolRow& RowOf(Tool tool) { return kTools[static_cast<std::size_t>(tool)]; }

}  // namespace halvane
