// What the mouse does on tabs, lists, sliders and the report pane.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "tests/support/form_support.h"
#include "widgets/layout.h"
#include "widgets/rich_text_box.h"
#include "widgets/tab_strip.h"

namespace halvane {
namespace {

/// Turns the wheel over a widget, as the window system does.
void Wheel(QWidget& widget, int steps) {
  const QPointF place = widget.rect().center();
  QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, 120 * steps}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  // Only what the window system sends goes on to what is behind.
  QSpontaneKeyEvent::setSpontaneous(&event);
  qApp->notify(&widget, &event);
}

class Tabs : public testing::Test {
 protected:
  Tabs() : strip_("SSTab1", nullptr) {
    for (const char* name : {"Inputs", "More inputs", "Report"}) {
      strip_.addTab(new QWidget(&strip_), name);
    }
    QObject::connect(&strip_, &TabStrip::tabClicked, &strip_,
                     [this](int tab) { clicked_ += std::to_string(tab); });
    ShowActive(strip_);
  }

  void Click(int tab, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(strip_.tabBar(), button, {}, strip_.tabBar()->tabRect(tab).center());
  }

  TabStrip strip_;
  std::string clicked_;
};

TEST_F(Tabs, EveryClickIsToldAlsoOnTheTabThatIsShowing) {
  Click(2);
  Click(2);
  Click(0);
  Click(0);
  EXPECT_EQ(clicked_, "2200");
  strip_.setCurrentIndex(1);
  EXPECT_EQ(clicked_, "22001");
}

TEST_F(Tabs, OtherButtonsAndADisabledTabTellNothing) {
  Click(0, Qt::RightButton);
  Click(0, Qt::MiddleButton);
  strip_.setTabEnabled(2, false);
  Click(2);
  EXPECT_EQ(clicked_, "");
  // Beside the tabs.
  QTest::mouseClick(strip_.tabBar(), Qt::LeftButton, {},
                    QPoint(strip_.tabBar()->width() + 5, strip_.tabBar()->height() / 2));
  EXPECT_EQ(clicked_, "");
}

TEST_F(Tabs, WheelChangesNoTab) {
  Wheel(*strip_.tabBar(), -1);
  EXPECT_EQ(strip_.currentIndex(), 0);
  EXPECT_EQ(clicked_, "");
}

/// A list and a slider over something that scrolls.
class WheelOver : public testing::Test {
 protected:
  struct Behind : QWidget {
    int turned = 0;
    void wheelEvent(QWheelEvent* event) override {
      ++turned;
      event->accept();
    }
  };

  WheelOver() : list_(new QComboBox(&behind_)), slider_(new QSlider(&behind_)) {
    auto* column = new QVBoxLayout(&behind_);
    other_ = new QLineEdit(&behind_);
    for (QWidget* widget : {static_cast<QWidget*>(other_), static_cast<QWidget*>(list_),
                            static_cast<QWidget*>(slider_)}) {
      column->addWidget(widget);
    }
    list_->addItems({"0", "1", "2", "3"});
    list_->setCurrentIndex(1);
    KeepWheelOff(*list_);
    SetUpSlider(*slider_, "Slider1", 10, 2);
    slider_->setValue(5);
    ShowActive(behind_);
    other_->setFocus();
  }

  Behind behind_;
  QComboBox* list_;
  QSlider* slider_;
  QLineEdit* other_ = nullptr;
};

TEST_F(WheelOver, UnfocusedInputChangesNothingAndScrollsWhatIsBehind) {
  Wheel(*list_, -1);
  EXPECT_EQ(list_->currentIndex(), 1);
  Wheel(*slider_, -1);
  EXPECT_EQ(slider_->value(), 5);
  EXPECT_EQ(behind_.turned, 2);
  EXPECT_TRUE(other_->hasFocus());
}

TEST_F(WheelOver, FocusedInputFollowsTheWheel) {
  list_->setFocus();
  Wheel(*list_, -1);
  EXPECT_EQ(list_->currentIndex(), 2);
  slider_->setFocus();
  Wheel(*slider_, -1);
  EXPECT_NE(slider_->value(), 5);
  EXPECT_EQ(behind_.turned, 0);
}

/// A pane on a report of two lines and a picture.
class ReportPane : public testing::Test {
 protected:
  ReportPane() {
    report_.Append("first\r\nno\u00a0break\r\n");
    report_.AppendPicture("strain_index/risk_chart");
    pane_.ShowReport(report_);
    ShowActive(pane_);
    pane_.setFocus();
  }

  RichText report_;
  RichTextBox pane_;
};

TEST_F(ReportPane, SelectedTextHasNoPictureCharacterAndKeepsItsBlanks) {
  pane_.SelectAll();
  EXPECT_EQ(pane_.SelectedText(), "first\nno\u00a0break\n");
}

TEST_F(ReportPane, CopyKeyGivesTheSameText) {
  pane_.SelectAll();
  QGuiApplication::clipboard()->clear();
  QTest::keyClick(&pane_, Qt::Key_C, Qt::ControlModifier);
  const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->text(), "first\nno\u00a0break\n");
  EXPECT_FALSE(copied->hasHtml());
}

TEST_F(ReportPane, TakesTypingOnceItIsOpenAndGivesItBack) {
  QTest::keyClicks(&pane_, "typed ");
  EXPECT_EQ(pane_.toPlainText().left(5), "first");
  pane_.OpenToTyping();
  QTest::keyClicks(&pane_, "typed ");
  pane_.SelectAll();
  EXPECT_EQ(pane_.SelectedText(), "typed first\nno\u00a0break\n");
  QTest::keyClick(&pane_, Qt::Key_End, Qt::ControlModifier);
  QTest::keyClick(&pane_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(pane_.toPlainText().left(5), "first") << "what was typed can be undone";
  pane_.undo();
  EXPECT_EQ(pane_.toPlainText().left(5), "first") << "the report cannot";
}

TEST_F(ReportPane, NextReportClearsWhatWasTyped) {
  pane_.OpenToTyping();
  QTest::keyClicks(&pane_, "typed ");
  pane_.ShowReport(report_);
  EXPECT_EQ(pane_.toPlainText().left(5), "first");
  QTest::keyClicks(&pane_, "x");
  EXPECT_EQ(pane_.toPlainText().left(6), "xfirst");
}

}  // namespace
}  // namespace halvane
