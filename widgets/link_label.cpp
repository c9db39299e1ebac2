#include "widgets/link_label.h"

#include <QKeyEvent>
#include <QPainter>

namespace halvane {
namespace {

constexpr int kPadding = 4;

}  // namespace

LinkLabel::LinkLabel(const QString& name, const QString& text, QWidget* parent)
    : QAbstractButton(parent) {
  setObjectName(name);
  setText(text);
  QFont underlined = font();
  underlined.setUnderline(true);
  setFont(underlined);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
}

QSize LinkLabel::sizeHint() const {
  const QSize line = fontMetrics().size(Qt::TextSingleLine, text());
  return line + QSize(2 * kPadding, 2 * kPadding);
}

void LinkLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
  if (!hasFocus()) return;
  painter.setPen(QPen(painter.pen().color(), 1, Qt::DotLine));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

}  // namespace halvane
