#pragma once

#include "core/rich_text.h"

namespace halvane {

/// Writes the result of the last `RULA_Calculate` into the pane, which stays as open or locked as
/// it was. Throws `SubscriptOutOfRange` for a saved choice that names no ribbon or option.
void RULA_Report(RichText& RichTextBox1);

/// Computes the job and writes its report. Throws what the two throw.
void RulaComputeAndReport(RichText& RichTextBox1);

}  // namespace halvane
