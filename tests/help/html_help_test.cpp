#include "help/html_help.h"

#include <QAbstractButton>
#include <QAction>
#include <QTest>
#include <ostream>

#include "app/tool_forms.h"
#include "help/help_commands.h"
#include "help/help_viewer.h"
#include "shell/frm_hand_main.h"
#include "shell/tool_form.h"
#include "tests/support/form_support.h"
#include "tools/strain_index/frm_si.h"

namespace halvane {
namespace {

struct ViewerCall {
  QWidget* owner;
  QString file;
  int command;
  QString topic;
  bool operator==(const ViewerCall&) const = default;
};

void PrintTo(const ViewerCall& call, std::ostream* stream) {
  *stream << (call.owner == nullptr ? "nobody's " : "owned ") << call.file.toStdString() << " "
          << call.command << " " << call.topic.toStdString();
}

/// Keeps a record of what it is asked for; it is the program's viewer as long as it lives.
class RecordingViewer : public HelpViewer {
 public:
  RecordingViewer() { SetHelpViewer(this); }
  ~RecordingViewer() override { SetHelpViewer(nullptr); }

  void Show(QWidget* owner, const QString& file, HelpCommand command,
            const QString& topic) override {
    calls.push_back({owner, file, static_cast<int>(command), topic});
    if (failing) throw RuntimeFailure(FailureKind::FileError);
  }

  std::vector<ViewerCall> calls;
  bool failing = false;
};

class HtmlHelp : public ShellTest {
 protected:
  HtmlHelp() { platform.SetFolders("/program", "/data"); }

  /// Takes a help file that is there.
  void Use(const char* file) {
    platform.AddFile(file);
    help.CHMFile = file;
  }

  RecordingViewer viewer;
  HTMLHelp help;
};
class HelpCommands : public HtmlHelp {};

using Calls = std::vector<ViewerCall>;
using Messages = std::vector<ShownMessage>;
constexpr auto kKey = "Software\\Microsoft\\Windows\\HTML Help";

TEST_F(HtmlHelp, ShowsATopicForNobody) {
  Use("/a/b.chm");
  help.HHTopicURL = "CTD2.htm";
  help.HHDisplayTopicURL(nullptr);
  EXPECT_EQ(viewer.calls, (Calls{{nullptr, "/a/b.chm", 0, "CTD2.htm"}}));
}

TEST_F(HtmlHelp, ShowsTheContentsWithoutATopic) {
  Use("/a/b.chm");
  help.HHTopicURL = "CTD2.htm";
  help.HHDisplayContents(nullptr);
  EXPECT_EQ(viewer.calls, (Calls{{nullptr, "/a/b.chm", 1, ""}}));
}

TEST_F(HtmlHelp, TheWindowAskingOwnsTheViewerOnlyWhenItIsToStayOnTop) {
  Use("/a/b.chm");
  QWidget window;
  help.HHDisplayContents(&window);
  help.HHShowOnTop = true;
  help.HHDisplayContents(&window);
  help.HHDisplayTopicURL(&window);
  EXPECT_EQ(viewer.calls, (Calls{{nullptr, "/a/b.chm", 1, ""},
                                 {&window, "/a/b.chm", 1, ""},
                                 {&window, "/a/b.chm", 0, ""}}));
}

TEST_F(HtmlHelp, TheNameOfAHelpWindowFollowsTheFile) {
  Use("/a/b.chm");
  help.HHWindow = "  ";
  help.HHDisplayContents(nullptr);
  help.HHWindow = "main";
  help.HHDisplayTopicURL(nullptr);
  EXPECT_EQ(viewer.calls, (Calls{{nullptr, "/a/b.chm", 1, ""}, {nullptr, "/a/b.chm>main", 0, ""}}));
}

TEST_F(HtmlHelp, TheEndingDecidesWhetherItIsAHelpFile) {
  struct Row {
    const char* file;
    bool isHelp;
  };
  for (const Row& row : {Row{"/a/b.CHM", true}, Row{"/a/b.Chm", true}, Row{"/a/bchm", true},
                         Row{"/a/b.hlp", false}, Row{"/a/b.chm2", false}, Row{"", false}}) {
    Use(row.file);
    viewer.calls.clear();
    const std::size_t before = platform.messages().size();
    if (!row.isHelp) platform.WillAnswer(Answer::Ok);
    help.HHDisplayContents(nullptr);
    EXPECT_EQ(viewer.calls.size(), row.isHelp ? 1U : 0U) << row.file;
    ASSERT_EQ(platform.messages().size() - before, row.isHelp ? 0U : 1U) << row.file;
    if (!row.isHelp) {
      EXPECT_EQ(platform.messages().back(),
                (ShownMessage{"Halvane Tools",
                              QString(row.file) + " is not a valid HTML Help file.",
                              {Answer::Ok}}));
    }
  }
}

TEST_F(HtmlHelp, AMissingFileIsTold) {
  help.CHMFile = "/a/b.chm";
  platform.WillAnswer(Answer::Ok);
  help.HHDisplayTopicURL(nullptr);
  EXPECT_TRUE(viewer.calls.empty());
  EXPECT_EQ(platform.messages(), (Messages{{"Halvane Tools",
                                            "The file /a/b.chm does not exist.\n"
                                            "Please install the help files of Halvane Tools.",
                                            {Answer::Ok}}}));
}

TEST_F(HtmlHelp, AFileWithoutAFolderIsLookedUpAmongTheSystemsHelpFiles) {
  platform.registry().Put(kKey, "b.chm", {kRegistryString, std::string("/listed\0", 8)});
  platform.AddFile("/listed/b.chm");
  platform.AddFile("/program/b.chm");
  help.CHMFile = "b.chm";
  help.HHDisplayContents(nullptr);
  EXPECT_EQ(viewer.calls, (Calls{{nullptr, "/listed/b.chm", 1, ""}}));
}

TEST_F(HtmlHelp, AFileWithoutAFolderAndNotListedIsBesideTheProgram) {
  platform.AddFile("/program/b.chm");
  help.CHMFile = "b.chm";
  help.HHDisplayContents(nullptr);
  EXPECT_EQ(viewer.calls, (Calls{{nullptr, "/program/b.chm", 1, ""}}));
}

TEST_F(HtmlHelp, AFileWithAFolderIsNotLookedUp) {
  platform.registry().Put(kKey, "b.chm", {kRegistryString, std::string("/listed\0", 8)});
  for (const char* file : {"/a/b.chm", "C:\\a\\b.chm"}) {
    Use(file);
    help.HHDisplayContents(nullptr);
    EXPECT_EQ(viewer.calls.back().file, file);
  }
  EXPECT_EQ(platform.registry().calls(), QStringList());
}

TEST_F(HtmlHelp, AFailureOfTheViewerEndsSilently) {
  Use("/a/b.chm");
  viewer.failing = true;
  EXPECT_NO_THROW(help.HHDisplayContents(nullptr));
  EXPECT_EQ(viewer.calls.size(), 1U);
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(HelpCommands, ShareOneObject) {
  const auto first = HelpObject();
  EXPECT_EQ(first, HelpObject());
  EXPECT_EQ(first->HHWindow, "");
  EXPECT_FALSE(first->HHShowOnTop);
}

TEST_F(HelpCommands, FindTheFileBesideTheProgramThenWhereItIsInstalled) {
  const QString beside = "/program/QJT Tools 1.chm";
  const QString installed = "/program/../share/halvane-tools/QJT Tools 1.chm";
  const QString own = "/data/QJT Tools 1.chm";
  EXPECT_EQ(HelpFilePath(), beside);
  platform.AddFile(own);
  EXPECT_EQ(HelpFilePath(), own);
  platform.AddFile(installed);
  EXPECT_EQ(HelpFilePath(), installed);
  platform.AddFile(beside);
  EXPECT_EQ(HelpFilePath(), beside);
}

struct TopicRow {
  Tool tool;
  const char* topic;
};

TEST_F(HelpCommands, EachToolOpensItsTopicAndSearchDoesNothing) {
  platform.AddFile("/program/QJT Tools 1.chm");
  for (const TopicRow& row :
       {TopicRow{Tool::Ocra, "Occupational Repetitive Actions Index (OCRA)2.htm"},
        TopicRow{Tool::Ctd, "CTD2.htm"}, TopicRow{Tool::StrainIndex, "Strain Index2.htm"},
        TopicRow{Tool::Rula, "RULA (Rapid Upper Limb Assessment)2.htm"},
        TopicRow{Tool::Reba, "REBA (Rapid Entire Body Assessment)2.htm"},
        TopicRow{Tool::Hal, "ACGIH Hand Activity Level2.htm"}}) {
    const auto form = MakeToolForm(row.tool, nullptr);
    viewer.calls.clear();
    Choose(*form, "mnuHelpSearch");
    EXPECT_TRUE(viewer.calls.empty()) << row.topic;
    Choose(*form, "mnuHelpContent");
    EXPECT_EQ(viewer.calls, (Calls{{nullptr, "/program/QJT Tools 1.chm", 0, row.topic}}));
  }
}

TEST_F(HelpCommands, TheMainWindowOpensTheContents) {
  platform.AddFile("/program/QJT Tools 1.chm");
  const auto window = IdleMainWindow();
  Choose(*window, "mnuContent");
  EXPECT_EQ(viewer.calls, (Calls{{nullptr, "/program/QJT Tools 1.chm", 1, ""}}));
}

TEST_F(HelpCommands, TheLinkOnTheOpeningPanelOpensTheContents) {
  platform.AddFile("/program/QJT Tools 1.chm");
  FrmHandMain opening(MakeToolForm);
  ShowActive(opening);
  auto& link = Find<QAbstractButton>(opening, "Hyperlink1");
  EXPECT_EQ(link.text(), "How to use the program");
  QTest::mouseClick(&link, Qt::LeftButton);
  QTest::keyClick(&link, Qt::Key_Return);
  QTest::keyClick(&link, Qt::Key_Space);
  const ViewerCall contents{nullptr, "/program/QJT Tools 1.chm", 1, ""};
  EXPECT_EQ(viewer.calls, (Calls{contents, contents, contents}));
}

TEST_F(HelpCommands, TheHelpKeyDoesWhatContentDoes) {
  platform.AddFile("/program/QJT Tools 1.chm");
  for (const ToolName& tool : kToolNames) {
    const auto form = MakeToolForm(tool.tool, nullptr);
    form->load();
    ShowActive(*form);
    viewer.calls.clear();
    Choose(*form, "mnuHelpContent");
    QTest::keyClick(form->focusWidget(), Qt::Key_F1);
    ASSERT_EQ(viewer.calls.size(), 2U) << tool.helpTopic;
    EXPECT_EQ(viewer.calls[0], viewer.calls[1]);
  }
  viewer.calls.clear();
  const auto window = IdleMainWindow();
  QTest::keyClick(window.get(), Qt::Key_F1);
  EXPECT_EQ(viewer.calls, (Calls{{nullptr, "/program/QJT Tools 1.chm", 1, ""}}));
}

TEST_F(HelpCommands, TheHelpKeyWaitsForTheEndOfTheOpeningPhase) {
  platform.AddFile("/program/QJT Tools 1.chm");
  FrmHandMain opening(MakeToolForm);
  ShowActive(opening);
  QTest::keyClick(&opening, Qt::Key_F1);
  EXPECT_TRUE(viewer.calls.empty());
}

TEST_F(HelpCommands, AMissingFileLeavesTheFormWorking) {
  const auto form = LoadedStrainIndex();
  platform.WillAnswer(Answer::Ok);
  Choose(*form, "mnuHelpContent");
  EXPECT_EQ(platform.messages().back().text,
            "The file /program/QJT Tools 1.chm does not exist.\n"
            "Please install the help files of Halvane Tools.\n\n"
            "It was looked for here too:\n"
            "/share/halvane-tools/QJT Tools 1.chm\n"
            "/data/QJT Tools 1.chm");
  EXPECT_TRUE(form->isVisible());
  platform.AddFile("/program/QJT Tools 1.chm");
  Choose(*form, "mnuHelpContent");
  EXPECT_EQ(viewer.calls.size(), 1U);
}

}  // namespace
}  // namespace halvane
