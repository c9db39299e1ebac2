#pragma once

#include <array>
#include <cstddef>

#include "tools/posture/posture_controls.h"

namespace halvane {

/// The controls, in the order in which the form's load sets them.
enum class RulaControl {
  UpperArms,
  ShoulderRaised,
  Abducted,
  Supported,
  LowerArms,
  Midline,
  Wrist,
  WristSideBent,
  WristTwist,
  Neck,
  NeckTwist,
  NeckSideBend,
  Trunk,
  TrunkTwist,
  TrunkSideBend,
  NotSupported,
  Leg,
  Static,
  Repeated,
  Force
};
inline constexpr std::size_t kRulaControlCount = static_cast<std::size_t>(RulaControl::Force) + 1;

/// A row for each control, at its place.
extern const std::array<PostureControl, kRulaControlCount> kRulaControls;
const PostureControl& RowOf(RulaControl control);

/// The frames of the form, in the order of the screen.
extern const std::array<PostureRegion, 8> kRulaRegions;

/// The controls of the RULA form without a screen.
class RulaControls : public PostureControls {
 public:
  RulaControls();

 protected:
  void Store(const PostureControl& control, int index) override;
};

}  // namespace halvane
