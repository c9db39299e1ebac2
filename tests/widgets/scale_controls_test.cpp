#include <gtest/gtest.h>

#include <QLabel>
#include <QSlider>
#include <QTest>
#include <QWheelEvent>

#include "tests/support/form_support.h"
#include "widgets/labelled_scale.h"
#include "widgets/layout.h"
#include "widgets/mouse_slider.h"

namespace halvane {
namespace {

/// The middle of a child, from the left edge of its window.
int MiddleOf(const QWidget& widget, const QRect& place) {
  return widget.mapTo(widget.window(), place.center()).x();
}

class Scale : public testing::Test {
 protected:
  Scale() : slider_(new QSlider(nullptr)), scale_(slider_, nullptr) {
    SetUpSlider(*slider_, "Slider1", 10, 2);
    for (int i = 0; i < kMarks; ++i) {
      // Each a little longer than the one before it.
      scale_.AddMark(QString("%1").arg(2 * i), ElementName("Label4", i),
                     QString("extraordinarily ") + QString("long words ").repeated(i + 1),
                     ElementName("Label5", i));
    }
  }
  void ShowAt(int width) {
    scale_.resize(width, scale_.heightForWidth(width));
    ShowActive(scale_);
  }

  static constexpr int kMarks = 6;
  QSlider* slider_;
  LabelledScale scale_;
};

TEST_F(Scale, HandleStandsUnderTheMarkOfItsValueAtEveryWidth) {
  for (const int width : {scale_.minimumSizeHint().width(), 700, 901}) {
    ShowAt(width);
    for (int i = 0; i < kMarks; ++i) {
      slider_->setValue(2 * i);
      const auto& tick = Find<QLabel>(scale_, ElementName("Label4", i));
      const auto& words = Find<QLabel>(scale_, ElementName("Label5", i));
      const int handle = MiddleOf(*slider_, HandleOf(*slider_));
      EXPECT_NEAR(MiddleOf(tick, tick.rect()), handle, 3) << width << " " << i;
      EXPECT_NEAR(MiddleOf(words, words.rect()), handle, 3) << width << " " << i;
      EXPECT_EQ(tick.alignment(), Qt::AlignHCenter | Qt::AlignTop);
    }
  }
}

TEST_F(Scale, TicksStandOverWordsAndWordsOverTheSliderWithRoomForAll) {
  for (const int width : {scale_.minimumSizeHint().width(), 700, 901}) {
    ShowAt(width);
    for (int i = 0; i < kMarks; ++i) {
      const auto& tick = Find<QLabel>(scale_, ElementName("Label4", i));
      const auto& words = Find<QLabel>(scale_, ElementName("Label5", i));
      EXPECT_LE(tick.geometry().bottom(), words.geometry().top()) << width << " " << i;
      EXPECT_LE(words.geometry().bottom(), slider_->geometry().top()) << width << " " << i;
      EXPECT_GE(words.height(), words.heightForWidth(words.width())) << width << " " << i;
      EXPECT_GE(words.width(), words.minimumSizeHint().width()) << width << " " << i;
      if (i > 0) {
        const auto& before = Find<QLabel>(scale_, ElementName("Label5", i - 1));
        EXPECT_LT(before.geometry().right(), words.geometry().left()) << width << " " << i;
      }
    }
    EXPECT_TRUE(scale_.rect().contains(slider_->geometry()));
    EXPECT_EQ(slider_->height(), slider_->sizeHint().height());
  }
}

TEST_F(Scale, IsLowerWhereItIsWider) {
  EXPECT_TRUE(scale_.hasHeightForWidth());
  EXPECT_LT(scale_.heightForWidth(1200), scale_.minimumSizeHint().height());
}

TEST_F(Scale, LeadRunsFromShortWordsDownToTheSlider) {
  ShowAt(700);
  const auto& words = Find<QLabel>(scale_, "Label5(0)");
  const QImage picture = scale_.grab().toImage();
  const int middle = words.geometry().center().x();
  int darker = 0;
  for (int x = middle - 1; x <= middle + 2; ++x) {
    const QColor pixel = picture.pixelColor(x, slider_->y() - 2);
    if (pixel.lightness() < picture.pixelColor(middle - 8, slider_->y() - 2).lightness() - 30) {
      ++darker;
    }
  }
  EXPECT_EQ(darker, 1);
}

/// A slider of 0 to 100 that stands at 50, and how often it told of the mouse.
class Mouse : public testing::Test {
 protected:
  Mouse() {
    SetUpSlider(slider_, "Slider3", 100, 5);
    slider_.setValue(50);
    slider_.resize(400, slider_.sizeHint().height());
    ShowActive(slider_);
    QObject::connect(&slider_, &MouseSlider::mouseHeld, &slider_, [this] {
      ++told_;
      value_ = slider_.value();
    });
  }
  MouseSlider slider_;
  int told_ = 0;
  int value_ = -1;  ///< of the slider, when it told last
};

TEST_F(Mouse, PressAndEachMoveWithAButtonAreTold) {
  const QPoint handle = HandleOf(slider_).center();
  QTest::mousePress(&slider_, Qt::LeftButton, {}, handle);
  EXPECT_EQ(told_, 1);
  EXPECT_EQ(value_, 50);
  MoveMouse(slider_, handle + QPoint(100, 0), Qt::LeftButton);
  EXPECT_EQ(told_, 2);
  EXPECT_GT(value_, 60);
  EXPECT_EQ(value_, slider_.value());
  MoveMouse(slider_, handle + QPoint(100, 0), Qt::LeftButton);
  EXPECT_EQ(told_, 3) << "also where the value stays";
  QTest::mouseRelease(&slider_, Qt::LeftButton, {}, handle + QPoint(100, 0));
  EXPECT_EQ(told_, 3);
}

TEST_F(Mouse, MoveWithoutAButtonIsNotTold) {
  slider_.setMouseTracking(true);
  MoveMouse(slider_, HandleOf(slider_).center(), Qt::NoButton);
  MoveMouse(slider_, HandleOf(slider_).center() + QPoint(50, 0), Qt::NoButton);
  EXPECT_EQ(told_, 0);
  EXPECT_EQ(slider_.value(), 50);
}

TEST_F(Mouse, PressBesideTheHandleIsToldWithEachPageThatFollows) {
  const QPoint end(slider_.width() - 2, HandleOf(slider_).center().y());
  QTest::mousePress(&slider_, Qt::LeftButton, {}, end);
  EXPECT_EQ(told_, 1);
  EXPECT_EQ(value_, 55);
  EXPECT_TRUE(QTest::qWaitFor([this] { return told_ >= 3; }));
  EXPECT_EQ(value_, slider_.value());
  EXPECT_EQ(value_, 50 + 5 * told_);
  QTest::mouseRelease(&slider_, Qt::LeftButton, {}, end);
}

TEST_F(Mouse, KeysAndTheWheelMoveItWithoutAWord) {
  QTest::keyClick(&slider_, Qt::Key_Right);
  EXPECT_EQ(slider_.value(), 51);
  QTest::keyClick(&slider_, Qt::Key_PageUp);
  EXPECT_EQ(slider_.value(), 56);
  QWheelEvent wheel(QPointF(200, 5), slider_.mapToGlobal(QPointF(200, 5)), {}, QPoint(0, 120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&slider_, &wheel);
  EXPECT_GT(slider_.value(), 56);
  slider_.setValue(3);
  EXPECT_EQ(told_, 0);
}

TEST_F(Mouse, KeyAfterARelasedButtonIsNotTold) {
  const QPoint handle = HandleOf(slider_).center();
  QTest::mouseClick(&slider_, Qt::LeftButton, {}, handle);
  EXPECT_EQ(told_, 1);
  QTest::keyClick(&slider_, Qt::Key_Right);
  EXPECT_EQ(told_, 1);
}

}  // namespace
}  // namespace halvane
