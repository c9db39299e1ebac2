#include "platform/printed_pages.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>

#include "platform/platform_qt.h"
#include "tests/support/form_support.h"
#include "tests/support/pdf_words.h"

namespace halvane {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kScreenDotsPerInch = 96;
constexpr double kMargin = 10;  // points that the system's printer leaves at each edge

/// A drawn picture that is two inches wide and four high, and knows where it was drawn.
class Picture : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)
 public:
  static constexpr int kType = QTextFormat::UserObject + 7;

  QSizeF intrinsicSize(QTextDocument* document, int /*position*/,
                       const QTextFormat& /*format*/) override {
    const QPaintDevice* device = document->documentLayout()->paintDevice();
    return QSizeF(2, 4) * (device == nullptr ? kScreenDotsPerInch : device->logicalDpiY());
  }
  void drawObject(QPainter* painter, const QRectF& place, QTextDocument* /*document*/,
                  int /*position*/, const QTextFormat& /*format*/) override {
    painter->fillRect(place, Qt::black);
  }
};

class PrintedPages : public testing::Test {
 protected:
  void SetUp() override {
    if (!CanReadPdf()) GTEST_SKIP() << "poppler-utils is not installed";
    QFont font("Liberation Sans");
    font.setPointSize(10);
    document.setDefaultFont(font);
    document.documentLayout()->registerHandler(Picture::kType, &picture);
  }

  void AddLine(const QString& text, double tabAtPoints = 0) {
    QTextBlockFormat format;
    if (tabAtPoints > 0) {
      // Positions are given in dots of the screen.
      const double dots = tabAtPoints / kPointsPerInch * kScreenDotsPerInch;
      format.setTabPositions({QTextOption::Tab(dots, QTextOption::LeftTab)});
    }
    if (!document.isEmpty()) cursor.insertBlock();
    cursor.setBlockFormat(format);
    cursor.insertText(text);
  }
  void AddPicture() {
    QTextCharFormat format;
    format.setObjectType(Picture::kType);
    cursor.insertBlock();
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
  }

  std::vector<PdfPage> Printed() {
    QPrinter& printer = platform.CurrentPrinter();
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File());
    platform.Print(document);
    return ReadPdf(File());
  }
  [[nodiscard]] QString File() const { return QString::fromStdString(folder.File("pages.pdf")); }

  TemporaryFolder folder;
  QtPlatform platform;
  Picture picture;
  QTextDocument document;
  QTextCursor cursor{&document};
};

TEST_F(PrintedPages, BeginAtThePagesOwnMarginsAndAreNotNumbered) {
  AddLine("first");
  for (int line = 1; line < 100; ++line) AddLine("next");
  const auto pages = Printed();
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[0].size, QSizeF(595, 842));
  EXPECT_NEAR(pages[0].words[0].place.left(), kMargin, 0.5);
  EXPECT_NEAR(pages[0].words[0].place.top(), kMargin, 1);
  EXPECT_EQ(pages[0].words.size() + pages[1].words.size(), 100U);
  for (const PdfPage& page : pages) {
    EXPECT_LE(page.words.back().place.bottom(), 842 - kMargin);
    EXPECT_NEAR(page.words[0].place.top(), kMargin, 1);
  }
}

TEST_F(PrintedPages, TakeTheMarginsThatWereSetUp) {
  AddLine("first");
  platform.CurrentPrinter().setPageMargins({30, 20, 30, 20}, QPageLayout::Millimeter);
  const auto pages = Printed();
  EXPECT_NEAR(pages[0].words[0].place.left(), 30 / 25.4 * kPointsPerInch, 0.5);
  EXPECT_NEAR(pages[0].words[0].place.top(), 20 / 25.4 * kPointsPerInch, 1.5);
}

TEST_F(PrintedPages, LeaveTheDocumentAsItWas) {
  document.setDocumentMargin(24);
  AddLine("first");
  AddPicture();
  const QSizeF size = document.pageSize();
  Printed();
  EXPECT_EQ(document.pageSize(), size);
  EXPECT_EQ(document.documentMargin(), 24);
  EXPECT_TRUE(document.findChildren<QTextDocument*>().isEmpty());
}

TEST_F(PrintedPages, ColumnsStandAtTheirStops) {
  AddLine("first\tsecond", 400);
  const auto pages = Printed();
  ASSERT_EQ(pages[0].words.size(), 2U);
  EXPECT_NEAR(pages[0].words[1].place.left() - pages[0].words[0].place.left(), 400, 0.5);
}

TEST_F(PrintedPages, NarrowPaperTakesRowsSmallerInsteadOfBreakingThem) {
  AddLine("first\tsecond third fourth", 450);
  platform.CurrentPrinter().setPageSize(QPageSize(QPageSize::A5));
  const auto pages = Printed();
  EXPECT_EQ(pages[0].Lines(), QStringList{"first second third fourth"});
  EXPECT_LE(pages[0].words.back().place.right(), pages[0].size.width() - kMargin + 0.5);
  EXPECT_GT(pages[0].words.back().place.right(), pages[0].size.width() - kMargin - 5);
}

TEST_F(PrintedPages, TextWithoutColumnsIsBrokenAndNotMadeSmaller) {
  const QString text = QString("word ").repeated(60).trimmed();
  AddLine(text);
  platform.CurrentPrinter().setPageSize(QPageSize(QPageSize::A5));
  const auto pages = Printed();
  EXPECT_GT(pages[0].Lines().size(), 3);
  EXPECT_EQ(pages[0].Lines().join(' '), text);
  const double height = pages[0].words[0].place.height();
  platform.CurrentPrinter().setPageSize(QPageSize(QPageSize::A3));
  EXPECT_NEAR(Printed()[0].words[0].place.height(), height, 0.01);
}

TEST_F(PrintedPages, ARowLongerThanAnyPaperIsBroken) {
  AddLine("first\t" + QString("word ").repeated(100), 100);
  const auto pages = Printed();
  EXPECT_GT(pages[0].Lines().size(), 2);
  EXPECT_EQ(pages[0].words.size(), 101U);
  // At most from 200 mm to the 203 mm that the page has.
  EXPECT_NEAR(pages[0].words[0].place.height(), 11.2, 0.2);
}

TEST_F(PrintedPages, ABrokenRowStandsOnOnePage) {
  // Whatever line of the page it begins on.
  for (int before = 65; before < 75; ++before) {
    document.clear();
    AddLine("line");
    for (int line = 1; line < before; ++line) AddLine("line");
    AddLine("row\t" + QString("word ").repeated(60), 100);
    const auto pages = Printed();
    std::size_t words = 0;
    for (const PdfPage& page : pages) {
      const QStringList lines = page.Lines();
      if (lines.filter("word").isEmpty()) continue;
      ++words;
      EXPECT_EQ(lines.join(' ').count("word"), 60) << before;
      EXPECT_EQ(lines.filter("row").size(), 1) << before;
    }
    EXPECT_EQ(words, 1U) << before;
  }
}

TEST_F(PrintedPages, TheHeadingOfATableStandsWithItsFirstRow) {
  bool moved = false;
  for (int before = 65; before < 75; ++before) {
    document.clear();
    AddLine("line");
    for (int line = 1; line < before; ++line) AddLine("line");
    AddLine("heading\tcolumn", 100);
    AddLine("row\tvalue", 100);
    AddLine("other\tvalue", 100);
    for (const PdfPage& page : Printed()) {
      const QStringList lines = page.Lines();
      EXPECT_EQ(lines.contains("heading column"), lines.contains("row value")) << before;
      moved = moved || lines.value(0) == "heading column";
    }
  }
  EXPECT_TRUE(moved);
}

TEST_F(PrintedPages, APictureStandsOnOnePage) {
  AddLine("first");
  for (int line = 1; line < 50; ++line) AddLine("next");
  AddPicture();
  ASSERT_EQ(Printed().size(), 2U);
  const QRect ink = InkOf(DrawPdf(File(), 2, 72));
  EXPECT_NEAR(ink.width(), 2 * kPointsPerInch, 2);
  EXPECT_NEAR(ink.height(), 4 * kPointsPerInch, 2);
  EXPECT_NEAR(ink.top(), kMargin, 2);
}

}  // namespace
}  // namespace halvane

#include "printed_pages_test.moc"
