#include "widgets/heading_label.h"

#include "widgets/text_lines.h"

namespace halvane {

HeadingLabel::HeadingLabel(const QString& text, int lines, QWidget* parent)
    : QLabel(text, parent), lines_(lines) {
  setWordWrap(true);
  setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
}

QSize HeadingLabel::minimumSizeHint() const {
  const QMargins around = contentsMargins();
  return {WidthForLines(text(), lines_, fontMetrics()) + around.left() + around.right(),
          HeightOfLines(lines_, fontMetrics()) + around.top() + around.bottom()};
}

}  // namespace halvane
