// Where the help window stands.
#include <QTest>

#include "help/help_window.h"
#include "tests/help/help_support.h"

namespace halvane {
namespace {

class HelpPlace : public HelpWindowTest {};

TEST_F(HelpPlace, IsTheStandardSizeInTheMiddleOfTheScreen) {
  const QRect place = Show("home.htm").geometry();
  EXPECT_EQ(place.size(), QSize(1120, 700));
  EXPECT_NEAR(place.center().x(), 960, 5);
  EXPECT_NEAR(place.center().y(), 540, 20);
}

TEST_F(HelpPlace, IsOnASmallScreenWithItsFrame) {
  for (const QRect screen : {QRect(0, 0, 1024, 768), QRect(0, 30, 800, 570)}) {
    platform.SetAvailableArea(screen);
    EXPECT_TRUE(screen.contains(Show("home.htm").frameGeometry())) << screen.width();
    window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(viewer.window(), nullptr);
  }
}

TEST_F(HelpPlace, IsTheOneOfTheWindowBefore) {
  const QRect place(70, 80, 900, 600);
  Show("home.htm").setGeometry(place);
  for (int again = 0; again < 3; ++again) {
    window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(viewer.window(), nullptr);
    EXPECT_EQ(Show("home.htm").geometry(), place);
  }
}

}  // namespace
}  // namespace halvane
