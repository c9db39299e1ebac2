#pragma once

#include "core/rich_text.h"

namespace halvane {

/// Writes the result of the last `HAL_Calculate` into the pane, which stays as open or locked as it
/// was. Limits stand as they were computed, negative ones too. Throws `Overflow` for a text that
/// reads as a number beyond a double.
void HAL_Print(RichText& RichTextBox1);

}  // namespace halvane
