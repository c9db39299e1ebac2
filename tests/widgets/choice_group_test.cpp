// The keyboard in groups of buttons.
#include "widgets/choice_group.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include "tests/support/form_support.h"
#include "widgets/ribbon_button.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

QString Focus() { return QApplication::focusWidget()->objectName(); }

/// Four buttons between two boxes.
class Group : public testing::Test {
 protected:
  Group() : layout_(new QBoxLayout(QBoxLayout::LeftToRight, &window_)) {}

  template <typename Button>
  void Show(Choice choice) {
    auto* group = new ChoiceGroup(choice, &window_);
    AddBox("before");
    for (const char* name : {"0", "1", "2", "3"}) {
      auto* button = new Button;
      button->setObjectName(name);
      button->setText(QString(name).repeated(name[0] - '0' + 1));
      button->setCheckable(true);
      QObject::connect(button, &QAbstractButton::clicked, &window_,
                       [this, name] { clicked_ += name; });
      group->Add(*button);
      layout_->addWidget(button);
      buttons_.push_back(button);
    }
    AddBox("behind");
    ShowActive(window_);
    Find<QLineEdit>(window_, "before").setFocus();
  }

  QStringList On() const {
    QStringList names;
    for (const QAbstractButton* button : buttons_) {
      if (button->isChecked()) names.append(button->objectName());
    }
    return names;
  }

  QWidget window_;
  QBoxLayout* layout_;
  std::vector<QAbstractButton*> buttons_;
  std::string clicked_;

 private:
  void AddBox(const char* name) { layout_->addWidget(new TextBox(name, &window_)); }
};

/// A plain ribbon.
struct Ribbon : RibbonButton {
  Ribbon() : RibbonButton("", "") {}
};

TEST_F(Group, TabEntersAtTheButtonThatIsDownAndLeavesWithTheNextPress) {
  Show<Ribbon>(Choice::One);
  buttons_[2]->setChecked(true);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "2");
  Press(Qt::Key_Space);
  EXPECT_EQ(On(), QStringList{"2"});
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "behind");
  buttons_[1]->setChecked(true);
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focus(), "1");
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focus(), "before");
}

TEST_F(Group, OptionsAreEnteredAtTheChosenOneToo) {
  Show<QRadioButton>(Choice::One);
  buttons_[3]->click();
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "3");
  Press(Qt::Key_Space);
  EXPECT_EQ(On(), QStringList{"3"});
}

TEST_F(Group, TabEntersAtTheFirstWhileNoneIsOn) {
  Show<Ribbon>(Choice::One);
  for (int round = 0; round < 2; ++round) {
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "0");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "behind");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Focus(), "0");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Focus(), "before");
  }
  EXPECT_EQ(On(), QStringList());
}

TEST_F(Group, ArrowsMoveAndChooseFromTheButtonThatIsDown) {
  Show<Ribbon>(Choice::One);
  buttons_[1]->setChecked(true);
  Press(Qt::Key_Tab);
  Press(Qt::Key_Right);
  EXPECT_EQ(Focus(), "2");
  EXPECT_EQ(On(), QStringList{"2"});
  Press(Qt::Key_Left);
  Press(Qt::Key_Left);
  EXPECT_EQ(Focus(), "0");
  EXPECT_EQ(On(), QStringList{"0"});
  // No button is there, and none above or below.
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Down}) Press(key);
  EXPECT_EQ(Focus(), "0");
  EXPECT_EQ(clicked_, "210");
}

TEST_F(Group, ArrowsChooseWhereNoneWasOn) {
  Show<QRadioButton>(Choice::One);
  Press(Qt::Key_Tab);
  Press(Qt::Key_Right);
  EXPECT_EQ(Focus(), "1");
  EXPECT_EQ(On(), QStringList{"1"});
}

TEST_F(Group, AColumnGoesUpAndDownHoweverWideItsButtonsAre) {
  layout_->setDirection(QBoxLayout::TopToBottom);
  Show<QRadioButton>(Choice::One);
  for (QAbstractButton* button : buttons_) layout_->setAlignment(button, Qt::AlignLeft);
  QCoreApplication::processEvents();
  buttons_[1]->click();
  Press(Qt::Key_Tab);
  Press(Qt::Key_Right);
  Press(Qt::Key_Left);
  EXPECT_EQ(On(), QStringList{"1"});
  Press(Qt::Key_Down);
  EXPECT_EQ(On(), QStringList{"2"});
  Press(Qt::Key_Up);
  Press(Qt::Key_Up);
  EXPECT_EQ(On(), QStringList{"0"});
  EXPECT_EQ(Focus(), "0");
}

TEST_F(Group, ArrowsPassADisabledButton) {
  Show<Ribbon>(Choice::One);
  buttons_[0]->click();
  buttons_[1]->setEnabled(false);
  Press(Qt::Key_Tab);
  Press(Qt::Key_Right);
  EXPECT_EQ(On(), QStringList{"2"});
}

TEST_F(Group, OfOneAtMostArrowsOnlyMove) {
  Show<Ribbon>(Choice::OneAtMost);
  buttons_[1]->setChecked(true);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "1");
  Press(Qt::Key_Right);
  EXPECT_EQ(Focus(), "2");
  EXPECT_EQ(On(), QStringList{"1"});
  // And Tab leaves from wherever they went.
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focus(), "before");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Left);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "behind");
  EXPECT_EQ(clicked_, "");
}

TEST_F(Group, OfBoxesTabStopsAtEachAndArrowsStayWithin) {
  Show<QCheckBox>(Choice::Any);
  buttons_[1]->setChecked(true);
  for (const char* stop : {"0", "1", "2", "3"}) {
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), stop);
  }
  Press(Qt::Key_Right);
  EXPECT_EQ(Focus(), "3");
  Press(Qt::Key_Left);
  EXPECT_EQ(Focus(), "2");
  EXPECT_EQ(On(), QStringList{"1"});
  Press(Qt::Key_Space);
  EXPECT_EQ(On(), (QStringList{"1", "2"}));
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), "behind");
}

}  // namespace
}  // namespace halvane
