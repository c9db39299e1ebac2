#include "widgets/raised_button.h"

#include <QPainter>

namespace halvane {
namespace {

constexpr double kRounding = 5;
constexpr double kEdge = 2;
constexpr int kSides = 16;

}  // namespace

RaisedButton::RaisedButton(const QString& name, QWidget* parent) : QPushButton(parent) {
  setObjectName(name);
  setAttribute(Qt::WA_Hover);
}

QSize RaisedButton::sizeHint() const {
  if (text().isEmpty()) return iconSize();
  return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(kSides, kSides / 2);
}

void RaisedButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor face = palette().color(QPalette::Button);
  const QColor light = face.lighter(face.lightness() < 128 ? 160 : 112);
  const QColor dark = face.darker(155);
  const bool held = isDown();

  // The dark outline, then the two edges one inside the other, then the face.
  painter.setPen(Qt::NoPen);
  const QRectF whole = rect();
  painter.setBrush(face.darker(240));
  painter.drawRoundedRect(whole, kRounding, kRounding);
  const QRectF inside = whole.adjusted(1, 1, -1, -1);
  painter.setBrush(held ? light : dark);
  painter.drawRoundedRect(inside, kRounding - 1, kRounding - 1);
  painter.setBrush(held ? dark : light);
  painter.drawRoundedRect(inside.adjusted(0, 0, -kEdge, -kEdge), kRounding - 1, kRounding - 1);
  painter.setBrush(held ? face.darker(112) : underMouse() ? face.lighter(106) : face);
  const QRectF top = inside.adjusted(kEdge, kEdge, -kEdge, -kEdge);
  painter.drawRoundedRect(top, kRounding - kEdge, kRounding - kEdge);

  painter.setPen(palette().color(QPalette::ButtonText));
  const QRectF content = held ? top.translated(1, 1) : top;
  if (icon().isNull()) {
    painter.drawText(content, Qt::AlignCenter | Qt::TextSingleLine, text());
  } else {
    QRect place(QPoint(), iconSize());
    place.moveCenter(rect().center() + QPoint(held, held));
    icon().paint(&painter, place);
  }
  if (!hasFocus()) return;
  // In the place of the two edges, so that a small button has room for it beside its picture.
  painter.setPen(QPen(painter.pen().color(), kEdge));
  painter.setBrush(Qt::NoBrush);
  const double half = kEdge / 2;
  painter.drawRoundedRect(inside.adjusted(half, half, -half, -half), kRounding - 1, kRounding - 1);
}

}  // namespace halvane
