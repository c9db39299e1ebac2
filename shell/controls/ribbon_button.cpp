#include "shell/controls/ribbon_button.h"

#include <QPainter>
#include <QPalette>
#include <algorithm>

namespace halvane {
namespace {

constexpr int kPadding = 5;
/// A caption wider than this many average characters wraps.
constexpr int kWidestLine = 17;

}  // namespace

RibbonButton::RibbonButton(const QString& name, const QString& caption, QWidget* parent)
    : QAbstractButton(parent) {
  setObjectName(name);
  setText(caption);
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize RibbonButton::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int widest = kWidestLine * metrics.averageCharWidth();
  const int width = std::min(metrics.horizontalAdvance(text()) + 1, widest);
  const QRect box =
      metrics.boundingRect(0, 0, width, 10000, Qt::TextWordWrap | Qt::AlignCenter, text());
  return {std::max(width, box.width()) + 2 * kPadding, box.height() + 2 * kPadding};
}

void RibbonButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  const bool down = isChecked();
  const bool near = underMouse() && isEnabled() && !down;
  const QColor fill = palette().color(group, down ? QPalette::Highlight : QPalette::Button);
  painter.fillRect(rect(), near ? fill.lighter(108) : fill);
  painter.setPen(palette().color(group, QPalette::Mid));
  // Neighbours share one line.
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setPen(palette().color(group, down ? QPalette::HighlightedText : QPalette::ButtonText));
  painter.drawText(rect().adjusted(kPadding, kPadding, -kPadding, -kPadding),
                   Qt::TextWordWrap | Qt::AlignCenter, text());
  if (hasFocus()) {
    QPen pen(painter.pen().color(), 1, Qt::DashLine);
    painter.setPen(pen);
    painter.drawRect(rect().adjusted(3, 3, -4, -4));
  }
}

}  // namespace halvane
