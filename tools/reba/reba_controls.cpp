#include "tools/reba/reba_controls.h"

namespace halvane {
namespace {

using enum PostureKind;
using enum OtherSaved;
using enum RebaControl;

// Trailing blanks belong to the captions. The tool tip of the neutral neck names another range than
// its caption, which is wanted.
// clang-format off
constexpr std::array kUpperArms{
    // caption,                tool tip,                                              picture,            score
    PostureChoice{"-20 to 20",    "Upper arm between -20 and +20 deg. (Neutral)",        "reba/ssribbon1_0", 1},
    PostureChoice{"<-20         ", "Upper arm less than -20 deg. (extension)",           "reba/ssribbon1_1", 2},
    PostureChoice{"21 to 45 ",    "Upper arm between 21 and 45 deg. (Flexion)",          "reba/ssribbon1_2", 2},
    PostureChoice{"46 to 90 ",    "Upper arm between 46 and 90 deg.  (Flexion)",         "reba/ssribbon1_3", 3},
    PostureChoice{">+90       ",  "Upper arm greater than 90 deg. (Flexion)",            "reba/ssribbon1_4", 4},
};
constexpr std::array kLowerArms{
    PostureChoice{"60-100",       "Lower arms between 60 to 100 deg. (Neutral)",         "reba/ssribbon2_0", 1},
    PostureChoice{"> 100",        "Lower arms greater than 100 deg. (Flexion)",          "reba/ssribbon2_1", 2},
    PostureChoice{"0 to 60",      "Lower arm 0 to 60 deg. (Extension)",                  "reba/ssribbon2_2", 2},
};
constexpr std::array kWrist{
    PostureChoice{"Neutral",      "Wrist neutral posture",                               "reba/ssribbon3_0", 1},
    PostureChoice{"> 15",         "Wrist greater than 15 deg. flexion",                  "reba/ssribbon3_1", 2},
    PostureChoice{"<-15",         "Wrist less than 15 deg. extension",                   "reba/ssribbon3_2", 2},
    PostureChoice{"Side Bent or Twist", "Ulnar/Radial deviation",                        "reba/ssribbon3_3", 1},
};
constexpr std::array kNeck{
    PostureChoice{"0 to 20",      "Neck between 0 and 10 deg. (neutral)",                "reba/ssribbon4_0", 1},
    PostureChoice{"< -20   ",     "Neck extension",                                      "reba/ssribbon4_1", 2},
    PostureChoice{"> 20    ",     "Neck greater than 20 deg. flexion",                   "reba/ssribbon4_2", 2},
};
constexpr std::array kTrunk{
    PostureChoice{"Neutral",      "Trunk neutral posture",                               "reba/ssribbon5_0", 1},
    PostureChoice{"0 to 20",      "Trunk between 0 and 20 deg. (Flexion)",               "reba/ssribbon5_1", 2},
    PostureChoice{"21 to 60",     "Trunk between 21 and 60 deg. (Flexion)",              "reba/ssribbon5_2", 3},
    PostureChoice{"> 60    ",     "Trunk greater than 60 deg. (Flexion)",                "reba/ssribbon5_3", 4},
    PostureChoice{"-20 to 0",     "Trunk 0 to -20 deg. (Extension)",                     "reba/ssribbon5_4", 2},
    PostureChoice{"< -20    ",    "Trunk less than -20 deg. (Extension)",                "reba/ssribbon5_5", 3},
};
constexpr std::array kLegs{
    PostureChoice{"Stable",       "Bilateral weight bearing, walking or sitting",        "reba/ssribbon6_0", 1},
    PostureChoice{"Unstable",     "Unilateral weight bearing, feather weight bearing or an unstable posture",
                                                                                      "reba/ssribbon6_1", 2},
    PostureChoice{"30 to 60",     "Knee(s) between 30-60 degree flexion",                "reba/ssribbon6_2", 1},
    PostureChoice{"> 60",         "Knee(s) >60 degree flexion (not sitting)",            "reba/ssribbon6_3", 2},
};

constexpr std::array kUpperArmBoxes{
    PostureChoice{"Shoulder is raised",    {}, {},  1},
    PostureChoice{"Upper arm is abducted", {}, {},  1},
    PostureChoice{"Arm is supported",      {}, {}, -1},
};
constexpr std::array kNeckBoxes{
    PostureChoice{"Neck is twisting or side bending",  {}, {}, 1},
};
constexpr std::array kTrunkBoxes{
    PostureChoice{"Trunk is twisting or side bending", {}, {}, 1},
};
constexpr std::array kForceBoxes{
    PostureChoice{"Shock/rapid build up of force", {}, {}, 1},
};
constexpr std::array kMuscleBoxes{
    PostureChoice{"Static, eg. held for longer than 1 min",      {}, {}, 1},
    PostureChoice{"Repeated more than 4 times/min",              {}, {}, 1},
    PostureChoice{"Rapid large posture change or unstable base", {}, {}, 1},
};

constexpr std::string_view kLoadTip = "Force or external load level";
constexpr std::array kLoads{
    PostureChoice{"<5 kg  ", kLoadTip, {}, 0},
    PostureChoice{"5-10 kg", kLoadTip, {}, 1},
    PostureChoice{">10 kg ", kLoadTip, {}, 2},
};
constexpr std::array kCouplings{
    PostureChoice{"Good       ",  "Well-fitting handle and a mid-range, power grip", {}, 0},
    PostureChoice{"Fair       ",  "Hand hold acceptable but not ideal or coupling is acceptable via another part of the body",
                                                                                     {}, 1},
    PostureChoice{"Poor        ", "Hand hold not acceptable although possible",      {}, 2},
    PostureChoice{"Unacceptable", "Awkward, unsafe grip, no handle",                 {}, 3},
};
// clang-format on

constexpr JobInteger State(int element) { return {&JobState::RebaControlState, element}; }

}  // namespace

// clang-format off
constexpr std::array<PostureControl, kRebaControlCount> kRebaControls{{
    // kind, name, array of choices, its own: the first and how many, saved state, as which the first
    // choice is saved, what another saved value does, factor
    {Ribbons,    "SSRibbon1",   kUpperArms,     0, 5, State(0),  0, Fails,     {&JobState::RebaUpperArmFactors, 0}},
    {Box,        "SSCheck1(0)", kUpperArmBoxes, 0, 1, State(1),  1, SetsNone,  {&JobState::RebaUpperArmFactors, 1}},
    {Box,        "SSCheck1(1)", kUpperArmBoxes, 1, 1, State(2),  1, SetsNone,  {&JobState::RebaUpperArmFactors, 2}},
    {Box,        "SSCheck1(2)", kUpperArmBoxes, 2, 1, State(3),  1, SetsNone,  {&JobState::RebaUpperArmFactors, 3}},
    {Ribbons,    "SSRibbon2",   kLowerArms,     0, 3, State(4),  0, Fails,     {&JobState::RebaLowerArmFactor}},
    {Ribbons,    "SSRibbon3",   kWrist,         0, 3, State(6),  0, Fails,     {&JobState::RebaWristFactors, 0}},
    {AddOns,     "SSRibbon3",   kWrist,         3, 1, State(7),  1, SetsNone,  {&JobState::RebaWristFactors, 1}},
    {Ribbons,    "SSRibbon4",   kNeck,          0, 3, State(9),  0, Fails,     {&JobState::RebaNeckFactors, 0}},
    {Box,        "SSCheck2(0)", kNeckBoxes,     0, 1, State(10), 1, SetsNone,  {&JobState::RebaNeckFactors, 1}},
    {Ribbons,    "SSRibbon5",   kTrunk,         0, 6, State(12), 0, Fails,     {&JobState::RebaTrunkFactors, 0}},
    {Box,        "SSCheck3(0)", kTrunkBoxes,    0, 1, State(13), 1, SetsNone,  {&JobState::RebaTrunkFactors, 1}},
    // Only these ribbons count from 1 on though one is always down: 0 is a job that no form has seen.
    {Ribbons,    "SSRibbon6",   kLegs,          0, 2, State(15), 1, SetsFirst, {&JobState::RebaLegFactors, 0}},
    {AddOns,     "SSRibbon6",   kLegs,          2, 2, State(16), 1, SetsNone,  {&JobState::RebaLegFactors, 1}},
    {List,       "Combo2",      kLoads,         0, 3, State(17), 0, Fails,     {&JobState::RebaForceFactors, 0}},
    {Box,        "SSCheck4",    kForceBoxes,    0, 1, State(18), 1, SetsNone,  {&JobState::RebaForceFactors, 1}},
    {Options,    "SSOption1",   kCouplings,     0, 4, State(19), 0, Fails,     {&JobState::RebaCouplingFactor}},
    {CountedBox, "SSCheck5(0)", kMuscleBoxes,   0, 1, State(20), 1, SetsNone,  {&JobState::RebaActivityFactor}},
    {CountedBox, "SSCheck5(1)", kMuscleBoxes,   1, 1, State(21), 1, SetsNone,  {&JobState::RebaActivityFactor}},
    {CountedBox, "SSCheck5(2)", kMuscleBoxes,   2, 1, State(22), 1, SetsNone,  {&JobState::RebaActivityFactor}},
}};
static_assert(AreWellFormed(kRebaControls));

constexpr std::array<PostureRegion, 9> kRebaRegions{{
    // caption, controls, panel of the options
    {"Upper Arms",    Rows(kRebaControls, UpperArms, Supported),     {}},
    {"Lower Arms",    Rows(kRebaControls, LowerArms, LowerArms),     {}},
    {"Wrist",         Rows(kRebaControls, Wrist,     WristSideBent), {}},
    {"Coupling/Grip", Rows(kRebaControls, Coupling,  Coupling),      {}},
    {"Neck",          Rows(kRebaControls, Neck,      NeckTwist),     {}},
    {"Trunk",         Rows(kRebaControls, Trunk,     TrunkTwist),    {}},
    {"Leg",           Rows(kRebaControls, Stability, Knees),         {}},
    {"Force or Load", Rows(kRebaControls, Load,      Shock),         {}},
    {"Muscle Use",    Rows(kRebaControls, Static,    RapidChange),   {}},
}};
// clang-format on
static_assert(HoldEachOnce(kRebaRegions, kRebaControls));

const PostureControl& RowOf(RebaControl control) {
  return kRebaControls[static_cast<std::size_t>(control)];
}

RebaControls::RebaControls() : PostureControls(kRebaControls) {}

void RebaControls::Store(const PostureControl& control, int index) {
  // What is counted anew stays 0 where the count fails, which is wanted.
  if (control.kind == CountedBox) control.factor.Value() = 0;
  PostureControls::Store(control, index);
  // A knee ribbon looks at the stability of the legs too, which no load leaves open; wanted.
  const PostureControl& stability = RowOf(Stability);
  if (&control == &RowOf(Knees) && chosen(stability) == kNone) {
    PostureControls::Store(stability, kNone);
  }
}

}  // namespace halvane
