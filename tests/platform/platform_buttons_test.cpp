// Letters of buttons act when they are pressed. The program's own application runs each test.

#include "platform/platform_buttons.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace halvane {
namespace {

/// Longer than the toolkit shows a button down that a letter has pressed.
constexpr int kShownDown = 200;

class PromptButtonsTest : public ::testing::Test {
 protected:
  QPushButton& Add(const QString& text) {
    auto* button = new QPushButton(text);
    row.addWidget(button);
    QObject::connect(button, &QPushButton::clicked, [this, text] { clicked << text; });
    return *button;
  }

  void Show() {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  QWidget window;
  QHBoxLayout row{&window};
  QStringList clicked;
};

TEST(Messages, ALetterAloneAnswersAtOnce) {
  for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::AltModifier}) {
    QMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    QTest::keyPress(&box, Qt::Key_N, modifiers);
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(box.result(), QMessageBox::No);
  }
}

TEST(Messages, OtherKeysAreNoAnswer) {
  QMessageBox box;
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
  QTest::keyClick(&box, Qt::Key_X);
  QTest::keyClick(&box, Qt::Key_N, Qt::ControlModifier);
  QTest::qWait(kShownDown);
  EXPECT_TRUE(box.isVisible());
}

TEST_F(PromptButtonsTest, ALetterWithAltPressesAButtonAtOnceAndOnce) {
  Add("&Add");
  Add("&Delete");
  Show();
  QTest::keyClick(&window, Qt::Key_D, Qt::AltModifier);
  EXPECT_EQ(clicked, QStringList("&Delete"));
  QTest::qWait(kShownDown);
  EXPECT_EQ(clicked, QStringList("&Delete"));
}

TEST_F(PromptButtonsTest, AButtonThatCanBeCheckedTakesTheFocus) {
  QPushButton& plain = Add("&Plain");
  QPushButton& other = Add("&Other");
  other.setCheckable(true);
  Show();
  plain.setFocus();
  QTest::keyClick(&window, Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(other.isChecked());
  EXPECT_TRUE(other.hasFocus());
  QTest::keyClick(&window, Qt::Key_P, Qt::AltModifier);
  EXPECT_TRUE(other.hasFocus());
  EXPECT_EQ(clicked, QStringList({"&Other", "&Plain"}));
}

TEST_F(PromptButtonsTest, OfTwoWithTheSameLetterNoneIsPressed) {
  Add("&Same");
  Add("&Similar");
  Show();
  QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
  QTest::qWait(kShownDown);
  EXPECT_TRUE(clicked.isEmpty()) << clicked.join(' ').toStdString();
}

TEST_F(PromptButtonsTest, AMenuThatIsNotAtHandLeavesItsLetterToAButton) {
  QPushButton& button = Add("&Edit");
  QMenuBar bar;
  row.setMenuBar(&bar);
  QMenu& menu = *bar.addMenu("&Edit");
  menu.addAction("Copy");
  menu.setEnabled(false);
  Show();
  // Each time, not in turn.
  for (int i = 1; i <= 3; ++i) {
    QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(clicked.size(), i);
  }
  // One that is at hand keeps it.
  menu.setEnabled(true);
  button.hide();
  QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
  EXPECT_TRUE(menu.isVisible());
  menu.close();
  button.show();
  for (int i = 0; i < 2; ++i) {
    QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
    menu.close();
  }
  EXPECT_EQ(clicked.size(), 3);
}

TEST_F(PromptButtonsTest, AButtonThatIsLockedIsNotPressed) {
  Add("&Add").setEnabled(false);
  Show();
  QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
  QTest::qWait(kShownDown);
  EXPECT_TRUE(clicked.isEmpty());
}

}  // namespace
}  // namespace halvane
