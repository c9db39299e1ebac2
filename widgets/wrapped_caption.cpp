#include "widgets/wrapped_caption.h"

#include <QCheckBox>
#include <QMouseEvent>

#include "widgets/layout.h"

namespace halvane {

WrappedCaption::WrappedCaption(QCheckBox& box, const QString& caption, QWidget* parent)
    : QLabel(caption, parent), box_(box) {
  setWordWrap(true);
  // The first line stands at the mark of the box.
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void WrappedCaption::SetMostLines(int lines) {
  mostLines_ = lines;
  leastWidth_ = WidthForLines(fontMetrics(), text(), lines);
  updateGeometry();
}

QSize WrappedCaption::minimumSizeHint() const {
  return QLabel::minimumSizeHint().expandedTo({leastWidth_, 0});
}

void WrappedCaption::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange && mostLines_ > 0) SetMostLines(mostLines_);
}

void WrappedCaption::mouseReleaseEvent(QMouseEvent* event) {
  QLabel::mouseReleaseEvent(event);
  const bool inside = rect().contains(event->position().toPoint());
  if (event->button() == Qt::LeftButton && inside) box_.click();
}

}  // namespace halvane
