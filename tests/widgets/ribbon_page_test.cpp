// Ribbons with pictures, and the page that they grow with.
#include "widgets/ribbon_page.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QTest>
#include <algorithm>
#include <set>

#include "widgets/choice_group.h"
#include "widgets/posture_picture.h"
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
  Resize(least);
  const int around = least.width() - 2 * ribbons[0]->width();
  Resize({least.width() + 400, least.height()});
  EXPECT_EQ(Picture(), 56);
  Resize({least.width(), least.height() + 400});
  EXPECT_EQ(Picture(), 56);
  Resize({least.width() + 200, least.height() + 24});
  EXPECT_EQ(Picture(), 80);
  // A ribbon is wider than its picture by 8 pixels and a quarter of what the picture has grown.
  Resize({around + 2 * (80 + 8 + 6), least.height() + 200});
  EXPECT_EQ(Picture(), 80);
  Resize({around + 2 * (80 + 8 + 6) - 1, least.height() + 200});
  EXPECT_EQ(Picture(), 72);
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

/// A ribbon that notes with which sizes of its picture it was measured.
class MeasuredRibbon : public RibbonButton {
 public:
  explicit MeasuredRibbon(QWidget& parent) : RibbonButton("a", "a", &parent) {
    SetPicture("ctd/deviation_neutral");
  }
  [[nodiscard]] QSize minimumSizeHint() const override {
    pictures.insert(iconSize().width());
    return RibbonButton::minimumSizeHint();
  }
  mutable std::set<int> pictures{};
};

TEST_F(Ribbons, AreNotMeasuredWithOtherPicturesWhenAPageIsShownAgain) {
  auto& ribbon = *new MeasuredRibbon(page);
  page.layout()->addWidget(&ribbon);
  ribbon.show();
  Resize({1000, 800});
  EXPECT_GT(ribbon.pictures.size(), 1U);
  ASSERT_EQ(Picture(), 112);
  const QSize least = page.minimumSizeHint();
  for (int turn = 0; turn < 2; ++turn) {
    ribbon.pictures.clear();
    page.hide();
    EXPECT_EQ(page.minimumSizeHint(), least);
    page.show();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(Picture(), 112);
  }
  ribbon.pictures.erase(112);
  EXPECT_EQ(ribbon.pictures, std::set<int>{});
}

TEST_F(Ribbons, FitAPageThatHasChangedWhileItWasHidden) {
  Resize(page.minimumSizeHint() + QSize(300, 60));
  const int before = Picture();
  ASSERT_GT(before, 56);
  const QSize least = page.minimumSizeHint();
  page.hide();
  auto* more = new QWidget(&page);
  more->setFixedHeight(40);
  page.layout()->addWidget(more);
  EXPECT_GE(page.minimumSizeHint().height(), least.height() + 40);
  page.show();
  QCoreApplication::sendPostedEvents();
  EXPECT_LT(Picture(), before);
}

TEST_F(Ribbons, ThatAreHiddenHaveTheirPicturesDrawnBeforeTheyAreShown) {
  ribbons[1]->SetPicture("ctd/neck_60");
  ribbons[1]->hide();
  const QColor ground = ribbons[1]->palette().color(QPalette::Button);
  const auto isDrawn = [&] { return IsPostureDrawn("ctd/neck_60", ground, 112); };
  Resize({1000, 800});
  ASSERT_FALSE(isDrawn());
  EXPECT_TRUE(QTest::qWaitFor(isDrawn));
  EXPECT_FALSE(IsPostureDrawn("ctd/neck_60", ground, 56));
  EXPECT_FALSE(ribbons[1]->DrawAhead());
}

TEST_F(Ribbons, OfAPageThatIsClosedAreNotDrawn) {
  ribbons[1]->SetPicture("ctd/neck_45");
  ribbons[1]->hide();
  const QColor ground = ribbons[1]->palette().color(QPalette::Button);
  Resize({1000, 800});
  window.hide();
  QTest::qWait(100);
  EXPECT_FALSE(IsPostureDrawn("ctd/neck_45", ground, 112));
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
  EXPECT_EQ(size.width(), 112 + 8 + 14);
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
    EXPECT_NEAR(2 * ink.center().x(), size.width(), 7) << label;
  }
}

TEST_F(Ribbons, StandLevelInARow) {
  Resize({1000, 800});
  // Of a caption with one line and one with two, the pictures begin at one height.
  EXPECT_EQ(InkIn(ribbons[0]->grab().toImage()).top(), InkIn(ribbons[1]->grab().toImage()).top());
  ASSERT_GT(InkIn(ribbons[1]->grab().toImage()).bottom(),
            InkIn(ribbons[0]->grab().toImage()).bottom());
}

TEST_F(Ribbons, StandLevelWithAnotherGroupOfTheirRow) {
  RibbonButton other("other", "Power Grip");
  other.SetPicture("ctd/grip_power");
  Resize(page.minimumSizeHint());
  ASSERT_LT(other.sizeHint().height(), ribbons[0]->height());
  other.StandLevelWith(*ribbons[0]);
  EXPECT_EQ(other.sizeHint().height(), ribbons[0]->height());
  // Nothing but the height.
  EXPECT_EQ(other.sizeHint().width(), 64);
}

TEST_F(Ribbons, LinesOfACaptionAreAlikeInLength) {
  RibbonButton ribbon("a", "aaaa aaaa aaaa aaaa");
  const int word = ribbon.fontMetrics().horizontalAdvance("aaaa");
  const int blank = ribbon.fontMetrics().horizontalAdvance(' ');
  // Room for three words in a line and no more.
  ribbon.resize(3 * word + 2 * blank + 12, 100);
  EXPECT_NEAR(InkIn(ribbon.grab().toImage()).width(), 2 * word + blank, 4);
}

TEST_F(Ribbons, PictureIsDrawnInTheSizeThatItHas) {
  Resize({1000, 800});
  const QPoint corner(11, (ribbons[0]->height() - 112 - 4 - 2 * page.fontMetrics().height()) / 2);
  const QImage drawn = ribbons[0]->grab().toImage();
  QImage expected(112, 112, QImage::Format_RGB32);
  expected.fill(drawn.pixelColor(3, 3));
  QPainter painter(&expected);
  painter.drawPixmap(0, 0, PosturePicture("ctd/deviation_neutral", drawn.pixelColor(3, 3), 112));
  // Pixel for pixel, so it is not a small picture that was stretched.
  EXPECT_EQ(drawn.copy(QRect(corner, QSize(112, 112))).convertToFormat(QImage::Format_RGB32),
            expected);
}

}  // namespace
}  // namespace halvane
