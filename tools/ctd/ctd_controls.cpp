#include "tools/ctd/ctd_controls.h"

#include <algorithm>

#include "core/checked_array.h"
#include "core/task_list.h"

namespace halvane {
namespace {

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

}  // namespace

// clang-format off
constexpr std::array<CtdGroupRow, 4> kCtdGroups{{
    // group,                     name,        caption,                         ribbons,           field
    {CtdGroup::Grip,             "SSRibbon1", "Grip Type",                     kGrips,            &JobState::CtdGripType},
    {CtdGroup::Wrist,            "SSRibbon2", "Wrist Position",                kWrists,           &JobState::CtdWristPosition},
    {CtdGroup::RadialUlnar,      "SSRibbon4", "Radial/Ulnar Deviation Angle:", kRadialUlnar,      &JobState::CtdRadUlnDeviation},
    {CtdGroup::FlexionExtension, "SSRibbon5", "Flexion/Extension Angle:",      kFlexionExtension, &JobState::CtdFlexExtDeviation},
}};
// clang-format on
static_assert(std::ranges::all_of(kCtdGroups,
                                  [](const CtdGroupRow& row) {
                                    return &kCtdGroups.at(static_cast<std::size_t>(row.group)) ==
                                           &row;
                                  }),
              "a group stands at its number");

// Labels, "Flextion" and trailing blanks included, are wanted as they stand.
// clang-format off
constexpr std::array<CtdSlot, kCtdSlotCount> kCtdSlots{{
    // report label,          frame caption,                      ribbons,             categories,              field,                             frame slot
    {"Lt Shoulder Flex/Ext",   "Left Shoulder Flexion/Extension",   "SSctdLtShoulFlexT", kLeftShoulderFlexion,    &JobState::CtdLtShoulderFlexion,   1},
    {"Rt Shoulder Flex/Ext",   "Right Shoulder Flextion/Extension", "SSctdRtShoulFlexT", kRightShoulderFlexion,   &JobState::CtdRtShoulderFlexion,   0},
    {"Lt Shoulder Abd/Add",    "Left Shoulder Abduction",           "SSctdLtShoulABD",   kLeftShoulderAbduction,  &JobState::CtdLtShoulderAbduction, 3},
    {"Rt Shoulder Abd/Add",    "Right Shoulder Abduction",          "SSctdRtShoulABD",   kRightShoulderAbduction, &JobState::CtdRtShoulderAbduction, 2},
    {"Lt Elbow Flex/Ext   ",   "Left Elbow Flextion/Extension",     "SSctdLtElbowFlexT", kLeftElbow,              &JobState::CtdLtElbowFlexion,      4},
    {"Rt elbow Flex/Ext   ",   "Right Elbow Flexion/Extension",     "SSctdRtElbowFlexT", kRightElbow,             &JobState::CtdRtElbowFlexion,      5},
    {"Back Flexion          ", "Back Flexion",                      "SSctdBack",         kBack,                   &JobState::CtdBackFlexion,         6},
    {"Neck Flexion          ", "Neck Flexion",                      "SSctdNeck",         kNeck,                   &JobState::CtdNeckFlexion,         7},
}};
static_assert(kCtdSlots[kCtdNeckSlot].categories.data() == kNeck.data());
static_assert(
    std::ranges::all_of(kCtdSlots, [](const CtdSlot& slot) {
      return &kCtdSlots.at(static_cast<std::size_t>(
                 kCtdSlots.at(static_cast<std::size_t>(slot.frameSlot)).frameSlot)) == &slot;
    }),
    "slots are crossed in pairs");
// clang-format on

constexpr std::array<CtdBodyPart, 4> kCtdBodyParts{{
    {"Shoulder Flexion/Extension", "ctd/part_shoulder_flexion", {0, 1}},
    {"Shoulder Abduction", "ctd/part_shoulder_abduction", {2, 3}},
    {"Elbow Flexion/Extension", "ctd/part_elbow", {4, 5}},
    {"Neck + Back", "ctd/part_neck_back", {6, 7}},
}};
static_assert(kCtdBodyParts.size() * kCtdBodyParts[0].shownSlots.size() == kCtdSlotCount,
              "each slot is shown with a part");

const CtdBox& CtdBoxAt(std::span<const CtdBox> boxes, int index) {
  for (const CtdBox& box : boxes) {
    if (box.index == index) return box;
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

namespace {

const CtdGroupRow& GroupRow(CtdGroup group) {
  return kCtdGroups[CheckedSubscript(static_cast<int>(group), kCtdGroups.size())];
}

const CtdSlot& SlotRow(int slot) { return kCtdSlots[CheckedSubscript(slot, kCtdSlots.size())]; }

}  // namespace

const CtdRibbon& CtdRibbonAt(std::span<const CtdRibbon> ribbons, int index) {
  for (const CtdRibbon& ribbon : ribbons) {
    if (ribbon.index == index) return ribbon;
  }
  throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
}

int CtdCodeOf(CtdGroup group, int task) { return ToInteger(ValueIn(GroupRow(group).field, task)); }

double CtdCategoryOf(int slot, int task) { return ValueIn(SlotRow(slot).field, task); }

void StoreCtdCategory(int slot, int task, Integer category) {
  StoreNumber(SlotRow(slot).field, task, category);
}

void CtdControls::Load(const std::function<void(int task)>& shown) {
  for (const int task : ActiveTasks()) {
    TaskShown(task);
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
  const int task = CurrentTaskNumber();
  for (const CtdGroupRow& row : kCtdGroups) PressRibbon(row.group, CtdCodeOf(row.group, task));
}

void CtdControls::PressRibbon(CtdGroup group, int index) {
  const CtdGroupRow& row = GroupRow(group);
  CtdRibbonAt(row.ribbons, index);
  int& down = down_[static_cast<std::size_t>(group)];
  if (down == index) return;
  down = index;
  Module1.JobDirty = kTrue;
  StoreOnScreen(row.field, static_cast<Integer>(index));
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
  const CtdSlot& row = SlotRow(slot);
  CtdRibbonAt(row.categories, index);
  int& category = category_[static_cast<std::size_t>(slot)];
  if (category == index) return;
  category = index;
  Module1.JobDirty = kTrue;
  StoreOnScreen(row.field, static_cast<Integer>(index));
}

}  // namespace halvane
