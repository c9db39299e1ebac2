#include "platform/platform_qt.h"

#include <unistd.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QTest>
#include <QTextDocument>
#include <filesystem>
#include <fstream>
#include <functional>
#include <vector>

#include "core/user_folders.h"
#include "tests/support/form_support.h"

namespace halvane {
namespace {

const std::vector<Answer> kYesNo{Answer::Yes, Answer::No};
const std::vector<Answer> kYesNoCancel{Answer::Yes, Answer::No, Answer::Cancel};
const QString kFilter = "*.qjt (*.qjt);;All files (*)";

/// The real dialogs, driven as a user would.
class RealPlatform : public testing::Test {
 protected:
  [[nodiscard]] QString File(const char* name) const {
    return QString::fromStdString(folder.File(name));
  }

  TemporaryFolder folder;
  QtPlatform platform;
};

struct MessageRow {
  const char* label;
  std::vector<Answer> buttons;
  QMessageBox::StandardButton pressed;  ///< NoButton: the Escape key
  Answer answer;
};

TEST_F(RealPlatform, MessageGivesTheButtonThatWasPressed) {
  const std::vector<MessageRow> rows{
      {"Yes of two", kYesNo, QMessageBox::Yes, Answer::Yes},
      {"No of two", kYesNo, QMessageBox::No, Answer::No},
      {"Escape of two is No", kYesNo, QMessageBox::NoButton, Answer::No},
      {"Yes of three", kYesNoCancel, QMessageBox::Yes, Answer::Yes},
      {"No of three", kYesNoCancel, QMessageBox::No, Answer::No},
      {"Cancel of three", kYesNoCancel, QMessageBox::Cancel, Answer::Cancel},
      {"Escape of three is Cancel", kYesNoCancel, QMessageBox::NoButton, Answer::Cancel},
      {"OK alone", {Answer::Ok}, QMessageBox::Ok, Answer::Ok},
      {"Escape of one is that one", {Answer::Ok}, QMessageBox::NoButton, Answer::Ok},
  };
  for (const MessageRow& row : rows) {
    ModalSteps steps;
    QStringList shown;
    steps.Then<QMessageBox>("QMessageBox", [&](QMessageBox& box) {
      shown = {box.windowTitle(), box.text()};
      EXPECT_EQ(box.buttons().size(), static_cast<qsizetype>(row.buttons.size())) << row.label;
      if (row.pressed == QMessageBox::NoButton) {
        QTest::keyClick(&box, Qt::Key_Escape);
      } else {
        QTest::mouseClick(box.button(row.pressed), Qt::LeftButton);
      }
    });
    EXPECT_EQ(platform.ShowMessage(nullptr, "Title", "Save <b>data</b>?", row.buttons), row.answer)
        << row.label;
    EXPECT_EQ(shown, (QStringList{"Title", "Save <b>data</b>?"})) << row.label;
  }
}

TEST_F(RealPlatform, MessageShowsMarkupAsItStands) {
  ModalSteps steps;
  Qt::TextFormat format = Qt::RichText;
  steps.Then<QMessageBox>("QMessageBox", [&](QMessageBox& box) {
    format = box.textFormat();
    box.reject();
  });
  platform.ShowMessage(nullptr, "Title", "<b>", {Answer::Ok});
  EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(RealPlatform, MessageIsAsWideAsItsTitle) {
  const QString title = "A title that is longer than its message";
  ModalSteps steps;
  int width = 0;
  steps.Then<QMessageBox>("QMessageBox", [&](QMessageBox& box) {
    width = box.width();
    box.reject();
  });
  platform.ShowMessage(nullptr, title, "No.", {Answer::Ok});
  QFont bold = QApplication::font();
  bold.setBold(true);
  EXPECT_GE(width, QFontMetrics(bold).horizontalAdvance(title) + 120);
}

/// Types a path into a file dialog and confirms it.
void TypePath(QFileDialog& dialog, const QString& path) {
  auto& name = Find<QLineEdit>(dialog, "fileNameEdit");
  name.setText(path);
  QTest::keyClick(&name, Qt::Key_Return);
}

TEST_F(RealPlatform, OpenDialogOffersThePatternsAndGivesThePath) {
  WriteBytes(folder.File("job.qjt"), "");
  ModalSteps steps;
  QStringList patterns;
  QStringList shown;
  steps.Then<QFileDialog>("QFileDialog", [&](QFileDialog& dialog) {
    patterns = dialog.nameFilters();
    const auto& types = Find<QComboBox>(dialog, "fileTypeCombo");
    for (int i = 0; i < types.count(); ++i) shown.append(types.itemText(i).trimmed());
    TypePath(dialog, File("job.qjt"));
  });
  EXPECT_EQ(platform.ChooseFileToOpen(nullptr, kFilter), File("job.qjt"));
  EXPECT_EQ(patterns, (QStringList{"*.qjt (*.qjt)", "All files (*)"}));
  EXPECT_EQ(shown, (QStringList{"*.qjt", "All files"}));
}

TEST_F(RealPlatform, OfferedNamesGoWithTheFileDialog) {
  WriteBytes(folder.File("job.qjt"), "");
  for (const bool isToOpen : {true, false}) {
    ModalSteps steps;
    QPointer<QFileDialog> dialog;
    bool areShown = true;
    steps.Then<QFileDialog>("QFileDialog", [&](QFileDialog& shown) {
      dialog = &shown;
      QTest::keyClicks(&Find<QLineEdit>(shown, "fileNameEdit"), File("jo"));
    });
    steps.Then<QListView>("QListView", [&](QListView& names) {
      // Of those who hear of it the platform is the first.
      QObject::connect(dialog, &QDialog::finished, [&] { areShown = names.isVisible(); });
      QTest::keyClicks(&names, isToOpen ? "b.qjt" : "b 2.qjt");
      QTest::keyClick(&names, Qt::Key_Return);
    });
    const QString chosen = isToOpen ? platform.ChooseFileToOpen(nullptr, kFilter)
                                    : platform.ChooseFileToSave(nullptr, kFilter);
    EXPECT_EQ(chosen, File(isToOpen ? "job.qjt" : "job 2.qjt"));
    EXPECT_FALSE(areShown) << isToOpen;
  }
}

TEST_F(RealPlatform, CancelledFileDialogsGiveNoPath) {
  ModalSteps steps;
  const auto cancel = [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
  steps.Then<QFileDialog>("QFileDialog", cancel);
  EXPECT_EQ(platform.ChooseFileToOpen(nullptr, kFilter), "");
  steps.Then<QFileDialog>("QFileDialog", cancel);
  EXPECT_EQ(platform.ChooseFileToSave(nullptr, kFilter), "");
}

TEST_F(RealPlatform, SaveDialogAddsNoExtensionAndKeepsTheCurrentFolder) {
  const QString before = QDir::currentPath();
  ModalSteps steps;
  QStringList patterns;
  steps.Then<QFileDialog>("QFileDialog", [&](QFileDialog& dialog) {
    patterns = dialog.nameFilters();
    TypePath(dialog, File("plain name"));
  });
  EXPECT_EQ(platform.ChooseFileToSave(nullptr, kFilter), File("plain name"));
  EXPECT_EQ(patterns, (QStringList{"*.qjt (*.qjt)", "All files (*)"}));
  EXPECT_EQ(QDir::currentPath(), before);
}

TEST_F(RealPlatform, SaveDialogAsksBeforeAFileIsOverwritten) {
  WriteBytes(folder.File("job.qjt"), "old");
  ModalSteps steps;
  const auto typeIt = [this](QFileDialog& dialog) { TypePath(dialog, File("job.qjt")); };
  steps.Then<QFileDialog>("QFileDialog", typeIt);
  steps.Then<QMessageBox>("QMessageBox", [](QMessageBox& box) {
    EXPECT_TRUE(box.text().contains("already exists")) << box.text().toStdString();
    QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
  });
  // What is no answer is No: the box ends with the program, by its title bar, by keys.
  const std::vector<std::function<void(QMessageBox&)>> noAnswers{
      [](QMessageBox& box) { box.done(0); }, [](QMessageBox& box) { box.close(); },
      [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); },
      [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }};
  for (const auto& noAnswer : noAnswers) {
    steps.Then<QFileDialog>("QFileDialog", typeIt);
    steps.Then<QMessageBox>("QMessageBox", noAnswer);
  }
  steps.Then<QFileDialog>("QFileDialog", typeIt);
  steps.Then<QMessageBox>("QMessageBox", [](QMessageBox& box) {
    QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
  });
  EXPECT_EQ(platform.ChooseFileToSave(nullptr, kFilter), File("job.qjt"));
}

TEST_F(RealPlatform, SaveDialogRefusesAFolderThatDoesNotExist) {
  ModalSteps steps;
  QString message;
  steps.Then<QFileDialog>(
      "QFileDialog", [this](QFileDialog& dialog) { TypePath(dialog, File("no folder/job.qjt")); });
  steps.Then<QMessageBox>("QMessageBox", [&](QMessageBox& box) {
    message = box.text();
    box.accept();
  });
  steps.Then<QFileDialog>("QFileDialog",
                          [this](QFileDialog& dialog) { TypePath(dialog, File("job.qjt")); });
  EXPECT_EQ(platform.ChooseFileToSave(nullptr, kFilter), File("job.qjt"));
  EXPECT_EQ(message, File("no folder") + "\nThis folder does not exist.");
}

TEST_F(RealPlatform, PrinterDialogOffersNoSelectionOrPagesAndCanBeCancelled) {
  ModalSteps steps;
  bool offersParts = true;
  steps.Then<QPrintDialog>("QPrintDialog", [&](QPrintDialog& dialog) {
    offersParts = dialog.testOption(QAbstractPrintDialog::PrintSelection) ||
                  dialog.testOption(QAbstractPrintDialog::PrintPageRange) ||
                  dialog.testOption(QAbstractPrintDialog::PrintCurrentPage);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_FALSE(platform.ChoosePrinter(nullptr));
  EXPECT_FALSE(offersParts);
}

TEST_F(RealPlatform, PrinterDialogProposesAFileUntilOneIsChosen) {
  const auto proposed = [this] {
    ModalSteps steps;
    QString shown;
    steps.Then<QPrintDialog>("QPrintDialog", [&](QPrintDialog& dialog) {
      shown = Find<QLineEdit>(dialog, "filename").text();
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_FALSE(platform.ChoosePrinter(nullptr));
    return shown;
  };
  // In the folder of the user, or where the program runs below it.
  const QFileInfo first(proposed());
  EXPECT_EQ(first.fileName(), "print.pdf");
  EXPECT_TRUE(first.dir().exists()) << first.path().toStdString();
  platform.CurrentPrinter().setOutputFileName(File("report.pdf"));
  EXPECT_EQ(proposed(), File("report.pdf"));
}

TEST_F(RealPlatform, PrinterDialogAcceptedGivesThePrinterToPrintOn) {
  platform.CurrentPrinter().setOutputFileName(File("report.pdf"));
  ModalSteps steps;
  steps.Then<QPrintDialog>("QPrintDialog", [&](QPrintDialog& dialog) {
    EXPECT_EQ(dialog.printer(), &platform.CurrentPrinter());
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    ASSERT_NE(buttons, nullptr);
    QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
  });
  EXPECT_TRUE(platform.ChoosePrinter(nullptr));
}

TEST_F(RealPlatform, PageSetupShowsTheCurrentPrintersPaperAndCanBeCancelled) {
  platform.CurrentPrinter().setPageSize(QPageSize(QPageSize::A3));
  ModalSteps steps;
  QString shown;
  steps.Then<QPageSetupDialog>("QPageSetupDialog", [&](QPageSetupDialog& dialog) {
    auto& paper = Find<QComboBox>(dialog, "pageSizeCombo");
    shown = paper.currentText();
    paper.setCurrentIndex(paper.findText(QPageSize::name(QPageSize::A5)));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  platform.SetUpPrinter(nullptr);
  EXPECT_EQ(shown, QPageSize::name(QPageSize::A3));
  EXPECT_EQ(platform.CurrentPrinter().pageLayout().pageSize().id(), QPageSize::A3);
}

/// Presses a dialog's OK, as Return in a box would not always.
void Confirm(const QDialog& dialog) {
  const auto* buttons = dialog.findChild<QDialogButtonBox*>();
  ASSERT_NE(buttons, nullptr);
  QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

TEST_F(RealPlatform, WindowThatPrintsOverAFileGetsTheKeysBack) {
  std::ofstream(folder.File("report.pdf")) << "older";
  QWidget window;
  window.show();
  QWidget neighbour;
  ModalSteps steps;
  steps.Then<QPrintDialog>("QPrintDialog", [&](QPrintDialog& dialog) {
    Find<QLineEdit>(dialog, "filename").setText(File("report.pdf"));
    steps.Then<QMessageBox>("QMessageBox", [&](QMessageBox& box) {
      // Some window managers give them to another window when both end.
      neighbour.show();
      neighbour.activateWindow();
      QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    Confirm(dialog);
  });
  EXPECT_TRUE(platform.ChoosePrinter(&window));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

TEST_F(RealPlatform, PaperAndOrientationOfPageSetupHoldForEachPrint) {
  ModalSteps steps;
  steps.Then<QPageSetupDialog>("QPageSetupDialog", [](QPageSetupDialog& dialog) {
    auto& paper = Find<QComboBox>(dialog, "pageSizeCombo");
    paper.setCurrentIndex(paper.findText(QPageSize::name(QPageSize::A5)));
    Find<QRadioButton>(dialog, "landscape").click();
    Find<QDoubleSpinBox>(dialog, "leftMargin").setValue(12);
    Confirm(dialog);
  });
  platform.SetUpPrinter(nullptr);
  QTextDocument document("printed");
  document.setMetaInformation(QTextDocument::DocumentTitle, "Report");
  for (const char* name : {"first.pdf", "second.pdf"}) {
    steps.Then<QPrintDialog>("QPrintDialog", [&](QPrintDialog& dialog) {
      Find<QLineEdit>(dialog, "filename").setText(File(name));
      Confirm(dialog);
    });
    EXPECT_TRUE(platform.ChoosePrinter(nullptr));
    platform.Print(document);
    const QPageLayout page = platform.CurrentPrinter().pageLayout();
    EXPECT_EQ(page.pageSize().id(), QPageSize::A5) << name;
    EXPECT_EQ(page.orientation(), QPageLayout::Landscape) << name;
    EXPECT_NEAR(page.margins(QPageLayout::Millimeter).left(), 12, 0.1) << name;
    EXPECT_TRUE(folder.Names().find(name) != std::string::npos) << folder.Names();
    // In UTF-16, as the toolkit writes it.
    const std::string title("/Title (\xfe\xff\0R\0e\0p\0o\0r\0t)", 23);
    EXPECT_NE(BytesOf(folder.File(name)).find(title), std::string::npos) << name;
    EXPECT_EQ(platform.CurrentPrinter().docName(), "");
  }
}

/// Chooses a paper in a page setup dialog or the properties of a printer.
void ChoosePaper(const QDialog& dialog, QPageSize::PageSizeId size) {
  auto& paper = Find<QComboBox>(dialog, "pageSizeCombo");
  paper.setCurrentIndex(paper.findText(QPageSize::name(size)));
  Confirm(dialog);
}

TEST_F(RealPlatform, SetupHoldsWhereThePrintDialogTakesThePrintersOwn) {
  ModalSteps steps;
  const QPrinter& printer = platform.CurrentPrinter();
  const auto confirmWithOwnPaper = [this](QPrintDialog& dialog) {
    Find<QLineEdit>(dialog, "filename").setText(File("report.pdf"));
    // What the dialog does for a printer of the system.
    dialog.printer()->setPageLayout(QPageLayout(QPageSize(QPageSize::Legal), QPageLayout::Portrait,
                                                {5, 5, 5, 5}, QPageLayout::Millimeter));
    Confirm(dialog);
  };
  steps.Then<QPrintDialog>("QPrintDialog", confirmWithOwnPaper);
  EXPECT_TRUE(platform.ChoosePrinter(nullptr));
  EXPECT_EQ(printer.pageLayout().pageSize().id(), QPageSize::Legal) << "nothing was chosen yet";

  steps.Then<QPageSetupDialog>("QPageSetupDialog", [](QPageSetupDialog& dialog) {
    Find<QRadioButton>(dialog, "landscape").click();
    Find<QDoubleSpinBox>(dialog, "bottomMargin").setValue(21);
    ChoosePaper(dialog, QPageSize::A5);
  });
  platform.SetUpPrinter(nullptr);
  steps.Then<QPrintDialog>("QPrintDialog", confirmWithOwnPaper);
  EXPECT_TRUE(platform.ChoosePrinter(nullptr));
  EXPECT_EQ(printer.pageLayout().pageSize().id(), QPageSize::A5);
  EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
  EXPECT_NEAR(printer.pageLayout().margins(QPageLayout::Millimeter).bottom(), 21, 0.1);
}

TEST_F(RealPlatform, PaperOfThePrintersPropertiesTakesThePlaceOfThatOfPageSetup) {
  ModalSteps steps;
  steps.Then<QPageSetupDialog>(
      "QPageSetupDialog", [](QPageSetupDialog& dialog) { ChoosePaper(dialog, QPageSize::A5); });
  platform.SetUpPrinter(nullptr);
  for (const bool isConfirmed : {false, true}) {
    steps.Then<QPrintDialog>("QPrintDialog", [&](QPrintDialog& dialog) {
      steps.Then<QDialog>("QPrintPropertiesDialog", [isConfirmed](QDialog& properties) {
        if (isConfirmed) return ChoosePaper(properties, QPageSize::Letter);
        properties.reject();
      });
      Find<QLineEdit>(dialog, "filename").setText(File("report.pdf"));
      Find<QPushButton>(dialog, "properties").click();
      // What the dialog does for a printer of the system.
      if (!isConfirmed) {
        QObject::connect(&dialog, &QDialog::accepted,
                         [&dialog] { dialog.printer()->setPageSize(QPageSize(QPageSize::Legal)); });
      }
      Confirm(dialog);
    });
    EXPECT_TRUE(platform.ChoosePrinter(nullptr));
    EXPECT_EQ(platform.CurrentPrinter().pageLayout().pageSize().id(),
              isConfirmed ? QPageSize::Letter : QPageSize::A5);
  }
}

TEST_F(RealPlatform, RescueFoldersBeginWithTheUsersDocuments) {
  const std::string home = qEnvironmentVariable("HOME").toStdString();
  const std::vector<std::string> expected{home + "/Documents", home, home + "/halvane-tools",
                                          SystemTemporaryFolder()};
  EXPECT_EQ(platform.RescueFolders(), expected);
  EXPECT_EQ(platform.StateFolder(), home + "/halvane-tools");
}

TEST_F(RealPlatform, WithoutAHomeThereIsNoDocumentsFolderInTheRoot) {
  const QByteArray home = qgetenv("HOME");
  qunsetenv("HOME");
  const std::vector<std::string> folders = platform.RescueFolders();
  qputenv("HOME", home);
  EXPECT_EQ(folders.front(), "");
  EXPECT_EQ(folders.back(), SystemTemporaryFolder());
}

TEST_F(RealPlatform, ProgramFolderIsWhereItsFileStands) {
  EXPECT_EQ(platform.ProgramFolder(), QFileInfo(QApplication::applicationFilePath()).path());
}

TEST_F(RealPlatform, DataFolderIsTheUsersOwnForTheProgram) {
  const QString path = platform.DataFolder();
  EXPECT_TRUE(path.startsWith(qEnvironmentVariable("XDG_DATA_HOME") + "/")) << path.toStdString();
  EXPECT_TRUE(path.endsWith("/halvane-tools")) << path.toStdString();
}

TEST_F(RealPlatform, CopyHasEveryByteOfTheFile) {
  const std::string bytes = std::string("first\r\nlast\n\0\xFF\x1A", 15) + std::string(100000, 'x');
  WriteBytes(folder.File("me.pda"), bytes);
  EXPECT_TRUE(platform.CopyFile(File("me.pda"), File("copy.pda")));
  EXPECT_EQ(BytesOf(folder.File("copy.pda")), bytes);
  EXPECT_EQ(BytesOf(folder.File("me.pda")), bytes);
  EXPECT_EQ(folder.Names(), "copy.pda me.pda");
}

TEST_F(RealPlatform, CopyReplacesALongerFile) {
  WriteBytes(folder.File("me.pda"), "new");
  WriteBytes(folder.File("copy.pda"), "the old one");
  EXPECT_TRUE(platform.CopyFile(File("me.pda"), File("copy.pda")));
  EXPECT_EQ(BytesOf(folder.File("copy.pda")), "new");
}

TEST_F(RealPlatform, CopyMakesTheFolderOfItsTarget) {
  WriteBytes(folder.File("me.pda"), "new");
  EXPECT_TRUE(platform.CopyFile(File("me.pda"), File("user/data/me.pda")));
  EXPECT_EQ(BytesOf(folder.File("user/data/me.pda")), "new");
}

TEST_F(RealPlatform, CopyOfAMissingFileFailsAndLeavesTheOldOne) {
  WriteBytes(folder.File("copy.pda"), "the old one");
  EXPECT_FALSE(platform.CopyFile(File("me.pda"), File("copy.pda")));
  EXPECT_EQ(BytesOf(folder.File("copy.pda")), "the old one");
  EXPECT_EQ(folder.Names(), "copy.pda");
}

TEST_F(RealPlatform, CopyOfAFolderFails) {
  QDir().mkpath(File("me.pda"));
  WriteBytes(folder.File("copy.pda"), "the old one");
  EXPECT_FALSE(platform.CopyFile(File("me.pda"), File("copy.pda")));
  EXPECT_EQ(BytesOf(folder.File("copy.pda")), "the old one");
}

TEST_F(RealPlatform, CopyOntoAFolderFails) {
  WriteBytes(folder.File("me.pda"), "new");
  QDir().mkpath(File("copy.pda"));
  EXPECT_FALSE(platform.CopyFile(File("me.pda"), File("copy.pda")));
  EXPECT_EQ(folder.Names(), "copy.pda me.pda");
}

TEST_F(RealPlatform, CopyIntoAFolderThatMayNotBeWrittenFails) {
  using std::filesystem::perms;
  std::filesystem::permissions(folder.path(), perms::all);
  WriteBytes(folder.File("me.pda"), "new");
  QDir().mkpath(File("locked"));
  WriteBytes(folder.File("locked/copy.pda"), "the old one");
  const auto readable =
      perms::owner_read | perms::owner_exec | perms::others_read | perms::others_exec;
  std::filesystem::permissions(folder.File("locked"), readable);
  {
    const RightsOfNobody rights;
    EXPECT_FALSE(platform.CopyFile(File("me.pda"), File("locked/copy.pda")));
  }
  std::filesystem::permissions(folder.File("locked"), perms::owner_all);
  EXPECT_EQ(BytesOf(folder.File("locked/copy.pda")), "the old one");
}

TEST_F(RealPlatform, CopyThatMayNotTakeThePlaceOfTheOldFileFails) {
  if (geteuid() != 0) GTEST_SKIP() << "needs a file of another user";
  using std::filesystem::perms;
  std::filesystem::permissions(folder.path(), perms::all | perms::sticky_bit);
  WriteBytes(folder.File("me.pda"), "new");
  WriteBytes(folder.File("copy.pda"), "the old one");
  std::filesystem::permissions(folder.File("copy.pda"), perms::all);
  {
    const RightsOfNobody rights;
    EXPECT_FALSE(platform.CopyFile(File("me.pda"), File("copy.pda")));
  }
  EXPECT_EQ(BytesOf(folder.File("copy.pda")), "the old one");
  EXPECT_EQ(folder.Names(), "copy.pda me.pda");
}

TEST_F(RealPlatform, EndOfTheProgramLeavesEveryEventLoop) {
  int inner = -1;
  QTimer::singleShot(0, [&] {
    QEventLoop loop;
    QTimer::singleShot(0, [this] { platform.EndProgram(3); });
    inner = loop.exec();
  });
  EXPECT_EQ(QApplication::exec(), 3);
  EXPECT_EQ(inner, 3);
}

}  // namespace
}  // namespace halvane
