#pragma once

#include <array>
#include <cstddef>

#include "tools/posture/posture_controls.h"

namespace halvane {

/// The controls, in the order in which the form's load sets them.
enum class RebaControl {
  UpperArms,
  ShoulderRaised,
  Abducted,
  Supported,
  LowerArms,
  Wrist,
  WristSideBent,
  Neck,
  NeckTwist,
  Trunk,
  TrunkTwist,
  Stability,
  Knees,
  Load,
  Shock,
  Coupling,
  Static,
  Repeated,
  RapidChange
};
inline constexpr std::size_t kRebaControlCount =
    static_cast<std::size_t>(RebaControl::RapidChange) + 1;

/// A row for each control, at its place.
extern const std::array<PostureControl, kRebaControlCount> kRebaControls;
const PostureControl& RowOf(RebaControl control);

/// The frames of the form, in the order of the screen.
extern const std::array<PostureRegion, 9> kRebaRegions;

/// The controls of the REBA form without a screen.
class RebaControls : public PostureControls {
 public:
  RebaControls();

 protected:
  void Store(const PostureControl& control, int index) override;
};

}  // namespace halvane
