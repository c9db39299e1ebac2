// Ribbons with pictures, and the page that they grow with.
#include "widgets/ribbon_page.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "widgets/choice_group.h"
#include "widgets/picture_inks.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

/// The part of a picture that is of another colour than its corner, frame lines aside.
QRect InkIn(const QImage& picture) {
  const QRect inside = picture.rect().adjusted(2, 2, -2, -2);
  const QRgb ground = picture.pixel(inside.topLeft());
  QRect ink;
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      if (picture.pixel(x, y) != ground) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

/// A page with a frame of ribbons, whose captions have different lengths, and a label below.
class Ribbons : public testing::Test {
 protected:
  Ribbons() {
    auto* column = new QVBoxLayout(&page);
    // Ribbons stand in widgets on the page, as the frames of the forms are.
    auto* frame = new QWidget(&page);
    auto* row = new QHBoxLayout(frame);
    auto* group = new ChoiceGroup(Choice::One, frame);
    for (const QString& caption : {QString("Neutral"), QString("Radial Deviation >15 deg.")}) {
      auto* ribbon = new RibbonButton(caption, caption, frame);
      ribbon->SetPicture("ctd/deviation_neutral");
      row->addWidget(ribbon);
      group->Add(*ribbon);
      ribbons.push_back(ribbon);
    }
    column->addWidget(frame);
    column->addWidget(new QLabel("below", &page));
    window.show();
  }

  void Resize(QSize size) {
    page.resize(size);
    QCoreApplication::sendPostedEvents();
  }

  [[nodiscard]] int Picture() const { return ribbons[0]->iconSize().width(); }

  QWidget window;
  RibbonPage& page = *new RibbonPage(&window);
  std::vector<RibbonButton*> ribbons;
};

TEST_F(Ribbons, GrowFromTheLeastPictureToTheLargest) {
  const QSize least = page.minimumSizeHint();
  Resize(least);
  EXPECT_EQ(Picture(), 56);
  int before = 56;
  for (int more = 0; more <= 300; ++more) {
    Resize(least + QSize(more, more));
    for (const RibbonButton* ribbon : ribbons) {
      ASSERT_EQ(ribbon->iconSize(), QSize(Picture(), Picture()));
      ASSERT_GE(ribbon->width(), ribbon->minimumSizeHint().width()) << more;
      ASSERT_GE(ribbon->height(), ribbon->minimumSizeHint().height()) << more;
      ASSERT_TRUE(ribbon->parentWidget()->rect().contains(ribbon->geometry())) << more;
    }
    ASSERT_EQ(Picture() % 8, 0) << more;
    ASSERT_GE(Picture(), before) << more;
    before = Picture();
    // What the page asks for does not grow with it: it could not be made smaller again.
    ASSERT_EQ(page.minimumSizeHint(), least) << more;
  }
  EXPECT_EQ(Picture(), 112);
  Resize(least);
  EXPECT_EQ(Picture(), 56);
}

TEST_F(Ribbons, GrowAsFarAsTheScarcerSideAllows) {
  const QSize least = page.minimumSizeHint();
  Resize({least.width() + 400, least.height()});
  EXPECT_EQ(Picture(), 56);
  Resize({least.width(), least.height() + 400});
  EXPECT_EQ(Picture(), 56);
  // Two ribbons side by side, so twice a step in width for one in height.
  Resize({least.width() + 200, least.height() + 24});
  EXPECT_EQ(Picture(), 80);
}

TEST_F(Ribbons, GetSmallerWhenSomethingElseNeedsTheRoom) {
  Resize(page.minimumSizeHint() + QSize(300, 60));
  const int before = Picture();
  ASSERT_GT(before, 56);
  auto* more = new QWidget(&page);
  more->setFixedHeight(40);
  page.layout()->addWidget(more);
  more->show();
  QCoreApplication::sendPostedEvents();
  EXPECT_LT(Picture(), before);
  EXPECT_GE(Picture(), 56);
}

TEST_F(Ribbons, PageKnowsTheFont) {
  const QSize least = page.minimumSizeHint();
  QFont large = page.font();
  large.setPointSize(2 * large.pointSize());
  page.setFont(large);
  QCoreApplication::sendPostedEvents();
  EXPECT_GT(page.minimumSizeHint().height(), least.height());
}

TEST_F(Ribbons, AreNoLargerThanPictureAndCaption) {
  Resize({1000, 800});
  const QSize size = ribbons[0]->size();
  EXPECT_EQ(ribbons[1]->size(), size);
  EXPECT_EQ(size.width(), 112 + 16);
  EXPECT_GT(size.height(), 112 + 2 * page.fontMetrics().height());
  EXPECT_LT(size.height(), 112 + 3 * page.fontMetrics().height());
}

TEST_F(Ribbons, CaptionsThatWrapHaveTheirRoom) {
  Resize(page.minimumSizeHint());
  const RibbonButton& ribbon = *ribbons[1];
  // In so narrow a button three lines.
  EXPECT_GE(ribbon.height(), 56 + 3 * page.fontMetrics().height());
  EXPECT_EQ(ribbons[0]->height(), ribbon.height());
}

TEST_F(Ribbons, PictureAndCaptionAreOneBlockInTheMiddle) {
  RibbonButton ribbon("a", "Pinch");
  ribbon.SetPicture("ctd/deviation_neutral");
  for (const QSize size : {QSize(90, 90), QSize(300, 91), QSize(101, 300), QSize(400, 300)}) {
    ribbon.resize(size);
    const int caption = ribbon.fontMetrics().height();
    const int top = (size.height() - 56 - 4 - caption) / 2;
    const QRect ink = InkIn(ribbon.grab().toImage());
    const auto label = std::to_string(size.width()) + "x" + std::to_string(size.height());
    // The figure is as high as its picture, give or take its margins.
    EXPECT_NEAR(ink.top(), top, 6) << label;
    EXPECT_NEAR(ink.bottom(), top + 56 + 4 + caption, 6) << label;
    EXPECT_NEAR(ink.center().x(), size.width() / 2, 3) << label;
  }
}

TEST_F(Ribbons, StandLevelInARow) {
  Resize({1000, 800});
  // Of a caption with one line and one with two, the pictures begin at one height.
  EXPECT_EQ(InkIn(ribbons[0]->grab().toImage()).top(), InkIn(ribbons[1]->grab().toImage()).top());
  ASSERT_GT(InkIn(ribbons[1]->grab().toImage()).bottom(),
            InkIn(ribbons[0]->grab().toImage()).bottom());
}

TEST_F(Ribbons, PictureIsDrawnInTheSizeThatItHas) {
  Resize({1000, 800});
  const QPoint corner(8, (ribbons[0]->height() - 112 - 4 - 2 * page.fontMetrics().height()) / 2);
  const QImage drawn = ribbons[0]->grab().toImage();
  QImage expected(112, 112, QImage::Format_RGB32);
  const QColor ground = drawn.pixelColor(3, 3);
  expected.fill(ground);
  QPainter painter(&expected);
  painter.drawPixmap(0, 0, InkedPicture("ctd/deviation_neutral", ground, 112));
  // Pixel for pixel, so it is not a small picture that was stretched.
  EXPECT_EQ(drawn.copy(QRect(corner, QSize(112, 112))).convertToFormat(QImage::Format_RGB32),
            expected);
}

}  // namespace
}  // namespace halvane
