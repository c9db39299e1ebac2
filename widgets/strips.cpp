#include "widgets/strips.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QRegion>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace halvane {
namespace {

/// Strips of so many logical rows end between two pixels at every scale of whole quarters.
constexpr int kWhole = 4;
/// A line on the edge of an area may lie beyond it.
constexpr int kBeyond = 4;
/// Rectangles of a strip, one after the other; more of them take longer so than at once.
constexpr int kMostRectangles = 3;

/// Strips that follow one another share no pixel.
QRect PixelsOf(const QRectF& strip) {
  const QPoint topLeft(qRound(strip.left()), qRound(strip.top()));
  return {topLeft, QPoint(qRound(strip.right()) - 1, qRound(strip.bottom()) - 1)};
}

void DrawClipped(QPainter& painter, const QRectF& clip, const std::function<void()>& draw) {
  painter.save();
  painter.setClipRect(clip, Qt::IntersectClip);
  draw();
  painter.restore();
}

template <typename DrawStrip>
void OnStrips(const QPainter& painter, const QRect& area, const std::function<void()>& drawAll,
              const DrawStrip& drawStrip) {
  const QTransform transform = painter.deviceTransform();
  const double scale = transform.m22();
  const bool fits = transform.type() <= QTransform::TxScale && scale > 0 &&
                    scale * kWhole == std::floor(scale * kWhole);
  const int step =
      fits ? std::max(1, static_cast<int>(kRowsOfAStrip / scale) / kWhole) * kWhole : 0;
  if (!fits || area.height() <= step) return drawAll();
  const QRect wide = area.adjusted(-kBeyond, 0, kBeyond, 0);
  for (int top = area.top(); top <= area.bottom(); top += step) {
    const bool isFirst = top == area.top();
    const bool isLast = top + step > area.bottom();
    drawStrip(QRect(wide.left(), top, wide.width(), step)
                  .adjusted(0, isFirst ? -kBeyond : 0, 0, isLast ? kBeyond : 0));
  }
}

}  // namespace

void DrawInStrips(QPainter& painter, const QRect& area, const std::function<void()>& draw) {
  OnStrips(painter, area, draw, [&](const QRectF& strip) { DrawClipped(painter, strip, draw); });
}

void DrawInRectangles(QPainter& painter, const QRect& area, const std::function<void()>& draw) {
  const QTransform toDevice = painter.deviceTransform();
  const QTransform toLogical = toDevice.inverted();
  const QRegion painted = painter.paintEngine()->systemClip();
  OnStrips(painter, area, draw, [&](const QRectF& strip) {
    const QRegion seen = painted & PixelsOf(toDevice.mapRect(strip));
    if (painted.isEmpty() || seen.rectCount() > kMostRectangles) {
      DrawClipped(painter, strip, draw);
      return;
    }
    for (const QRect& rectangle : seen) {
      DrawClipped(painter, toLogical.mapRect(QRectF(rectangle)), draw);
    }
  });
}

void DrawByStrips(QPainter& painter, const QRect& area,
                  const std::function<void(QPainter&)>& draw) {
  const double scale = painter.deviceTransform().m22();
  // Elsewhere a strip may begin within a pixel.
  if (scale != std::floor(scale)) return draw(painter);
  const auto drawAll = [&] { draw(painter); };
  OnStrips(painter, area, drawAll, [&](const QRectF& strip) {
    QImage picture((strip.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter onPicture(&picture);
    onPicture.translate(-strip.topLeft());
    draw(onPicture);
    painter.drawImage(strip.topLeft(), picture);
  });
}

}  // namespace halvane
