#include "shell/frm_about.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "shell/frm_hand_main.h"
#include "tests/support/form_support.h"

namespace halvane {
namespace {

class AboutBox : public ShellTest {
 protected:
  void AskForSystemInformation() {
    FrmAbout about(nullptr);
    ShowActive(about);
    QTest::mouseClick(&Find<QPushButton>(about, "cmdSysInfo"), Qt::LeftButton);
    EXPECT_TRUE(about.isVisible());
  }
};

const std::string kViewerKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
const std::string kFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
const ShownMessage kUnavailable{
    "Halvane Tools", "System Information Is Unavailable At This Time", {Answer::Ok}};

TEST_F(AboutBox, NamesProductVersionAndMaker) {
  const auto window = IdleMainWindow();
  ModalSteps steps;
  QStringList texts;
  steps.Then("frmAbout", [&](QWidget& about) {
    texts.append(about.windowTitle());
    for (const char* name : {"Label1", "lblTitle", "lblVersion", "lblMaker"}) {
      texts.append(Find<QLabel>(about, name).text());
    }
    for (const char* name : {"cmdOK", "cmdSysInfo"}) {
      texts.append(Find<QPushButton>(about, name).text());
    }
    QTest::mouseClick(&Find<QPushButton>(about, "cmdOK"), Qt::LeftButton);
  });
  Choose(*window, "mnuAbout");
  EXPECT_EQ(texts, (QStringList{"About Halvane Tools", "Ostrel Series:", "Halvane Tools",
                                "Version 1.8.1", "Made by Ostrel", "OK", "&System Info..."}));
}

TEST_F(AboutBox, TellsWhereHelpIsAndWhatIsNotPromised) {
  const FrmAbout about(nullptr);
  EXPECT_EQ(Find<QLabel>(about, "lblContact(0)").text(),
            "How to use the program: Help, Content...");
  EXPECT_EQ(Find<QLabel>(about, "lblContact(1)").text(),
            "To report an error, send the job file and the version above to whoever gave you the "
            "program.");
  EXPECT_EQ(Find<QLabel>(about, "lblNotice").text(),
            "This program is provided as it is, without warranty of any kind. Its figures support "
            "the judgement of an analyst; they do not replace it.");
}

TEST_F(AboutBox, IsWholeInEachFontAndNoWiderThanTheScreen) {
  const QFont usual = QApplication::font();
  for (const QSize screen : {QSize(1280, 720), QSize(800, 900)}) {
    platform.SetAvailableArea({QPoint(), screen});
    QApplication::setFont(usual);
    FrmAbout about(nullptr);
    ShowActive(about);
    for (const double points : {8.0, 14.0, 20.0}) {
      QFont font = usual;
      font.setPointSizeF(points);
      QApplication::setFont(font);
      for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
      EXPECT_LE(about.width(), screen.width()) << points;
      EXPECT_LE(about.height(), screen.height()) << points;
      for (const auto* label : about.findChildren<QLabel*>()) {
        if (label->text().isEmpty()) continue;
        const QRect place(label->mapTo(&about, QPoint()), label->size());
        EXPECT_TRUE(about.rect().contains(place)) << label->text().toStdString() << points;
        const bool wraps = label->wordWrap();
        EXPECT_GE(label->height(),
                  wraps ? label->heightForWidth(label->width()) : label->fontMetrics().height());
        if (!wraps) {
          EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()));
        }
      }
      EXPECT_GT(Find<QLabel>(about, "lblTitle").font().pointSizeF(), 1.5 * points);
    }
  }
  QApplication::setFont(usual);
}

TEST_F(AboutBox, HasTheProductsIconTwice) {
  const FrmAbout about(nullptr);
  for (const char* name : {"picIcon", "Image1"}) {
    EXPECT_FALSE(Find<QLabel>(about, name).pixmap().isNull()) << name;
  }
}

TEST_F(AboutBox, OkIsTheDefaultAndEscapeLeavesToo) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    FrmAbout about(nullptr);
    ShowActive(about);
    QTest::keyClick(&about, key);
    EXPECT_FALSE(about.isVisible()) << key;
  }
}

TEST_F(AboutBox, PathInTheRegistryIsStartedUntested) {
  platform.registry().Put(kViewerKey, "PATH", {1, "C:\\Gone\\viewer.exe"});
  platform.registry().Put(kFolderKey, "MSINFO", {1, "C:\\Tools"});
  platform.AddFile("C:\\Tools\\MSINFO32.EXE");
  platform.WillStartProgram(false);
  AskForSystemInformation();
  EXPECT_EQ(platform.started(), (std::vector<ProgramCall>{{"C:\\Gone\\viewer.exe", {}}}));
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(AboutBox, ViewerInTheFolderOfTheRegistryIsStarted) {
  platform.registry().Put(kFolderKey, "MSINFO", {1, "C:\\Tools"});
  platform.AddFile("C:\\Tools\\MSINFO32.EXE");
  platform.WillStartProgram(true);
  AskForSystemInformation();
  EXPECT_EQ(platform.started(), (std::vector<ProgramCall>{{"C:\\Tools\\MSINFO32.EXE", {}}}));
  EXPECT_TRUE(platform.messages().empty());
  EXPECT_EQ(platform.registry().calls(),
            (QStringList{"open SOFTWARE\\Microsoft\\Shared Tools\\MSINFO 131135",
                         "open SOFTWARE\\Microsoft\\Shared Tools Location 131135",
                         "query MSINFO 1024", "close"}));
}

TEST_F(AboutBox, KeyWithoutThePathValueLeadsToTheFolder) {
  platform.registry().Put(kViewerKey, "Other", {1, "C:\\Other.exe"});
  platform.registry().Put(kFolderKey, "MSINFO", {1, "C:\\Tools"});
  platform.AddFile("C:\\Tools\\MSINFO32.EXE");
  platform.WillStartProgram(true);
  AskForSystemInformation();
  EXPECT_EQ(platform.started(), (std::vector<ProgramCall>{{"C:\\Tools\\MSINFO32.EXE", {}}}));
}

TEST_F(AboutBox, FolderWithoutTheViewerGivesTheMessage) {
  platform.registry().Put(kFolderKey, "MSINFO", {1, "C:\\Tools"});
  platform.WillAnswer(Answer::Ok);
  AskForSystemInformation();
  EXPECT_EQ(platform.messages(), std::vector{kUnavailable});
  EXPECT_TRUE(platform.started().empty());
}

TEST_F(AboutBox, NoKeyAndNoViewerGiveTheMessage) {
  platform.WillAnswer(Answer::Ok);
  AskForSystemInformation();
  EXPECT_EQ(platform.messages(), std::vector{kUnavailable});
  EXPECT_TRUE(platform.started().empty());
}

TEST_F(AboutBox, DesktopsOwnViewerIsStartedWhereThereIsOne) {
  const ProgramCall viewer{"viewer", {"--page"}};
  platform.SetSystemViewer(viewer);
  for (const bool succeeds : {true, false}) {
    platform.WillStartProgram(succeeds);
    AskForSystemInformation();
  }
  EXPECT_EQ(platform.started(), (std::vector<ProgramCall>{viewer, viewer}));
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(AboutBox, ValueThatCannotBeReadAsANumberEndsWithoutAWord) {
  platform.registry().Put(kViewerKey, "PATH", {4, "longer than a double word"});
  platform.SetSystemViewer({"viewer", {}});
  AskForSystemInformation();
  EXPECT_TRUE(platform.started().empty());
  EXPECT_TRUE(platform.messages().empty());
}

}  // namespace
}  // namespace halvane
