#pragma once

#include <QColor>
#include <span>

#include "widgets/posture_outlines.h"

namespace halvane {

/// The colour in the files of what parts limbs from each other; on a screen it is the ground's.
inline constexpr const char* kEdgeInk = "#ffffff";

/// The colour of signs on buttons, which stands out on every ground.
inline constexpr const char* kSignInk = "#3a72ee";

/// One ink of the posture pictures. The files have those of light grounds.
struct PictureInk {
  const char* name;
  const char* onLight;  ///< as "#rrggbb"
  const char* onDark;
};

/// The inks, but for the one that parts what touches.
[[nodiscard]] std::span<const PictureInk> PictureInks();

/// The colours of a posture that stand out on `ground`.
[[nodiscard]] PostureColors ColorsOn(const QColor& ground);

}  // namespace halvane
