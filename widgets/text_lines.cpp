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
  int width = BoxOf(text, 0, font).width();  // of the widest word
  while (BoxOf(text, width, font).height() > height) ++width;
  return width;
}

}  // namespace halvane
