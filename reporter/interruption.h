#pragma once

namespace halvane {

/// From here on the first Ctrl-C is only noted, so that what is done can be written; a second one
/// ends the program at once. A program that was started to ignore Ctrl-C goes on ignoring it.
void WatchForInterruption();

/// Whether the user has pressed Ctrl-C.
bool IsInterrupted();

/// Ends the program as Ctrl-C does, so that who started it sees why. Comes back where that is
/// prevented.
void EndByInterruption();

}  // namespace halvane
