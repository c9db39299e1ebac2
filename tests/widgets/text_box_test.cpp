// Which key counts in which text box, and when its text is selected.
#include "widgets/text_box.h"

#include <QInputMethodEvent>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>
#include <set>

#include "shell/held_keys.h"
#include "tests/support/form_support.h"

namespace halvane {
namespace {

/// Two boxes, the first with the focus, and how often each told of a released key.
class TextBoxes : public testing::Test {
 protected:
  TextBoxes() : first_(new TextBox("first", &window_)), second_(new TextBox("second", &window_)) {
    auto* column = new QVBoxLayout(&window_);
    column->addWidget(first_);
    column->addWidget(second_);
    second_->setText("Packing");
    ShowActive(window_);
    first_->setFocus();
    QObject::connect(first_, &TextBox::keyReleased, first_, [this] { told_ += '1'; });
    QObject::connect(second_, &TextBox::keyReleased, second_, [this] { told_ += '2'; });
  }

  void Leave(TextBox& box, Qt::FocusReason reason) {
    QFocusEvent out(QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(&box, &out);
  }
  void ComeBack(TextBox& box, Qt::FocusReason reason) {
    QFocusEvent in(QEvent::FocusIn, reason);
    QCoreApplication::sendEvent(&box, &in);
  }

  QWidget window_;
  TextBox* first_;
  TextBox* second_;
  std::string told_;  ///< the number of the box for each release that counted
};

TEST_F(TextBoxes, TellOfAReleasedKeyOnly) {
  second_->setText("other");
  EXPECT_EQ(told_, "");
  QTest::keyPress(second_, Qt::Key_A);
  EXPECT_EQ(told_, "");
  QTest::keyRelease(second_, Qt::Key_A);
  EXPECT_EQ(told_, "2");
}

/// The colours of a box, at its edge and all over it.
std::set<QRgb> ColoursOf(TextBox& box) {
  box.deselect();
  const QImage picture = box.grab().toImage();
  std::set<QRgb> colours;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
  }
  return colours;
}

TEST_F(TextBoxes, ResultLooksLikeTheTextThatItIs) {
  second_->clear();
  EXPECT_GT(ColoursOf(*second_).size(), 1U);
  second_->ShowResult();
  // Nothing but the ground of the window: no frame and no field.
  EXPECT_EQ(ColoursOf(*second_), std::set{window_.palette().color(QPalette::Window).rgb()});
  second_->setText("0.63");
  EXPECT_GT(ColoursOf(*second_).size(), 1U);
}

TEST_F(TextBoxes, ResultStandsUnderWhatIsTypedAboveIt) {
  const auto textStart = [](TextBox& box) {
    box.home(false);
    return box.inputMethodQuery(Qt::ImCursorRectangle).toRectF().center().x();
  };
  first_->setText("0.63");
  second_->setText("0.63");
  const double typed = textStart(*first_);
  second_->ShowResult();
  EXPECT_EQ(textStart(*second_), typed);
}

TEST_F(TextBoxes, ResultIsPassedByTabAndSelectedByTheMouse) {
  second_->ShowResult();
  QTest::keyClick(first_, Qt::Key_Tab);
  EXPECT_TRUE(first_->hasFocus());
  QTest::mouseClick(second_, Qt::LeftButton);
  EXPECT_TRUE(second_->hasFocus());
  EXPECT_EQ(second_->selectedText(), "Packing");
  QTest::keyClicks(second_, "x");
  EXPECT_EQ(second_->text(), "Packing");
}

TEST_F(TextBoxes, KeyHeldDownIsReleasedOnce) {
  QTest::keyPress(second_, Qt::Key_A);
  QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, "a", true);
  QCoreApplication::sendEvent(second_, &repeated);
  EXPECT_EQ(told_, "");
  QTest::keyRelease(second_, Qt::Key_A);
  EXPECT_EQ(told_, "2");
}

TEST_F(TextBoxes, ReleaseWhosePressWasElsewhereDoesNothing) {
  QTest::keyRelease(first_, Qt::Key_Return);
  QTest::keyRelease(first_, Qt::Key_Escape);
  QTest::keyRelease(first_, Qt::Key_Tab);
  EXPECT_EQ(told_, "");
}

TEST_F(TextBoxes, ModifierPressedAndReleasedCounts) {
  QTest::keyPress(first_, Qt::Key_Shift);
  QTest::keyRelease(first_, Qt::Key_Shift);
  EXPECT_EQ(told_, "1");
}

TEST_F(TextBoxes, KeyStillDownWhenTabMovesOnCountsWhereItWasTyped) {
  QTest::keyClick(first_, Qt::Key_4);
  QTest::keyPress(first_, Qt::Key_8);
  EXPECT_EQ(told_, "1");
  QTest::keyPress(first_, Qt::Key_Tab);
  ASSERT_TRUE(second_->hasFocus());
  EXPECT_EQ(told_, "11");
  EXPECT_EQ(first_->text(), "48");
  QTest::keyRelease(second_, Qt::Key_8);
  EXPECT_EQ(told_, "11") << "counted again in the other box";
  QTest::keyRelease(second_, Qt::Key_Tab);
  EXPECT_EQ(told_, "112") << "the Tab counts in the box that it reached";
  QTest::keyRelease(second_, Qt::Key_Tab);
  EXPECT_EQ(told_, "112") << "and once";
}

TEST_F(TextBoxes, TabAloneCountsInTheBoxThatItReachesAndNotInTheOneItLeaves) {
  QTest::keyPress(first_, Qt::Key_Tab);
  QTest::keyRelease(second_, Qt::Key_Tab);
  EXPECT_EQ(told_, "2");
  QTest::keyPress(second_, Qt::Key_Backtab, Qt::ShiftModifier);
  ASSERT_TRUE(first_->hasFocus());
  QTest::keyRelease(first_, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(told_, "21");
}

TEST_F(TextBoxes, KeyStillDownCountsHoweverTheFocusLeaves) {
  for (const Qt::FocusReason reason :
       {Qt::MouseFocusReason, Qt::ActiveWindowFocusReason, Qt::OtherFocusReason}) {
    told_.clear();
    QTest::keyPress(first_, Qt::Key_8);
    Leave(*first_, reason);
    EXPECT_EQ(told_, "1") << reason;
    ComeBack(*first_, reason);
    QTest::keyRelease(first_, Qt::Key_8);
    EXPECT_EQ(told_, "1") << reason;
  }
}

TEST_F(TextBoxes, KeysThatOpenAMenuDoNotCountButALetterStillDownDoes) {
  for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
    told_.clear();
    QTest::keyPress(first_, Qt::Key_Alt);
    QTest::keyPress(first_, Qt::Key_Menu);
    Leave(*first_, reason);
    ComeBack(*first_, reason);
    QTest::keyRelease(first_, Qt::Key_Alt);
    QTest::keyRelease(first_, Qt::Key_Escape);
    EXPECT_EQ(told_, "") << reason;
    QTest::keyPress(first_, Qt::Key_8);
    QTest::keyPress(first_, Qt::Key_Alt);
    Leave(*first_, reason);
    EXPECT_EQ(told_, "1") << reason;
    ComeBack(*first_, reason);
  }
}

TEST_F(TextBoxes, ModifierStillDownWhenTheWindowIsLeftDoesNotCount) {
  QTest::keyPress(first_, Qt::Key_Alt);
  Leave(*first_, Qt::ActiveWindowFocusReason);
  EXPECT_EQ(told_, "");
}

TEST_F(TextBoxes, KeyHeldSinceBeforeTypesNothing) {
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_N, Qt::NoModifier, "n", true);
  QCoreApplication::sendEvent(first_, &repeated);
  EXPECT_EQ(first_->text(), "");
  QTest::keyPress(first_, Qt::Key_N);
  QCoreApplication::sendEvent(first_, &repeated);
  EXPECT_EQ(first_->text(), "nn") << "one that was pressed here repeats";
}

TEST_F(TextBoxes, TextOfAnInputMethodCountsAtOnce) {
  QInputMethodEvent composing("ni", {});
  QCoreApplication::sendEvent(first_, &composing);
  EXPECT_EQ(told_, "");
  QInputMethodEvent chosen;
  chosen.setCommitString("\u4f60");
  QCoreApplication::sendEvent(first_, &chosen);
  EXPECT_EQ(told_, "1");
  EXPECT_EQ(first_->text(), "\u4f60");
}

TEST_F(TextBoxes, SelectAllWhenTheFocusArrivesByTabProgramAndMouse) {
  QTest::keyClick(first_, Qt::Key_Tab);
  EXPECT_EQ(second_->selectedText(), "Packing");
  first_->setFocus();
  second_->deselect();
  second_->setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(second_->selectedText(), "Packing");
  first_->setFocus();
  second_->deselect();
  QTest::mouseClick(second_, Qt::LeftButton);
  EXPECT_EQ(second_->selectedText(), "Packing");
}

TEST_F(TextBoxes, KeepCaretAndSelectionForMenusAndOtherWindows) {
  second_->setFocus();
  for (const Qt::FocusReason reason :
       {Qt::PopupFocusReason, Qt::MenuBarFocusReason, Qt::ActiveWindowFocusReason}) {
    second_->setSelection(1, 3);
    Leave(*second_, reason);
    ComeBack(*second_, reason);
    EXPECT_EQ(second_->selectedText(), "ack") << reason;
    EXPECT_EQ(second_->cursorPosition(), 4) << reason;
    second_->setSelection(4, -3);
    Leave(*second_, reason);
    ComeBack(*second_, reason);
    EXPECT_EQ(second_->selectedText(), "ack") << reason;
    EXPECT_EQ(second_->cursorPosition(), 1) << reason;
    second_->deselect();
    second_->setCursorPosition(2);
    Leave(*second_, reason);
    ComeBack(*second_, reason);
    EXPECT_EQ(second_->selectedText(), "") << reason;
    EXPECT_EQ(second_->cursorPosition(), 2) << reason;
  }
}

TEST_F(TextBoxes, SelectionDrawnByTheFirstPressStays) {
  const int middle = second_->height() / 2;
  QTest::mousePress(second_, Qt::LeftButton, {}, QPoint(4, middle));
  QMouseEvent move(QEvent::MouseMove, QPointF(30, middle),
                   second_->mapToGlobal(QPointF(30, middle)), Qt::LeftButton, Qt::LeftButton,
                   Qt::NoModifier);
  QCoreApplication::sendEvent(second_, &move);
  QTest::mouseRelease(second_, Qt::LeftButton, {}, QPoint(30, middle));
  EXPECT_FALSE(second_->selectedText().isEmpty());
  EXPECT_NE(second_->selectedText(), "Packing");
}

TEST_F(TextBoxes, HoldATextOfAnyLength) {
  const QString text(70000, 'x');
  first_->setText(text);
  QTest::keyClick(first_, Qt::Key_End);
  EXPECT_EQ(first_->text().size(), text.size());
}

/// Two windows, and what reaches the window system's side of each.
class TwoWindows : public testing::Test {
 protected:
  struct Window : QWindow {
    QString keys;
    void keyPressEvent(QKeyEvent* event) override { keys += event->isAutoRepeat() ? "r" : "p"; }
    void keyReleaseEvent(QKeyEvent* /*event*/) override { keys += "u"; }
  };

  void Send(Window& window, QEvent::Type type, bool repeated) {
    QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, 36, 0, 0, "\r", repeated);
    if (!filter_.eventFilter(&window, &event)) QCoreApplication::sendEvent(&window, &event);
  }

  HeldKeys filter_;
  Window dialog_;
  Window form_;
};

TEST_F(TwoWindows, KeyHeldOverAChangeOfWindowDoesNotRepeatInTheNext) {
  Send(dialog_, QEvent::KeyPress, false);
  Send(dialog_, QEvent::KeyPress, true);
  EXPECT_EQ(dialog_.keys, "pr");
  Send(form_, QEvent::KeyPress, true);
  Send(form_, QEvent::KeyPress, true);
  EXPECT_EQ(form_.keys, "");
  Send(form_, QEvent::KeyRelease, false);
  Send(form_, QEvent::KeyPress, false);
  Send(form_, QEvent::KeyPress, true);
  EXPECT_EQ(form_.keys, "upr");
}

}  // namespace
}  // namespace halvane
