// Frames of groups are those of the toolkit, pixel by pixel, and drawn from a small picture.
#include "widgets/stretched_frame.h"

#include <gtest/gtest.h>

#include <QFont>
#include <QGroupBox>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionGroupBox>
#include <vector>

#include "tests/support/palettes.h"
#include "widgets/readable_style.h"

namespace halvane {
namespace {

constexpr QSize kGround(260, 240);
constexpr int kTop = 30;

using Draw = std::function<void(QPainter&, const QRect&)>;

/// What is drawn at an odd place of a ground of so many device pixels a logical one.
QImage Drawn(double ratio, const std::function<void(QPainter&)>& draw,
             const QColor& ground = Qt::white, const QRegion& seen = {}) {
  QImage image((QSizeF(kGround) * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(ground);
  image.paintEngine()->setSystemClip(seen);
  QPainter painter(&image);
  draw(painter);
  return image;
}

/// A frame below a caption's height, with lines of four colours and a translucent inside. No two of
/// what is translucent lie on each other, which would be mixed otherwise in a picture.
void DrawFrame(QPainter& painter, const QRect& place) {
  const QRect frame = place.adjusted(0, kTop - 8, 0, 0);
  const QRect inside = frame.adjusted(3, 2, -1, -1);
  painter.fillRect(inside, QColor(0, 0, 0, 20));
  painter.fillRect(QRect(frame.topLeft(), QSize(frame.width(), 2)), QColor(200, 20, 20));
  painter.fillRect(QRect(frame.topLeft(), QSize(3, frame.height())), QColor(20, 20, 200));
  painter.fillRect(QRect(inside.left(), frame.bottom(), inside.width(), 1), QColor(0, 90, 0, 90));
  painter.fillRect(QRect(frame.right(), inside.top(), 1, inside.height()), QColor(9, 8, 7, 200));
  painter.fillRect(QRect(frame.topLeft(), QSize(5, 5)), Qt::yellow);
}

/// A frame whose inside gets darker towards one side.
void DrawShaded(QPainter& painter, const QRect& place) {
  for (int x = place.left(); x <= place.right(); ++x) {
    const int grey = 255 - (x - place.left()) % 256;
    painter.fillRect(QRect(x, place.top(), 1, place.height()), QColor(grey, grey, grey));
  }
}

void DrawShadedDownwards(QPainter& painter, const QRect& place) {
  for (int y = place.top(); y <= place.bottom(); ++y) {
    const int grey = 255 - (y - place.top()) % 256;
    painter.fillRect(QRect(place.left(), y, place.width(), 1), QColor(grey, grey, grey));
  }
}

class StretchedFrame : public testing::TestWithParam<double> {};

TEST_P(StretchedFrame, IsTheFrameAsAWhole) {
  // From the least that is stretched to one of several strips.
  for (const QSize size : {QSize(19, kTop + 11), QSize(20, kTop + 12), QSize(230, 50),
                           QSize(31, 220), QSize(240, 230), QSize(18, 200), QSize(200, 20)}) {
    for (const Draw& draw : {Draw(DrawFrame), Draw(DrawShaded), Draw(DrawShadedDownwards)}) {
      const QRect area(QPoint(7, 5), size);
      const QImage whole = Drawn(GetParam(), [&](QPainter& on) { draw(on, area); });
      const QImage stretched =
          Drawn(GetParam(), [&](QPainter& on) { DrawStretched(on, area, kTop, draw); });
      EXPECT_EQ(stretched, whole) << size.width() << " by " << size.height();
      EXPECT_NE(whole, Drawn(GetParam(), [](QPainter&) {}));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Scales, StretchedFrame, testing::Values(1, 1.25, 1.5, 2, 3));

/// The places that a frame is asked for.
std::vector<QRect> AskedFor(double ratio, const QRect& area, const Draw& draw) {
  std::vector<QRect> places;
  Drawn(ratio, [&](QPainter& on) {
    DrawStretched(on, area, kTop, [&](QPainter& painter, const QRect& place) {
      places.push_back(place);
      draw(painter, place);
    });
  });
  return places;
}

TEST(StretchedFrames, AreDrawnFromOneSmallPicture) {
  const QRect area(7, 5, 240, 230);
  for (const double ratio : {1.0, 2.0, 3.0}) {
    const std::vector<QRect> places = AskedFor(ratio, area, DrawFrame);
    ASSERT_EQ(places.size(), 1U) << ratio;
    EXPECT_LT(places[0].width() * places[0].height(), area.width() * area.height() / 50);
  }
  // Between two pixels, and where the inside is not the same all along, as a whole.
  EXPECT_EQ(AskedFor(1.25, area, DrawFrame).back(), area);
  EXPECT_EQ(AskedFor(1, area, DrawShaded).back(), area);
  EXPECT_EQ(AskedFor(1, area, DrawShadedDownwards).back(), area);
}

/// A group as a style draws it on its window.
QImage Group(QStyle& style, const QGroupBox& group, double ratio, const QRegion& seen) {
  QStyleOptionGroupBox option;
  option.initFrom(&group);
  option.rect = QRect(QPoint(7, 5), group.size());
  option.text = group.title();
  option.subControls = QStyle::SC_GroupBoxFrame;
  if (!group.title().isEmpty()) option.subControls |= QStyle::SC_GroupBoxLabel;
  return Drawn(
      ratio,
      [&](QPainter& on) {
        on.setFont(group.font());
        style.drawComplexControl(QStyle::CC_GroupBox, &option, &on, &group);
      },
      group.palette().color(QPalette::Window), seen);
}

TEST(StretchedFrames, GroupsLookAsTheToolkitDrawsThem) {
  ReadableStyle readable;
  QProxyStyle toolkits;
  for (const double ratio : {1.0, 2.0}) {
    for (const int points : {9, 14, 36}) {
      for (const QString& title : {QString(), QString("Caption")}) {
        for (const QPalette& palette : {QPalette(), DarkPalette()}) {
          QGroupBox group(title);
          group.setPalette(palette);
          QFont font = group.font();
          font.setPointSize(points);
          group.setFont(font);
          group.resize(240, 210);
          const QRegion all;
          const QRegion beside = QRegion(0, 0, int(260 * ratio), int(240 * ratio)) -
                                 QRegion(int(40 * ratio), int(60 * ratio), 90, 50);
          for (const QRegion& seen : {all, beside}) {
            EXPECT_EQ(Group(readable, group, ratio, seen), Group(toolkits, group, ratio, seen))
                << ratio << ' ' << points << ' ' << title.toStdString();
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace halvane
