#pragma once

#include "tests/forms/finding.h"

namespace halvane {

/// Boxes, lists, options and ticks of a window whose outline is lost on what they stand on, by the
/// contrast that WCAG asks for.
Findings CheckOutlines(QWidget& window);

/// Ribbons with parts of their pictures that are lost on what they touch.
Findings CheckPictures(QWidget& window);

}  // namespace halvane
