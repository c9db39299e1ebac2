#include "tools/rula/rula_report.h"

#include <array>
#include <initializer_list>

#include "core/job_state.h"
#include "tools/posture/posture_report.h"
#include "tools/report_parts.h"
#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_score.h"

namespace halvane {
namespace {

using Stops = std::array<int, 4>;

// The third stop stands before the second, which is wanted.
constexpr Stops kPostureStops{2500, 8000, 7500, 8000};
constexpr Stops kTotalStops{2500, 4500, 6500, 8000};

// Add-ons have the report's own wording, which is not always that of their controls.
void WritePostures(RichText& RichTextBox1) {
  const auto row = [&RichTextBox1](std::string_view region, RulaControl control) {
    WritePosture(RichTextBox1, region, RowOf(control));
  };
  const auto ifSet = [&RichTextBox1](std::string_view region, RulaControl control,
                                     std::initializer_list<std::string_view> wordings) {
    WriteIfSet(RichTextBox1, region, RowOf(control), wordings);
  };
  using enum RulaControl;
  row("Wrist", Wrist);
  row("Wrist", WristTwist);
  ifSet("Wrist", WristSideBent, {"Side Bent"});
  row("Upper Arms", UpperArms);
  ifSet("Upper Arms", ShoulderRaised, {"Shoulder is raised"});
  ifSet("Upper Arms", Abducted, {"Upper arm is abducted"});
  ifSet("Upper Arms", Supported, {"Arm is supported"});
  row("Lower Arms", LowerArms);
  ifSet("Lower Arms", Midline, {"Lower arm cross body midline"});
  row("Neck", Neck);
  ifSet("Neck", NeckTwist, {"Neck is twisting"});
  ifSet("Neck", NeckSideBend, {"Neck is side bending"});
  row("Trunk", Trunk);
  ifSet("Trunk", TrunkTwist, {"Twisting"});
  ifSet("Trunk", TrunkSideBend, {"Side Bend"});
  ifSet("Trunk", NotSupported, {"Not well supported while seated"});
  // Any other choice prints no legs.
  ifSet("Legs", Leg, {"Legs/feet well-supported", "Legs/feet not supported + uneven"});
}

void WriteTotal(RichText& RichTextBox1, std::string_view parts, Integer posture, Integer total) {
  RichTextBox1.Append(kNewLine, parts, kTab, Whole(posture), kTab, Whole(Module1.RulaMuscleScore),
                      kTab, Whole(Module1.RulaForceScore), kTab, Whole(total));
}

void WriteTotals(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  RichTextBox1.Append(kNewLine);
  SetStops(RichTextBox1, kTotalStops);
  RichTextBox1.Append(kNewLine, "Body Parts", kTab, "Posture Score", kTab, "Muscle Score", kTab,
                      "Force Score", kTab, "Total");
  RichTextBox1.SetFont(kPlain);
  WriteTotal(RichTextBox1, "Arm+Wrist", Module1.RulaArmWristPosture, Module1.RulaArmWristTotal);
  WriteTotal(RichTextBox1, "Neck+Leg+Trunk", Module1.RulaNeckTrunkLegPosture,
             Module1.RulaNeckTrunkLegTotal);
  RichTextBox1.Append(kNewLine, kNewLine);
}

void WriteGrandScore(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  RichTextBox1.Append(kNewLine, "RULA Grand Score:");
  RichTextBox1.SetFont(kPlain);
  RichTextBox1.Append(" ", Whole(Module1.RulaGrandScore));
  RichTextBox1.Append(kNewLine);
  RichTextBox1.SetTab(0, 500);
  RichTextBox1.Append(kNewLine, "Recommendation:");
  RichTextBox1.Append(kNewLine, kTab, RulaAdviceOn(Module1.RulaGrandScore).recommendation);
}

}  // namespace

void RULA_Report(RichText& RichTextBox1) {
  RichTextBox1.Clear();

  RichTextBox1.SetFont(kTitle);
  RichTextBox1.SetAlignment(Alignment::Center);
  RichTextBox1.Append("Rapid Upper Limb Assessment (RULA)", kNewLine);

  RichTextBox1.SetFont(kPlain);
  RichTextBox1.SetAlignment(Alignment::Left);
  AppendIdentification(RichTextBox1);

  RichTextBox1.SetFont(kHeading);
  SetStops(RichTextBox1, kPostureStops);
  RichTextBox1.Append(kNewLine, "Body Parts", kTab, "Posture", kTab, "RULA Score");
  RichTextBox1.SetFont(kPlain);
  WritePostures(RichTextBox1);
  WriteTotals(RichTextBox1);
  WriteGrandScore(RichTextBox1);
}

void RulaComputeAndReport(RichText& RichTextBox1) {
  RULA_Calculate();
  RULA_Report(RichTextBox1);
}

}  // namespace halvane
