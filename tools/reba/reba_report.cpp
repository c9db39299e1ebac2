#include "tools/reba/reba_report.h"

#include <array>
#include <string>

#include "core/checked_array.h"
#include "core/job_state.h"
#include "tools/reba/reba_controls.h"
#include "tools/reba/reba_score.h"
#include "tools/report_parts.h"

namespace halvane {
namespace {

constexpr CharacterFormat kTitle{.size = 12, .bold = true, .underline = true};
constexpr CharacterFormat kHeading{.size = 10, .bold = true, .underline = true};
constexpr CharacterFormat kPlain{.size = 10, .bold = false, .underline = false};

// The second stop lies behind the third, which is wanted.
constexpr std::array kFactorStops{2500, 8000, 7500, 8000};
constexpr std::array kScoreStops{2500, 4500, 6300, 8000};

int State(int entry) { return Module1.RebaControlState.at(entry); }

std::string_view RibbonCaption(RebaRegion region, int index) {
  const auto ribbons = RebaFrameOf(region).ribbons;
  return ribbons[CheckedSubscript(index, ribbons.size())].caption;
}

std::string_view LoadEntry(int index) {
  return kRebaLoads[CheckedSubscript(index, kRebaLoads.size())];
}

std::string_view CouplingCaption(int index) {
  return kRebaCouplings[CheckedSubscript(index, kRebaCouplings.size())].caption;
}

std::string Whole(Integer value) { return Format(value, Pattern::Whole); }

void WriteRow(RichText& RichTextBox1, std::string_view region, std::string_view description,
              std::string_view value) {
  RichTextBox1.Append(kNewLine, region, kTab, description, kTab, value);
}

void WriteRow(RichText& RichTextBox1, std::string_view region, std::string_view description,
              Integer factor) {
  WriteRow(RichTextBox1, region, description, Whole(factor));
}

// Trailing blanks of the descriptions are wanted as they stand, and so is the wording that differs
// from the captions on screen.
void WriteArmRows(RichText& RichTextBox1) {
  using enum RebaRegion;
  WriteRow(RichTextBox1, "Wrist", RibbonCaption(Wrist, State(6)), Module1.RebaWristFactors.at(0));
  if (State(7) == 1) {
    WriteRow(RichTextBox1, "Wrist", "Side Bent or Twist", Module1.RebaWristFactors.at(1));
  }
  WriteRow(RichTextBox1, "Upper Arms", RibbonCaption(UpperArms, State(0)),
           Module1.RebaUpperArmFactors.at(0));
  if (State(1) == 1) {
    WriteRow(RichTextBox1, "Upper Arms", "Shoulder is raised", Module1.RebaUpperArmFactors.at(1));
  }
  if (State(2) == 1) {
    WriteRow(RichTextBox1, "Upper Arms", "Upper arm is abducted     ",
             Module1.RebaUpperArmFactors.at(2));
  }
  if (State(3) == 1) {
    WriteRow(RichTextBox1, "Upper Arms", "Arm is supported", Module1.RebaUpperArmFactors.at(3));
  }
  WriteRow(RichTextBox1, "Lower Arms", RibbonCaption(LowerArms, State(4)),
           Module1.RebaLowerArmFactor);
}

void WriteBodyRows(RichText& RichTextBox1) {
  using enum RebaRegion;
  WriteRow(RichTextBox1, "Neck", RibbonCaption(Neck, State(9)), Module1.RebaNeckFactors.at(0));
  if (State(10) == 1) {
    WriteRow(RichTextBox1, "Neck", "Neck is twisting or side bending   ",
             Module1.RebaNeckFactors.at(1));
  }
  WriteRow(RichTextBox1, "Trunk", std::string(RibbonCaption(Trunk, State(12))) + "   ",
           Module1.RebaTrunkFactors.at(0));
  if (State(13) == 1) {
    WriteRow(RichTextBox1, "Trunk", "Trunk is twisting or side bending   ",
             Module1.RebaTrunkFactors.at(1));
  }
  if (State(15) == 1) {
    WriteRow(RichTextBox1, "Legs", "Legs/feet well-supported", Module1.RebaLegFactors.at(0));
  }
  if (State(15) == 2) {
    WriteRow(RichTextBox1, "Legs", "Leg/foot not supported + uneven   ",
             Module1.RebaLegFactors.at(0));
  }
  if (State(16) == 1) {
    WriteRow(RichTextBox1, "Legs", "30 to 60   ", Module1.RebaLegFactors.at(1));
  }
  // The second knee ribbon is called as the first, which is wanted; only the blanks differ.
  if (State(16) == 2) WriteRow(RichTextBox1, "Legs", "30 to 60", Module1.RebaLegFactors.at(1));
}

void WriteUseRows(RichText& RichTextBox1) {
  WriteRow(RichTextBox1, "Force", std::string(LoadEntry(State(17))) + "   ",
           Module1.RebaForceFactors.at(0));
  if (State(18) == 1) {
    WriteRow(RichTextBox1, "Force", "Shock/rapid build up of force",
             Module1.RebaForceFactors.at(1));
  }
  WriteRow(RichTextBox1, "Coupling", CouplingCaption(State(19)), Module1.RebaCouplingFactor);
  if (State(20) == 1) {
    WriteRow(RichTextBox1, "Muscle Use", "Static, eg. held for longer than 1 min", "1");
  }
  if (State(21) == 1) WriteRow(RichTextBox1, "Muscle Use", "Repeated +4 times/min   ", "1");
  if (State(22) == 1) {
    WriteRow(RichTextBox1, "Muscle Use", "Rapid large posture change or unstable base", "1");
  }
}

void WriteFactorTable(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  RichTextBox1.SetAlignment(Alignment::Left);
  SetStops(RichTextBox1, kFactorStops);
  RichTextBox1.Append(kNewLine, "Job Factors", kTab, "Categories", kTab, "REBA Score");

  RichTextBox1.SetFont(kPlain);
  WriteArmRows(RichTextBox1);
  WriteBodyRows(RichTextBox1);
  WriteUseRows(RichTextBox1);
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

}  // namespace halvane
