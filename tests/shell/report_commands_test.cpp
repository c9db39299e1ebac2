#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QTest>

#include "platform/platform_qt.h"
#include "tests/support/form_support.h"
#include "tools/strain_index/frm_si.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

class ReportCommands : public ShellTest {
 protected:
  void SetUp() override { form = LoadedStrainIndex(); }

  void OpenReport() const { Find<QTabWidget>(*form, "SSTab1").setCurrentIndex(1); }
  [[nodiscard]] RichTextBox& Pane() const { return Find<RichTextBox>(*form, "RichTextBox1"); }
  /// Start and length of the selection.
  [[nodiscard]] std::pair<int, int> Selection() const {
    const QTextCursor cursor = Pane().textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
  }
  /// The selection that holds the whole text.
  [[nodiscard]] std::pair<int, int> WholeText() const {
    return {0, static_cast<int>(Pane().toPlainText().size())};
  }

  std::unique_ptr<FrmSI> form;
};

TEST_F(ReportCommands, EditMenuIsEnabledOnTheReportTabOnly) {
  const auto& edit = Find<QMenu>(*form, "mnuEdit");
  EXPECT_FALSE(edit.isEnabled());
  OpenReport();
  EXPECT_TRUE(edit.isEnabled());
  Find<QTabWidget>(*form, "SSTab1").setCurrentIndex(0);
  EXPECT_FALSE(edit.isEnabled());
}

TEST_F(ReportCommands, SelectAllFocusesThePaneAndSelectsItsText) {
  OpenReport();
  Choose(*form, "mnuEditSelect");
  EXPECT_TRUE(Pane().hasFocus());
  EXPECT_GT(WholeText().second, 700);
  EXPECT_EQ(Selection(), WholeText());
}

TEST_F(ReportCommands, CopyPutsTheSelectedTextOnTheClipboard) {
  OpenReport();
  Pane().Select(0, 12);
  Choose(*form, "mnuEditCopy");
  EXPECT_TRUE(Pane().hasFocus());
  EXPECT_EQ(platform.clipboard(), (QStringList{"clear", "text: Strain Index"}));
  EXPECT_EQ(Selection(), std::pair(0, 12));
}

TEST_F(ReportCommands, CopyWithNothingSelectedLeavesTheClipboardEmpty) {
  OpenReport();
  Choose(*form, "mnuEditCopy");
  EXPECT_EQ(platform.clipboard(), QStringList{"clear"});
}

TEST_F(ReportCommands, CopyReachesTheSystemsClipboard) {
  OpenReport();
  QtPlatform real;
  SetPlatform(&real);
  QClipboard& clipboard = *QApplication::clipboard();
  clipboard.setText("from another program");
  Pane().Select(0, 12);
  Choose(*form, "mnuEditCopy");
  EXPECT_EQ(clipboard.text(), "Strain Index");
  Pane().Select(0, 0);
  Choose(*form, "mnuEditCopy");
  EXPECT_EQ(clipboard.text(), "");
  SetPlatform(&platform);
}

TEST_F(ReportCommands, CancelledPrintLeavesTextAndSelectionAndMakesNoReport) {
  OpenReport();
  Pane().Select(3, 9);
  const QString before = Pane().toPlainText();
  Module1.JobName = "Packing";
  platform.WillChoosePrinter(false);
  Choose(*form, "mnuPrint");
  EXPECT_EQ(Pane().toPlainText(), before);
  EXPECT_EQ(Selection(), std::pair(3, 9));
  EXPECT_EQ(platform.printed(), QStringList());
}

TEST_F(ReportCommands, PrintHasTheLatestValuesAndEndsAtTheStart) {
  OpenReport();
  Pane().Select(3, 9);
  Module1.JobName = "Packing";
  Module1.SiExertionMinutes = 15.0;
  Module1.SiDutyObservationMinutes = 20.0;
  platform.WillChoosePrinter(true);
  std::pair<int, int> whilePrinting;
  platform.WhenPrinted([&] { whilePrinting = Selection(); });
  Choose(*form, "mnuPrint");
  ASSERT_EQ(platform.printed().size(), 1);
  EXPECT_TRUE(platform.printed()[0].contains("Job Name: Packing\n"));
  EXPECT_TRUE(platform.printed()[0].contains("Duration of exertion (%)   \t75.0\t2.0\n"));
  EXPECT_EQ(platform.printed()[0], Pane().toPlainText());
  EXPECT_EQ(platform.printedTitles(), QStringList(form->windowTitle()));
  EXPECT_EQ(whilePrinting, WholeText());
  EXPECT_EQ(Selection(), std::pair(0, 0));
}

TEST_F(ReportCommands, PrintWorksFromTheFirstTab) {
  platform.WillChoosePrinter(true);
  Choose(*form, "mnuPrint");
  ASSERT_EQ(platform.printed().size(), 1);
  EXPECT_TRUE(platform.printed()[0].startsWith("Strain Index (SI)\n"));
  EXPECT_EQ(Find<QTabWidget>(*form, "SSTab1").currentIndex(), 0);
  EXPECT_FALSE(Find<QMenu>(*form, "mnuEdit").isEnabled());
}

TEST_F(ReportCommands, FailureOfThePrinterIsSilent) {
  platform.WillChoosePrinter(true);
  platform.WhenPrinted([] { throw RuntimeFailure(FailureKind::FileError, "out of paper"); });
  Choose(*form, "mnuPrint");
  EXPECT_TRUE(platform.messages().empty());
  EXPECT_TRUE(platform.ends().empty());
}

TEST_F(ReportCommands, FailureOfTheComputationInPrintIsSilent) {
  // 29.5 per cent as the first computation of the run has no rating.
  Module1.SiExertionMinutes = 29.5;
  Module1.SiDutyObservationMinutes = 100.0;
  platform.WillChoosePrinter(true);
  Choose(*form, "mnuPrint");
  EXPECT_EQ(platform.printed(), QStringList());
  EXPECT_TRUE(platform.messages().empty());
  EXPECT_TRUE(platform.ends().empty());
}

TEST_F(ReportCommands, PrintSetupShowsItsDialogAndFailsSilently) {
  Choose(*form, "mnuFilePrintSetup");
  EXPECT_EQ(platform.printerSetups(), 1);
  platform.WhenPrinterIsSetUp([] { throw RuntimeFailure(FailureKind::FileError); });
  Choose(*form, "mnuFilePrintSetup");
  EXPECT_EQ(platform.printerSetups(), 2);
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(ReportCommands, PrintSetupDoesNotMakeACancelledDialogAFailure) {
  Choose(*form, "mnuFilePrintSetup");
  Module1.JobFileName = "lost.qjt";
  platform.WillSave("");
  Choose(*form, "mnuSaveAs");
  EXPECT_EQ(Module1.JobFileName, "");
}

}  // namespace
}  // namespace halvane
