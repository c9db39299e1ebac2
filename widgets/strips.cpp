#include "widgets/strips.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace halvane {
namespace {

/// Strips of so many logical rows end between two pixels at every scale of whole quarters.
constexpr int kWhole = 4;
/// A line on the edge of an area may lie beyond it.
constexpr int kBeyond = 4;

}  // namespace

void DrawInStrips(QPainter& painter, const QRect& area, const std::function<void()>& draw) {
  const QTransform transform = painter.deviceTransform();
  const double scale = transform.m22();
  const bool fits = transform.type() <= QTransform::TxScale && scale > 0 &&
                    scale * kWhole == std::floor(scale * kWhole);
  const int step =
      fits ? std::max(1, static_cast<int>(kRowsOfAStrip / scale) / kWhole) * kWhole : 0;
  if (!fits || area.height() <= step) return draw();
  const QRect wide = area.adjusted(-kBeyond, 0, kBeyond, 0);
  for (int top = area.top(); top <= area.bottom(); top += step) {
    const bool isFirst = top == area.top();
    const bool isLast = top + step > area.bottom();
    painter.save();
    painter.setClipRect(QRect(wide.left(), top, wide.width(), step)
                            .adjusted(0, isFirst ? -kBeyond : 0, 0, isLast ? kBeyond : 0),
                        Qt::IntersectClip);
    draw();
    painter.restore();
  }
}

}  // namespace halvane
