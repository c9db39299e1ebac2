// The pane of a report: what it shows, how it lays it out, what can be done with it.
#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QHBoxLayout>
#include <QImage>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include "tests/support/form_support.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

/// A pane that shows what `write` appends.
class Pane : public testing::Test {
 protected:
  template <typename Write>
  void Show(const Write& write) {
    RichText report;
    write(report);
    box.ShowReport(report);
  }

  [[nodiscard]] QTextBlock Line(int number) const {
    return box.document()->findBlockByNumber(number);
  }

  /// The size of the picture that is the first character.
  [[nodiscard]] QSizeF PictureSize() const {
    const QTextFormat format = Line(0).begin().fragment().charFormat();
    auto* const layout = box.document()->documentLayout();
    auto* const pictures = layout->handlerForObject(format.objectType());
    return pictures == nullptr ? QSizeF() : pictures->intrinsicSize(box.document(), 0, format);
  }

  RichTextBox box;
};

TEST_F(Pane, TextHasTheReportsLines) {
  Show([](RichText& report) { report.Append("first\r\n\r\nthird\ttab\r\n"); });
  EXPECT_EQ(box.toPlainText(), "first\n\nthird\ttab\n");
}

TEST_F(Pane, CaretAtTheStartIsSeenWithTheMarginAboveIt) {
  Show([](RichText& report) {
    for (int line = 0; line < 60; ++line) report.Append("line\r\n");
  });
  box.resize(400, 200);
  box.show();
  box.SelectAll();
  ASSERT_GT(box.verticalScrollBar()->value(), 0);
  box.Select(0, 0);
  EXPECT_EQ(box.verticalScrollBar()->value(), 0);
}

TEST_F(Pane, TabStopsStandAtTheirTwips) {
  Show([](RichText& report) {
    report.SetTabCount(2);
    report.SetTab(0, 1440);
    report.SetTab(1, 4000);
    report.Append("a\tb\tc");
  });
  const auto stops = Line(0).blockFormat().tabPositions();
  ASSERT_EQ(stops.size(), 2);
  // 1440 twips are an inch.
  EXPECT_DOUBLE_EQ(stops[0].position, box.logicalDpiX());
  EXPECT_DOUBLE_EQ(stops[1].position, 4000.0 * box.logicalDpiX() / 1440);
  EXPECT_EQ(stops[1].type, QTextOption::LeftTab);
  // And the text stands there.
  box.resize(800, 200);
  box.show();
  QTextCursor cursor(box.document());
  const int start = box.cursorRect(cursor).x();
  cursor.setPosition(2);
  EXPECT_NEAR(box.cursorRect(cursor).x() - start, box.logicalDpiX(), 1);
}

TEST_F(Pane, ParagraphsHaveTheirAlignment) {
  Show([](RichText& report) {
    report.SetAlignment(Alignment::Center);
    report.Append("centred\r\n");
    report.SetAlignment(Alignment::Right);
    report.Append("right\r\n");
    report.SetAlignment(Alignment::Left);
    report.Append("left");
  });
  EXPECT_EQ(Line(0).blockFormat().alignment(), Qt::AlignHCenter);
  EXPECT_EQ(Line(1).blockFormat().alignment(), Qt::AlignRight);
  EXPECT_EQ(Line(2).blockFormat().alignment(), Qt::AlignLeft);
}

TEST_F(Pane, RunsHaveTheirFonts) {
  Show([](RichText& report) {
    report.SetFont({.size = 12, .bold = true, .underline = true});
    report.Append("title");
    report.SetFont({.size = 10, .bold = false, .underline = false});
    report.Append("plain");
  });
  auto fragment = Line(0).begin();
  const QTextCharFormat title = fragment.fragment().charFormat();
  const QTextCharFormat plain = (++fragment).fragment().charFormat();
  EXPECT_EQ(title.fontPointSize(), 12);
  EXPECT_EQ(title.fontWeight(), QFont::Bold);
  EXPECT_TRUE(title.fontUnderline());
  EXPECT_EQ(plain.fontPointSize(), 10);
  EXPECT_EQ(plain.fontWeight(), QFont::Normal);
  EXPECT_FALSE(plain.fontUnderline());
}

TEST_F(Pane, PictureIsOneCharacterOfItsOwnSize) {
  Show([](RichText& report) { report.AppendPicture("strain_index/risk_chart"); });
  EXPECT_EQ(box.toPlainText(), QString(QChar::ObjectReplacementCharacter));
  EXPECT_EQ(PictureSize(), QSizeF(494, 292));
}

TEST_F(Pane, JpegHasTheSizeThatItsDotsPerInchSay) {
  Show([](RichText& report) { report.AppendPicture("ocra/zones"); });
  EXPECT_EQ(PictureSize(), QSizeF(494, 296));
}

TEST_F(Pane, PicturesAreDrawn) {
  Show([](RichText& report) { report.AppendPicture("ocra/zones"); });
  box.resize(600, 400);
  const QImage screen = box.viewport()->grab().toImage();
  const int margin = static_cast<int>(box.document()->documentMargin());
  // The first zone of the JPEG is green.
  const QColor zone = screen.pixelColor(margin + 30, margin + 70);
  EXPECT_NEAR(zone.red(), 0x9f, 8);
  EXPECT_NEAR(zone.green(), 0xd3, 8);
  EXPECT_NEAR(zone.blue(), 0xb4, 8);

  Show([](RichText& report) { report.AppendPicture("strain_index/risk_chart"); });
  const QImage chart = box.viewport()->grab().toImage();
  EXPECT_NE(chart, screen);
  int coloured = 0;
  for (int x = 0; x < chart.width(); ++x) {
    for (int y = 0; y < chart.height(); ++y) {
      if (chart.pixelColor(x, y).saturation() > 60) ++coloured;
    }
  }
  EXPECT_GT(coloured, 1000);
}

TEST_F(Pane, PictureIsNoLargerThanItsPage) {
  Show([](RichText& report) { report.AppendPicture("strain_index/risk_chart"); });
  box.resize(200, 100);
  box.show();
  EXPECT_EQ(PictureSize(), QSizeF(494, 292));
  box.document()->setDocumentMargin(0);
  box.document()->setPageSize({600, 200});
  EXPECT_LT(PictureSize().height(), 200);
  EXPECT_EQ(box.document()->pageCount(), 1);
  EXPECT_NEAR(PictureSize().width() / PictureSize().height(), 494 / 292.0, 0.01);
  box.document()->setPageSize({300, 800});
  EXPECT_EQ(PictureSize().width(), 300);
}

TEST_F(Pane, PictureOnPaperIsAsLargeAsOnTheScreen) {
  Show([](RichText& report) { report.AppendPicture("strain_index/risk_chart"); });
  QImage paper(100, 100, QImage::Format_RGB32);
  paper.setDotsPerMeterX(23622);  // 600 to an inch
  paper.setDotsPerMeterY(23622);
  box.document()->documentLayout()->setPaintDevice(&paper);
  EXPECT_NEAR(PictureSize().width(), 494 * 600 / 96.0, 1);
}

/// Counts the sizes that the viewport of a pane gets while text stands in it.
class SizesOfText : public QObject {
 public:
  explicit SizesOfText(RichTextBox& box) : box_(box) { box.viewport()->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize && !box_.document()->isEmpty()) ++sizes;
    return QObject::eventFilter(watched, event);
  }

  int sizes = 0;

 private:
  RichTextBox& box_;
};

constexpr int kSomeLines = 100;

void AppendSomeLines(RichText& report) {
  for (int line = 0; line < kSomeLines; ++line) report.Append("line", kNewLine);
}

TEST_F(Pane, ALongReportIsLaidOutInOneWidth) {
  box.resize(400, 300);
  box.show();
  const SizesOfText seen(box);
  Show(AppendSomeLines);
  EXPECT_EQ(seen.sizes, 0);
  EXPECT_TRUE(box.verticalScrollBar()->isVisible());
  Show(AppendSomeLines);
  EXPECT_EQ(seen.sizes, 0);
}

TEST_F(Pane, ALongReportIsLaidOutInTheWidthThatItsFormLeavesIt) {
  QWidget form;
  auto* row = new QHBoxLayout(&form);
  auto* beside = new QWidget(&form);
  beside->setFixedWidth(200);
  auto* pane = new RichTextBox(&form);
  row->addWidget(beside);
  row->addWidget(pane);
  form.resize(600, 300);
  form.show();
  RichText report;
  AppendSomeLines(report);
  pane->ShowReport(report);
  const SizesOfText seen(*pane);
  pane->document()->clear();
  beside->hide();
  pane->ShowReport(report);
  QCoreApplication::processEvents();
  EXPECT_EQ(seen.sizes, 0);
  EXPECT_GT(pane->width(), 500);
}

/// A pane in the second of two tabs that stand for different widths.
TEST_F(Pane, ATextThatComesIntoViewIsLaidOutBehindWhatShowsIt) {
  QTabWidget tabs;
  tabs.addTab(new QWidget(&tabs), "Input");
  auto* pane = new RichTextBox(&tabs);
  tabs.addTab(pane, "Report");
  tabs.resize(600, 300);
  tabs.show();
  RichText report;
  AppendSomeLines(report);
  tabs.setCurrentWidget(pane);
  pane->ShowReport(report);
  const auto fits = [pane] {
    return pane->document()->pageSize().width() == pane->viewport()->width();
  };
  EXPECT_TRUE(fits());
  tabs.setCurrentIndex(0);
  tabs.resize(500, 300);
  QCoreApplication::processEvents();
  tabs.setCurrentWidget(pane);
  EXPECT_FALSE(fits());
  // Nobody has another report shown.
  QCoreApplication::processEvents();
  EXPECT_TRUE(fits());
  tabs.setCurrentIndex(0);
  tabs.resize(400, 300);
  tabs.setCurrentWidget(pane);
  pane->ShowReport(report);
  EXPECT_TRUE(fits());
}

TEST_F(Pane, HasABarWhereItsReportIsLonger) {
  box.resize(400, 200);
  box.show();
  Show(AppendSomeLines);
  EXPECT_TRUE(box.verticalScrollBar()->isVisible());
  Show([](RichText& report) { report.Append("one line"); });
  EXPECT_FALSE(box.verticalScrollBar()->isVisible());
  // One line that is higher than the pane.
  Show([](RichText& report) { report.AppendPicture("strain_index/risk_chart"); });
  EXPECT_TRUE(box.verticalScrollBar()->isVisible());
}

TEST_F(Pane, IsWhitePaperUnderADarkPalette) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(45, 45, 48), QColor(45, 45, 48)));
  RichTextBox dark;
  dark.resize(200, 100);
  dark.show();
  const QImage picture = dark.viewport()->grab().toImage();
  const QColor text = dark.palette().color(QPalette::Text);
  QApplication::setPalette(before);
  EXPECT_EQ(picture.pixelColor(picture.rect().center()), QColor(Qt::white));
  EXPECT_EQ(text, QColor(Qt::black));
}

TEST_F(Pane, TakesNoTyping) {
  Show([](RichText& report) { report.Append("report"); });
  box.show();
  QTest::keyClicks(&box, "typed");
  EXPECT_EQ(box.toPlainText(), "report");
}

struct SelectionRow {
  const char* label;
  int start;
  int length;
  const char* selected;
};

TEST_F(Pane, SelectsWithinItsText) {
  Show([](RichText& report) { report.Append("one\r\ntwo"); });
  const std::vector<SelectionRow> rows{
      {"nothing", 0, 0, ""},
      {"from the start", 0, 2, "on"},
      {"across a line end", 2, 3, "e\nt"},
      {"beyond the end", 4, 100, "two"},
      {"from beyond the end", 50, 3, ""},
  };
  for (const SelectionRow& row : rows) {
    box.Select(row.start, row.length);
    EXPECT_EQ(box.SelectedText(), row.selected) << row.label;
  }
  box.SelectAll();
  EXPECT_EQ(box.SelectedText(), "one\ntwo");
}

TEST_F(Pane, ShownReportHasTheCaretAtItsStart) {
  Show([](RichText& report) { report.Append("one\r\ntwo"); });
  box.SelectAll();
  Show([](RichText& report) { report.Append("three"); });
  EXPECT_EQ(box.textCursor().position(), 0);
  EXPECT_FALSE(box.textCursor().hasSelection());
}

constexpr int kManyLines = 4000;

void AppendManyLines(RichText& report) {
  for (int line = 0; line < kManyLines; ++line) {
    report.Append(kNewLine, "line ", std::to_string(line));
  }
}

/// How high the text is as far as it is laid out.
double HeightNow(const RichTextBox& box) {
  return static_cast<double>(box.verticalScrollBar()->maximum()) + box.viewport()->height();
}

TEST_F(Pane, LongReportIsLaidOutWhileItStandsThere) {
  ShowActive(box);
  Show(AppendManyLines);
  EXPECT_EQ(box.document()->blockCount(), kManyLines + 1);
  // The first lines stand at once.
  EXPECT_EQ(box.document()->findBlockByNumber(1).layout()->lineCount(), 1);
  EXPECT_EQ(box.document()->lastBlock().layout()->lineCount(), 0);
  while (box.document()->lastBlock().layout()->lineCount() == 0) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  QCoreApplication::processEvents();
  EXPECT_NEAR(HeightNow(box), box.document()->size().height(), 1);
}

TEST_F(Pane, EndOfALongReportIsThereForWhoGoesThere) {
  ShowActive(box);
  Show(AppendManyLines);
  QTest::keyClick(&box, Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(box.textCursor().block().text(), QString("line %1").arg(kManyLines - 1));
  EXPECT_TRUE(box.viewport()->rect().intersects(box.cursorRect()));
}

TEST_F(Pane, ShortReportIsWholeAtOnceBehindALongOne) {
  ShowActive(box);
  Show([](RichText& report) { report.Append("one\r\ntwo"); });
  const QSizeF size = box.document()->size();
  Show(AppendManyLines);
  Show([](RichText& report) { report.Append("one\r\ntwo"); });
  EXPECT_EQ(box.document()->lastBlock().layout()->lineCount(), 1);
  EXPECT_EQ(box.verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(box.document()->size(), size);
}

}  // namespace
}  // namespace halvane
