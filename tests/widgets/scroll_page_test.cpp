#include "widgets/scroll_page.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include "tests/support/form_support.h"

namespace halvane {
namespace {

class Scrolling : public ShellTest {
 protected:
  /// A page of 400 x 300 with a button above and one below.
  Scrolling() {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    first = new QPushButton("first", content);
    last = new QPushButton("last", content);
    column->addWidget(first);
    column->addStretch(1);
    column->addWidget(last);
    content->setMinimumSize(400, 300);
    page = std::make_unique<ScrollPage>(content, nullptr);
  }

  void ShowAt(QSize size) {
    page->resize(size);
    ShowActive(*page);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] bool Sees(const QWidget& widget) const {
    return page->viewport()->rect().contains(
        QRect(widget.mapTo(page->viewport(), QPoint()), widget.size()));
  }

  std::unique_ptr<ScrollPage> page;
  QPushButton* first = nullptr;
  QPushButton* last = nullptr;
};

TEST_F(Scrolling, NoBarStandsWhereThePageFits) {
  ShowAt({400, 300});
  EXPECT_FALSE(page->verticalScrollBar()->isVisible());
  EXPECT_FALSE(page->horizontalScrollBar()->isVisible());
  EXPECT_TRUE(Sees(*first) && Sees(*last));
}

TEST_F(Scrolling, OneBarStandsWhereOneIsNeeded) {
  ShowAt({500, 200});
  EXPECT_TRUE(page->verticalScrollBar()->isVisible());
  EXPECT_FALSE(page->horizontalScrollBar()->isVisible());
  ShowAt({300, 400});
  EXPECT_FALSE(page->verticalScrollBar()->isVisible());
  EXPECT_TRUE(page->horizontalScrollBar()->isVisible());
}

TEST_F(Scrolling, ThePageAsksForItsOwnRoom) { EXPECT_EQ(page->minimumSizeHint(), QSize(400, 300)); }

/// A page with nothing but a caption of many words.
class Wrapping : public ShellTest {
 protected:
  Wrapping() {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    caption = new QLabel(QString("some words ").repeated(120), content);
    caption->setWordWrap(true);
    column->addWidget(caption);
    column->addStretch(1);
    page = std::make_unique<ScrollPage>(content, nullptr);
  }

  std::unique_ptr<ScrollPage> page;
  QLabel* caption = nullptr;
};

TEST_F(Wrapping, APageAsksForTheHeightThatItsCaptionsNeedAtAWidth) {
  const int wide = page->heightForWidth(600);
  const int narrow = page->heightForWidth(200);
  EXPECT_GE(wide, caption->heightForWidth(600));
  EXPECT_GE(narrow, 2 * wide);
  page->resize(600, wide);
  ShowActive(*page);
  EXPECT_FALSE(page->verticalScrollBar()->isVisible());
  EXPECT_GE(caption->height(), caption->heightForWidth(caption->width()));
}

TEST_F(Wrapping, ACaptionThatWrapsIsWholeAndScrolls) {
  page->resize(200, 100);
  ShowActive(*page);
  EXPECT_TRUE(page->verticalScrollBar()->isVisible());
  EXPECT_FALSE(page->horizontalScrollBar()->isVisible());
  EXPECT_GE(caption->height(), caption->heightForWidth(caption->width()));
  EXPECT_EQ(page->widget()->width(), page->viewport()->width());
}

TEST_F(Wrapping, TheBarGoesAsSoonAsThePageFitsWithoutIt) {
  const int needed = page->heightForWidth(400);
  page->resize(400, needed - 20);
  ShowActive(*page);
  EXPECT_TRUE(page->verticalScrollBar()->isVisible());
  ASSERT_GT(page->heightForWidth(page->viewport()->width()), needed) << "beside the bar";
  page->resize(400, needed);
  QCoreApplication::processEvents();
  EXPECT_FALSE(page->verticalScrollBar()->isVisible());
  EXPECT_EQ(page->viewport()->size(), page->size());
}

TEST_F(Scrolling, WhatGetsTheFocusIsSeen) {
  ShowAt({500, 150});
  first->setFocus();
  EXPECT_TRUE(Sees(*first));
  EXPECT_FALSE(Sees(*last));
  last->setFocus();
  EXPECT_TRUE(Sees(*last));
  EXPECT_FALSE(Sees(*first));
  QTest::keyClick(last, Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_TRUE(first->hasFocus());
  EXPECT_TRUE(Sees(*first));
}

TEST_F(Scrolling, APressOfTheMouseMovesNothing) {
  ShowAt({500, 150});
  first->setFocus();
  QScrollBar& bar = *page->verticalScrollBar();
  // So that a part of the lower button is seen.
  bar.setValue(bar.maximum() - last->height() / 2);
  const int before = bar.value();
  QTest::mousePress(page->windowHandle(), Qt::LeftButton, {},
                    last->mapTo(page.get(), QPoint(last->width() / 2, 3)));
  EXPECT_TRUE(last->hasFocus());
  EXPECT_EQ(bar.value(), before);
  QTest::mouseRelease(page->windowHandle(), Qt::LeftButton);
}

TEST_F(Scrolling, ThePageItselfTakesNoFocus) {
  ShowAt({500, 150});
  first->setFocus();
  QTest::keyClick(first, Qt::Key_Tab);
  EXPECT_TRUE(last->hasFocus());
}

}  // namespace
}  // namespace halvane
