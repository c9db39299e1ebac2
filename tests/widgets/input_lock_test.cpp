#include "widgets/input_lock.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QWindow>
#include <memory>

namespace halvane {
namespace {

TEST(InputLock, KeepsKeysAndMouseFromItsWindowAloneUntilItsEnd) {
  QWidget locked;
  QLineEdit box(&locked);
  locked.show();
  QLineEdit other;
  other.show();
  auto lock = std::make_unique<InputLock>(locked);
  QTest::keyClick(&box, 'x');
  QTest::keyClick(locked.windowHandle(), 'x');
  box.setText("all");
  QTest::mouseDClick(&box, Qt::LeftButton);
  QTest::keyClick(&other, 'x');
  EXPECT_EQ(box.text(), "all");
  EXPECT_EQ(box.selectedText(), "");
  EXPECT_EQ(other.text(), "x");
  lock.reset();
  QTest::mouseDClick(&box, Qt::LeftButton);
  EXPECT_EQ(box.selectedText(), "all");
  QTest::keyClick(&box, 'x');
  EXPECT_EQ(box.text(), "x");
}

TEST(InputLock, LetsItsWindowBeClosed) {
  QWidget locked;
  locked.show();
  const InputLock lock(locked);
  locked.close();
  EXPECT_FALSE(locked.isVisible());
}

}  // namespace
}  // namespace halvane
