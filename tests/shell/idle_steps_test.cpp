#include "shell/idle_steps.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>

namespace halvane {
namespace {

constexpr int kSteps = 3;
/// Far longer than all steps take with their pauses.
constexpr int kLong = 2000;

class IdleStepsTest : public ::testing::Test {
 protected:
  void SetUp() override { window.show(); }

  std::deque<IdleSteps::Step> Counting() {
    return std::deque<IdleSteps::Step>(kSteps, [this] { ++done; });
  }

  QWidget window;
  int done = 0;
};

TEST_F(IdleStepsTest, AreDoneOneATurn) {
  IdleSteps steps(Counting(), nullptr);
  EXPECT_EQ(done, 0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return done == 1; }, kLong));
  EXPECT_FALSE(steps.isOver());
  EXPECT_TRUE(QTest::qWaitFor([&steps] { return steps.isOver(); }, kLong));
  EXPECT_EQ(done, kSteps);
}

TEST_F(IdleStepsTest, EndWithTheFirstKey) {
  const IdleSteps steps(Counting(), nullptr);
  QTest::keyClick(&window, Qt::Key_Tab);
  EXPECT_TRUE(steps.isOver());
}

TEST_F(IdleStepsTest, EndWithTheFirstMouseButton) {
  const IdleSteps steps(Counting(), nullptr);
  QTest::mouseClick(&window, Qt::RightButton);
  EXPECT_TRUE(steps.isOver());
}

TEST_F(IdleStepsTest, EndWhenAWindowComesUp) {
  const IdleSteps steps(Counting(), nullptr);
  QWidget control(&window);
  control.show();
  EXPECT_FALSE(steps.isOver());
  QWidget other;
  other.show();
  EXPECT_TRUE(steps.isOver());
}

TEST_F(IdleStepsTest, GoOnWhileTheMouseMoves) {
  const IdleSteps steps(Counting(), nullptr);
  QTest::mouseMove(&window, QPoint(3, 3));
  EXPECT_FALSE(steps.isOver());
}

}  // namespace
}  // namespace halvane
