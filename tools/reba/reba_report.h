#pragma once

#include "core/rich_text.h"

namespace halvane {

/// Writes the result of the last `REBA_Calculate` into the pane, which stays open to typing. Throws
/// `SubscriptOutOfRange` where `RebaControlState` names a control that there is not.
void REBA_Report(RichText& RichTextBox1);

/// Computes the job and writes its report. Throws what the two throw.
void RebaComputeAndReport(RichText& RichTextBox1);

}  // namespace halvane
