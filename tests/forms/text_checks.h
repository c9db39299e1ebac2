#pragma once

#include "tests/forms/finding.h"

namespace halvane {

/// Texts of a window that are cut, that lie over one another, and that cannot be read: with less
/// contrast to what is behind them than WCAG asks for. A text that is not at hand, of a control
/// that is disabled, may be faint.
Findings CheckTexts(QWidget& window);

}  // namespace halvane
