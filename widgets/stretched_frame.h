#pragma once

#include <QRect>
#include <functional>

class QPainter;

namespace halvane {

/// Draws a frame whose lines and inside are the same all along: from a small picture of it, made by
/// `draw`, its corners as they are and one colour for what lies between them. The toolkit stretches
/// pictures for that, pixel by pixel, which is a third of the work of drawing a page of groups.
/// `top` is the height of all that stands above its sides, a caption and the upper corners.
/// `draw` has to draw a frame of any size with the painter that it is given; it draws the whole
/// frame itself where that is small or not so, and at scales whose pixels lie across the frame's
/// own.
void DrawStretched(QPainter& painter, const QRect& area, int top,
                   const std::function<void(QPainter&, const QRect&)>& draw);

}  // namespace halvane
