#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidgetItemIterator>

#include "help/help_index.h"
#include "help/help_pages.h"
#include "help/help_window.h"
#include "tests/help/help_support.h"

namespace halvane {
namespace {

class HelpSearching : public HelpWindowTest {
 protected:
  QLineEdit& text() { return Find<QLineEdit>(window(), "HelpSearchText"); }
  QListWidget& hits() { return Find<QListWidget>(window(), "HelpSearchHits"); }
  QString result() { return Find<QLabel>(window(), "HelpSearchResult").text(); }
  QStringList Lines() {
    QStringList lines;
    for (int row = 0; row < hits().count(); ++row) lines.append(hits().item(row)->text());
    return lines;
  }
  /// The texts that are marked on the page.
  QStringList Marks() {
    QStringList marks;
    for (const auto& mark : page().extraSelections()) marks.append(mark.cursor.selectedText());
    return marks;
  }
};

TEST_F(HelpSearching, FindsThePagesThatHaveEveryWord) {
  const HelpPages pages(little);
  const HelpIndex index(pages);
  const auto found = [&](const QString& typed) {
    QStringList lines;
    for (const HelpHit& hit : index.Find(HelpIndex::WordsOf(typed))) {
      lines.append(hit.title + ":" + QString::number(hit.places));
    }
    return lines;
  };
  EXPECT_EQ(found("wrists"), QStringList("Home & more:2"));
  EXPECT_EQ(found("  SECOND   page "), (QStringList{"Home & more:3", "Second:122"}));
  EXPECT_EQ(found("café"), QStringList("Second:1"));
  EXPECT_EQ(found("Łódź"), QStringList("Third:1"));
  EXPECT_EQ(found("wrists café"), QStringList());
  // The marks of a page are no text of it.
  EXPECT_EQ(found("href"), QStringList());
  EXPECT_EQ(found(" "), QStringList());
}

TEST_F(HelpSearching, PagesAreThoseOfTheContentsEachOnce) {
  QStringList titles;
  for (const HelpTopic& topic : HelpPages(little).Topics()) titles.append(topic.title);
  EXPECT_EQ(titles, (QStringList{"Home & more", "Second", "Third"}));
  EXPECT_TRUE(HelpPages("/none.chm").Topics().empty());
}

TEST_F(HelpSearching, PagesFoundTakeThePlaceOfTheContents) {
  ShowContents();
  EXPECT_FALSE(hits().isVisible());
  Press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(text().hasFocus());
  QTest::keyClicks(&text(), "wrists");
  EXPECT_EQ(Lines(), QStringList("Home & more (2)"));
  EXPECT_EQ(result(), "Pages with it, and how often:");
  EXPECT_TRUE(hits().isVisible());
  EXPECT_FALSE(tree().isVisible());
  QTest::keyClicks(&text(), "x");
  EXPECT_EQ(Lines(), QStringList());
  EXPECT_EQ(result(), "Found on no page");
  Press(Qt::Key_Escape);
  EXPECT_EQ(text().text(), "");
  EXPECT_TRUE(tree().isVisible());
  EXPECT_FALSE(hits().isVisible());
  EXPECT_TRUE(tree().hasFocus());
}

TEST_F(HelpSearching, AChosenPageIsShownWithItsPlacesMarked) {
  ShowContents();
  text().setText("line end");
  text().setFocus();
  Press(Qt::Key_Down);
  EXPECT_TRUE(hits().hasFocus());
  EXPECT_EQ(Topic(), "sub/two.htm");
  const QStringList marks = Marks();
  EXPECT_GT(marks.count("Line"), 20);
  EXPECT_EQ(marks.size(), page().toPlainText().count("line", Qt::CaseInsensitive) +
                              page().toPlainText().count("end", Qt::CaseInsensitive));
  EXPECT_TRUE(page().viewport()->rect().intersects(page().cursorRect()));
  EXPECT_EQ(page().textCursor().position(),
            page().toPlainText().indexOf("line", 0, Qt::CaseInsensitive));
  const QTextCharFormat look = page().extraSelections().front().format;
  EXPECT_GT(ContrastOf(look.foreground().color(), look.background().color()), 4.5);
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Marks(), marks);
  Press(Qt::Key_F6);
  EXPECT_FALSE(hits().hasFocus() && page().hasFocus());
  text().clear();
  EXPECT_EQ(Marks(), QStringList());
}

TEST_F(HelpSearching, ContentsAreOnViewWhenTheyAreAskedFor) {
  ShowContents();
  text().setText("wrists");
  EXPECT_FALSE(tree().isVisible());
  ShowContents();
  EXPECT_TRUE(tree().isVisible());
  EXPECT_TRUE(tree().hasFocus());
}

TEST_F(HelpSearching, AnotherFileIsSearchedAnew) {
  Show("home.htm");
  text().setText("wrists");
  EXPECT_EQ(hits().count(), 1);
  little = HALVANE_HELP_DATA "/odd.chm";
  Show("any.htm");
  EXPECT_EQ(text().text(), "");
  text().setText("wrists");
  EXPECT_EQ(hits().count(), 0);
}

TEST_F(HelpSearching, SelectionInTheContentsReachesToTheirEdge) {
  ShowContents();
  for (QTreeWidgetItemIterator at(&tree()); *at != nullptr; ++at) {
    EXPECT_GE(tree().visualItemRect(*at).right(), tree().viewport()->rect().right());
  }
  window().resize(window().width() + 200, window().height());
  EXPECT_GE(tree().visualItemRect(tree().topLevelItem(0)).right(),
            tree().viewport()->rect().right());
}

TEST_F(HelpSearching, WhatWasFoundStaysFoundAndInPlaceWhenThePageIsZoomed) {
  Show("sub/two.htm");
  bool wrapped = false;
  ASSERT_TRUE(page().FindText("Line 37 of", false, wrapped));
  const int before = page().cursorRect().top();
  for (const int zoom : {150, 300, 60}) {
    page().SetZoom(zoom);
    EXPECT_EQ(page().textCursor().selectedText(), "Line 37 of") << zoom;
    EXPECT_TRUE(page().viewport()->rect().intersects(page().cursorRect())) << zoom;
    EXPECT_NEAR(page().cursorRect().top(), before, 2) << zoom;
  }
}

}  // namespace
}  // namespace halvane
