#include "widgets/strips.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QRegion>
#include <algorithm>

namespace halvane {
namespace {

constexpr QSize kGround(60, 300);
/// At an odd place.
constexpr QRect kArea(7, 5, 40, 283);

/// A ground of so many device pixels a logical one, and what is drawn on it, where it is seen: all
/// over or in a region of device pixels.
template <typename Draw>
QImage Drawn(double ratio, Draw draw, const QRegion& seen = {}) {
  QImage image((QSizeF(kGround) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  image.paintEngine()->setSystemClip(seen);
  QPainter painter(&image);
  // What two strips both drew would be darker.
  painter.setPen(QColor(51, 63, 120, 100));
  painter.setBrush(QColor(51, 63, 120, 30));
  draw(painter);
  return image;
}

class Strips : public testing::TestWithParam<double> {};

TEST_P(Strips, ShowWhatIsDrawnAsAWhole) {
  // Its lines are partly beyond the area.
  const QImage whole = Drawn(GetParam(), [](QPainter& painter) { painter.drawRect(kArea); });
  const QImage strips = Drawn(GetParam(), [](QPainter& painter) {
    DrawInStrips(painter, kArea, [&] { painter.drawRect(kArea); });
  });
  EXPECT_EQ(strips, whole);
}

INSTANTIATE_TEST_SUITE_P(Scales, Strips, testing::Values(1, 1.1, 1.25, 1.5, 1.75, 2, 3));

/// The largest strip of the area, in rows of the device, and how many there are.
std::pair<double, int> StripsAt(double ratio, const QRect& area) {
  double rows = 0;
  int count = 0;
  Drawn(ratio, [&](QPainter& painter) {
    DrawInStrips(painter, area, [&] {
      const QRectF strip = painter.hasClipping() ? painter.clipBoundingRect() : QRectF(area);
      rows = std::max(rows, (strip & QRectF(area)).height() * ratio);
      ++count;
    });
  });
  return {rows, count};
}

TEST(Strips, HaveFewRowsOfTheDevice) {
  for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    SCOPED_TRACE(ratio);
    const auto [rows, count] = StripsAt(ratio, kArea);
    EXPECT_LE(rows, kRowsOfAStrip);
    EXPECT_GE(count, kArea.height() * ratio / kRowsOfAStrip);
  }
}

TEST(Strips, WhatIsLowIsDrawnOnce) {
  EXPECT_EQ(StripsAt(1, QRect(7, 5, 40, kRowsOfAStrip)), std::pair(double{kRowsOfAStrip}, 1));
}

TEST(Strips, LeaveTheClipOfThePainter) {
  const QRect clip(0, 0, 60, 20);
  const QImage image = Drawn(1, [&](QPainter& painter) {
    painter.setClipRect(clip);
    DrawInStrips(painter, kArea, [&] { painter.drawRect(kArea); });
    EXPECT_EQ(painter.clipBoundingRect(), QRectF(clip));
  });
  EXPECT_EQ(image.pixelColor(20, clip.bottom() + 1), QColor(Qt::white));
  EXPECT_NE(image.pixelColor(20, clip.bottom()), QColor(Qt::white));
}

/// What is seen of a window beside what stands in it, in device pixels.
QRegion Beside(double ratio) {
  const auto scaled = [ratio](const QRect& rect) {
    return QRectF(rect.topLeft() * ratio, QSizeF(rect.size()) * ratio).toAlignedRect();
  };
  return QRegion(scaled(QRect(QPoint(), kGround))) - scaled({14, 20, 25, 240}) -
         scaled({20, 265, 10, 20});
}

TEST_P(Strips, OfRectanglesShowWhatIsDrawnAsAWhole) {
  const auto draw = [](QPainter& painter) {
    painter.drawRect(kArea);
    painter.fillRect(kArea.adjusted(3, 3, -3, -3), QColor(200, 30, 30, 90));
  };
  const QRegion seen = Beside(GetParam());
  const QImage whole = Drawn(GetParam(), draw, seen);
  int pieces = 0;
  const QImage rectangles = Drawn(
      GetParam(),
      [&](QPainter& painter) {
        DrawInRectangles(painter, kArea, [&] {
          ++pieces;
          draw(painter);
        });
      },
      seen);
  EXPECT_EQ(rectangles, whole);
  // Some of the ground was left out.
  EXPECT_NE(whole, Drawn(GetParam(), draw));
  // A strip for each 40 rows, of two pieces beside what stands there; none at a scale without.
  EXPECT_GT(pieces, GetParam() == 1.1 ? 0 : 10);
}

}  // namespace
}  // namespace halvane
