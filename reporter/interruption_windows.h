#pragma once

#include <windows.h>

namespace halvane {

/// Is set when the user has pressed Ctrl-C.
HANDLE InterruptionEvent();

}  // namespace halvane
