// What keys do on tabs and in menus.
#include <QApplication>
#include <QMenu>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>

#include "tests/support/form_support.h"
#include "widgets/menu_letters.h"
#include "widgets/tab_strip.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

QString Focus() { return QApplication::focusWidget()->objectName(); }

/// Tabs under a box that is not on them.
class TabKeys : public testing::Test {
 protected:
  TabKeys() : box_(new TextBox("box", &window_)), strip_(new TabStrip("SSTab1", &window_)) {
    auto* column = new QVBoxLayout(&window_);
    column->addWidget(box_);
    column->addWidget(strip_);
    for (const char* name : {"Inputs", "More inputs", "Report"}) {
      strip_->addTab(new TextBox(name, strip_), name);
    }
    QObject::connect(strip_, &TabStrip::tabClicked, strip_,
                     [this](int tab) { told_ += std::to_string(tab); });
    ShowActive(window_);
    box_->setFocus();
  }

  static void Next() { Press(Qt::Key_Tab, Qt::ControlModifier); }
  static void Previous() { Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier); }

  QWidget window_;
  TextBox* box_;
  TabStrip* strip_;
  std::string told_;
};

TEST_F(TabKeys, GoRoundAndAreToldLikeClicks) {
  for (int i = 0; i < 3; ++i) Next();
  for (int i = 0; i < 2; ++i) Previous();
  EXPECT_EQ(told_, "12021");
  EXPECT_EQ(Focus(), "box");
}

TEST_F(TabKeys, WorkOnThePagesAndOnTheTabsToo) {
  strip_->currentWidget()->setFocus();
  Next();
  EXPECT_EQ(told_, "1");
  strip_->tabBar()->setFocus();
  Previous();
  Previous();
  EXPECT_EQ(told_, "102");
}

TEST_F(TabKeys, AreTheArrowsWhereTheStripHasTheFocus) {
  strip_->tabBar()->setFocus();
  Press(Qt::Key_Right);
  Press(Qt::Key_Right);
  Press(Qt::Key_Left);
  EXPECT_EQ(told_, "121");
}

TEST_F(TabKeys, PassADisabledTab) {
  strip_->setTabEnabled(1, false);
  Next();
  Next();
  Previous();
  EXPECT_EQ(told_, "202");
  strip_->setTabEnabled(0, false);
  Next();
  EXPECT_EQ(told_, "202");
}

TEST_F(TabKeys, CountTheKeyThatIsDownInABoxBesideThem) {
  QObject::connect(box_, &TextBox::keyReleased, &window_,
                   [this] { told_ += "(" + box_->text().toStdString() + ")"; });
  QTest::keyPress(box_, Qt::Key_5);
  // The release of Ctrl counts as well, but later.
  Next();
  EXPECT_EQ(told_.substr(0, 4), "(5)1");
  QTest::keyRelease(box_, Qt::Key_5);
}

/// An open menu.
class Letters : public testing::Test {
 protected:
  Letters() {
    for (const char* caption : {"&New", "&Save", "&Save &As...", "Find && &Go", "&Delete"}) {
      QObject::connect(menu_.addAction(caption), &QAction::triggered, &menu_,
                       [this, caption] { ran_.append(caption); });
    }
    menu_.actions().back()->setEnabled(false);
    new MenuLetters(menu_);
  }

  /// Opens the menu and presses a key; gives what ran by it.
  QStringList Ran(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    ran_.clear();
    menu_.popup({0, 0});
    QTest::keyClick(&menu_, key, modifiers);
    return ran_;
  }

  QMenu menu_;
  QStringList ran_;
};

TEST_F(Letters, EachRunsItsItemAndTheFirstOneIsItsOwner) {
  EXPECT_EQ(Ran(Qt::Key_S), QStringList{"&Save"});
  EXPECT_FALSE(menu_.isVisible());
  EXPECT_EQ(Ran(Qt::Key_A), QStringList{"&Save &As..."});
  EXPECT_FALSE(menu_.isVisible());
  EXPECT_EQ(Ran(Qt::Key_A, Qt::ShiftModifier), QStringList{"&Save &As..."});
  EXPECT_EQ(Ran(Qt::Key_N), QStringList{"&New"});
  EXPECT_EQ(Ran(Qt::Key_G), QStringList{"Find && &Go"});
}

TEST_F(Letters, OthersRunNothing) {
  for (const Qt::Key key : {Qt::Key_F, Qt::Key_Ampersand, Qt::Key_D, Qt::Key_V}) {
    EXPECT_EQ(Ran(key), QStringList()) << key;
  }
  EXPECT_EQ(Ran(Qt::Key_A, Qt::ControlModifier), QStringList());
  menu_.close();
}

}  // namespace
}  // namespace halvane
