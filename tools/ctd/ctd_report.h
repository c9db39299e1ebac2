#pragma once

#include "core/rich_text.h"

namespace halvane {

/// Writes the results of the last `CTDcalculate` into the pane and locks it; computes nothing
/// itself. Throws `SubscriptOutOfRange` for a code or category that names no ribbon, and for a job
/// without task 1.
void CTDprint(RichText& RichTextBox1);

/// Computes the job and writes its report. Throws what the two throw.
void CtdComputeAndReport(RichText& RichTextBox1);

}  // namespace halvane
