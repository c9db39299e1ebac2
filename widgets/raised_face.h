#pragma once

#include <QRect>

class QColor;
class QPainter;

namespace halvane {

/// The rounding of everything that lies on the hand, in logical pixels.
inline constexpr double kCornerRadius = 5;
/// The width of the two edges of a raised face.
inline constexpr double kRaisedEdge = 2;

/// Fills a shape with round corners with the painter's brush.
void FillRounded(QPainter& painter, const QRectF& shape, double rounding);
/// The part of a raised control within its edges.
QRectF RaisedTop(const QRect& whole);
/// Paints a three-dimensional control: round corners, light above and dark below, the other way
/// round while it is held down. `top` is the colour within the edges.
void PaintRaisedFace(QPainter& painter, const QRect& whole, const QColor& face, const QColor& top,
                     bool held);
/// Paints the focus in the place of the two edges, so that a small control has room for it beside
/// its picture.
void PaintRaisedFocus(QPainter& painter, const QRect& whole, const QColor& color);
/// The part of the ground that the shadow of a control falls on.
QRect ShadowOf(const QRect& whole);
/// Paints the shadow that a control casts to the lower right, for the ground that it lies on.
void PaintSoftShadow(QPainter& painter, const QRect& whole);

}  // namespace halvane
