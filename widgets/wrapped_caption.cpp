#include "widgets/wrapped_caption.h"

#include <QCheckBox>
#include <QMouseEvent>

#include "widgets/spoken.h"
#include "widgets/text_lines.h"

namespace halvane {

WrappedCaption::WrappedCaption(QCheckBox& box, const QString& caption, QWidget* parent)
    : WrappingLabel(caption, parent), box_(box) {
  // The first line stands at the mark of the box.
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // The box has it as its name.
  KeepUnspoken(*this);
}

void WrappedCaption::SetMostLines(int lines) {
  mostLines_ = lines;
  leastWidth_ = WidthForLines(text(), lines, fontMetrics());
  updateGeometry();
}

QSize WrappedCaption::minimumSizeHint() const {
  return WrappingLabel::minimumSizeHint().expandedTo({leastWidth_, 0});
}

void WrappedCaption::changeEvent(QEvent* event) {
  WrappingLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange && mostLines_ > 0) SetMostLines(mostLines_);
}

void WrappedCaption::mouseReleaseEvent(QMouseEvent* event) {
  WrappingLabel::mouseReleaseEvent(event);
  const bool inside = rect().contains(event->position().toPoint());
  if (event->button() == Qt::LeftButton && inside) box_.click();
}

}  // namespace halvane
