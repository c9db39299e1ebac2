#include "widgets/raised_face.h"

#include <QColor>
#include <QPainter>

#include "widgets/strips.h"

namespace halvane {
namespace {

/// Dark blue as the contour of the hand; several layers of it lie one on another.
constexpr QColor kShadow(51, 63, 120, 52);
constexpr QPoint kShadowOffset(2, 3);
constexpr int kShadowLayers = 3;

QRectF WithinOutline(const QRect& whole) { return QRectF(whole).adjusted(1, 1, -1, -1); }

}  // namespace

void FillRounded(QPainter& painter, const QRectF& shape, double rounding) {
  // With the pixels that an edge shares at a scale that is no whole number.
  const QRect around = shape.toAlignedRect().adjusted(-1, -1, 1, 1);
  DrawInStrips(painter, around, [&] { painter.drawRoundedRect(shape, rounding, rounding); });
}

QRectF RaisedTop(const QRect& whole) {
  return WithinOutline(whole).adjusted(kRaisedEdge, kRaisedEdge, -kRaisedEdge, -kRaisedEdge);
}

void PaintRaisedFace(QPainter& painter, const QRect& whole, const QColor& face, const QColor& top,
                     bool held) {
  const QColor light = face.lighter(face.lightness() < 128 ? 160 : 112);
  const QColor dark = face.darker(155);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  // The dark outline, then the two edges one inside the other, then the face.
  painter.setBrush(face.darker(240));
  FillRounded(painter, whole, kCornerRadius);
  const QRectF inside = WithinOutline(whole);
  painter.setBrush(held ? light : dark);
  FillRounded(painter, inside, kCornerRadius - 1);
  painter.setBrush(held ? dark : light);
  FillRounded(painter, inside.adjusted(0, 0, -kRaisedEdge, -kRaisedEdge), kCornerRadius - 1);
  painter.setBrush(top);
  FillRounded(painter, RaisedTop(whole), kCornerRadius - kRaisedEdge);
  painter.restore();
}

void PaintRaisedFocus(QPainter& painter, const QRect& whole, const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, kRaisedEdge));
  painter.setBrush(Qt::NoBrush);
  const double half = kRaisedEdge / 2;
  painter.drawRoundedRect(WithinOutline(whole).adjusted(half, half, -half, -half),
                          kCornerRadius - 1, kCornerRadius - 1);
  painter.restore();
}

QRect ShadowOf(const QRect& whole) {
  const int wider = kShadowLayers - 1;
  return whole.translated(kShadowOffset).adjusted(-wider, -wider, wider, wider);
}

void PaintSoftShadow(QPainter& painter, const QRect& whole) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kShadow);
  const QRectF cast = QRectF(whole.translated(kShadowOffset));
  for (int wider = 0; wider < kShadowLayers; ++wider) {
    FillRounded(painter, cast.adjusted(-wider, -wider, wider, wider), kCornerRadius + wider);
  }
  painter.restore();
}

}  // namespace halvane
