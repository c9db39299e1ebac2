#pragma once

#include <QColor>
#include <QRectF>
#include <QRegion>
#include <QString>
#include <vector>

class QWidget;

namespace halvane {

/// A text as it came from a painter, in the coordinates of the widget that was drawn.
struct PaintedText {
  QString text;
  /// What the letters cover.
  QRectF ink;
  /// Where it may be seen.
  QRegion clip;
  QColor color;
};

/// Every text that a widget and what stands in it paint within `region`, in the order of painting.
/// Nothing is drawn for it: the texts are written down where they would be drawn.
std::vector<PaintedText> TextsPaintedBy(QWidget& widget, const QRegion& region);

}  // namespace halvane
