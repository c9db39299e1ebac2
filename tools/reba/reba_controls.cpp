#include "tools/reba/reba_controls.h"

#include <algorithm>

#include "core/checked_array.h"
#include "core/job_state.h"

namespace halvane {
namespace {

constexpr int kSideBentRibbon = 3;
constexpr int kStableRibbon = 0;
constexpr int kUnstableRibbon = 1;
constexpr int kFirstKneeRibbon = 2;
constexpr int kSecondKneeRibbon = 3;

template <auto array, int element>
Integer& Element() {
  return (Module1.*array).at(element);
}
template <auto field>
Integer& Field() {
  return Module1.*field;
}

template <int element>
constexpr RebaFactor kUpperArm = Element<&JobState::RebaUpperArmFactors, element>;
constexpr RebaFactor kLowerArm = Field<&JobState::RebaLowerArmFactor>;
template <int element>
constexpr RebaFactor kWrist = Element<&JobState::RebaWristFactors, element>;
template <int element>
constexpr RebaFactor kNeck = Element<&JobState::RebaNeckFactors, element>;
template <int element>
constexpr RebaFactor kTrunk = Element<&JobState::RebaTrunkFactors, element>;
template <int element>
constexpr RebaFactor kLeg = Element<&JobState::RebaLegFactors, element>;
template <int element>
constexpr RebaFactor kForce = Element<&JobState::RebaForceFactors, element>;

// Trailing blanks belong to the captions. The tool tip of the neutral neck names another range than
// its caption, which is wanted.
// clang-format off
constexpr std::array kUpperArmRibbons{
    // caption,                tool tip,                                              picture,            factor, state
    RebaRibbon{"-20 to 20",    "Upper arm between -20 and +20 deg. (Neutral)",        "reba/ssribbon1_0", 1, 0},
    RebaRibbon{"<-20         ", "Upper arm less than -20 deg. (extension)",           "reba/ssribbon1_1", 2, 1},
    RebaRibbon{"21 to 45 ",    "Upper arm between 21 and 45 deg. (Flexion)",          "reba/ssribbon1_2", 2, 2},
    RebaRibbon{"46 to 90 ",    "Upper arm between 46 and 90 deg.  (Flexion)",         "reba/ssribbon1_3", 3, 3},
    RebaRibbon{">+90       ",  "Upper arm greater than 90 deg. (Flexion)",            "reba/ssribbon1_4", 4, 4},
};
constexpr std::array kLowerArmRibbons{
    RebaRibbon{"60-100",       "Lower arms between 60 to 100 deg. (Neutral)",         "reba/ssribbon2_0", 1, 0},
    RebaRibbon{"> 100",        "Lower arms greater than 100 deg. (Flexion)",          "reba/ssribbon2_1", 2, 1},
    RebaRibbon{"0 to 60",      "Lower arm 0 to 60 deg. (Extension)",                  "reba/ssribbon2_2", 2, 2},
};
constexpr std::array kWristRibbons{
    RebaRibbon{"Neutral",      "Wrist neutral posture",                               "reba/ssribbon3_0", 1, 0},
    RebaRibbon{"> 15",         "Wrist greater than 15 deg. flexion",                  "reba/ssribbon3_1", 2, 1},
    RebaRibbon{"<-15",         "Wrist less than 15 deg. extension",                   "reba/ssribbon3_2", 2, 2},
    RebaRibbon{"Side Bent or Twist", "Ulnar/Radial deviation",                        "reba/ssribbon3_3", 1, 1},
};
constexpr std::array kNeckRibbons{
    RebaRibbon{"0 to 20",      "Neck between 0 and 10 deg. (neutral)",                "reba/ssribbon4_0", 1, 0},
    RebaRibbon{"< -20   ",     "Neck extension",                                      "reba/ssribbon4_1", 2, 1},
    RebaRibbon{"> 20    ",     "Neck greater than 20 deg. flexion",                   "reba/ssribbon4_2", 2, 2},
};
constexpr std::array kTrunkRibbons{
    RebaRibbon{"Neutral",      "Trunk neutral posture",                               "reba/ssribbon5_0", 1, 0},
    RebaRibbon{"0 to 20",      "Trunk between 0 and 20 deg. (Flexion)",               "reba/ssribbon5_1", 2, 1},
    RebaRibbon{"21 to 60",     "Trunk between 21 and 60 deg. (Flexion)",              "reba/ssribbon5_2", 3, 2},
    RebaRibbon{"> 60    ",     "Trunk greater than 60 deg. (Flexion)",                "reba/ssribbon5_3", 4, 3},
    RebaRibbon{"-20 to 0",     "Trunk 0 to -20 deg. (Extension)",                     "reba/ssribbon5_4", 2, 4},
    RebaRibbon{"< -20    ",    "Trunk less than -20 deg. (Extension)",                "reba/ssribbon5_5", 3, 5},
};
constexpr std::array kLegRibbons{
    RebaRibbon{"Stable",       "Bilateral weight bearing, walking or sitting",        "reba/ssribbon6_0", 1, 1},
    RebaRibbon{"Unstable",     "Unilateral weight bearing, feather weight bearing or an unstable posture",
                                                                                      "reba/ssribbon6_1", 2, 2},
    RebaRibbon{"30 to 60",     "Knee(s) between 30-60 degree flexion",                "reba/ssribbon6_2", 1, 1},
    RebaRibbon{"> 60",         "Knee(s) >60 degree flexion (not sitting)",            "reba/ssribbon6_3", 2, 2},
};

constexpr std::array kUpperArmGroups{
    // first, count, may be up, factor, state entry
    RebaRibbonGroup{0, 5, false, kUpperArm<0>, 0},
};
constexpr std::array kLowerArmGroups{
    RebaRibbonGroup{0, 3, false, kLowerArm, 4},
};
constexpr std::array kWristGroups{
    RebaRibbonGroup{0, 3, false, kWrist<0>, 6},
    RebaRibbonGroup{3, 1, true,  kWrist<1>, 7},
};
constexpr std::array kNeckGroups{
    RebaRibbonGroup{0, 3, false, kNeck<0>, 9},
};
constexpr std::array kTrunkGroups{
    RebaRibbonGroup{0, 6, false, kTrunk<0>, 12},
};
constexpr std::array kLegGroups{
    RebaRibbonGroup{0, 2, false, kLeg<0>, 15},
    RebaRibbonGroup{2, 2, true,  kLeg<1>, 16},
};

constexpr std::array kUpperArmChecks{
    // objectName, caption, value, factor, state entry
    RebaCheck{"SSCheck1(0)", "Shoulder is raised",     1, kUpperArm<1>, 1},
    RebaCheck{"SSCheck1(1)", "Upper arm is abducted",  1, kUpperArm<2>, 2},
    RebaCheck{"SSCheck1(2)", "Arm is supported",      -1, kUpperArm<3>, 3},
};
constexpr std::array kNeckChecks{
    RebaCheck{"SSCheck2(0)", "Neck is twisting or side bending",  1, kNeck<1>, 10},
};
constexpr std::array kTrunkChecks{
    RebaCheck{"SSCheck3(0)", "Trunk is twisting or side bending", 1, kTrunk<1>, 13},
};
constexpr std::array kForceChecks{
    RebaCheck{"SSCheck4", "Shock/rapid build up of force", 1, kForce<1>, 18},
};
constexpr std::array kMuscleUseChecks{
    RebaCheck{"SSCheck5(0)", "Static, eg. held for longer than 1 min",      1, nullptr, 20},
    RebaCheck{"SSCheck5(1)", "Repeated more than 4 times/min",              1, nullptr, 21},
    RebaCheck{"SSCheck5(2)", "Rapid large posture change or unstable base", 1, nullptr, 22},
};

// By region.
constexpr std::array<RebaFrame, kRebaRegionCount> kFrames{{
    {"Upper Arms",    "SSRibbon1", kUpperArmRibbons, kUpperArmGroups, kUpperArmChecks},
    {"Lower Arms",    "SSRibbon2", kLowerArmRibbons, kLowerArmGroups, {}},
    {"Wrist",         "SSRibbon3", kWristRibbons,    kWristGroups,    {}},
    {"Neck",          "SSRibbon4", kNeckRibbons,     kNeckGroups,     kNeckChecks},
    {"Trunk",         "SSRibbon5", kTrunkRibbons,    kTrunkGroups,    kTrunkChecks},
    {"Leg",           "SSRibbon6", kLegRibbons,      kLegGroups,      {}},
    {"Force or Load", "",          {},               {},              kForceChecks},
    {"Coupling/Grip", "",          {},               {},              {}},
    {"Muscle Use",    "",          {},               {},              kMuscleUseChecks},
}};
// clang-format on

constexpr int kLoadEntry = 17;
constexpr int kCouplingEntry = 19;
constexpr std::array kMuscleUseEntries{20, 21, 22};

constexpr std::size_t Row(RebaRegion region) { return static_cast<std::size_t>(region); }

Integer& State(int entry) { return Module1.RebaControlState.at(entry); }

/// The group of a ribbon that the frame has.
const RebaRibbonGroup& GroupOf(RebaRegion region, int index) {
  const std::span<const RebaRibbonGroup> groups = RebaFrameOf(region).groups;
  return index < groups.front().first + groups.front().count ? groups.front() : groups.back();
}

/// Sums the saved states of the boxes, whatever they hold. Throws `Overflow`, the factor then 0.
void CountMuscleUse() {
  Module1.RebaActivityFactor = 0;
  Integer sum = 0;
  for (const int entry : kMuscleUseEntries) sum = ToInteger(sum + State(entry));
  Module1.RebaActivityFactor = sum;
}

}  // namespace

// clang-format off
constexpr std::array<RebaCoupling, 4> kRebaCouplings{{
    {"Good       ",  "Well-fitting handle and a mid-range, power grip"},
    {"Fair       ",  "Hand hold acceptable but not ideal or coupling is acceptable via another part of the body"},
    {"Poor        ", "Hand hold not acceptable although possible"},
    {"Unacceptable", "Awkward, unsafe grip, no handle"},
}};
// clang-format on

const RebaFrame& RebaFrameOf(RebaRegion region) { return kFrames[Row(region)]; }

int RebaHighestState(int entry) {
  CheckedSubscript(entry, static_cast<std::size_t>(Module1.RebaControlState.size()));
  if (entry == kLoadEntry) return static_cast<int>(kRebaLoads.size()) - 1;
  if (entry == kCouplingEntry) return static_cast<int>(kRebaCouplings.size()) - 1;
  // An entry without a control stays 0.
  int highest = 0;
  for (const RebaFrame& frame : kFrames) {
    for (const RebaRibbonGroup& group : frame.groups) {
      if (group.stateEntry != entry) continue;
      const auto first = static_cast<std::size_t>(group.first);
      for (const RebaRibbon& ribbon :
           frame.ribbons.subspan(first, static_cast<std::size_t>(group.count))) {
        highest = std::max<int>(highest, ribbon.state);
      }
    }
    for (const RebaCheck& check : frame.checks) {
      if (check.stateEntry == entry) highest = 1;
    }
  }
  return highest;
}

void RebaControls::Load() {
  using enum RebaRegion;
  ChooseHand(Module1.Hand);
  PressRibbon(UpperArms, State(0));
  CheckSaved(UpperArms);
  PressRibbon(LowerArms, State(4));
  PressRibbon(Wrist, State(6));
  if (State(7) == 1) PressRibbon(Wrist, kSideBentRibbon);
  PressRibbon(Neck, State(9));
  CheckSaved(Neck);
  PressRibbon(Trunk, State(12));
  CheckSaved(Trunk);
  PressRibbon(Legs, State(15) == 2 ? kUnstableRibbon : kStableRibbon);
  if (State(16) == 1) PressRibbon(Legs, kFirstKneeRibbon);
  if (State(16) == 2) PressRibbon(Legs, kSecondKneeRibbon);
  PickLoad(State(kLoadEntry));
  CheckSaved(Force);
  ChooseCoupling(State(kCouplingEntry));
  CheckSaved(MuscleUse);
}

void RebaControls::CheckSaved(RebaRegion region) {
  const std::span<const RebaCheck> checks = RebaFrameOf(region).checks;
  for (std::size_t i = 0; i < checks.size(); ++i) {
    if (State(checks[i].stateEntry) == 1) SetCheck(region, static_cast<int>(i), true);
  }
}

void RebaControls::PressRibbon(RebaRegion region, int index) {
  bool& down = Down(region, index);
  if (down) return;
  // The ribbon that goes up stores nothing: what the pressed one stores takes its place.
  const RebaRibbonGroup& group = GroupOf(region, index);
  for (int other = group.first; other < group.first + group.count; ++other) {
    Down(region, other) = false;
  }
  down = true;
  StoreRibbon(region, index, true);
}

void RebaControls::ClickRibbon(RebaRegion region, int index) {
  bool& down = Down(region, index);
  if (!down) {
    PressRibbon(region, index);
  } else if (GroupOf(region, index).mayBeUp) {
    down = false;
    StoreRibbon(region, index, false);
  }
}

void RebaControls::StoreRibbon(RebaRegion region, int index, bool pressed) {
  Module1.JobDirty = kTrue;
  const RebaRibbon& ribbon = RebaFrameOf(region).ribbons[static_cast<std::size_t>(index)];
  const RebaRibbonGroup& group = GroupOf(region, index);
  group.factor() = pressed ? ribbon.factor : Integer{0};
  State(group.stateEntry) = pressed ? ribbon.state : Integer{0};
  // A knee ribbon looks at the stability of the legs too.
  if (region == RebaRegion::Legs && !Down(region, kStableRibbon) &&
      !Down(region, kUnstableRibbon)) {
    const RebaRibbonGroup& stability = GroupOf(region, kStableRibbon);
    stability.factor() = 0;
    State(stability.stateEntry) = 0;
  }
}

void RebaControls::SetCheck(RebaRegion region, int index, bool checked) {
  const std::span<const RebaCheck> checks = RebaFrameOf(region).checks;
  const std::size_t at = CheckedSubscript(index, checks.size());
  bool& state = checked_[Row(region)][at];
  if (state == checked) return;
  state = checked;
  Module1.JobDirty = kTrue;
  const RebaCheck& check = checks[at];
  State(check.stateEntry) = checked ? 1 : 0;
  if (check.factor == nullptr) {
    CountMuscleUse();
  } else {
    check.factor() = checked ? check.value : Integer{0};
  }
}

void RebaControls::PickLoad(int index) {
  CheckedSubscript(index, kRebaLoads.size());
  if (loadLevel_ == index) return;
  loadLevel_ = index;
  Module1.JobDirty = kTrue;
  kForce<0>() = static_cast<Integer>(index);
  State(kLoadEntry) = static_cast<Integer>(index);
}

void RebaControls::ChooseCoupling(int index) {
  CheckedSubscript(index, kRebaCouplings.size());
  if (coupling_ == index) return;
  coupling_ = index;
  Module1.JobDirty = kTrue;
  Module1.RebaCouplingFactor = static_cast<Integer>(index);
  State(kCouplingEntry) = static_cast<Integer>(index);
}

bool RebaControls::IsDown(RebaRegion region, int index) const {
  return down_[Row(region)][CheckedSubscript(index, RebaFrameOf(region).ribbons.size())];
}

bool RebaControls::IsChecked(RebaRegion region, int index) const {
  return checked_[Row(region)][CheckedSubscript(index, RebaFrameOf(region).checks.size())];
}

bool& RebaControls::Down(RebaRegion region, int index) {
  return down_[Row(region)][CheckedSubscript(index, RebaFrameOf(region).ribbons.size())];
}

}  // namespace halvane
