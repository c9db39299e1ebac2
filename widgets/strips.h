#pragma once

#include <QRect>
#include <functional>

class QPainter;

namespace halvane {

/// Rows of the device that a strip has at most.
constexpr int kRowsOfAStrip = 40;

/// Draws what lies in `area` in strips, by calling `draw` once for each with the painter clipped to
/// it: where pieces of rows are 96 and more, of which a row has two at smooth edges and beside
/// other windows, the toolkit gives them to threads, which take longer to wake up than to fill a
/// panel.
void DrawInStrips(QPainter& painter, const QRect& area, const std::function<void()>& draw);

/// The same with a strip's rectangles of what the toolkit has to paint one after the other, for
/// what has long lines: those that are cut at one rectangle go straight to their pixels, where
/// beside the children of a widget each pixel would be looked up among all rectangles that there
/// are.
void DrawInRectangles(QPainter& painter, const QRect& area, const std::function<void()>& draw);

/// The same for what sets a clip of its own: at whole scales each strip is drawn on a picture of
/// its own, `draw`'s painter in the coordinates of `painter`.
void DrawByStrips(QPainter& painter, const QRect& area, const std::function<void(QPainter&)>& draw);

}  // namespace halvane
