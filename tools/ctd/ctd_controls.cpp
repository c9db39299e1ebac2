#include "tools/ctd/ctd_controls.h"

#include <algorithm>

#include "core/checked_math.h"
#include "core/job_state.h"
#include "core/task_list.h"

namespace halvane {
namespace {

constexpr int kHandOptions = 2;
constexpr double kMinutesPerHour = 60;

// clang-format off
constexpr std::array kGrips{
    CtdRibbon{0, "Power Grip",    "ctd/grip_power"},
    CtdRibbon{2, "Lateral Pinch", "ctd/grip_lateral_pinch"},
    CtdRibbon{3, "Chuck Pinch",   "ctd/grip_chuck_pinch"},
    CtdRibbon{4, "2-Point Pinch", "ctd/grip_two_point_pinch"},
};
constexpr std::array kWrists{
    CtdRibbon{0, "Mid-Position (Neutral)", "ctd/wrist_neutral"},
    CtdRibbon{1, "Pronation",              "ctd/wrist_pronation"},
    CtdRibbon{3, "Supination",             "ctd/wrist_supination"},
};
constexpr std::array kRadialUlnar{
    CtdRibbon{0, "Neutral",                    "ctd/deviation_neutral"},
    CtdRibbon{1, "Radial Deviation >15 deg.",  "ctd/deviation_radial_over_15"},
    CtdRibbon{2, "Radial Deviation 5-15 deg.", "ctd/deviation_radial_5_15"},
    CtdRibbon{3, "Ulnar Deviation >15 deg.",   "ctd/deviation_ulnar_over_15"},
    CtdRibbon{4, "Ulnar Deviation 5-15 deg.",  "ctd/deviation_ulnar_5_15"},
};
constexpr std::array kFlexionExtension{
    CtdRibbon{0, "Neutral",             "ctd/flexion_neutral"},
    CtdRibbon{5, "Flexion >35 deg.",    "ctd/flexion_over_35"},
    CtdRibbon{6, "Flexion 5-15 deg.",   "ctd/flexion_5_15"},
    CtdRibbon{7, "Extension >35 deg.",  "ctd/extension_over_35"},
    CtdRibbon{8, "Extension 5-15 deg.", "ctd/extension_5_15"},
};

constexpr std::array kLeftShoulderFlexion{
    CtdRibbon{0, "Neutral Posture", "ctd/shoulder_flexion_left_0"},
    CtdRibbon{1, "Greater Than 20", "ctd/shoulder_flexion_left_20"},
    CtdRibbon{2, "Greater Than 45", "ctd/shoulder_flexion_left_45"},
    CtdRibbon{3, "Greater Than 90", "ctd/shoulder_flexion_left_90"},
};
constexpr std::array kRightShoulderFlexion{
    CtdRibbon{0, "Neutral Posture", "ctd/shoulder_flexion_right_0"},
    CtdRibbon{1, "Greater Than 20", "ctd/shoulder_flexion_right_20"},
    CtdRibbon{2, "Greater Than 45", "ctd/shoulder_flexion_right_45"},
    CtdRibbon{3, "Greater Than 90", "ctd/shoulder_flexion_right_90"},
};
constexpr std::array kLeftShoulderAbduction{
    CtdRibbon{0, "Neutral Posture", "ctd/shoulder_abduction_left_0"},
    CtdRibbon{1, "Greater Than 30", "ctd/shoulder_abduction_left_30"},
    CtdRibbon{2, "Greater Than 60", "ctd/shoulder_abduction_left_60"},
    CtdRibbon{3, "Greater Than 90", "ctd/shoulder_abduction_left_90"},
};
constexpr std::array kRightShoulderAbduction{
    CtdRibbon{0, "Neutral Posture", "ctd/shoulder_abduction_right_0"},
    CtdRibbon{1, "Greater Than 30", "ctd/shoulder_abduction_right_30"},
    CtdRibbon{2, "Greater Than 60", "ctd/shoulder_abduction_right_60"},
    CtdRibbon{3, "Greater Than 90", "ctd/shoulder_abduction_right_90"},
};
constexpr std::array kLeftElbow{
    CtdRibbon{0, "Neutral Posture",    "ctd/elbow_left_neutral"},
    CtdRibbon{1, "> 10 deg. Flexion",  "ctd/elbow_left_flexion"},
    CtdRibbon{2, ">30 deg Extension",  "ctd/elbow_left_extension"},
};
constexpr std::array kRightElbow{
    CtdRibbon{0, "Neutral Posture",    "ctd/elbow_right_neutral"},
    CtdRibbon{1, "> 10 deg. Flexion",  "ctd/elbow_right_flexion"},
    CtdRibbon{2, ">30 deg Extension",  "ctd/elbow_right_extension"},
};
constexpr std::array kBack{
    CtdRibbon{0, "Neutral Posture", "ctd/back_0"},
    CtdRibbon{1, "Greater Than 10", "ctd/back_10"},
    CtdRibbon{2, "Greater Than 20", "ctd/back_20"},
    CtdRibbon{3, "Greater Than 45", "ctd/back_45"},
};
constexpr std::array kNeck{
    CtdRibbon{0, "Neutral Posture", "ctd/neck_0"},
    CtdRibbon{1, "Greater Than 30", "ctd/neck_30"},
    CtdRibbon{2, "Greater Than 45", "ctd/neck_45"},
    CtdRibbon{3, "Greater Than 60", "ctd/neck_60"},
};
// clang-format on

void StoreCode(CtdGroup group, int task, Integer index) {
  switch (group) {
    case CtdGroup::Grip: Module1.CtdGripType.at(task) = index; break;
    case CtdGroup::Wrist: Module1.CtdWristPosition.at(task) = index; break;
    case CtdGroup::RadialUlnar: Module1.CtdRadUlnDeviation.at(task) = index; break;
    case CtdGroup::FlexionExtension: Module1.CtdFlexExtDeviation.at(task) = index; break;
  }
}

int CurrentTask() { return ToInteger(Module1.CurrentTask.AsDouble()); }

}  // namespace

constexpr std::array<CtdGroupRow, 4> kCtdGroups{{
    {"SSRibbon1", "Grip Type", kGrips},
    {"SSRibbon2", "Wrist Position", kWrists},
    {"SSRibbon4", "Radial/Ulnar Deviation Angle:", kRadialUlnar},
    {"SSRibbon5", "Flexion/Extension Angle:", kFlexionExtension},
}};

// Labels, "Flextion" and trailing blanks included, are wanted as they stand.
// clang-format off
constexpr std::array<CtdSlot, kCtdSlotCount> kCtdSlots{{
    // report label,          frame caption,                      ribbons,             categories,           frame slot
    {"Lt Shoulder Flex/Ext",   "Left Shoulder Flexion/Extension",   "SSctdLtShoulFlexT", kLeftShoulderFlexion,    1},
    {"Rt Shoulder Flex/Ext",   "Right Shoulder Flextion/Extension", "SSctdRtShoulFlexT", kRightShoulderFlexion,   0},
    {"Lt Shoulder Abd/Add",    "Left Shoulder Abduction",           "SSctdLtShoulABD",   kLeftShoulderAbduction,  3},
    {"Rt Shoulder Abd/Add",    "Right Shoulder Abduction",          "SSctdRtShoulABD",   kRightShoulderAbduction, 2},
    {"Lt Elbow Flex/Ext   ",   "Left Elbow Flextion/Extension",     "SSctdLtElbowFlexT", kLeftElbow,              4},
    {"Rt elbow Flex/Ext   ",   "Right Elbow Flexion/Extension",     "SSctdRtElbowFlexT", kRightElbow,             5},
    {"Back Flexion          ", "Back Flexion",                      "SSctdBack",         kBack,                   6},
    {"Neck Flexion          ", "Neck Flexion",                      "SSctdNeck",         kNeck,                   7},
}};
// clang-format on

constexpr std::array<CtdBodyPart, 4> kCtdBodyParts{{
    {"Shoulder Flexion/Extension", "ctd/part_shoulder_flexion", {0, 1}},
    {"Shoulder Abduction", "ctd/part_shoulder_abduction", {2, 3}},
    {"Elbow Flexion/Extension", "ctd/part_elbow", {4, 5}},
    {"Neck + Back", "ctd/part_neck_back", {6, 7}},
}};

const CtdRibbon& CtdRibbonAt(std::span<const CtdRibbon> ribbons, int index) {
  for (const CtdRibbon& ribbon : ribbons) {
    if (ribbon.index == index) return ribbon;
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

int CtdCodeOf(CtdGroup group, int task) {
  switch (group) {
    case CtdGroup::Grip: return ToInteger(Module1.CtdGripType.at(task).AsDouble());
    case CtdGroup::Wrist: return Module1.CtdWristPosition.at(task);
    case CtdGroup::RadialUlnar: return ToInteger(Module1.CtdRadUlnDeviation.at(task));
    case CtdGroup::FlexionExtension:
      return ToInteger(Module1.CtdFlexExtDeviation.at(task).AsDouble());
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

double CtdCategoryOf(int slot, int task) {
  switch (slot) {
    case 0: return Module1.CtdLtShoulderFlexion.at(task).AsDouble();
    case 1: return Module1.CtdRtShoulderFlexion.at(task).AsDouble();
    case 2: return Module1.CtdLtShoulderAbduction.at(task).AsDouble();
    case 3: return Module1.CtdRtShoulderAbduction.at(task).AsDouble();
    case 4: return Module1.CtdLtElbowFlexion.at(task).AsDouble();
    case 5: return Module1.CtdRtElbowFlexion.at(task).AsDouble();
    case 6: return Module1.CtdBackFlexion.at(task).AsDouble();
    case 7: return Module1.CtdNeckFlexion.at(task);
    default: throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
  }
}

void StoreCtdCategory(int slot, int task, Integer category) {
  switch (slot) {
    case 0: Module1.CtdLtShoulderFlexion.at(task) = category; break;
    case 1: Module1.CtdRtShoulderFlexion.at(task) = category; break;
    case 2: Module1.CtdLtShoulderAbduction.at(task) = category; break;
    case 3: Module1.CtdRtShoulderAbduction.at(task) = category; break;
    case 4: Module1.CtdLtElbowFlexion.at(task) = category; break;
    case 5: Module1.CtdRtElbowFlexion.at(task) = category; break;
    case 6: Module1.CtdBackFlexion.at(task) = category; break;
    case 7: Module1.CtdNeckFlexion.at(task) = category; break;
    default: throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
  }
}

void ComputeCtdRestTime(int task) {
  const double worked =
      Product(Module1.CtdRepetitions.at(task), Module1.CtdWorkTime.at(task).AsDouble());
  Module1.CtdRestTime.at(task) = std::max(Finite(Module1.JobCycleTime - worked), 0.0);
}

double ComputeCtdCyclesPerShift() {
  if (Module1.JobCycleTime <= 0) return 0;
  Module1.CtdCyclesPerShift = Quotient(
      Product(Module1.JobDurationPerDay.AsDouble(), kMinutesPerHour), Module1.JobCycleTime);
  return Module1.CtdCyclesPerShift;
}

void CtdControls::Load(const std::function<void(int task)>& shown) {
  for (const int task : ActiveTasks()) {
    Module1.CurrentTask = static_cast<Integer>(task);
    try {
      PressStoredRibbons();
      shown(task);
    } catch (const RuntimeFailure&) {
      // Showing a task ends quietly at a code without a ribbon; what follows stays as the last task
      // had it.
    }
  }
  ChooseHand(Module1.Hand);
}

void CtdControls::PressStoredRibbons() {
  const int task = CurrentTask();
  for (const CtdGroup group :
       {CtdGroup::Grip, CtdGroup::Wrist, CtdGroup::RadialUlnar, CtdGroup::FlexionExtension}) {
    PressRibbon(group, CtdCodeOf(group, task));
  }
}

void CtdControls::ChooseHand(int index) {
  CheckedSubscript(index, kHandOptions);
  if (hand_ == index) return;
  hand_ = index;
  Module1.JobDirty = kTrue;
  Module1.Hand = static_cast<Integer>(index);
}

void CtdControls::PressRibbon(CtdGroup group, int index) {
  CtdRibbonAt(kCtdGroups[static_cast<std::size_t>(group)].ribbons, index);
  int& down = down_[static_cast<std::size_t>(group)];
  if (down == index) return;
  down = index;
  Module1.JobDirty = kTrue;
  if (const auto task = TaskOnScreen()) StoreCode(group, *task, static_cast<Integer>(index));
}

void CtdControls::PressBodyPart(int index) {
  const CtdBodyPart& part = kCtdBodyParts[CheckedSubscript(index, kCtdBodyParts.size())];
  Module1.JobDirty = kTrue;
  bodyPart_ = index;
  const std::optional<int> task = TaskOnScreen();
  if (!task) return;
  for (const int slot : part.shownSlots) PressCategory(slot, ToInteger(CtdCategoryOf(slot, *task)));
}

void CtdControls::PressCategory(int slot, int index) {
  const auto at = CheckedSubscript(slot, kCtdSlots.size());
  CtdRibbonAt(kCtdSlots[at].categories, index);
  if (category_[at] == index) return;
  category_[at] = index;
  Module1.JobDirty = kTrue;
  if (const auto task = TaskOnScreen()) {
    StoreCtdCategory(slot, *task, static_cast<Integer>(index));
  }
}

}  // namespace halvane
