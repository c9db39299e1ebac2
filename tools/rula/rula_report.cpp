#include "tools/rula/rula_report.h"

#include <array>

#include "core/job_state.h"
#include "tools/report_parts.h"
#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_score.h"

namespace halvane {
namespace {

using Ribbons = RulaRibbonArray;
using Options = RulaOptionArray;
using Stops = std::array<int, 4>;

constexpr CharacterFormat kTitle{.size = 12, .bold = true, .underline = true};
constexpr CharacterFormat kHeading{.size = 10, .bold = true, .underline = true};
constexpr CharacterFormat kPlain{.size = 10, .bold = false, .underline = false};

// The third stop stands before the second, which is wanted.
constexpr Stops kPostureStops{2500, 8000, 7500, 8000};
constexpr Stops kTotalStops{2500, 4500, 6500, 8000};

std::string Whole(Integer score) { return Format(score, Pattern::Whole); }

int State(int element) { return Module1.RulaControlState.at(element); }

// Add-ons have the report's own wording, which is not always that of their controls.
void WritePostures(RichText& RichTextBox1) {
  const auto& wrist = Module1.RulaWristFactors;
  const auto& upperArm = Module1.RulaUpperArmFactors;
  const auto& lowerArm = Module1.RulaLowerArmFactors;
  const auto& neck = Module1.RulaNeckFactors;
  const auto& trunk = Module1.RulaTrunkFactors;
  const auto row = [&RichTextBox1](std::string_view region, std::string_view posture,
                                   Integer factor) {
    RichTextBox1.Append(kNewLine, region, kTab, posture, kTab, Whole(factor));
  };
  row("Wrist", RulaCaption(Ribbons::SSRibbon3, State(6)), wrist.at(0));
  row("Wrist", RulaCaption(Options::SSOption4, State(8)), Module1.RulaWristTwistFactor);
  if (State(7) == 1) row("Wrist", "Side Bent", wrist.at(1));
  row("Upper Arms", RulaCaption(Ribbons::SSRibbon1, State(0)), upperArm.at(0));
  if (State(1) == 1) row("Upper Arms", "Shoulder is raised", upperArm.at(1));
  if (State(2) == 1) row("Upper Arms", "Upper arm is abducted", upperArm.at(2));
  if (State(3) == 1) row("Upper Arms", "Arm is supported", upperArm.at(3));
  row("Lower Arms", RulaCaption(Ribbons::SSRibbon2, State(4)), lowerArm.at(0));
  if (State(5) == 1) row("Lower Arms", "Lower arm cross body midline", lowerArm.at(1));
  row("Neck", RulaCaption(Ribbons::SSRibbon4, State(9)), neck.at(0));
  if (State(10) == 1) row("Neck", "Neck is twisting", neck.at(1));
  if (State(11) == 1) row("Neck", "Neck is side bending", neck.at(2));
  row("Trunk", RulaCaption(Ribbons::SSRibbon5, State(12)), trunk.at(0));
  if (State(13) == 1) row("Trunk", "Twisting", trunk.at(1));
  if (State(14) == 1) row("Trunk", "Side Bend", trunk.at(2));
  if (State(19) == 1) row("Trunk", "Not well supported while seated", trunk.at(3));
  // Any other choice prints no legs.
  if (State(15) == 0) row("Legs", "Legs/feet well-supported", Module1.RulaLegFactor);
  if (State(15) == 1) row("Legs", "Legs/feet not supported + uneven", Module1.RulaLegFactor);
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

}  // namespace halvane
