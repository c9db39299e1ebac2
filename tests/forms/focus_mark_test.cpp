// Whoever works without a mouse sees where they are.
#include <QImage>
#include <QTest>

#include "tests/forms/every_window.h"
#include "widgets/contrast.h"

namespace halvane {
namespace {

/// A mark may stand around a control.
constexpr int kAround = 3;

/// How many pixels of a place differ so much that the eye sees it.
int SeenChanges(const QImage& before, const QImage& after, const QRect& place) {
  constexpr double kSeen = 1.5;
  int changes = 0;
  const QRect part = place.intersected(before.rect());
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      const QColor one = before.pixelColor(x, y);
      const QColor other = after.pixelColor(x, y);
      if (one != other && Contrast(one, other) >= kSeen) ++changes;
    }
  }
  return changes;
}

TEST_F(EveryWindow, EveryStopOfTheTabKeyShowsItsFocus) {
  for (const auto& window : Windows()) {
    ShowActive(*window);
    OnEveryTab(*window, [&window] {
      QTest::keyClick(window.get(), Qt::Key_Tab);
      QList<QWidget*> seen;
      for (QWidget* stop = window->focusWidget(); stop != nullptr && !seen.contains(stop);
           stop = window->focusWidget()) {
        seen.append(stop);
        QCoreApplication::processEvents();
        const QImage with = window->grab().toImage();
        QTest::keyClick(stop, Qt::Key_Tab);
        QCoreApplication::processEvents();
        const QImage without = window->grab().toImage();
        const QRect place(stop->mapTo(window.get(), QPoint(0, 0)), stop->size());
        const QRect around = place.adjusted(-kAround, -kAround, kAround, kAround);
        // As much as a line along two of its sides.
        EXPECT_GE(SeenChanges(with, without, around), (stop->width() + stop->height()) / 2)
            << window->objectName().toStdString() << " " << stop->objectName().toStdString();
      }
    });
    window->hide();
  }
}

}  // namespace
}  // namespace halvane
