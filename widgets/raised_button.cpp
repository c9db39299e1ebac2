#include "widgets/raised_button.h"

#include <QPainter>

#include "widgets/raised_face.h"

namespace halvane {
namespace {

constexpr int kSides = 16;
constexpr int kEdges = 6;

}  // namespace

RaisedButton::RaisedButton(const QString& name, QWidget* parent) : QPushButton(parent) {
  setObjectName(name);
  setAttribute(Qt::WA_Hover);
}

QSize RaisedButton::sizeHint() const {
  if (text().isEmpty()) return iconSize();
  return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(kSides, kEdges);
}

void RaisedButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor face = palette().color(QPalette::Button);
  const bool held = isDown();
  const QColor top = held ? face.darker(112) : underMouse() ? face.lighter(106) : face;
  PaintRaisedFace(painter, rect(), face, top, held);

  painter.setPen(palette().color(QPalette::ButtonText));
  const QRectF content = RaisedTop(rect()).translated(held, held);
  if (icon().isNull()) {
    painter.drawText(content, Qt::AlignCenter | Qt::TextSingleLine, text());
  } else {
    QRect place(QPoint(), iconSize());
    place.moveCenter(rect().center() + QPoint(held, held));
    icon().paint(&painter, place);
  }
  if (hasFocus()) PaintRaisedFocus(painter, rect(), painter.pen().color());
}

}  // namespace halvane
