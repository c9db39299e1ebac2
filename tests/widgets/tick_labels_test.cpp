// Scales with words at their marks: under a slider, and printed.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QSlider>

#include "tests/support/form_support.h"
#include "widgets/layout.h"
#include "widgets/printed_scale.h"
#include "widgets/slider_scale.h"

namespace halvane {
namespace {

const QStringList kNumbers{"0",   "0.5", "1.0", "1.5", "2.0", "2.5",
                           "3.0", "3.5", "4.0", "4.5", "5+"};
const QStringList kWords{"Nothing At All",  "Very Very Weak (Just Noticeable)",
                         "Very Weak",       "",
                         "Weak (Light)",    "",
                         "Moderate",        "",
                         "Somewhat Strong", "",
                         "Strong (Heavy)"};

class Labels : public testing::Test {
 protected:
  Labels() : slider(new QSlider), scale(slider, kNumbers, kWords, nullptr) {
    SetUpSlider(*slider, "Slider1", 10, 2);
  }
  ~Labels() override { QApplication::setFont(usual); }

  void ShowAt(int width) {
    scale.resize(width, scale.heightForWidth(width));
    ShowActive(scale);
  }

  QFont usual = QApplication::font();
  QSlider* slider;
  SliderScale scale;
};

TEST_F(Labels, StandUnderTheHandleAtEachValue) {
  for (const int width : {scale.minimumSizeHint().width(), 700, 1061}) {
    ShowAt(width);
    EXPECT_TRUE(scale.rect().contains(slider->geometry()));
    for (int value = 0; value <= 10; ++value) {
      slider->setValue(value);
      const int handle = slider->x() + HandleOf(*slider).center().x();
      EXPECT_NEAR(scale.MarkAt(value, width), handle, 2) << width << " " << value;
    }
  }
}

TEST_F(Labels, WordsStandAtTheirMarksInsideAndApart) {
  for (const double points : {8.0, 9.0, 20.0}) {
    QFont font = usual;
    font.setPointSizeF(points);
    QApplication::setFont(font);
    QCoreApplication::processEvents();
    for (const int width : {scale.minimumSizeHint().width(), 700, 1061, 1861}) {
      const auto placed = scale.PlaceWords(width);
      ASSERT_EQ(placed.size(), 7U);
      const QRect room(0, 0, width, scale.heightForWidth(width));
      for (std::size_t i = 0; i < placed.size(); ++i) {
        const TickLabels::Placed& words = placed[i];
        EXPECT_TRUE(room.contains(words.box)) << points << " " << width << " " << i;
        EXPECT_EQ(words.mark, scale.MarkAt(words.position, width));
        EXPECT_LE(words.box.left(), words.mark);
        EXPECT_GE(words.box.right(), words.mark);
        const bool atAnEnd = words.box.left() == 0 || words.box.right() == width - 1;
        if (!atAnEnd) {
          EXPECT_NEAR(words.box.center().x(), words.mark, 1);
        }
        const QRect needed = scale.fontMetrics().boundingRect(
            0, 0, words.box.width(), 1000, Qt::TextWordWrap, kWords[words.position]);
        EXPECT_LE(needed.width(), words.box.width());
        EXPECT_LE(needed.height(), words.box.height());
        for (std::size_t other = 0; other < i; ++other) {
          EXPECT_FALSE(words.box.intersects(placed[other].box)) << points << " " << width;
        }
      }
    }
  }
}

TEST_F(Labels, OnlyWordsWithoutRoomStandLower) {
  const auto levels = [&](int width) {
    QList<int> found;
    for (const auto& words : scale.PlaceWords(width)) found.append(words.level);
    return found;
  };
  EXPECT_EQ(levels(3000), (QList<int>{0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(levels(700), (QList<int>{0, 1, 0, 0, 0, 0, 0}));
  EXPECT_LT(scale.heightForWidth(3000), scale.heightForWidth(700));
}

TEST_F(Labels, ALeadRunsFromTheNumberToWordsThatStandLower) {
  ShowAt(700);
  const QImage picture = scale.grab().toImage();
  const auto placed = scale.PlaceWords(700);
  const auto inked = [&](int x, int y) {
    return picture.pixelColor(x, y) != picture.pixelColor(x + 5, y);
  };
  EXPECT_TRUE(inked(placed[1].mark, placed[1].box.y() - 3));
  EXPECT_TRUE(inked(placed[1].mark, placed[1].box.y() - 12));
  // Where words stand at their number there is none.
  EXPECT_FALSE(inked(placed[3].mark, placed[3].box.y() - 2));
}

TEST_F(Labels, NumbersAloneTakeOneLine) {
  auto* bare = new QSlider;
  SetUpSlider(*bare, "Slider2", 10, 5);
  const SliderScale numbers(bare, kNumbers, {}, nullptr);
  EXPECT_EQ(numbers.numbers(), kNumbers);
  EXPECT_EQ(numbers.words(), QStringList());
  EXPECT_EQ(numbers.heightForWidth(500),
            bare->sizeHint().height() + numbers.fontMetrics().lineSpacing());
  EXPECT_GT(scale.heightForWidth(500), numbers.heightForWidth(500));
}

class Printed : public testing::Test {
 protected:
  Printed() : scale({"0", "1", "2"}, {"none", "some up to more", ""}, nullptr) {
    scale.StretchWords(1);
  }

  QImage Picture(const QColor& ground, const QColor& ink, const QColor& wedge) {
    QPalette palette(ground);
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Highlight, wedge);
    scale.setPalette(palette);
    scale.resize(400, scale.heightForWidth(400));
    return scale.grab().toImage();
  }

  PrintedScale scale;
};

TEST_F(Printed, IsInTheColoursOfThePalette) {
  const QImage dark = Picture(QColor(20, 20, 20), QColor(250, 250, 250), QColor(10, 200, 10));
  EXPECT_EQ(dark.pixelColor(1, 1), QColor(20, 20, 20));
  // The wedge is high at the end and nothing at the beginning.
  const int end = scale.MarkAt(2, 400);
  EXPECT_EQ(dark.pixelColor(end - 4, 4), QColor(10, 200, 10));
  EXPECT_EQ(dark.pixelColor(scale.MarkAt(0, 400) + 8, 4), QColor(20, 20, 20));
  int light = 0;
  for (int y = 0; y < dark.height(); ++y) {
    for (int x = 0; x < dark.width(); ++x) {
      if (dark.pixelColor(x, y).lightness() > 240) ++light;
    }
  }
  EXPECT_GT(light, 300) << "line, ticks and texts";
  EXPECT_LT(light, dark.width() * dark.height() / 5) << "no light ground";
}

TEST_F(Printed, WordsForTwoNumbersStandBetweenThem) {
  const auto placed = scale.PlaceWords(400);
  ASSERT_EQ(placed.size(), 2U);
  EXPECT_NEAR(placed[1].mark, (scale.MarkAt(1, 400) + scale.MarkAt(2, 400)) / 2, 1);
  const QImage picture = Picture(Qt::white, Qt::black, Qt::blue);
  // Under a line from one to the other.
  for (const double at : {1.0, 1.3, 1.7, 2.0}) {
    int lines = 0;
    for (int y = placed[1].box.y() - 3; y < placed[1].box.y(); ++y) {
      if (picture.pixelColor(scale.MarkAt(at, 400), y) != QColor(Qt::white)) ++lines;
    }
    EXPECT_EQ(lines, 1) << at;
  }
}

}  // namespace
}  // namespace halvane
