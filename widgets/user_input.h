#pragma once

class QEvent;

namespace halvane {

/// Whether an event is what the user does with keys, mouse or fingers, and so can change the job.
bool IsUserInput(const QEvent& event);

}  // namespace halvane
