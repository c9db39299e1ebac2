#include "tools/rula/rula_controls.h"

namespace halvane {
namespace {

using enum PostureKind;
using enum OtherSaved;
using enum RulaControl;

// Captions, trailing blanks and "support" for "supported" included, are wanted as they stand.
// clang-format off
constexpr std::array kUpperArms{
    // caption, tool tip, picture, score
    PostureChoice{"-20 to 20",    "Upper arm between -20 and +20 deg.",                 "rula/ssribbon1_0", 1},
    PostureChoice{"<-20        ", "Upper arm between lower than -20 deg. (Extension)",  "rula/ssribbon1_1", 2},
    PostureChoice{"21 to 45 ",    "Upper arm between 21 and 45 deg. (Flexion)",         "rula/ssribbon1_2", 2},
    PostureChoice{"46 to 90 ",    "Upper arm between 46 and 90 deg. (Flexion)",         "rula/ssribbon1_3", 3},
    PostureChoice{">+90       ",  "Upper arm greater than 90 deg. (Flexion)",           "rula/ssribbon1_4", 4},
};
constexpr std::array kLowerArms{
    PostureChoice{"0 to 90",      "Lower arms between 0 to 90 deg.",                    "rula/ssribbon2_0", 1},
    PostureChoice{"> 90",         "Lower arms greater than 90 deg.",                    "rula/ssribbon2_1", 2},
    PostureChoice{"Midline",      "Lower arm cross body midline",                       "rula/ssribbon2_2", 1},
};
constexpr std::array kWrist{
    PostureChoice{"Neutral",      "Wrist neutral posture",                              "rula/ssribbon3_0", 1},
    PostureChoice{"0 to -20",     "Wrist between 0 to -20 deg. (Extension)",            "rula/ssribbon3_1", 2},
    PostureChoice{"<-20",         "Wrist less than -20 deg. (Extension)",               "rula/ssribbon3_2", 3},
    PostureChoice{"0 to 20",      "Wrist between 0 to 20 deg. (Flexion)",               "rula/ssribbon3_3", 2},
    PostureChoice{"> 20",         "Wrist greater than 20 deg. (Flexion)",               "rula/ssribbon3_4", 3},
    PostureChoice{"Side Bent",    "Ulnar/Radial deviation",                             "rula/ssribbon3_5", 1},
};
// The extension scores the most of the four.
constexpr std::array kNeck{
    PostureChoice{"0 - 10",       "Neck between 0 and 10 deg. (Neutral)",               "rula/ssribbon4_0", 1},
    PostureChoice{"Exten.",       "Neck extension",                                     "rula/ssribbon4_1", 4},
    PostureChoice{"11 - 20",      "Neck between 11 and 20 deg. (Flexion)",              "rula/ssribbon4_2", 2},
    PostureChoice{"> 20",         "Neck greater than 20 deg. (Flexion)",                "rula/ssribbon4_3", 3},
};
constexpr std::array kTrunk{
    PostureChoice{"Neutral",      "Trunk neutral posture",                              "rula/ssribbon5_0", 1},
    PostureChoice{"0 - 20",       "Trunk between 0 and 20 deg. (Flexion)",              "rula/ssribbon5_1", 2},
    PostureChoice{"21 - 60",      "Trunk between 21 and 60 deg. (Flexion)",             "rula/ssribbon5_2", 3},
    PostureChoice{"> 60",         "Trunk greater than 60 deg. (Flexion)",               "rula/ssribbon5_3", 4},
};

constexpr std::array kUpperArmBoxes{
    PostureChoice{"Shoulder is raised", {}, {},  1},
    PostureChoice{"Upper arm abducted", {}, {},  1},
    PostureChoice{"Arm is supported",   {}, {}, -1},
};
constexpr std::array kNeckBoxes{
    PostureChoice{"Neck is twisting",     {}, {}, 1},
    PostureChoice{"Neck is side bending", {}, {}, 1},
};
constexpr std::array kTrunkBoxes{
    PostureChoice{"Twisting",                      {}, {}, 1},
    PostureChoice{"Side bend",                     {}, {}, 1},
    PostureChoice{"Not well support while seated", {}, {}, 1},
};
constexpr std::array kMuscleBoxes{
    PostureChoice{"Mainly static, e.g. held for longer than 10 minutes", {}, {}, 1},
    PostureChoice{"Repeated more than 4 times/minute",                   {}, {}, 1},
};

constexpr std::array kTwists{
    PostureChoice{"In mid-range of wrist twisting range", {}, {}, 1},
    PostureChoice{"At/near end of wrist twisting range",  {}, {}, 2},
};
constexpr std::array kLegs{
    PostureChoice{"Legs and feet are well-supported and in an evenly balance posture", {}, {}, 1},
    PostureChoice{"Legs and feet are not supported and in an uneven balance posture",  {}, {}, 2},
};
constexpr std::array kForces{
    PostureChoice{"0 to <4 lbs intermittent load or force",       {}, {}, 0},
    PostureChoice{"4 to 20 lbs intermittent load or force",       {}, {}, 1},
    PostureChoice{"4 to 20 lbs static or repeated load or force", {}, {}, 2},
    PostureChoice{"+20 lb static or repeated loads",              {}, {}, 3},
};
// clang-format on

constexpr JobInteger State(int element) { return {&JobState::RulaControlState, element}; }

}  // namespace

// clang-format off
constexpr std::array<PostureControl, kRulaControlCount> kRulaControls{{
    // kind, name, array of choices, its own: the first and how many, saved state, as which the first
    // choice is saved, what another saved value does, factor
    {Ribbons,    "SSRibbon1",   kUpperArms,     0, 5, State(0),  0, Fails,    {&JobState::RulaUpperArmFactors, 0}},
    {Box,        "SSCheck1(0)", kUpperArmBoxes, 0, 1, State(1),  1, SetsNone, {&JobState::RulaUpperArmFactors, 1}},
    {Box,        "SSCheck1(1)", kUpperArmBoxes, 1, 1, State(2),  1, SetsNone, {&JobState::RulaUpperArmFactors, 2}},
    {Box,        "SSCheck1(2)", kUpperArmBoxes, 2, 1, State(3),  1, SetsNone, {&JobState::RulaUpperArmFactors, 3}},
    {Ribbons,    "SSRibbon2",   kLowerArms,     0, 2, State(4),  0, Fails,    {&JobState::RulaLowerArmFactors, 0}},
    {AddOns,     "SSRibbon2",   kLowerArms,     2, 1, State(5),  1, SetsNone, {&JobState::RulaLowerArmFactors, 1}},
    {Ribbons,    "SSRibbon3",   kWrist,         0, 5, State(6),  0, Fails,    {&JobState::RulaWristFactors, 0}},
    {AddOns,     "SSRibbon3",   kWrist,         5, 1, State(7),  1, SetsNone, {&JobState::RulaWristFactors, 1}},
    {Options,    "SSOption4",   kTwists,        0, 2, State(8),  0, SetsLast, {&JobState::RulaWristTwistFactor}},
    {Ribbons,    "SSRibbon4",   kNeck,          0, 4, State(9),  0, Fails,    {&JobState::RulaNeckFactors, 0}},
    {Box,        "SSCheck2(0)", kNeckBoxes,     0, 1, State(10), 1, SetsNone, {&JobState::RulaNeckFactors, 1}},
    {Box,        "SSCheck2(1)", kNeckBoxes,     1, 1, State(11), 1, SetsNone, {&JobState::RulaNeckFactors, 2}},
    {Ribbons,    "SSRibbon5",   kTrunk,         0, 4, State(12), 0, Fails,    {&JobState::RulaTrunkFactors, 0}},
    {Box,        "SSCheck3(0)", kTrunkBoxes,    0, 1, State(13), 1, SetsNone, {&JobState::RulaTrunkFactors, 1}},
    {Box,        "SSCheck3(1)", kTrunkBoxes,    1, 1, State(14), 1, SetsNone, {&JobState::RulaTrunkFactors, 2}},
    {Box,        "SSCheck3(2)", kTrunkBoxes,    2, 1, State(19), 1, SetsNone, {&JobState::RulaTrunkFactors, 3}},
    {Options,    "SSOption1",   kLegs,          0, 2, State(15), 0, SetsLast, {&JobState::RulaLegFactor}},
    {CountedBox, "SSCheck4(0)", kMuscleBoxes,   0, 1, State(16), 1, SetsNone, {&JobState::RulaMuscleFactor}},
    {CountedBox, "SSCheck4(1)", kMuscleBoxes,   1, 1, State(18), 1, SetsNone, {&JobState::RulaMuscleFactor}},
    // A force that is none of the four chooses none, and its factor keeps what it had; wanted.
    {Options,    "SSOption3",   kForces,        0, 4, State(17), 0, SetsNone, {&JobState::RulaForceFactor}},
}};
static_assert(AreWellFormed(kRulaControls));

constexpr std::array<PostureRegion, 8> kRulaRegions{{
    // caption, controls, panel of the options
    {"Upper Arms",    Rows(kRulaControls, UpperArms, Supported),       {}},
    {"Lower Arms",    Rows(kRulaControls, LowerArms, Midline),         {}},
    {"Wrist",         Rows(kRulaControls, Wrist,     WristTwist),      "Wrist Twist"},
    {"Neck",          Rows(kRulaControls, Neck,      NeckSideBend),    {}},
    {"Trunk",         Rows(kRulaControls, Trunk,     NotSupported),    {}},
    {"Leg",           Rows(kRulaControls, Leg,       Leg),             {}},
    {"Force or Load", Rows(kRulaControls, Force,     Force),           {}},
    {"Muscle Use",    Rows(kRulaControls, Static,    Repeated),        {}},
}};
// clang-format on
static_assert(HoldEachOnce(kRulaRegions, kRulaControls));

const PostureControl& RowOf(RulaControl control) {
  return kRulaControls[static_cast<std::size_t>(control)];
}

RulaControls::RulaControls() : PostureControls(kRulaControls) {}

void RulaControls::Store(const PostureControl& control, int index) {
  const PostureControl& notSupported = RowOf(NotSupported);
  if (&control == &notSupported && index == kNone) {
    // Clearing this box clears nothing: its score stays, and the next load checks it again. Wanted.
    Module1.JobDirty = kTrue;
    return;
  }
  PostureControls::Store(control, index);
  // The box before it is the one that clears it, which is wanted too.
  if (&control == &RowOf(TrunkSideBend) && index == kNone) {
    PostureControls::Store(notSupported, kNone);
  }
}

}  // namespace halvane
