#include "widgets/tab_strip.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLabel>
#include <QPaintEvent>
#include <QTabBar>
#include <QVBoxLayout>

namespace halvane {
namespace {

/// Two pages in a window of its own; the first has a text at the top.
class TabStripLayout : public testing::Test {
 protected:
  TabStripLayout() : strip_("SSTab1", &window_) {
    (new QVBoxLayout(&window_))->addWidget(&strip_);
    auto* page = new QWidget;
    text_ = new QLabel("text", page);
    auto* column = new QVBoxLayout(page);
    column->addWidget(text_);
    column->addStretch();
    strip_.addTab(page, "First");
    strip_.addTab(new QWidget, "Second");
    window_.resize(600, 400);
    window_.show();
    Settle();
  }

  static void Settle() {
    for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
  }

  QWidget window_;
  TabStrip strip_;
  QLabel* text_ = nullptr;
};

/// What of a widget is drawn.
class DrawnPart : public QObject {
 public:
  explicit DrawnPart(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) part += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion part;
};

TEST_F(TabStripLayout, TextOfAnotherSizeOnAPageIsDrawnWithoutTheRestOfThePage) {
  const DrawnPart drawn(strip_);
  text_->setText("text in\ntwo lines");
  Settle();
  EXPECT_EQ(text_->height(), text_->sizeHint().height());
  ASSERT_FALSE(drawn.part.isEmpty());
  EXPECT_LT(drawn.part.boundingRect().height(), strip_.height() / 2);
}

TEST_F(TabStripLayout, WindowGrowsForAPageThatNeedsMoreRoom) {
  text_->setMinimumSize(900, 700);
  Settle();
  EXPECT_GE(text_->width(), 900);
  EXPECT_GE(text_->height(), 700);
  EXPECT_TRUE(strip_.rect().contains(QRect(text_->mapTo(&strip_, QPoint()), text_->size())));
}

TEST_F(TabStripLayout, PagesMakeRoomForHigherTabs) {
  const int before = strip_.widget(0)->height();
  const int bar = strip_.tabBar()->height();
  QFont large = strip_.font();
  large.setPointSize(3 * large.pointSize());
  strip_.tabBar()->setFont(large);
  Settle();
  const int higher = strip_.tabBar()->height() - bar;
  EXPECT_GT(higher, 0);
  EXPECT_EQ(strip_.widget(0)->height(), before - higher);
}

TEST_F(TabStripLayout, LongerTabHasRoomForItsText) {
  strip_.setTabText(0, "A caption that is much longer than before");
  Settle();
  EXPECT_EQ(strip_.tabBar()->width(), strip_.tabBar()->sizeHint().width());
}

}  // namespace
}  // namespace halvane
