#include "widgets/focus_frame.h"

#include <QFrame>
#include <QPainter>

namespace halvane {
namespace {

constexpr int kWidth = 2;
constexpr int kLine = 1;

void PaintBand(QPainter& painter, const QRect& place, int width, const QColor& color) {
  const QRect inside = place.adjusted(width, width, -width, -width);
  painter.setClipRegion(QRegion(place).subtracted(inside));
  painter.fillRect(place, color);
}

}  // namespace

void SetUpFocusFrame(QFrame& frame) {
  frame.setFrameStyle(QFrame::Box | QFrame::Plain);
  frame.setLineWidth(kWidth);
}

void PaintFocusFrame(QFrame& frame) {
  QPainter painter(&frame);
  const QPalette& palette = frame.palette();
  if (frame.hasFocus()) {
    PaintBand(painter, frame.rect(), kWidth, palette.color(QPalette::Highlight));
  } else {
    PaintBand(painter, frame.rect(), kWidth, palette.color(QPalette::Base));
    PaintBand(painter, frame.rect(), kLine, palette.color(QPalette::Mid));
  }
}

}  // namespace halvane
