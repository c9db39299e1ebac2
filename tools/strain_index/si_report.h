#pragma once

#include "core/rich_text.h"

namespace halvane {

/// Writes the result of the last `SI_Calculate` into the pane, from title to chart, and locks it.
/// Throws `SubscriptOutOfRange` for a rating that was never set.
void SI_Report(RichText& RichTextBox1);

}  // namespace halvane
