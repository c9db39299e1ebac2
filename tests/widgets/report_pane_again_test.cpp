// A report that takes the place of another one: the pane shows it as one that showed nothing
// before, and writes only what differs.
#include <gtest/gtest.h>

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/form_support.h"
#include "widgets/report_note.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

constexpr QSize kSize{500, 300};

/// What a pane holds: formats and text, pictures with their places, sizes.
struct Held {
  QString html;
  std::vector<std::pair<QString, int>> pictures;
  QSizeF size;
  int caret = 0;
  bool operator==(const Held&) const = default;
};

Held HeldBy(const RichTextBox& box) {
  Held held{box.document()->toHtml(), {}, box.document()->size(), box.textCursor().position()};
  for (const ReportNote* picture : box.pictures()) {
    held.pictures.emplace_back(picture->words(), picture->position());
  }
  return held;
}

/// What a pane holds that shows a report as its first.
Held HeldAtFirst(const RichText& report) {
  RichTextBox box;
  box.resize(kSize);
  box.show();
  box.ShowReport(report);
  return HeldBy(box);
}

/// A report whose paragraphs come from a few, so that two of them mostly share some.
class Reports {
 public:
  RichText Next() {
    RichText report;
    const std::size_t paragraphs = Any(3) == 0 ? Any(40) : 12;
    for (std::size_t i = 0; i < paragraphs; ++i) AppendParagraph(report);
    return report;
  }

 private:
  std::size_t Any(std::size_t below) {
    return std::uniform_int_distribution<std::size_t>(0, below - 1)(random_);
  }

  void AppendParagraph(RichText& report) {
    report.SetFont({.size = Any(2) == 0 ? 10 : 11, .bold = Any(4) == 0, .underline = Any(4) == 0});
    report.SetAlignment(Any(4) == 0 ? Alignment::Center : Alignment::Left);
    if (Any(4) == 0) {
      report.SetTabCount(1);
      report.SetTab(0, Any(2) == 0 ? 1440 : 2880);
    }
    if (Any(12) == 0) report.AppendPicture("ocra/zones", "Zones");
    report.Append(kTexts.at(Any(kTexts.size())), kNewLine);
  }

  static constexpr std::array<std::string_view, 4> kTexts{"", "Score\t3", "Analyst: Line 4", "A"};
  std::mt19937 random_{20};
};

class PaneAgain : public testing::Test {
 protected:
  PaneAgain() {
    box.resize(kSize);
    box.show();
  }

  /// A report of three lines of which one has the score.
  static RichText Scored(const std::string& score) {
    RichText report;
    report.Append("Title\r\nScore: ", score, "\r\nEnd");
    return report;
  }

  /// Where the pane writes while it shows a report: first character, how many went, how many came.
  QList<QList<QVariant>> WrittenFor(const RichText& report) {
    const QSignalSpy written(box.document(), &QTextDocument::contentsChange);
    box.ShowReport(report);
    return written;
  }

  RichTextBox box;
};

TEST_F(PaneAgain, HoldsEachReportAsIfItWereTheFirst) {
  Reports reports;
  for (int i = 0; i < 300; ++i) {
    const RichText report = reports.Next();
    box.ShowReport(report);
    ASSERT_EQ(HeldBy(box), HeldAtFirst(report)) << "report " << i;
  }
}

TEST_F(PaneAgain, WritesNothingOfAReportThatIsTheSame) {
  box.ShowReport(Scored("3"));
  EXPECT_EQ(WrittenFor(Scored("3")).size(), 0);
}

TEST_F(PaneAgain, WritesOnlyTheParagraphThatDiffers) {
  box.ShowReport(Scored("3"));
  const auto written = WrittenFor(Scored("12"));
  ASSERT_EQ(written.size(), 1);
  // Behind the first line and before the line end of the second.
  EXPECT_GE(written[0][0].toInt(), 6);
  EXPECT_LE(written[0][0].toInt() + written[0][2].toInt(), 16);
  EXPECT_EQ(box.toPlainText(), "Title\nScore: 12\nEnd");
}

TEST_F(PaneAgain, WhatWasTypedIsGoneWithTheNextReport) {
  box.OpenToTyping();
  box.ShowReport(Scored("3"));
  QTest::keyClicks(&box, "Seen. ");
  ASSERT_EQ(box.toPlainText(), "Seen. Title\nScore: 3\nEnd");
  box.ShowReport(Scored("3"));
  EXPECT_EQ(HeldBy(box), HeldAtFirst(Scored("3")));
  // And what was typed and taken back leaves nothing that could be undone.
  QTest::keyClicks(&box, "x");
  box.undo();
  box.ShowReport(Scored("4"));
  EXPECT_EQ(HeldBy(box), HeldAtFirst(Scored("4")));
  EXPECT_FALSE(box.document()->isUndoAvailable());
}

TEST_F(PaneAgain, KeepsNeitherSelectionNorPlace) {
  RichText report;
  for (int line = 0; line < 100; ++line) report.Append("line\r\n");
  box.ShowReport(report);
  box.SelectAll();
  box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum());
  box.ShowReport(report);
  EXPECT_FALSE(box.textCursor().hasSelection());
  EXPECT_EQ(box.verticalScrollBar()->value(), 0);
}

TEST_F(PaneAgain, IsEmptyBehindALongReport) {
  RichText report;
  for (int line = 0; line < 4000; ++line) report.Append("line\r\n");
  box.ShowReport(report);
  box.ShowReport(RichText());
  EXPECT_EQ(HeldBy(box), HeldAtFirst(RichText()));
}

TEST_F(PaneAgain, IsLaidOutForTheWidthThatItHasBecome) {
  RichText report;
  for (int word = 0; word < 60; ++word) report.Append("words and words ");
  box.ShowReport(report);
  const QSizeF wide = box.document()->size();
  box.resize(kSize.width() / 2, kSize.height());
  box.ShowReport(report);
  EXPECT_LT(box.document()->size().width(), wide.width());
  EXPECT_GT(box.document()->size().height(), wide.height());
}

}  // namespace
}  // namespace halvane
