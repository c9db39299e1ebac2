#pragma once

#include <functional>

#include "platform/platform.h"

namespace halvane {

/// The first installed viewer of system information: the desktop's own, named as
/// XDG_CURRENT_DESKTOP names it, else one that belongs to no desktop. No program when there is
/// none.
ProgramCall FindSystemViewer(const QStringList& desktops,
                             const std::function<bool(const QString&)>& installed);

}  // namespace halvane
