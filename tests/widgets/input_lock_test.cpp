#include "widgets/input_lock.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QShortcut>
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

TEST(InputLock, KeepsShortcutsFromItsWindow) {
  QWidget locked;
  int times = 0;
  QObject::connect(new QShortcut(Qt::Key_F1, &locked), &QShortcut::activated,
                   [&times] { ++times; });
  locked.show();
  locked.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&locked));
  auto lock = std::make_unique<InputLock>(locked);
  QTest::keyClick(locked.windowHandle(), Qt::Key_F1);
  EXPECT_EQ(times, 0);
  lock.reset();
  QTest::keyClick(locked.windowHandle(), Qt::Key_F1);
  EXPECT_EQ(times, 1);
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
