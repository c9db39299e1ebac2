#include "widgets/text_lines.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

namespace halvane {
namespace {

QSize BoxIn(const QString& text, int width, const QFontMetrics& font) {
  return font.boundingRect(0, 0, width, QWIDGETSIZE_MAX, Qt::TextWordWrap, text).size();
}

TEST(TextLines, TheWidthForSomeLinesIsTheLeastInWhichTheyAreEnough) {
  for (const int points : {8, 9, 14, 20}) {
    QFont font = QApplication::font();
    font.setPointSize(points);
    const QFontMetrics metrics(font);
    for (const QString text :
         {"Strong", "Very Very Weak (Just Noticeable)",
          "Rapid, steady motion/difficulty keeping up or continuous exertion"}) {
      const int widestWord = BoxIn(text, 0, metrics).width();
      for (const int lines : {1, 2, 3}) {
        const int height = HeightOfLines(lines, metrics);
        const int width = WidthForLines(text, lines, metrics);
        EXPECT_GE(width, widestWord);
        EXPECT_LE(BoxIn(text, width, metrics).height(), height) << text.toStdString() << lines;
        // Narrower, a line more is needed.
        if (width > widestWord) {
          EXPECT_GT(BoxIn(text, width - 1, metrics).height(), height)
              << text.toStdString() << lines;
        }
      }
    }
  }
}

}  // namespace
}  // namespace halvane
