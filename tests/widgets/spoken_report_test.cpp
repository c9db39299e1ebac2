// What screen readers find in a report pane.
#include <QAccessible>
#include <QTest>

#include "tests/support/form_support.h"
#include "tests/support/spoken_tree.h"
#include "widgets/report_note.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

constexpr auto kZones = "Zones: green, red.";
constexpr auto kBars = "Bars: 1, 2.";
const QString kRead = "Title\n\nScore: 4.5\nZones: green, red. Bars: 1, 2. ";
constexpr int kZonesAt = 18;  // the third paragraph ends there

class SpokenReportPane : public testing::Test {
 protected:
  SpokenReportPane() {
    pane_.resize(600, 400);
    report_.Append("Title", kNewLine, kNewLine, "Score: 4.5", kNewLine);
    report_.AppendPicture("ocra/zones", kZones);
    report_.AppendPicture("ocra/multipliers", kBars);
    ShowActive(pane_);
    pane_.ShowReport(report_);
  }

  QAccessibleInterface& face() { return *QAccessible::queryAccessibleInterface(&pane_); }
  QAccessibleTextInterface& text() { return *face().textInterface(); }
  /// What is told of the report; empty where nothing is.
  QString News() {
    QAccessibleInterface* last = face().child(face().childCount() - 1);
    const bool isNews = last != nullptr && last->role() == QAccessible::Notification;
    return isNews ? last->text(QAccessible::Name) : QString();
  }
  /// What is read at, before or behind an offset, and where that stands.
  QString At(int offset, QAccessible::TextBoundaryType kind) {
    return text().textAtOffset(offset, kind, &start_, &end_);
  }

  RichTextBox pane_;
  RichText report_;
  int start_ = 0;
  int end_ = 0;
};

TEST_F(SpokenReportPane, IsATextThatIsRead) {
  EXPECT_EQ(face().role(), QAccessible::EditableText);
  EXPECT_EQ(face().text(QAccessible::Name), "Report");
  const QAccessible::State state = face().state();
  EXPECT_TRUE(state.readOnly);
  EXPECT_FALSE(state.editable);
  EXPECT_TRUE(state.multiLine);
  EXPECT_TRUE(state.focusable);
  EXPECT_EQ(face().editableTextInterface(), nullptr);
  pane_.OpenToTyping();
  EXPECT_FALSE(face().state().readOnly);
  EXPECT_TRUE(face().state().editable);
  EXPECT_NE(face().editableTextInterface(), nullptr);
}

TEST_F(SpokenReportPane, ReadsPicturesByTheirSense) {
  EXPECT_EQ(text().text(0, text().characterCount()), kRead);
  EXPECT_EQ(face().text(QAccessible::Value), kRead);
  // What is copied has none of it.
  pane_.SelectAll();
  EXPECT_EQ(pane_.SelectedText(), "Title\n\nScore: 4.5\n");
}

TEST_F(SpokenReportPane, ReadsParagraphByParagraph) {
  EXPECT_EQ(At(2, QAccessible::ParagraphBoundary), "Title\n");
  EXPECT_EQ(At(8, QAccessible::ParagraphBoundary), "Score: 4.5\n");
  EXPECT_EQ(At(kZonesAt + 30, QAccessible::ParagraphBoundary), "Zones: green, red. Bars: 1, 2. ");
  EXPECT_EQ(At(8, QAccessible::WordBoundary), "Score");
}

TEST_F(SpokenReportPane, ReadsLineByLineAsItStands) {
  EXPECT_EQ(At(2, QAccessible::LineBoundary), "Title\n");
  EXPECT_EQ(start_, 0);
  EXPECT_EQ(text().textAfterOffset(2, QAccessible::LineBoundary, &start_, &end_), "\n");
  EXPECT_EQ(text().textAfterOffset(6, QAccessible::LineBoundary, &start_, &end_), "Score: 4.5\n");
  EXPECT_EQ(start_, 7);
  EXPECT_EQ(end_, kZonesAt);
  EXPECT_EQ(text().textBeforeOffset(8, QAccessible::LineBoundary, &start_, &end_), "\n");
  EXPECT_EQ(text().textBeforeOffset(2, QAccessible::LineBoundary, &start_, &end_), "");
  // The pictures stand one under the other, each in the one line of its place.
  EXPECT_EQ(At(kZonesAt + 3, QAccessible::LineBoundary), QString(kZones) + " ");
  EXPECT_EQ(At(static_cast<int>(kRead.size()) - 3, QAccessible::LineBoundary),
            QString(kBars) + " ");
  EXPECT_EQ(text().textAfterOffset(end_ - 1, QAccessible::LineBoundary, &start_, &end_), "");
}

TEST_F(SpokenReportPane, ALongParagraphHasSeveralLines) {
  RichText report;
  const QString words = QString("word ").repeated(100) + "end";
  report.Append(words.toStdString(), kNewLine, "next");
  pane_.ShowReport(report);
  QString read;
  int lines = 0;
  for (int at = 0; at < words.size() + 1; at = end_, ++lines) {
    read += At(at, QAccessible::LineBoundary);
    ASSERT_GT(end_, at);
  }
  EXPECT_EQ(read, words + "\n");
  EXPECT_GT(lines, 3);
}

TEST_F(SpokenReportPane, TheCaretAndTheSelectionPassPicturesAtOneStep) {
  EXPECT_EQ(text().cursorPosition(), 0);
  text().setCursorPosition(kZonesAt);
  EXPECT_EQ(pane_.textCursor().position(), kZonesAt);
  // Within the sense it is before the picture.
  text().setCursorPosition(kZonesAt + 5);
  EXPECT_EQ(text().cursorPosition(), kZonesAt);
  QTest::keyClick(&pane_, Qt::Key_Right);
  const int bars = kZonesAt + static_cast<int>(std::string_view(kZones).size()) + 1;
  EXPECT_EQ(text().cursorPosition(), bars);
  text().setSelection(0, 7, bars);
  EXPECT_EQ(text().selectionCount(), 1);
  text().selection(0, &start_, &end_);
  EXPECT_EQ(start_, 7);
  EXPECT_EQ(end_, bars);
  EXPECT_EQ(pane_.SelectedText(), "Score: 4.5\n");
  text().removeSelection(0);
  EXPECT_EQ(text().selectionCount(), 0);
  text().setCursorPosition(static_cast<int>(kRead.size()));
  EXPECT_EQ(pane_.textCursor().position(), kZonesAt + 2);
}

TEST_F(SpokenReportPane, NamesItsPicturesAndTellsWhereTheyAre) {
  ASSERT_EQ(face().childCount(), 2);
  const QRect paper(pane_.viewport()->mapToGlobal(QPoint(0, 0)), pane_.viewport()->size());
  for (const int i : {0, 1}) {
    QAccessibleInterface& picture = *face().child(i);
    EXPECT_EQ(picture.role(), QAccessible::Graphic);
    EXPECT_EQ(picture.text(QAccessible::Name), i == 0 ? kZones : kBars);
    EXPECT_EQ(picture.parent(), &face());
    EXPECT_EQ(face().indexOfChild(&picture), i);
    EXPECT_FALSE(picture.state().invisible);
    EXPECT_GT(picture.rect().width(), 200);
    EXPECT_GT(picture.rect().height(), 100);
    EXPECT_EQ(picture.rect().left(), text().characterRect(i == 0 ? kZonesAt : 40).left());
  }
  EXPECT_TRUE(paper.contains(face().child(0)->rect().topLeft()));
  EXPECT_GE(face().child(1)->rect().top(), face().child(0)->rect().bottom() - 1);
  pane_.hide();
  EXPECT_TRUE(face().child(0)->state().invisible);
}

TEST_F(SpokenReportPane, AnotherReportHasOtherPictures) {
  RichText report;
  report.Append("Without");
  pane_.ShowReport(report);
  EXPECT_EQ(face().childCount(), 0);
  EXPECT_EQ(text().text(0, 100), "Without");
}

TEST_F(SpokenReportPane, TellsOfAReportThatWasComputedAnew) {
  for (int report = 0; report < 2; ++report) {
    // Behind the last one where the user types and each key computes it again.
    for (int key = 0; key < 5; ++key) {
      pane_.ShowReport(report_);
      EXPECT_EQ(News(), "");
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return !News().isEmpty(); }));
    EXPECT_EQ(News(), "Report computed anew");
    EXPECT_EQ(face().childCount(), 3);
    EXPECT_FALSE(face().child(2)->state().invisible);
  }
}

TEST_F(SpokenReportPane, TellsNothingOfAPaneThatIsClearedOrHidden) {
  constexpr int kLongEnough = 1000;
  pane_.ShowReport(RichText());
  EXPECT_FALSE(QTest::qWaitFor([this] { return !News().isEmpty(); }, kLongEnough));
  pane_.ShowReport(report_);
  pane_.hide();
  EXPECT_FALSE(QTest::qWaitFor([this] { return !News().isEmpty(); }, kLongEnough));
}

TEST_F(SpokenReportPane, TakesTypingWhereItIsOpenToIt) {
  RichText report;
  report.Append("Grand Score: 3");
  pane_.OpenToTyping();
  pane_.ShowReport(report);
  QAccessibleEditableTextInterface& typed = *face().editableTextInterface();
  typed.insertText(0, "Seen. ");
  EXPECT_EQ(pane_.toPlainText(), "Seen. Grand Score: 3");
  typed.replaceText(0, 4, "Read");
  typed.deleteText(4, 5);
  EXPECT_EQ(pane_.toPlainText(), "Read Grand Score: 3");
}

TEST_F(SpokenReportPane, APictureKeepsItsPlaceBehindWhatIsTyped) {
  pane_.OpenToTyping();
  face().editableTextInterface()->insertText(0, "By Mia: ");
  EXPECT_EQ(text().text(0, 100).left(8 + kRead.size()), "By Mia: " + kRead);
}

TEST_F(SpokenReportPane, TellsHowTextLooksAndWhereItStands) {
  RichText report;
  report.SetFont({14, true, true});
  report.Append("Title", kNewLine);
  report.SetFont({});
  report.Append("Score");
  pane_.ShowReport(report);
  EXPECT_EQ(text().attributes(1, &start_, &end_),
            "size:14pt;weight:700;text-underline-type:single;");
  EXPECT_EQ(start_, 0);
  EXPECT_EQ(end_, 5);
  EXPECT_EQ(text().attributes(7, &start_, &end_), "size:10pt;weight:400;text-underline-type:none;");
  const QRect place = text().characterRect(7);
  EXPECT_EQ(text().offsetAtPoint(place.center() - QPoint(place.width() / 4, 0)), 7);
}

TEST_F(SpokenReportPane, ScrollsToWhatIsReadAndLeavesTheCaret) {
  RichText report;
  for (int line = 0; line < 100; ++line) report.Append("line", kNewLine);
  pane_.ShowReport(report);
  const int last = text().characterCount() - 2;
  const auto isSeen = [&](int offset) {
    return pane_.viewport()->rect().contains(pane_.PlaceOf(offset).center());
  };
  EXPECT_FALSE(isSeen(last));
  text().scrollToSubstring(last, last + 1);
  EXPECT_TRUE(isSeen(last));
  EXPECT_FALSE(isSeen(1));
  text().scrollToSubstring(1, 2);
  EXPECT_TRUE(isSeen(1));
  EXPECT_EQ(text().cursorPosition(), 0);
}

}  // namespace
}  // namespace halvane
