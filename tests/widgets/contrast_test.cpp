#include "widgets/contrast.h"

#include <gtest/gtest.h>

namespace halvane {
namespace {

struct Pair {
  QColor one;
  QColor other;
  double contrast;
};

TEST(Contrast, IsTheRatioOfLuminances) {
  // Worked out apart from the program, to three digits.
  const Pair pairs[] = {
      {Qt::black, Qt::white, 21},
      {Qt::white, Qt::white, 1},
      {Qt::white, QColor(119, 119, 119), 4.478},
      {Qt::white, QColor(118, 118, 118), 4.542},
      {Qt::white, QColor(255, 0, 0), 3.998},
      {Qt::white, QColor(0, 0, 255), 8.592},
      {Qt::white, QColor(48, 140, 198), 3.689},
      {QColor(5, 5, 5), Qt::black, 1.030},
  };
  for (const Pair& pair : pairs) {
    EXPECT_NEAR(Contrast(pair.one, pair.other), pair.contrast, 0.0006) << pair.contrast;
    EXPECT_EQ(Contrast(pair.one, pair.other), Contrast(pair.other, pair.one));
  }
}

TEST(Contrast, AColorGoesNoFurtherThanItHasTo) {
  EXPECT_EQ(ApartFrom(Qt::white, QColor(0, 80, 160)), QColor(0, 80, 160));
  for (const QColor& painted : {QColor(Qt::white), QColor(Qt::black), QColor(26, 235, 255)}) {
    for (const QColor& fill : {QColor(48, 140, 198), QColor(42, 130, 218), QColor(150, 150, 150),
                               QColor(90, 0, 90), QColor(Qt::white), QColor(Qt::black)}) {
      const double contrast = Contrast(painted, ApartFrom(painted, fill));
      EXPECT_GE(contrast, kTextContrast) << fill.name().toStdString();
      if (Contrast(painted, fill) >= kTextContrast) continue;
      EXPECT_LT(contrast, kTextContrast + 0.5) << fill.name().toStdString();
    }
  }
  EXPECT_GE(Contrast(Qt::white, ApartFrom(Qt::white, QColor(200, 200, 200), kPartContrast)), 3);
}

}  // namespace
}  // namespace halvane
