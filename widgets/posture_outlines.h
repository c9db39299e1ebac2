#pragma once

#include <QByteArray>
#include <QColor>
#include <QPainterPath>
#include <array>
#include <vector>

class QPainter;

namespace halvane {

/// Width and height of a posture in its own coordinates.
inline constexpr double kPostureSide = 56;

/// The colours that a posture is drawn in: that of what parts limbs from each other, then those of
/// the inks in their order, and that of signs on buttons.
using PostureColors = std::array<QColor, 7>;

/// An area of a posture, filled with one colour.
struct PostureOutline {
  quint8 color = 0;  ///< its place in PostureColors
  double opacity = 1;
  QPainterPath path;
};

/// A posture in the form in which the program carries it, its coordinates in hundredths: the build
/// makes this out of an SVG file (widgets/posture_drawing.h). From back to front, an outline a
/// record: color, 8 bits; opacity in percent, 8 bits; 1 where overlapping parts stay filled, 8
/// bits; how many pieces the path has, 16 bits; of each its type as the toolkit numbers them, 8
/// bits, and x and y of its point or of the three points of a curve, 16 bits.
[[nodiscard]] QByteArray BytesOf(const std::vector<PostureOutline>& posture);

/// Fills the outlines of such bytes, in the painter's coordinates from 0 to `kPostureSide`.
void DrawPosture(QPainter& painter, const QByteArray& bytes, const PostureColors& colors);

}  // namespace halvane
