#include "widgets/heading_label.h"

namespace halvane {
namespace {

QSize BoxOf(const QString& text, int width, const QFontMetrics& font) {
  return font.boundingRect(0, 0, width, QWIDGETSIZE_MAX, Qt::TextWordWrap, text).size();
}

/// What so many lines need, which is not always a multiple of what one does.
int HeightOfLines(int lines, const QFontMetrics& font) {
  return BoxOf(QStringList(lines, "x").join('\n'), QWIDGETSIZE_MAX, font).height();
}

}  // namespace

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

int WidthForLines(const QString& text, int lines, const QFontMetrics& font) {
  const int height = HeightOfLines(lines, font);
  int width = BoxOf(text, 0, font).width();  // of the widest word
  while (BoxOf(text, width, font).height() > height) ++width;
  return width;
}

}  // namespace halvane
