#pragma once

#include <QIcon>

namespace halvane {

enum class HelpIcon { Back, Forward, Home, Find, Copy, Print, ZoomIn, ZoomOut, Contents };

/// A drawing in the text colour of the palette that is in use when it is painted, sharp at every
/// size.
QIcon MakeHelpIcon(HelpIcon which);

}  // namespace halvane
