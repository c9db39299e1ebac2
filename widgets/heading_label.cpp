#include "widgets/heading_label.h"

#include "widgets/text_lines.h"

namespace halvane {

HeadingLabel::HeadingLabel(const QString& text, int lines, QWidget* parent)
    : QLabel(text, parent), lines_(lines) {
  setWordWrap(true);
  setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
}

QSize HeadingLabel::minimumSizeHint() const {
  if (!known_.least.isValid() || known_.text != text() || known_.font != font()) {
    known_ = {
        text(), font(),
        QSize(WidthForLines(text(), lines_, fontMetrics()), HeightOfLines(lines_, fontMetrics()))};
  }
  return known_.least.grownBy(contentsMargins());
}

}  // namespace halvane
