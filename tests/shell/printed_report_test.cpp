#include <QPrinter>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextLayout>

#include "app/tool_forms.h"
#include "core/job_file.h"
#include "platform/platform_qt.h"
#include "shell/tool_form.h"
#include "tests/support/form_support.h"
#include "tests/support/pdf_words.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

constexpr double kPointsPerDot = 72.0 / 96;
constexpr double kMargin = 10;  // points that the system's printer leaves at each edge

/// The real platform with the printer dialog already accepted.
class PrinterChosen : public QtPlatform {
 public:
  bool ChoosePrinter(QWidget* /*parent*/) override { return true; }
};

/// Two tasks in long words and wide postures, so that every table has rows as long as they get.
std::string JobText() {
  const auto repeated = [](int count, std::string_view line) {
    std::string lines;
    for (int number = 0; number < count; ++number) lines.append(line).append("\r\n");
    return lines;
  };
  std::string text =
      "\"qjt\",1,0,0,0\r\n2\r\n8,0.75,0\r\n\"Mia\",\"Packing\",\"W7\",0,8\r\n0,0,0,0\r\n";
  text += repeated(43, "0") + "0,0,0,0,0,0,0\r\n" + repeated(14, "3") + "3,4,0,4,0,0\r\n";
  for (const std::string_view name : {"Load jars into the carton", "Close and label a carton"}) {
    text.append("\"").append(name).append("\",1\r\n44,240\r\n2.5,0.03,0.39,0,44,7,30\r\n");
    text +=
        "2,1,8,4\r\n0.03,0.39,0,12,7,30\r\n2,1,8,4\r\n1,2,0,1,1,1,1,1\r\n" + repeated(8, "1.1,0.2");
  }
  return text;
}

struct PaperRow {
  const char* label;
  QPageSize::PageSizeId paper;
  QPageLayout::Orientation orientation;
};

constexpr std::array kPapers{
    PaperRow{"A4", QPageSize::A4, QPageLayout::Portrait},
    PaperRow{"Letter", QPageSize::Letter, QPageLayout::Portrait},
    PaperRow{"A4 across", QPageSize::A4, QPageLayout::Landscape},
    PaperRow{"A5", QPageSize::A5, QPageLayout::Portrait},
};

class PrintedReport : public ShellTest {
 protected:
  void SetUp() override {
    if (!CanReadPdf()) GTEST_SKIP() << "poppler-utils is not installed";
    WriteBytes(folder.File("job.qjt"), JobText());
    Module1.JobFileName = folder.File("job.qjt");
    ASSERT_EQ(OpenJobFile(), OpenOutcome::Opened);
    SetPlatform(&real);
    QPrinter& printer = real.CurrentPrinter();
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("report.pdf"));
  }
  void TearDown() override { SetPlatform(&platform); }

  /// The tool with its report showing, printed.
  std::vector<PdfPage> Print(Tool tool) {
    form = MakeToolForm(tool, nullptr);
    form->load();
    form->resize(1120, 700);
    ShowActive(*form);
    if (auto* tabs = form->findChild<QTabWidget*>("SSTab1"))
      tabs->setCurrentIndex(tabs->count() - 1);
    Choose(*form, "mnuPrint");
    return ReadPdf(File("report.pdf"));
  }
  [[nodiscard]] const QTextDocument& Pane() const {
    return *Find<RichTextBox>(*form, "RichTextBox1").document();
  }

  PrinterChosen real;
  std::unique_ptr<ToolForm> form;
};

/// Without blanks, and without the characters that stand for pictures.
QString Letters(QString text) {
  text.remove(QChar::ObjectReplacementCharacter);
  text.replace(QChar::Nbsp, ' ');
  return text.simplified().remove(' ');
}

TEST_F(PrintedReport, HasEveryRowOnOneLineAndNothingElse) {
  for (const PaperRow& paper : kPapers) {
    for (const ToolName& name : kToolNames) {
      SCOPED_TRACE(std::string(name.key) + " on " + paper.label);
      real.CurrentPrinter().setPageSize(QPageSize(paper.paper));
      real.CurrentPrinter().setPageOrientation(paper.orientation);
      QStringList lines;
      for (const PdfPage& page : Print(name.tool)) lines += page.Lines();
      EXPECT_EQ(Letters(lines.join(' ')), Letters(Pane().toPlainText()));
      int rows = 0;
      for (QTextBlock block = Pane().begin(); block.isValid(); block = block.next()) {
        if (!block.text().contains('\t')) continue;
        EXPECT_TRUE(lines.contains(block.text().simplified())) << block.text().toStdString();
        ++rows;
      }
      EXPECT_EQ(rows > 0, name.tool != Tool::Hal);
    }
  }
}

TEST_F(PrintedReport, HasItsColumnsWhereThePaneHasThem) {
  for (const ToolName& name : kToolNames) {
    if (name.tool == Tool::Hal) continue;
    SCOPED_TRACE(name.key);
    const auto pages = Print(name.tool);
    int columns = 0;
    for (QTextBlock block = Pane().begin(); block.isValid(); block = block.next()) {
      const QString text = block.text();
      const QTextLine line = block.layout()->lineAt(0);
      for (qsizetype tab = text.indexOf('\t'); tab >= 0; tab = text.indexOf('\t', tab + 1)) {
        const double x = line.cursorToX(static_cast<int>(tab) + 1) - line.x();
        const auto isThere = [x](const QTextOption::Tab& stop) {
          return std::abs(stop.position - x) < 1;
        };
        const QString word = text.mid(tab + 1).section('\t', 0, 0).simplified().section(' ', 0, 0);
        if (word.isEmpty() || !std::ranges::any_of(block.blockFormat().tabPositions(), isThere))
          continue;
        const double expected = kMargin + (x * kPointsPerDot);
        const bool found = std::ranges::any_of(pages[0].words, [&](const PdfWord& printed) {
          return printed.text == word && std::abs(printed.place.left() - expected) < 1.5;
        });
        EXPECT_TRUE(found) << word.toStdString() << " at " << expected
                           << " of: " << text.toStdString();
        ++columns;
      }
    }
    EXPECT_GT(columns, 10);
  }
}

TEST_F(PrintedReport, LooksAsThePaneDoes) {
  const auto pages = Print(Tool::StrainIndex);
  ASSERT_EQ(pages.size(), 1U);
  // At the dots of the screen, so that both are of one size.
  const QRect printed = InkOf(DrawPdf(File("report.pdf"), 1, 96));
  const QTextDocument& pane = Pane();
  EXPECT_NEAR(printed.left(), kMargin / kPointsPerDot, 2);
  EXPECT_NEAR(printed.top(), kMargin / kPointsPerDot, 6);
  EXPECT_NEAR(printed.height(), pane.size().height() - (2 * pane.documentMargin()), 30);
}

TEST_F(PrintedReport, HasDrawingsAsDrawingsAndNoPictureCutOrMissing) {
  // The drawing of the Strain Index is 494 dots of the screen wide; its arrow is nearly black.
  real.CurrentPrinter().setPageSize(QPageSize({100, 40}, QPageSize::Millimeter));
  const auto pages = Print(Tool::StrainIndex);
  ASSERT_GT(pages.size(), 1U);
  int coloured = 0;
  for (int page = 1; page <= static_cast<int>(pages.size()); ++page) {
    const QImage picture = DrawPdf(File("report.pdf"), page, 144);
    const QRect margins = picture.rect().adjusted(18, 18, -18, -18);
    EXPECT_TRUE(margins.contains(InkOf(picture))) << page;
    bool hasColour = false;
    for (int y = 0; y < picture.height() && !hasColour; ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        hasColour = hasColour || picture.pixelColor(x, y).saturation() > 60;
      }
    }
    coloured += hasColour ? 1 : 0;
  }
  EXPECT_EQ(coloured, 1);
  EXPECT_EQ(BytesOf(folder.File("report.pdf")).find("/Subtype /Image"), std::string::npos);
}

}  // namespace
}  // namespace halvane
