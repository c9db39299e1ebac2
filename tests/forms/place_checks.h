#pragma once

#include <QRect>

#include "tests/forms/finding.h"

namespace halvane {

/// What a title bar and borders add to a window, as on most desktops.
inline constexpr int kTitleBar = 32;
inline constexpr int kBorder = 4;

/// A window that reaches over the edge of the part of a screen that windows may cover, its frame
/// included; and one too narrow for its title.
Findings CheckWindow(const QWidget& window, const QRect& available);

/// Controls of a window that reach over the edge of what they stand in and cannot be scrolled to,
/// that have no size or less than they need, and that cover one another.
Findings CheckPlaces(const QWidget& window);

}  // namespace halvane
