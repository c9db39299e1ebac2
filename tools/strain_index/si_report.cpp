#include "tools/strain_index/si_report.h"

#include <array>

#include "core/job_state.h"
#include "tools/report_charts.h"
#include "tools/report_parts.h"
#include "tools/strain_index/si_score.h"

namespace halvane {
namespace {

constexpr CharacterFormat kScoreLabel{.size = 10, .bold = true, .underline = false};

constexpr std::array kTableStops{4000, 6500, 7500};

// Wording, "problably" included, is the report's own.
constexpr std::string_view kNote =
    "NOTE: Preliminary testing has revealed that jobs associated with distal upper extremity "
    "disorders had SI Scores greater than 5.  SI Scores less than or equal to 3 are problably "
    "safe.  "
    "SI Scores greater than or equal to 7 are probably hazardous.  The strain Index does not "
    "consider "
    "stresses related to localized mechanical compression.  This risk factor should be considered "
    "separately. For additional information see Harl & Venn (1995).";

void WriteFactor(RichText& RichTextBox1, std::string_view name, std::string_view level,
                 double multiplier) {
  RichTextBox1.Append(kNewLine, name, kTab, level, kTab, Format(multiplier, Pattern::OneDecimal));
}

void WriteFactorTable(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  RichTextBox1.SetAlignment(Alignment::Left);
  SetStops(RichTextBox1, kTableStops);
  RichTextBox1.Append(kNewLine, "Job Factors", kTab, "Level", kTab, "SI Score");

  RichTextBox1.SetFont(kPlain);
  WriteFactor(RichTextBox1, "Intensity of exertion",
              SiLabelsAt(Module1.SiIntensityRating).SiIntensityLabels,
              SiMultipliersAt(Module1.SiIntensityRating).SiIntensityMultipliers);
  WriteFactor(RichTextBox1, "Duration of exertion (%)   ",
              Format(Module1.SiDutyCyclePercent, Pattern::OneDecimal),
              SiMultipliersAt(Module1.SiDutyRating).SiDutyMultipliers);
  WriteFactor(RichTextBox1, "Efforts/Minute",
              Format(Module1.SiEffortsPerMinute, Pattern::OneDecimal),
              SiMultipliersAt(Module1.SiEffortsRating).SiEffortsMultipliers);
  WriteFactor(RichTextBox1, "Hand/Wrist Posture",
              SiLabelsAt(Module1.SiPostureRating).SiPostureLabels,
              SiMultipliersAt(Module1.SiPostureRating).SiPostureMultipliers);
  WriteFactor(RichTextBox1, "Speed of work", SiLabelsAt(Module1.SiSpeedRating).SiSpeedLabels,
              SiMultipliersAt(Module1.SiSpeedRating).SiSpeedMultipliers);
  WriteFactor(RichTextBox1, "Duration per Day (hr)",
              Format(Module1.JobDurationPerDay, Pattern::OneDecimal),
              SiMultipliersAt(Module1.SiDurationRating).SiDurationMultipliers);
}

}  // namespace

void SI_Report(RichText& RichTextBox1) {
  RichTextBox1.SetLocked(false);
  RichTextBox1.Clear();

  RichTextBox1.SetFont(kTitle);
  RichTextBox1.SetAlignment(Alignment::Center);
  RichTextBox1.Append("Strain Index (SI)", kNewLine);

  RichTextBox1.SetFont(kPlain);
  RichTextBox1.SetAlignment(Alignment::Left);
  RichTextBox1.Append(kNewLine);
  AppendIdentification(RichTextBox1);
  WriteFactorTable(RichTextBox1);
  RichTextBox1.Append(kNewLine);

  RichTextBox1.SetFont(kScoreLabel);
  RichTextBox1.Append(kNewLine, "Strain Index Score:");
  RichTextBox1.SetFont(kPlain);
  RichTextBox1.Append(" ", Format(Module1.SiStrainIndexScore, Pattern::OneDecimal));
  RichTextBox1.Append(kNewLine);

  RichTextBox1.SetTab(0, 500);
  RichTextBox1.Append(kNewLine, "Recommendation:");
  RichTextBox1.Append(kNewLine, kTab, SiRiskOf(Module1.SiStrainIndexScore).line);
  RichTextBox1.Append(kNewLine);
  RichTextBox1.Append(kNewLine, kNote);
  RichTextBox1.Append(kNewLine);
  RichTextBox1.Append(kNewLine);
  AppendChart(RichTextBox1, "strain_index/risk_chart");
  RichTextBox1.SetLocked(true);
}

}  // namespace halvane
