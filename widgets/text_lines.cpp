#include "widgets/text_lines.h"

#include <QFontMetrics>
#include <QStringList>
#include <QWidget>

namespace halvane {
namespace {

QSize BoxOf(const QString& text, int width, const QFontMetrics& font) {
  return font.boundingRect(0, 0, width, QWIDGETSIZE_MAX, Qt::TextWordWrap, text).size();
}

}  // namespace

int HeightOfLines(int lines, const QFontMetrics& font) {
  return BoxOf(QStringList(lines, "x").join('\n'), QWIDGETSIZE_MAX, font).height();
}

int WidthForLines(const QString& text, int lines, const QFontMetrics& font) {
  const int height = HeightOfLines(lines, font);
  const auto isHigher = [&](int width) { return BoxOf(text, width, font).height() > height; };
  int width = BoxOf(text, 0, font).width();  // of the widest word
  if (!isHigher(width)) return width;
  // A wider text is never higher.
  int enough = 2 * width;
  while (isHigher(enough)) enough *= 2;
  while (enough - width > 1) {
    const int middle = (width + enough) / 2;
    (isHigher(middle) ? width : enough) = middle;
  }
  return enough;
}

}  // namespace halvane
