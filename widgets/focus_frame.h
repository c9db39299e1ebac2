#pragma once

class QFrame;

namespace halvane {

/// Gives what scrolls a frame with room for `PaintFocusFrame`.
void SetUpFocusFrame(QFrame& frame);

/// Draws that frame: a band in the highlight colour while `frame` has the focus, else a thin line.
/// To be called while it paints itself, behind its own drawing. The style marks the focus of what
/// scrolls by a caret or one node, which may be out of sight.
void PaintFocusFrame(QFrame& frame);

}  // namespace halvane
