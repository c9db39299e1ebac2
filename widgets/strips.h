#pragma once

#include <QRect>
#include <functional>

class QPainter;

namespace halvane {

/// Rows of the device that a strip of plain pieces has at most, and one of shapes with smooth
/// edges, each row of which counts several times.
constexpr int kPlainRows = 88;
constexpr int kSmoothRows = 40;

/// Draws what lies in `area` in strips, by calling `draw` once for each with the painter clipped to
/// it: the toolkit gives a piece of 96 rows and more to threads, which take longer to wake up than
/// to fill all of a panel.
void DrawInStrips(QPainter& painter, const QRect& area, int rows,
                  const std::function<void()>& draw);

}  // namespace halvane
