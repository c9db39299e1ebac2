#include "widgets/window_place.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "tests/support/form_support.h"

void PrintTo(const QRect& place, std::ostream* stream) {
  *stream << place.x() << "," << place.y() << " " << place.width() << "x" << place.height();
}

void PrintTo(const QSize& size, std::ostream* stream) {
  *stream << size.width() << "x" << size.height();
}

namespace halvane {
namespace {

constexpr QSize kStandard{1120, 700};
constexpr QSize kLeast{960, 620};
constexpr QMargins kFrame{1, 20, 3, 4};

WindowMeasures On(const QRect& available) { return {kStandard, kLeast, available, kFrame}; }

TEST(FirstPlace, IsTheStandardSizeInTheMiddleWithTheFrame) {
  // 1124 x 724 with the frame, 796 x 316 left over.
  EXPECT_EQ(FirstPlace(On({0, 0, 1920, 1040})), QRect(398 + 1, 158 + 20, 1120, 700));
  EXPECT_EQ(FirstPlace(On({1920, 40, 1920, 1040})),
            QRect(1920 + 398 + 1, 40 + 158 + 20, 1120, 700));
}

TEST(FirstPlace, IsNoLargerThanTheScreenWithTheFrame) {
  EXPECT_EQ(FirstPlace(On({0, 0, 1024, 768})), QRect(1, 42, 1020, 700));
  EXPECT_EQ(FirstPlace(On({0, 0, 1280, 720})), QRect(79, 20, 1120, 696));
  EXPECT_EQ(FirstPlace(On({10, 30, 800, 570})), QRect(11, 50, 796, 546));
}

TEST(FirstPlace, IsTheLeastSizeWhereThatIsMoreThanTheStandardOne) {
  WindowMeasures measures = On({0, 0, 1920, 1080});
  measures.least = {1300, 800};
  EXPECT_EQ(FirstPlace(measures).size(), QSize(1300, 800));
  measures.available = {0, 0, 1280, 1024};
  EXPECT_EQ(FirstPlace(measures).size(), QSize(1276, 800));
}

TEST(LeastSize, IsBoundedByTheScreen) {
  EXPECT_EQ(LeastSize(On({0, 0, 1024, 768})), kLeast);
  EXPECT_EQ(LeastSize(On({0, 0, 900, 768})), QSize(896, 620));
  EXPECT_EQ(LeastSize(On({0, 0, 800, 600})), QSize(796, 576));
}

TEST(PlaceAgain, IsWhereItWas) {
  for (const QRect last : {QRect(1, 20, 960, 620), QRect(300, 200, 1120, 700),
                           QRect(-500, 20, 1000, 700), QRect(1700, 1000, 1000, 700)}) {
    EXPECT_EQ(PlaceAgain(last, On({0, 0, 1920, 1080})), last);
  }
}

TEST(PlaceAgain, HasThePartOfTheTitleBarThatTheMouseTakesHoldOf) {
  const WindowMeasures measures = On({100, 50, 1920, 1030});
  const QSize size(1000, 640);
  EXPECT_EQ(PlaceAgain({{300, 0}, size}, measures), QRect({300, 70}, size));
  EXPECT_EQ(PlaceAgain({{300, 3000}, size}, measures), QRect({300, 1080}, size));
  EXPECT_EQ(PlaceAgain({{-2000, 300}, size}, measures), QRect({100 + 96 - 1000, 300}, size));
  EXPECT_EQ(PlaceAgain({{9000, 300}, size}, measures), QRect({2020 - 96, 300}, size));
}

TEST(PlaceAgain, IsAFirstPlaceWhereTheScreenHasBecomeTooSmall) {
  const WindowMeasures measures = On({0, 0, 1024, 768});
  EXPECT_EQ(PlaceAgain({200, 100, 1120, 700}, measures), FirstPlace(measures));
}

TEST(PlaceAgain, IsNoSmallerThanTheLeastSize) {
  EXPECT_EQ(PlaceAgain({200, 100, 500, 400}, On({0, 0, 1920, 1080})), QRect(200, 100, 960, 620));
}

class PlacedWindow : public ShellTest {
 protected:
  void Open(QWidget& window) {
    new WindowPlace(
        window, kStandard, [] { return kLeast; }, last);
    ShowActive(window);
  }

  LastPlace last;
};

TEST_F(PlacedWindow, OpensWithItsFrameOnTheScreen) {
  platform.SetAvailableArea({0, 0, 800, 600});
  QWidget window;
  Open(window);
  EXPECT_TRUE(QRect(0, 0, 800, 600).contains(window.frameGeometry()));
  EXPECT_GE(window.width(), 780);
  EXPECT_GE(window.height(), 550);
  EXPECT_EQ(window.minimumSize(), window.size());
}

TEST_F(PlacedWindow, IsShownAgainWhereItWas) {
  QWidget window;
  Open(window);
  window.setGeometry(33, 44, 1000, 650);
  for (int showing = 0; showing < 5; ++showing) {
    window.hide();
    ShowActive(window);
    EXPECT_EQ(window.geometry(), QRect(33, 44, 1000, 650));
  }
}

TEST_F(PlacedWindow, IsMadeAgainWhereTheOneBeforeWas) {
  for (int window = 0; window < 3; ++window) {
    QWidget made;
    Open(made);
    if (window == 0) made.setGeometry(33, 44, 1000, 650);
    EXPECT_EQ(made.geometry(), QRect(33, 44, 1000, 650));
    made.close();
  }
}

TEST_F(PlacedWindow, StaysMaximisedAndKeepsThePlaceThatItHadBefore) {
  auto window = std::make_unique<QWidget>();
  Open(*window);
  window->setGeometry(33, 44, 1000, 650);
  window->showMaximized();
  window->hide();
  EXPECT_TRUE(last.maximized);
  EXPECT_EQ(last.place, QRect(33, 44, 1000, 650));
  window = std::make_unique<QWidget>();
  Open(*window);
  EXPECT_TRUE(window->isMaximized());
}

}  // namespace
}  // namespace halvane
