#include "tools/rula/rula_controls.h"

#include "core/checked_array.h"
#include "core/job_state.h"

namespace halvane {
namespace {

using Ribbons = RulaRibbonArray;
using Checks = RulaCheckArray;
using Options = RulaOptionArray;

constexpr int kTrunkSideBend = 1;
constexpr int kTrunkNotSupported = 2;
constexpr int kTrunkNotSupportedState = 19;
constexpr int kStaticMuscleState = 16;
constexpr int kRepeatedMuscleState = 18;

// Captions, trailing blanks and "support" for "supported" included, are wanted as they stand.
// clang-format off
constexpr std::array kUpperArms{
    // caption, tool tip, picture, score
    RulaRibbon{"-20 to 20",    "Upper arm between -20 and +20 deg.",                 "rula/ssribbon1_0", 1},
    RulaRibbon{"<-20        ", "Upper arm between lower than -20 deg. (Extension)",  "rula/ssribbon1_1", 2},
    RulaRibbon{"21 to 45 ",    "Upper arm between 21 and 45 deg. (Flexion)",         "rula/ssribbon1_2", 2},
    RulaRibbon{"46 to 90 ",    "Upper arm between 46 and 90 deg. (Flexion)",         "rula/ssribbon1_3", 3},
    RulaRibbon{">+90       ",  "Upper arm greater than 90 deg. (Flexion)",           "rula/ssribbon1_4", 4},
};
constexpr std::array kLowerArms{
    RulaRibbon{"0 to 90",      "Lower arms between 0 to 90 deg.",                    "rula/ssribbon2_0", 1},
    RulaRibbon{"> 90",         "Lower arms greater than 90 deg.",                    "rula/ssribbon2_1", 2},
    RulaRibbon{"Midline",      "Lower arm cross body midline",                       "rula/ssribbon2_2", 1},
};
constexpr std::array kWrist{
    RulaRibbon{"Neutral",      "Wrist neutral posture",                              "rula/ssribbon3_0", 1},
    RulaRibbon{"0 to -20",     "Wrist between 0 to -20 deg. (Extension)",            "rula/ssribbon3_1", 2},
    RulaRibbon{"<-20",         "Wrist less than -20 deg. (Extension)",               "rula/ssribbon3_2", 3},
    RulaRibbon{"0 to 20",      "Wrist between 0 to 20 deg. (Flexion)",               "rula/ssribbon3_3", 2},
    RulaRibbon{"> 20",         "Wrist greater than 20 deg. (Flexion)",               "rula/ssribbon3_4", 3},
    RulaRibbon{"Side Bent",    "Ulnar/Radial deviation",                             "rula/ssribbon3_5", 1},
};
// The extension scores the most of the four.
constexpr std::array kNeck{
    RulaRibbon{"0 - 10",       "Neck between 0 and 10 deg. (Neutral)",               "rula/ssribbon4_0", 1},
    RulaRibbon{"Exten.",       "Neck extension",                                     "rula/ssribbon4_1", 4},
    RulaRibbon{"11 - 20",      "Neck between 11 and 20 deg. (Flexion)",              "rula/ssribbon4_2", 2},
    RulaRibbon{"> 20",         "Neck greater than 20 deg. (Flexion)",                "rula/ssribbon4_3", 3},
};
constexpr std::array kTrunk{
    RulaRibbon{"Neutral",      "Trunk neutral posture",                              "rula/ssribbon5_0", 1},
    RulaRibbon{"0 - 20",       "Trunk between 0 and 20 deg. (Flexion)",              "rula/ssribbon5_1", 2},
    RulaRibbon{"21 - 60",      "Trunk between 21 and 60 deg. (Flexion)",             "rula/ssribbon5_2", 3},
    RulaRibbon{"> 60",         "Trunk greater than 60 deg. (Flexion)",               "rula/ssribbon5_3", 4},
};

constexpr std::array kUpperArmChecks{
    // caption, element of the state, score
    RulaCheck{"Shoulder is raised", 1,  1},
    RulaCheck{"Upper arm abducted", 2,  1},
    RulaCheck{"Arm is supported",   3, -1},
};
constexpr std::array kNeckChecks{
    RulaCheck{"Neck is twisting",     10, 1},
    RulaCheck{"Neck is side bending", 11, 1},
};
constexpr std::array kTrunkChecks{
    RulaCheck{"Twisting",                      13,                      1},
    RulaCheck{"Side bend",                     14,                      1},
    RulaCheck{"Not well support while seated", kTrunkNotSupportedState, 1},
};
constexpr std::array kMuscleChecks{
    RulaCheck{"Mainly static, e.g. held for longer than 10 minutes", kStaticMuscleState,   1},
    RulaCheck{"Repeated more than 4 times/minute",                   kRepeatedMuscleState, 1},
};

constexpr std::array kLegOptions{
    // caption, score
    RulaOption{"Legs and feet are well-supported and in an evenly balance posture", 1},
    RulaOption{"Legs and feet are not supported and in an uneven balance posture",  2},
};
constexpr std::array kForceOptions{
    RulaOption{"0 to <4 lbs intermittent load or force",       0},
    RulaOption{"4 to 20 lbs intermittent load or force",       1},
    RulaOption{"4 to 20 lbs static or repeated load or force", 2},
    RulaOption{"+20 lb static or repeated loads",              3},
};
constexpr std::array kTwistOptions{
    RulaOption{"In mid-range of wrist twisting range", 1},
    RulaOption{"At/near end of wrist twisting range",  2},
};

constexpr std::array kRibbonRows{
    // name, ribbons, size of the group, elements of the state
    RulaRibbonRow{"SSRibbon1", kUpperArms, 5,  0, kRulaNoState},
    RulaRibbonRow{"SSRibbon2", kLowerArms, 2,  4, 5},
    RulaRibbonRow{"SSRibbon3", kWrist,     5,  6, 7},
    RulaRibbonRow{"SSRibbon4", kNeck,      4,  9, kRulaNoState},
    RulaRibbonRow{"SSRibbon5", kTrunk,     4, 12, kRulaNoState},
};
constexpr std::array kCheckRows{
    RulaCheckRow{"SSCheck1", kUpperArmChecks},
    RulaCheckRow{"SSCheck2", kNeckChecks},
    RulaCheckRow{"SSCheck3", kTrunkChecks},
    RulaCheckRow{"SSCheck4", kMuscleChecks},
};
constexpr std::array kOptionRows{
    // name, options, element of the state
    RulaOptionRow{"SSOption1", kLegOptions,   15},
    RulaOptionRow{"SSOption3", kForceOptions, 17},
    RulaOptionRow{"SSOption4", kTwistOptions,  8},
};
// clang-format on

template <typename Array>
constexpr std::size_t Row(Array array) {
  return static_cast<std::size_t>(array);
}

Integer& State(int element) { return Module1.RulaControlState.at(element); }

/// Element 0 is the base of the region, the others are its add-ons.
Integer& Factor(Ribbons array, int element) {
  switch (array) {
    case Ribbons::SSRibbon1: return Module1.RulaUpperArmFactors.at(element);
    case Ribbons::SSRibbon2: return Module1.RulaLowerArmFactors.at(element);
    case Ribbons::SSRibbon3: return Module1.RulaWristFactors.at(element);
    case Ribbons::SSRibbon4: return Module1.RulaNeckFactors.at(element);
    case Ribbons::SSRibbon5: return Module1.RulaTrunkFactors.at(element);
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

/// The factor of a box, which follows its index; the boxes of muscle use have none of their own.
Integer* Factor(Checks array, int index) {
  switch (array) {
    case Checks::SSCheck1: return &Factor(Ribbons::SSRibbon1, index + 1);
    case Checks::SSCheck2: return &Factor(Ribbons::SSRibbon4, index + 1);
    case Checks::SSCheck3: return &Factor(Ribbons::SSRibbon5, index + 1);
    case Checks::SSCheck4: return nullptr;
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

Integer& Factor(Options array) {
  switch (array) {
    case Options::SSOption1: return Module1.RulaLegFactor;
    case Options::SSOption3: return Module1.RulaForceFactor;
    case Options::SSOption4: return Module1.RulaWristTwistFactor;
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

void SSRibbon_Click(Ribbons array, int index, bool pressed) {
  Module1.JobDirty = kTrue;
  const RulaRibbonRow& row = RulaRibbonsOf(array);
  const Integer score = row.ribbons[static_cast<std::size_t>(index)].score;
  if (index < row.groupSize) {
    Factor(array, 0) = score;
    State(row.state) = static_cast<Integer>(index);
  } else {
    Factor(array, 1) = pressed ? score : Integer{0};
    State(row.addOnState) = pressed ? 1 : 0;
  }
}

void SSCheck_Click(Checks array, int index, bool checked) {
  Module1.JobDirty = kTrue;
  // Clearing this box clears nothing: its score stays, and the next load checks it again. Wanted.
  if (array == Checks::SSCheck3 && index == kTrunkNotSupported && !checked) return;

  const RulaCheck& row = RulaChecksOf(array).checks[static_cast<std::size_t>(index)];
  State(row.state) = checked ? 1 : 0;
  if (Integer* factor = Factor(array, index)) {
    *factor = checked ? row.score : Integer{0};
  } else {
    Module1.RulaMuscleFactor = ToInteger(State(kStaticMuscleState) + State(kRepeatedMuscleState));
  }

  // The box before it is the one that clears it, which is wanted too.
  if (array == Checks::SSCheck3 && index == kTrunkSideBend && !checked) {
    *Factor(array, kTrunkNotSupported) = 0;
    State(kTrunkNotSupportedState) = 0;
  }
}

void SSOption_Click(Options array, int index) {
  Module1.JobDirty = kTrue;
  const RulaOptionRow& row = RulaOptionsOf(array);
  Factor(array) = row.options[static_cast<std::size_t>(index)].score;
  State(row.state) = static_cast<Integer>(index);
}

}  // namespace

// clang-format off
constexpr std::array<RulaFrame, 8> kRulaFrames{{
    // caption, ribbons, boxes, options, panel of the options
    {"Upper Arms",    Ribbons::SSRibbon1, Checks::SSCheck1, {},                 ""},
    {"Lower Arms",    Ribbons::SSRibbon2, {},               {},                 ""},
    {"Wrist",         Ribbons::SSRibbon3, {},               Options::SSOption4, "Wrist Twist"},
    {"Neck",          Ribbons::SSRibbon4, Checks::SSCheck2, {},                 ""},
    {"Trunk",         Ribbons::SSRibbon5, Checks::SSCheck3, {},                 ""},
    {"Leg",           {},                 {},               Options::SSOption1, ""},
    {"Force or Load", {},                 {},               Options::SSOption3, ""},
    {"Muscle Use",    {},                 Checks::SSCheck4, {},                 ""},
}};
// clang-format on

const RulaRibbonRow& RulaRibbonsOf(RulaRibbonArray array) { return kRibbonRows[Row(array)]; }
const RulaCheckRow& RulaChecksOf(RulaCheckArray array) { return kCheckRows[Row(array)]; }
const RulaOptionRow& RulaOptionsOf(RulaOptionArray array) { return kOptionRows[Row(array)]; }

int RulaHighestState(int element) {
  CheckedSubscript(element, static_cast<std::size_t>(Module1.RulaControlState.size()));
  for (const RulaRibbonRow& row : kRibbonRows) {
    if (row.state == element) return row.groupSize - 1;
  }
  for (const RulaOptionRow& row : kOptionRows) {
    if (row.state == element) return static_cast<int>(row.options.size()) - 1;
  }
  // A box, or a ribbon that stands by itself.
  return 1;
}

std::string_view RulaCaption(RulaRibbonArray array, int index) {
  const auto& ribbons = RulaRibbonsOf(array).ribbons;
  return ribbons[CheckedSubscript(index, ribbons.size())].caption;
}

std::string_view RulaCaption(RulaOptionArray array, int index) {
  const auto& options = RulaOptionsOf(array).options;
  return options[CheckedSubscript(index, options.size())].caption;
}

void RulaControls::Load() {
  ChooseHand(Module1.Hand);
  LoadRibbons(Ribbons::SSRibbon1);
  LoadChecks(Checks::SSCheck1);
  LoadRibbons(Ribbons::SSRibbon2);
  LoadRibbons(Ribbons::SSRibbon3);
  ChooseOption(Options::SSOption4, State(RulaOptionsOf(Options::SSOption4).state) != 0 ? 1 : 0);
  LoadRibbons(Ribbons::SSRibbon4);
  LoadChecks(Checks::SSCheck2);
  LoadRibbons(Ribbons::SSRibbon5);
  LoadChecks(Checks::SSCheck3);
  ChooseOption(Options::SSOption1, State(RulaOptionsOf(Options::SSOption1).state) != 0 ? 1 : 0);
  LoadChecks(Checks::SSCheck4);
  // A force that is none of the four chooses none, and its factor keeps what it had.
  const RulaOptionRow& force = RulaOptionsOf(Options::SSOption3);
  const int chosen = State(force.state);
  if (chosen >= 0 && chosen < static_cast<int>(force.options.size())) {
    ChooseOption(Options::SSOption3, chosen);
  }
}

void RulaControls::LoadRibbons(RulaRibbonArray array) {
  const RulaRibbonRow& row = RulaRibbonsOf(array);
  PressRibbon(array, State(row.state));
  if (row.hasAddOn() && State(row.addOnState) == 1) PressRibbon(array, row.groupSize);
}

void RulaControls::LoadChecks(RulaCheckArray array) {
  int index = 0;
  for (const RulaCheck& check : RulaChecksOf(array).checks) {
    if (State(check.state) == 1) SetCheck(array, index, true);
    ++index;
  }
}

void RulaControls::PressRibbon(RulaRibbonArray array, int index) {
  const RulaRibbonRow& row = RulaRibbonsOf(array);
  const std::size_t pressed = CheckedSubscript(index, row.ribbons.size());
  auto& down = down_[Row(array)];
  if (down[pressed]) return;
  if (index < row.groupSize) {
    for (int other = 0; other < row.groupSize; ++other) {
      down[static_cast<std::size_t>(other)] = false;
    }
  }
  down[pressed] = true;
  SSRibbon_Click(array, index, true);
}

void RulaControls::ReleaseRibbon(RulaRibbonArray array, int index) {
  const RulaRibbonRow& row = RulaRibbonsOf(array);
  bool& down = down_[Row(array)][CheckedSubscript(index, row.ribbons.size())];
  if (!down || index < row.groupSize) return;
  down = false;
  SSRibbon_Click(array, index, false);
}

void RulaControls::SetCheck(RulaCheckArray array, int index, bool checked) {
  bool& state = checked_[Row(array)][CheckedSubscript(index, RulaChecksOf(array).checks.size())];
  if (state == checked) return;
  state = checked;
  SSCheck_Click(array, index, checked);
}

void RulaControls::ChooseOption(RulaOptionArray array, int index) {
  CheckedSubscript(index, RulaOptionsOf(array).options.size());
  int& chosen = chosen_[Row(array)];
  if (chosen == index) return;
  chosen = index;
  SSOption_Click(array, index);
}

bool RulaControls::IsDown(RulaRibbonArray array, int index) const {
  return down_[Row(array)][CheckedSubscript(index, RulaRibbonsOf(array).ribbons.size())];
}

bool RulaControls::IsChecked(RulaCheckArray array, int index) const {
  return checked_[Row(array)][CheckedSubscript(index, RulaChecksOf(array).checks.size())];
}

int RulaControls::chosen(RulaOptionArray array) const { return chosen_[Row(array)]; }

}  // namespace halvane
