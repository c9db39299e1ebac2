#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "tests/tools/posture/posture_support.h"
#include "tools/reba/reba_controls.h"

namespace halvane {

/// The frames of controls, in the order in which the form's load sets them.
enum class RebaRegion {
  UpperArms,
  LowerArms,
  Wrist,
  Neck,
  Trunk,
  Legs,
  Force,
  Coupling,
  MuscleUse
};
inline constexpr std::size_t kRebaRegionCount = 9;

/// What the controls of a frame are called.
struct RebaNames {
  std::string_view caption, ribbons, boxes;
};
inline const RebaNames& NamesOf(RebaRegion region) {
  static constexpr std::array<RebaNames, kRebaRegionCount> kNames{{
      {"Upper Arms", "SSRibbon1", "SSCheck1"},
      {"Lower Arms", "SSRibbon2", ""},
      {"Wrist", "SSRibbon3", ""},
      {"Neck", "SSRibbon4", "SSCheck2"},
      {"Trunk", "SSRibbon5", "SSCheck3"},
      {"Leg", "SSRibbon6", ""},
      {"Force or Load", "", "SSCheck4"},
      {"Coupling/Grip", "", ""},
      {"Muscle Use", "", "SSCheck5"},
  }};
  return kNames.at(static_cast<std::size_t>(region));
}

inline const PostureControl& RibbonControl(RebaRegion region, int index) {
  return ControlNamed(kRebaControls, NamesOf(region).ribbons, index);
}
inline const PostureControl& BoxControl(RebaRegion region, int index) {
  return ControlNamed(kRebaControls, NamesOf(region).boxes, index);
}

/// The ribbons of a frame, by index; empty where it has none.
inline std::span<const PostureChoice> RibbonsOf(RebaRegion region) {
  if (NamesOf(region).ribbons.empty()) return {};
  return RibbonControl(region, 0).array;
}
/// The boxes of a frame, by index; empty where it has none.
inline std::span<const PostureChoice> BoxesOf(RebaRegion region) {
  if (NamesOf(region).boxes.empty()) return {};
  return BoxControl(region, 0).array;
}

// What a user does, and what is seen then.
inline void PressRibbon(RebaControls& controls, RebaRegion region, int index) {
  controls.Set(RibbonControl(region, index), index);
}
inline void ClickRibbon(RebaControls& controls, RebaRegion region, int index) {
  controls.Click(RibbonControl(region, index), index);
}
inline void SetCheck(RebaControls& controls, RebaRegion region, int index, bool checked) {
  const PostureControl& box = BoxControl(region, index);
  checked ? controls.Set(box, index) : controls.Release(box, index);
}
inline void PickLoad(RebaControls& controls, int index) {
  controls.Set(RowOf(RebaControl::Load), index);
}
inline void ChooseCoupling(RebaControls& controls, int index) {
  controls.Set(RowOf(RebaControl::Coupling), index);
}
inline bool IsDown(const RebaControls& controls, RebaRegion region, int index) {
  return controls.IsSet(RibbonControl(region, index), index);
}
inline bool IsChecked(const RebaControls& controls, RebaRegion region, int index) {
  return controls.IsSet(BoxControl(region, index), index);
}

}  // namespace halvane
