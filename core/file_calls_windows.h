#pragma once

#include <windows.h>

#include <cstdint>
#include <system_error>

namespace halvane::files {

/// An error of the system: the usual condition that it stands for, where there is one.
std::error_code ErrorOf(DWORD number);

/// The error of the call that failed last.
std::error_code LastError();

/// What is open, in the system's own type for it, which is a pointer.
HANDLE HandleOf(std::intptr_t handle);

/// Whether a name with these attributes leads to another file or folder. `tag` tells the kind of
/// what stands in the file's place, if anything does: files that a service keeps elsewhere until
/// they are opened have one too, and are no links.
bool IsLink(DWORD attributes, DWORD tag);

}  // namespace halvane::files
