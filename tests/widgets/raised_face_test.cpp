#include "widgets/raised_face.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace halvane {
namespace {

constexpr QSize kGround(90, 230);
/// Longer than what is filled at once, at an odd place and a half pixel off.
constexpr QRectF kShape(7, 5.5, 70, 211);
constexpr double kRounding = 7;

template <typename Fill>
QImage Filled(double ratio, Fill fill) {
  QImage image((QSizeF(kGround) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  // What two pieces both filled would be darker.
  painter.setBrush(QColor(51, 63, 120, 52));
  fill(painter);
  return image;
}

class RaisedFace : public testing::TestWithParam<double> {};

TEST_P(RaisedFace, AShapeFilledInPiecesHasNoSeams) {
  const QImage whole = Filled(
      GetParam(), [](QPainter& painter) { painter.drawRoundedRect(kShape, kRounding, kRounding); });
  const QImage pieces =
      Filled(GetParam(), [](QPainter& painter) { FillRounded(painter, kShape, kRounding); });
  EXPECT_EQ(pieces, whole);
  EXPECT_NE(pieces.pixelColor(pieces.rect().center()), QColor(Qt::white));
}

INSTANTIATE_TEST_SUITE_P(Scales, RaisedFace, testing::Values(1, 1.25, 1.5, 1.75, 2, 3));

}  // namespace
}  // namespace halvane
