#include "tools/reba/reba_report.h"

#include <array>
#include <initializer_list>
#include <string>

#include "core/job_state.h"
#include "tools/posture/posture_report.h"
#include "tools/reba/reba_controls.h"
#include "tools/reba/reba_score.h"
#include "tools/report_parts.h"

namespace halvane {
namespace {

// The second stop lies behind the third, which is wanted.
constexpr std::array kFactorStops{2500, 8000, 7500, 8000};
constexpr std::array kScoreStops{2500, 4500, 6300, 8000};

// Trailing blanks of the descriptions are wanted as they stand, and so is the wording that differs
// from the captions on screen.
void WritePostures(RichText& RichTextBox1) {
  const auto row = [&RichTextBox1](std::string_view region, RebaControl control,
                                   std::string_view behind = {}) {
    WritePosture(RichTextBox1, region, RowOf(control), behind);
  };
  const auto ifSet = [&RichTextBox1](std::string_view region, RebaControl control,
                                     std::initializer_list<std::string_view> wordings) {
    WriteIfSet(RichTextBox1, region, RowOf(control), wordings);
  };
  using enum RebaControl;
  row("Wrist", Wrist);
  ifSet("Wrist", WristSideBent, {"Side Bent or Twist"});
  row("Upper Arms", UpperArms);
  ifSet("Upper Arms", ShoulderRaised, {"Shoulder is raised"});
  ifSet("Upper Arms", Abducted, {"Upper arm is abducted     "});
  ifSet("Upper Arms", Supported, {"Arm is supported"});
  row("Lower Arms", LowerArms);
  row("Neck", Neck);
  ifSet("Neck", NeckTwist, {"Neck is twisting or side bending   "});
  row("Trunk", Trunk, "   ");
  ifSet("Trunk", TrunkTwist, {"Trunk is twisting or side bending   "});
  ifSet("Legs", Stability, {"Legs/feet well-supported", "Leg/foot not supported + uneven   "});
  // The second knee ribbon is called as the first, which is wanted; only the blanks differ.
  ifSet("Legs", Knees, {"30 to 60   ", "30 to 60"});
  row("Force", Load, "   ");
  ifSet("Force", Shock, {"Shock/rapid build up of force"});
  row("Coupling", Coupling);
  ifSet("Muscle Use", Static, {"Static, eg. held for longer than 1 min"});
  ifSet("Muscle Use", Repeated, {"Repeated +4 times/min   "});
  ifSet("Muscle Use", RapidChange, {"Rapid large posture change or unstable base"});
}

void WriteFactorTable(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  RichTextBox1.SetAlignment(Alignment::Left);
  SetStops(RichTextBox1, kFactorStops);
  RichTextBox1.Append(kNewLine, "Job Factors", kTab, "Categories", kTab, "REBA Score");

  RichTextBox1.SetFont(kPlain);
  WritePostures(RichTextBox1);
}

void WriteScoreTable(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  RichTextBox1.Append(kNewLine);
  RichTextBox1.Append(kNewLine, "Body Parts", kTab, "Posture Score", kTab, "Force Score", kTab,
                      "Grip Score", kTab, "Total");

  RichTextBox1.SetFont(kPlain);
  // Set behind the header line, which so keeps the stops of the table above.
  SetStops(RichTextBox1, kScoreStops);
  RichTextBox1.Append(kNewLine, "Neck+Leg+Trunk", kTab, Whole(Module1.RebaScoreA), kTab,
                      Whole(Module1.RebaForceScore), kTab, "  ", kTab,
                      Whole(Module1.RebaScoreATotal));
  RichTextBox1.Append(kNewLine, "Arm+Wrist", kTab, Whole(Module1.RebaScoreB), kTab, "  ", kTab,
                      Whole(Module1.RebaCouplingScore), kTab, Whole(Module1.RebaScoreBTotal));
}

}  // namespace

void REBA_Report(RichText& RichTextBox1) {
  RichTextBox1.Clear();

  RichTextBox1.SetFont(kTitle);
  RichTextBox1.SetAlignment(Alignment::Center);
  RichTextBox1.Append("Rapid Entire Body Assessment (REBA)", kNewLine);

  RichTextBox1.SetFont(kPlain);
  RichTextBox1.SetAlignment(Alignment::Left);
  AppendIdentification(RichTextBox1);
  WriteFactorTable(RichTextBox1);
  WriteScoreTable(RichTextBox1);
  RichTextBox1.Append(kNewLine);
  RichTextBox1.Append(kNewLine);

  RichTextBox1.SetFont(kHeading);
  RichTextBox1.Append(kNewLine, "REBA Grand Score: ");
  RichTextBox1.SetFont(kPlain);
  RichTextBox1.Append(Whole(Module1.RebaGrandScore));
  RichTextBox1.Append(kNewLine);

  RichTextBox1.SetTab(0, 500);
  RichTextBox1.Append(kNewLine, "Recommendation:");
  const RebaActionLevel level = RebaActionLevelOf(Module1.RebaGrandScore);
  RichTextBox1.Append(kNewLine, kTab, level.level);
  RichTextBox1.Append(kNewLine, kTab, level.risk);
  RichTextBox1.Append(kNewLine, kTab, level.action);
}

void RebaComputeAndReport(RichText& RichTextBox1) {
  REBA_Calculate();
  REBA_Report(RichTextBox1);
}

}  // namespace halvane
