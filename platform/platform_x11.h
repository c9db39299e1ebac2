#pragma once

#include <Qt>

class QRegion;
class QWidget;

namespace halvane {

/// Cuts a created window to a region in the screen's own pixels: the toolkit's masks know logical
/// ones only, which gives stairs where one of them is several pixels. False where the program does
/// not run on X11.
bool ShapeX11Window(const QWidget& window, const QRegion& region);

/// Has the window manager move the window until that mouse button is released: the toolkit tells it
/// of the left button only. Nothing happens when the button is up again. False where the program
/// does not run on X11.
bool MoveX11Window(const QWidget& window, Qt::MouseButton button);

}  // namespace halvane
