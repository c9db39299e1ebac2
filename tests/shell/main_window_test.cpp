#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "app/tool_forms.h"
#include "shell/frm_hand_main.h"
#include "shell/idle_steps.h"
#include "shell/tool_form.h"
#include "tests/support/form_support.h"

namespace halvane {
namespace {

class MainWindow : public ShellTest {};
class MainWindowMenus : public ShellTest {};
class MainWindowLaunch : public ShellTest {};
class MainWindowExit : public ShellTest {};
class Units : public ShellTest {};

const QStringList kButtons{"SSCommand2(0)", "SSCommand2(1)", "SSCommand2(2)",
                           "SSCommand2(3)", "SSCommand2(4)", "SSRibbon1(0)",
                           "SSRibbon1(1)",  "SSCommand3(0)", "SSCommand3(1)"};

const ShownMessage kExitQuestion{"Halvane Tools", "Exit Program?", {Answer::Yes, Answer::No}};
const ShownMessage kSaveQuestion{"Halvane Tools",
                                 "Save data before exiting this program?",
                                 {Answer::Yes, Answer::No, Answer::Cancel}};

QStringList VisibleButtons(const QWidget& window) {
  QStringList names;
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    if (button->isVisible()) names.append(button->objectName());
  }
  names.sort();
  return names;
}

QStringList Sorted(QStringList names) {
  names.sort();
  return names;
}

void Click(QWidget& window, const QString& button) {
  QTest::mouseClick(&Find<QWidget>(window, button), Qt::LeftButton);
}

/// Runs the step in the Strain Index form that a click on its launch button opens, and leaves it.
void InStrainIndex(QWidget& window, const std::function<void(QWidget&)>& step) {
  ModalSteps steps;
  steps.Then("frmSI", [&](QWidget& form) {
    step(form);
    Choose(form, "mnuFileExit");
  });
  Click(window, "SSCommand2(2)");
}

TEST_F(MainWindow, StartsWithTheEmptyJobUnchanged) {
  Module1.JobDirty = kTrue;
  Module1.JobName = "left over";
  const FrmHandMain window(MakeToolForm);
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(Module1.JobName.AsText(), "");
}

TEST_F(MainWindow, EveryButtonIsOnAScreenThatIsTooSmallForTheHand) {
  // What is left of common screens at 200 %, a panel at the top of one.
  for (const QRect& screen : {QRect(0, 0, 640, 360), QRect(0, 24, 512, 360)}) {
    platform.SetAvailableArea(screen);
    FrmHandMain window(MakeToolForm);
    window.show();
    window.Timer1_Timer();
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
      if (!button->isVisible()) continue;
      const QRect place(button->mapToGlobal(QPoint()), button->size());
      EXPECT_TRUE(screen.contains(place)) << button->objectName().toStdString();
    }
    EXPECT_EQ(window.size(), QSize(306, 501));
  }
}

TEST_F(MainWindow, OpeningPhaseShowsThePanelAndHidesEveryButton) {
  FrmHandMain window(MakeToolForm);
  ShowActive(window);
  EXPECT_TRUE(Find<QWidget>(window, "Picture3").isVisible());
  EXPECT_EQ(VisibleButtons(window), QStringList("Hyperlink1"));
  EXPECT_EQ(window.focusWidget(), &window);
}

TEST_F(MainWindow, OpeningPhaseLastsOneTickOf3500Milliseconds) {
  const FrmHandMain window(MakeToolForm);
  const auto& timer = Find<QTimer>(window, "Timer1");
  EXPECT_TRUE(timer.isActive());
  EXPECT_EQ(timer.interval(), 3500);
  EXPECT_TRUE(timer.isSingleShot());
}

TEST_F(MainWindow, FormsOfTheLaunchButtonsAreMadeWhileTheUserDoesNothing) {
  FrmHandMain window(MakeToolForm);
  ShowActive(window);
  window.Timer1_Timer();
  EXPECT_TRUE(window.findChildren<ToolForm*>().empty());
  constexpr int kLaunchButtons = 5;
  const auto isDone = [&window] { return window.findChild<IdleSteps*>()->isOver(); };
  EXPECT_TRUE(QTest::qWaitFor(isDone, 20000));
  const QList<ToolForm*> forms = window.findChildren<ToolForm*>();
  EXPECT_EQ(forms.size(), kLaunchButtons);
  for (const ToolForm* form : forms)
    EXPECT_TRUE(form->isHidden()) << form->objectName().toStdString();
}

TEST_F(MainWindow, FormIsMadeWhenItsButtonIsPressedBeforeTheUserRests) {
  FrmHandMain window(MakeToolForm);
  ShowActive(window);
  window.Timer1_Timer();
  QTest::keyClick(&window, Qt::Key_Tab);
  EXPECT_TRUE(window.findChild<IdleSteps*>()->isOver());
  EXPECT_TRUE(window.findChildren<ToolForm*>().empty());
}

TEST_F(MainWindow, OpeningPhaseHasNoShortcuts) {
  FrmHandMain window(MakeToolForm);
  ShowActive(window);
  Module1.JobName = "kept";
  for (const Qt::Key key : {Qt::Key_N, Qt::Key_O, Qt::Key_S}) {
    QTest::keyClick(&window, key, Qt::ControlModifier);
  }
  EXPECT_EQ(Module1.JobName.AsText(), "kept");
  EXPECT_EQ(platform.filters(), QStringList());
}

TEST_F(MainWindow, TickShowsEveryButtonAndParksTheFocus) {
  const auto window = IdleMainWindow();
  EXPECT_FALSE(Find<QWidget>(*window, "Picture3").isVisible());
  EXPECT_EQ(VisibleButtons(*window), Sorted(kButtons));
  EXPECT_EQ(window->focusWidget(), window.get()) << "no control has it";
  const auto& parking = Find<QPushButton>(*window, "SSCommand1");
  EXPECT_FALSE(parking.isVisible());
  EXPECT_FALSE(parking.isEnabled());
}

TEST_F(MainWindow, TitlesAndProductNames) {
  const FrmHandMain window(MakeToolForm);
  EXPECT_EQ(window.windowTitle(), "Halvane Tools V1.0");
  EXPECT_EQ(Find<QLabel>(window, "Label1").text(), "Halvane Tools 1.8B");
  EXPECT_EQ(Find<QLabel>(window, "lblProductName(0)").text(), "Halvane Tools 1.8B");
  EXPECT_EQ(Find<QLabel>(window, "lblProductName(1)").text(), "Ostrel");
  EXPECT_EQ(Find<QLabel>(window, "lblProductName(2)").text(), "tm");
}

struct ButtonRow {
  const char* name;
  const char* caption;
  const char* tip;
  bool enabled;
};

TEST_F(MainWindow, ButtonsHaveTheirCaptionsAndTips) {
  const auto window = IdleMainWindow();
  const std::vector<ButtonRow> rows{
      {"SSCommand2(0)", "OCRA", "Occupational Repetitive Actions Index", true},
      {"SSCommand2(1)", "CTD Risk Index", "Cumulative Trauma Disorders Risk Assessment Model",
       true},
      {"SSCommand2(2)", "SI", "Strain Index", true},
      {"SSCommand2(3)", "REBA", "Rapid Entire Body Assessment", true},
      {"SSCommand2(4)", "RULA", "Rapid Upper Limb Assessment", true},
      {"SSRibbon1(0)", "File", "File Menu", true},
      {"SSRibbon1(1)", "Help", "Help Menu", true},
      {"SSCommand3(0)", "", "Close", true},
      {"SSCommand3(1)", "", "Minimize", true},
  };
  for (const ButtonRow& row : rows) {
    const auto& button = Find<QAbstractButton>(*window, row.name);
    EXPECT_EQ(button.text(), row.caption) << row.name;
    EXPECT_EQ(button.toolTip(), row.tip) << row.name;
    EXPECT_EQ(button.isEnabled(), row.enabled) << row.name;
  }
  EXPECT_EQ(window->findChildren<QWidget*>(QRegularExpression("^SSCommand2")).size(), 5);
}

TEST_F(MainWindow, HiddenButtonEndsTheProgramAtOnce) {
  const auto window = IdleMainWindow();
  Module1.JobDirty = kTrue;
  auto& parking = Find<QPushButton>(*window, "SSCommand1");
  EXPECT_EQ(parking.text(), "ssCommand1");
  parking.setEnabled(true);
  parking.show();
  QTest::mouseClick(&parking, Qt::LeftButton);
  EXPECT_EQ(platform.ends(), std::vector<int>{0});
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(MainWindow, MinimizeParksTheFocusAndKeepsTheJob) {
  const auto window = IdleMainWindow();
  Module1.JobName = "kept";
  Module1.JobDirty = kTrue;
  Click(*window, "SSCommand3(1)");
  EXPECT_TRUE(window->isMinimized());
  EXPECT_EQ(window->focusWidget(), window.get());
  EXPECT_EQ(Module1.JobName.AsText(), "kept");
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(MainWindowMenus, FileMenuHasItsItems) {
  const FrmHandMain window(MakeToolForm);
  const auto& menu = Find<QMenu>(window, "mnuPopUp1");
  EXPECT_EQ(menu.title(), "Popup1");
  EXPECT_EQ(TextsOf(menu), (QStringList{"New", "Open", "-", "Save", "Save As...", "-", "Unit", "-",
                                        "Exit Program"}));
  EXPECT_EQ(TextsOf(*Find<QAction>(window, "mnuUnit").menu()), (QStringList{"Metric", "English"}));
  EXPECT_EQ(Find<QAction>(window, "mnuNew").shortcut(), QKeySequence("Ctrl+N"));
  EXPECT_EQ(Find<QAction>(window, "mnuOpen").shortcut(), QKeySequence("Ctrl+O"));
  EXPECT_EQ(Find<QAction>(window, "mnuSave").shortcut(), QKeySequence("Ctrl+S"));
  EXPECT_TRUE(Find<QAction>(window, "mnuMetric").isChecked());
  EXPECT_FALSE(Find<QAction>(window, "mnuEnglish").isChecked());
}

TEST_F(MainWindowMenus, HelpMenuHasItsItems) {
  const FrmHandMain window(MakeToolForm);
  const auto& menu = Find<QMenu>(window, "mnuPopup2");
  EXPECT_EQ(menu.title(), "Popup2");
  EXPECT_EQ(TextsOf(menu), (QStringList{"Content...", "-", "About Ostrel..."}));
}

struct PopupRow {
  const char* ribbon;
  const char* menu;
};

TEST_F(MainWindowMenus, RibbonOpensItsMenuJustBelowAndStaysPressed) {
  const auto window = IdleMainWindow();
  for (const PopupRow& row :
       {PopupRow{"SSRibbon1(0)", "mnuPopUp1"}, PopupRow{"SSRibbon1(1)", "mnuPopup2"}}) {
    auto& ribbon = Find<QAbstractButton>(*window, row.ribbon);
    QPoint opened;
    ModalSteps steps;
    steps.Then<QMenu>(row.menu, [&](QMenu& menu) {
      opened = menu.pos();
      QTest::keyClick(&menu, Qt::Key_Escape);
    });
    Click(*window, row.ribbon);
    EXPECT_EQ(opened, ribbon.mapToGlobal(QPoint(0, ribbon.height()))) << row.ribbon;
    EXPECT_TRUE(ribbon.isChecked()) << row.ribbon;
  }
}

TEST_F(MainWindowMenus, SecondClickReleasesTheRibbonWithoutAMenu) {
  const auto window = IdleMainWindow();
  auto& ribbon = Find<QAbstractButton>(*window, "SSRibbon1(0)");
  ribbon.setChecked(true);
  // A menu would be closed by the steps as one that nobody expects, and fail the test.
  const ModalSteps none;
  Click(*window, "SSRibbon1(0)");
  EXPECT_FALSE(ribbon.isChecked());
  EXPECT_FALSE(Find<QMenu>(*window, "mnuPopUp1").isVisible());
}

TEST_F(MainWindowMenus, ShortcutsRunNewOpenAndSave) {
  const auto window = IdleMainWindow();
  Module1.JobName = "first";
  platform.WillSave(File("job.qjt"));
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(Exists(folder.File("job.qjt")));
  QTest::keyClick(window.get(), Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Module1.JobName.AsText(), "");
  platform.WillOpen(File("job.qjt"));
  QTest::keyClick(window.get(), Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Module1.JobName.AsText(), "first");
}

TEST_F(MainWindowLaunch, ClickOpensTheStrainIndexModally) {
  const auto window = IdleMainWindow();
  bool modal = false;
  InStrainIndex(*window, [&](QWidget& form) { modal = form.isModal(); });
  EXPECT_TRUE(modal);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(MainWindowLaunch, ReturnParksTheFocusAndReleasesTheRibbons) {
  const auto window = IdleMainWindow();
  Find<QAbstractButton>(*window, "SSRibbon1(0)").setChecked(true);
  Find<QAbstractButton>(*window, "SSRibbon1(1)").setChecked(true);
  InStrainIndex(*window, [](QWidget&) {});
  EXPECT_FALSE(Find<QAbstractButton>(*window, "SSRibbon1(0)").isChecked());
  EXPECT_FALSE(Find<QAbstractButton>(*window, "SSRibbon1(1)").isChecked());
  EXPECT_EQ(window->focusWidget(), window.get());
}

TEST_F(MainWindowLaunch, ClosingAToolAsksNothingAndKeepsTheChangedJob) {
  const auto window = IdleMainWindow();
  InStrainIndex(*window, [](QWidget& form) {
    QTest::keyClicks(&Find<QWidget>(form, "Text1(5)"), "Packing");
  });
  EXPECT_EQ(Module1.JobName.AsText(), "Packing");
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(MainWindowLaunch, FormIsFilledFromTheJobEachTime) {
  const auto window = IdleMainWindow();
  InStrainIndex(*window, [](QWidget&) {});
  Module1.JobName = "Sorting";
  QString shown;
  InStrainIndex(*window, [&](QWidget& form) { shown = Find<QLineEdit>(form, "Text1(5)").text(); });
  EXPECT_EQ(shown, "Sorting");
}

TEST_F(MainWindowLaunch, IndexBeyondTheButtonsOpensNothing) {
  const auto window = IdleMainWindow();
  const ModalSteps none;
  for (const int index : {-1, 5}) {
    Find<QAbstractButton>(*window, "SSRibbon1(0)").setChecked(true);
    window->SSCommand2_Click(index);
    EXPECT_FALSE(Find<QAbstractButton>(*window, "SSRibbon1(0)").isChecked()) << index;
  }
}

struct ExitRow {
  const char* label;
  Integer dirty;
  std::vector<Answer> answers;
  bool ends;
};

TEST_F(MainWindowExit, QuestionsAndTheirAnswers) {
  const std::vector<ExitRow> rows{
      {"saved job, No", kFalse, {Answer::No}, false},
      {"saved job, Yes", kFalse, {Answer::Yes}, true},
      {"changed job, No", kTrue, {Answer::No}, false},
      {"changed job, Yes, then No", kTrue, {Answer::Yes, Answer::No}, true},
      {"changed job, Yes, then Cancel", kTrue, {Answer::Yes, Answer::Cancel}, false},
  };
  const auto window = IdleMainWindow();
  std::vector<ShownMessage> expected;
  std::size_t ends = 0;
  for (const ExitRow& row : rows) {
    Module1.JobDirty = row.dirty;
    for (const Answer answer : row.answers) platform.WillAnswer(answer);
    Choose(*window, "mnuExit");
    expected.push_back(kExitQuestion);
    if (row.answers.size() == 2) expected.push_back(kSaveQuestion);
    if (row.ends) ++ends;
    EXPECT_EQ(platform.messages(), expected) << row.label;
    EXPECT_EQ(platform.ends(), std::vector<int>(ends, 0)) << row.label;
    EXPECT_EQ(Module1.JobDirty, row.dirty) << row.label;
  }
}

TEST_F(MainWindowExit, YesSavesUnderTheJobsName) {
  const auto window = IdleMainWindow();
  Module1.JobFileName = folder.File("job.qjt");
  Module1.JobDirty = kTrue;
  platform.WillAnswer(Answer::Yes);
  platform.WillAnswer(Answer::Yes);
  Choose(*window, "mnuExit");
  EXPECT_EQ(BytesOf(folder.File("job.qjt")), EmptyJobText());
  EXPECT_EQ(platform.ends(), std::vector<int>{0});
}

TEST_F(MainWindowExit, YesAsksForTheNameOfANamelessJobAndEndsEvenIfCancelled) {
  const auto window = IdleMainWindow();
  Module1.JobDirty = kTrue;
  platform.WillAnswer(Answer::Yes);
  platform.WillAnswer(Answer::Yes);
  platform.WillSave("");
  Choose(*window, "mnuExit");
  EXPECT_EQ(folder.Names(), "");
  EXPECT_EQ(platform.ends(), std::vector<int>{0});
}

TEST_F(MainWindowExit, CloseButtonParksTheFocusFirst) {
  const auto window = IdleMainWindow();
  platform.WillAnswer(Answer::No);
  QWidget* focused = nullptr;
  platform.WhileNextMessageStands([&] { focused = window->focusWidget(); });
  Click(*window, "SSCommand3(0)");
  EXPECT_EQ(focused, window.get());
  EXPECT_EQ(platform.messages(), std::vector{kExitQuestion});
  EXPECT_TRUE(platform.ends().empty());
}

TEST_F(MainWindow, ActivationGivesTheFocusToNoButton) {
  const auto window = IdleMainWindow();
  QWidget other;
  for (int i = 0; i < 2; ++i) {
    ShowActive(other);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    EXPECT_EQ(QApplication::focusWidget(), window.get());
  }
}

TEST_F(MainWindow, TabIsWhatGivesAButtonTheFocus) {
  const auto window = IdleMainWindow();
  QTest::keyClick(window.get(), Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), &Find<QWidget>(*window, "SSCommand3(1)"));
  window->ParkFocus();
  ModalSteps steps;
  steps.Then("mnuPopUp1", [](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_Escape); });
  Click(*window, "SSRibbon1(0)");
  EXPECT_EQ(window->focusWidget(), window.get()) << "a click leaves no focus";
}

TEST_F(MainWindow, FocusIsParkedWhenAMessageHasGone) {
  const auto window = IdleMainWindow();
  Find<QWidget>(*window, "SSRibbon1(0)").setFocus();
  QDialog message(window.get());
  message.setModal(true);
  message.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&message));
  message.close();
  EXPECT_EQ(window->focusWidget(), window.get());
}

TEST_F(MainWindow, FocusIsParkedWhenTheWindowComesBackFromMinimized) {
  const auto window = IdleMainWindow();
  window->showMinimized();
  Find<QWidget>(*window, "SSRibbon1(0)").setFocus();
  window->showNormal();
  EXPECT_EQ(window->focusWidget(), window.get());
}

TEST_F(MainWindowLaunch, ReturnOnAFocusedButtonOpensItsTool) {
  const auto window = IdleMainWindow();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    ModalSteps steps;
    bool opened = false;
    steps.Then("frmSI", [&](QWidget& form) {
      opened = true;
      Choose(form, "mnuFileExit");
    });
    auto& button = Find<QWidget>(*window, "SSCommand2(2)");
    button.setFocus();
    QTest::keyClick(&button, key);
    EXPECT_TRUE(opened) << key;
  }
}

TEST_F(MainWindowExit, WindowManagersCloseAsksTheSame) {
  const auto window = IdleMainWindow();
  platform.WillAnswer(Answer::No);
  window->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(platform.ends().empty());
  platform.WillAnswer(Answer::Yes);
  window->close();
  EXPECT_EQ(platform.messages(), (std::vector{kExitQuestion, kExitQuestion}));
  EXPECT_EQ(platform.ends(), std::vector<int>{0});
}

/// The hand span of task 1 as the job file would have it.
std::string HandSpan() { return Module1.CtdHandSpan.at(1).AsText(); }

void MakeTaskWithHandSpan(const TaggedField& span) {
  Module1.TaskCount = Integer{1};
  NewTaskRecord();
  Module1.CtdHandSpan.at(1) = span;
}

TEST_F(Units, TheOneInUseHasACheckMark) {
  const auto window = IdleMainWindow();
  // Chosen again, it stays the one in use.
  for (const char* name : {"mnuMetric", "mnuMetric", "mnuEnglish", "mnuEnglish", "mnuMetric"}) {
    Choose(*window, name);
    for (const char* unit : {"mnuMetric", "mnuEnglish"}) {
      const auto& item = Find<QAction>(*window, unit);
      EXPECT_EQ(item.isChecked(), QString(unit) == name) << unit << " after " << name;
      // In a group it would be a bullet.
      EXPECT_EQ(item.actionGroup(), nullptr);
    }
  }
}

TEST_F(Units, EnglishAndBackRoundsToTwoDecimals) {
  const auto window = IdleMainWindow();
  MakeTaskWithHandSpan(20.0);
  Choose(*window, "mnuEnglish");
  EXPECT_EQ(HandSpan(), "7.87");
  EXPECT_EQ(Module1.Units, 1);
  EXPECT_TRUE(Find<QAction>(*window, "mnuEnglish").isChecked());
  EXPECT_FALSE(Find<QAction>(*window, "mnuMetric").isChecked());
  Choose(*window, "mnuMetric");
  EXPECT_EQ(HandSpan(), "19.99");
  EXPECT_EQ(Module1.Units, 0);
  EXPECT_TRUE(Find<QAction>(*window, "mnuMetric").isChecked());
  EXPECT_FALSE(Find<QAction>(*window, "mnuEnglish").isChecked());
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST_F(Units, EnglishTwiceDividesTwice) {
  const auto window = IdleMainWindow();
  MakeTaskWithHandSpan(25.4);
  Choose(*window, "mnuEnglish");
  EXPECT_EQ(HandSpan(), "10");
  Choose(*window, "mnuEnglish");
  EXPECT_EQ(HandSpan(), "3.94");
}

TEST_F(Units, WithoutTasksOnlyTheUnitChanges) {
  const auto window = IdleMainWindow();
  JobState expected = Module1;
  expected.Units = 1;
  Choose(*window, "mnuEnglish");
  EXPECT_TRUE(Module1 == expected);
}

TEST_F(Units, NewKeepsThem) {
  const auto window = IdleMainWindow();
  Choose(*window, "mnuEnglish");
  Choose(*window, "mnuNew");
  EXPECT_EQ(Module1.Units, 1);
  EXPECT_TRUE(Find<QAction>(*window, "mnuEnglish").isChecked());
}

}  // namespace
}  // namespace halvane
