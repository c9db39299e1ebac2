#pragma once

#include <functional>
#include <string_view>
#include <thread>

namespace halvane {

/// From here on the first Ctrl-C, and the first `SIGTERM` where the system has it, is only noted,
/// so that what is done can be written; a second one ends the program at once. A program that was
/// started to ignore one goes on ignoring it.
void WatchForInterruption();

/// Starts a thread that what asks for the end does not come to: it is for the one that may be
/// waiting for input. Throws as `std::thread` does.
std::thread StartUninterrupted(std::function<void()> work);

/// Whether the program is asked to end.
bool IsInterrupted();

/// What has come: "interrupted" or "terminated".
std::string_view InterruptionWord();

/// Ends the program as what has come does, so that who started it sees why. Comes back where that
/// is prevented, with the exit status that tells it.
int EndByInterruption();

}  // namespace halvane
