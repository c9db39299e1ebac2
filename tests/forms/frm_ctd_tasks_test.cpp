// The task list of the CTD Risk Index form, and the commands that load the form again.
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTest>

#include "core/job_file.h"
#include "core/task_list.h"
#include "shell/frm_hand_main.h"
#include "tests/forms/ctd_form_support.h"
#include "tools/task_list/task_tree.h"

namespace halvane {
namespace {

const ShownMessage kDeleteQuestion{
    "Halvane Tools",
    "You are about to delete a Task. If you click Yes, you won't be able to undo this Delete "
    "operation.  Are you sure you want to delete this task?",
    {Answer::Yes, Answer::No}};

class CtdTaskTest : public CtdFormTest {
 protected:
  void Add() const { Click("SSCommand1(0)"); }
  void Delete(Answer answer) {
    platform.WillAnswer(answer);
    Click("SSCommand1(1)");
  }
  void Edit() const { Click("SSCommand1(2)"); }

  [[nodiscard]] TaskTree& Tree() const { return Control<TaskTree>("TreeView1"); }
  /// The box in which the selected name is edited; null while none is.
  [[nodiscard]] QLineEdit* Editor() const { return Tree().findChild<QLineEdit*>(); }
  /// Types a name into the box that is open.
  void TypeName(const QString& name) const {
    ASSERT_NE(Editor(), nullptr);
    QTest::keyClick(Editor(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(Editor(), name);
  }
  /// Ends the editing of a name with a key; the list acts on it when the key's event is done.
  void EndEditing(Qt::Key key) const {
    QTest::keyClick(Editor(), key);
    QCoreApplication::sendPostedEvents();
  }
  [[nodiscard]] bool InputsAreEnabled() const { return Control("SSFrame1(0)").isEnabled(); }
};

class CtdAdd : public CtdTaskTest {};
class CtdDelete : public CtdTaskTest {};
class CtdEdit : public CtdTaskTest {};
class CtdTaskList : public CtdTaskTest {};

TEST_F(CtdAdd, MakesTheFirstTaskAndEnablesTheInputs) {
  Load();
  JobState expected = Module1;
  std::swap(Module1, expected);
  Module1.TaskCount = Integer{1};
  NewTaskRecord();
  Module1.CurrentTask = Integer{1};
  Module1.JobDirty = kTrue;
  std::swap(Module1, expected);
  Add();
  EXPECT_TRUE(Module1 == expected);
  EXPECT_EQ(Nodes(), QStringList{"Task 1"});
  EXPECT_EQ(SelectedNode(), "Task 1");
  EXPECT_EQ(Tree().topLevelItem(0)->data(0, Qt::UserRole).toString(), "1_");
  EXPECT_TRUE(InputsAreEnabled());
  for (const char* box : {"Text1(2)", "Text1(3)", "Text1(5)", "Text1(6)", "Text5"}) {
    EXPECT_EQ(TextOf(box), "0") << box;
  }
}

TEST_F(CtdAdd, SelectsTheNewLastTaskWhateverWasSelected) {
  AddTaskRecord();
  AddTaskRecord();
  Load();
  Type("Text1(2)", "0.5");
  Click("SSRibbon1(3)");
  SelectNode(0);
  Add();
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "Task 2", "Task 3"}));
  EXPECT_EQ(SelectedNode(), "Task 3");
  EXPECT_EQ(CurrentTask(), 3);
  EXPECT_EQ(TextOf("Text1(2)"), "0");
  EXPECT_EQ(Down("SSRibbon1"), "0");
  EXPECT_EQ(Module1.CtdWorkTime.at(2), TaggedField(0.5));
  EXPECT_EQ(Module1.CtdGripType.at(2), TaggedField(Integer{3}));
}

TEST_F(CtdAdd, TakesANumberThatWasNeverUsed) {
  Load();
  Add();
  Add();
  Delete(Answer::Yes);
  Add();
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "Task 3"}));
  EXPECT_EQ(Module1.TaskCount, TaggedField(Integer{3}));
  EXPECT_EQ(CurrentTask(), 3);
}

TEST_F(CtdDelete, AsksAndKeepsTheTasksValues) {
  for (int i = 0; i < 3; ++i) AddTaskRecord();
  Load();
  SelectNode(1);
  Type("Text1(2)", "0.5");
  Module1.JobDirty = kFalse;
  JobState expected = Module1;
  expected.JobDirty = kTrue;
  expected.TaskActive.at(2) = Integer{0};
  expected.CurrentTask = Integer{3};
  Delete(Answer::Yes);
  EXPECT_EQ(platform.messages(), std::vector{kDeleteQuestion});
  EXPECT_TRUE(Module1 == expected);
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "Task 3"}));
  EXPECT_EQ(SelectedNode(), "Task 3") << "the next one";
  EXPECT_EQ(TextOf("Text1(2)"), "0");
  EXPECT_TRUE(InputsAreEnabled());
}

TEST_F(CtdDelete, LastOfTheListSelectsTheOneBefore) {
  AddTaskRecord();
  AddTaskRecord();
  Module1.CtdForceMvc.at(1) = 20;
  Load();
  Delete(Answer::Yes);
  EXPECT_EQ(SelectedNode(), "Task 1");
  EXPECT_EQ(CurrentTask(), 1);
  EXPECT_EQ(TextOf("Text5"), "20");
}

TEST_F(CtdDelete, AnswerNoChangesNothingButTheMark) {
  AddTaskRecord();
  AddTaskRecord();
  Load();
  JobState expected = Module1;
  expected.JobDirty = kTrue;
  Delete(Answer::No);
  EXPECT_EQ(platform.messages(), std::vector{kDeleteQuestion});
  EXPECT_TRUE(Module1 == expected);
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "Task 2"}));
  EXPECT_EQ(SelectedNode(), "Task 2");
}

TEST_F(CtdDelete, OnlyTaskLeavesTheInputsDisabledAndItsNumbersOnScreen) {
  AddTaskRecord();
  Load();
  Type("Text1(2)", "0.5");
  Delete(Answer::Yes);
  EXPECT_EQ(Nodes(), QStringList());
  EXPECT_FALSE(InputsAreEnabled());
  EXPECT_EQ(Module1.TaskCount, TaggedField(Integer{1}));
  EXPECT_EQ(CurrentTask(), 1);
  EXPECT_EQ(TextOf("Text1(2)"), "0.5");
  Add();
  EXPECT_TRUE(InputsAreEnabled());
  EXPECT_EQ(Nodes(), QStringList{"Task 2"});
}

TEST_F(CtdDelete, WithoutANodeEndsTheProgramWithARescueCopy) {
  Load();
  std::string copy = EndedOn("Invalid call", [this] { Click("SSCommand1(1)"); });
  EXPECT_EQ(copy, EmptyJobText());
  EXPECT_EQ(Module1.JobDirty, kTrue);
  Add();
  Delete(Answer::Yes);
  copy = EndedOn("Invalid call", [this] { Click("SSCommand1(1)"); });
  EXPECT_EQ(copy, JobFileBytes(Module1));
}

TEST_F(CtdDelete, NodeWithAKeyBelowZeroIsRefused) {
  AddTaskRecord();
  Load();
  {
    // No task has such a number, so no click makes such a node.
    const QSignalBlocker blocker(Tree());
    Tree().topLevelItem(0)->setData(0, Qt::UserRole, "-1_");
  }
  platform.WillAnswer(Answer::Ok);
  Click("SSCommand1(1)");
  EXPECT_EQ(platform.messages(),
            (std::vector{ShownMessage{
                "Job Information",
                "You must select a Task to Delete. If the Task list is empty use Add Task to "
                "create the first Task list.",
                {Answer::Ok}}}));
  EXPECT_EQ(Module1.TaskActive.at(1), TaggedField(Integer{1}));
  EXPECT_EQ(Nodes(), QStringList{"Task 1"});
}

TEST_F(CtdEdit, NameIsStoredAtItsEnd) {
  AddTaskRecord();
  AddTaskRecord();
  Load();
  SelectNode(0);
  Module1.JobDirty = kFalse;
  Edit();
  EXPECT_EQ(Module1.JobDirty, kTrue);
  TypeName("Cut & fold");
  EXPECT_EQ(Module1.TaskNames.at(1), "Task 1");
  Module1.JobDirty = kFalse;
  EndEditing(Qt::Key_Return);
  EXPECT_EQ(Module1.TaskNames.at(1), "Cut & fold");
  EXPECT_EQ(Module1.TaskNames.at(2), "Task 2");
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(CurrentTask(), 1);
  EXPECT_EQ(Nodes(), (QStringList{"Cut & fold", "Task 2"}));
  EXPECT_TRUE(form().isVisible());
}

TEST_F(CtdEdit, EscapeKeepsTheName) {
  AddTaskRecord();
  Load();
  Edit();
  TypeName("Cut");
  EndEditing(Qt::Key_Escape);
  EXPECT_EQ(Module1.TaskNames.at(1), "Task 1");
  EXPECT_EQ(Nodes(), QStringList{"Task 1"});
  EXPECT_TRUE(form().isVisible());
}

TEST_F(CtdEdit, ClickOnAnotherTaskStoresTheNameOfTheOneThatWasEdited) {
  AddTaskRecord();
  AddTaskRecord();
  Load();
  Edit();
  TypeName("Cut");
  SelectNode(0);
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "Cut"}));
  EXPECT_EQ(Module1.TaskNames.at(1), "Task 1");
  EXPECT_EQ(Module1.TaskNames.at(2), "Cut");
  EXPECT_EQ(CurrentTask(), 1);
}

TEST_F(CtdEdit, FormCanGoWhileANameIsEdited) {
  AddTaskRecord();
  Load();
  Edit();
  TypeName("Cut");
  Close();
  EXPECT_EQ(Module1.TaskNames.at(1), "Task 1");
}

TEST_F(CtdEdit, WithoutANodeDoesNothing) {
  Load();
  Edit();
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_TRUE(platform.messages().empty());
}

/// Two tasks with everything different.
void FillTwoTasks() {
  AddTaskRecord();
  AddTaskRecord();
  for (const int task : {1, 2}) {
    const auto code = static_cast<Integer>(task == 1 ? 3 : 4);
    Module1.CtdWorkTime.at(task) = 0.25 * task;
    Module1.CtdRestTime.at(task) = 1.125 * task;
    Module1.CtdRepetitions.at(task) = 10.0 * task;
    Module1.CtdHandSpan.at(task) = 2.5 * task;
    Module1.CtdForceMvc.at(task) = 15.0 * task;
    Module1.CtdGripType.at(task) = code;
    Module1.CtdWristPosition.at(task) = task == 1 ? 3 : 1;
    Module1.CtdRadUlnDeviation.at(task) = code;
    Module1.CtdFlexExtDeviation.at(task) = static_cast<Integer>(code + 4);
  }
}

TEST_F(CtdTaskList, SelectedTaskIsShownByClickAndByArrowKey) {
  FillTwoTasks();
  Load();
  const auto expectShown = [this](int task) {
    SCOPED_TRACE(task);
    EXPECT_EQ(CurrentTask(), task);
    EXPECT_EQ(TextOf("Text1(2)"), QString::number(0.25 * task));
    EXPECT_EQ(TextOf("Text1(3)"), QString::number(1.125 * task));
    EXPECT_EQ(TextOf("Text1(5)"), QString::number(10 * task));
    EXPECT_EQ(TextOf("Text1(6)"), QString::number(2.5 * task));
    EXPECT_EQ(TextOf("Text5"), QString::number(15 * task));
    EXPECT_EQ(Down("SSRibbon1"), task == 1 ? "3" : "4");
    EXPECT_EQ(Down("SSRibbon2"), task == 1 ? "3" : "1");
    EXPECT_EQ(Down("SSRibbon4"), task == 1 ? "3" : "4");
    EXPECT_EQ(Down("SSRibbon5"), task == 1 ? "7" : "8");
  };
  expectShown(2);
  SelectNode(0);
  expectShown(1);
  QTest::keyClick(&Tree(), Qt::Key_Down);
  expectShown(2);
  QTest::keyClick(&Tree(), Qt::Key_Up);
  expectShown(1);
}

TEST_F(CtdTaskList, ClickOnTheSelectedNodeShowsItsTaskAgain) {
  AddTaskRecord();
  Load();
  Type("Text1(2)", "0.50");
  SelectNode(0);
  EXPECT_EQ(TextOf("Text1(2)"), "0.5");
}

TEST_F(CtdTaskList, ShowingATaskWithOtherCodesMarksTheJob) {
  FillTwoTasks();
  Load();
  Module1.JobDirty = kFalse;
  Click("SSCommand1(2)");
  Module1.JobDirty = kFalse;
  SelectNode(0);
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(CtdTaskList, ShowingATaskWithTheSameCodesChangesNothing) {
  AddTaskRecord();
  AddTaskRecord();
  Load();
  JobState expected = Module1;
  expected.CurrentTask = Integer{1};
  SelectNode(0);
  EXPECT_TRUE(Module1 == expected);
}

/// Opens a tool by its button and makes `steps` on it.
void OpenTool(const FrmHandMain& window, int button, const char* form,
              const std::function<void(QWidget&)>& steps) {
  ModalSteps modal;
  modal.Then(form, [&](QWidget& tool) {
    steps(tool);
    Choose(tool, "mnuFileExit");
  });
  QTest::mouseClick(&Find<QPushButton>(window, QString("SSCommand2(%1)").arg(button)),
                    Qt::LeftButton);
}

TEST_F(CtdTaskList, IsSharedWithTheOcraTool) {
  const auto window = IdleMainWindow();
  OpenTool(*window, 0, "frmOCRA", [this](QWidget& ocra) {
    Use(ocra);
    Add();
    Add();
    Add();
    Edit();
    TypeName("Cut");
    EndEditing(Qt::Key_Return);
    Module1.OcraTaskDuration.at(2) = 30;
  });
  OpenTool(*window, 1, "frmCTD", [this](QWidget& ctd) {
    Use(ctd);
    EXPECT_EQ(Nodes(), (QStringList{"Task 1", "Task 2", "Cut"}));
    SelectNode(1);
    Delete(Answer::Yes);
    Type("Text1(2)", "0.5");
  });
  EXPECT_EQ(Module1.OcraTaskDuration.at(2), 30);
  OpenTool(*window, 0, "frmOCRA", [this](QWidget& ocra) {
    Use(ocra);
    EXPECT_EQ(Nodes(), (QStringList{"Task 1", "Cut"}));
  });
  EXPECT_EQ(Module1.CtdWorkTime.at(3), TaggedField(0.5));
}

class CtdReload : public CtdTaskTest {
 protected:
  /// Opens the tool, gives a command on a job of two tasks with the posture tab open, and runs
  /// `check` on the form as it comes back.
  void Reload(const char* command, const std::function<void()>& check) {
    const auto window = IdleMainWindow();
    ModalSteps steps;
    steps.Then("frmCTD", [this, command](QWidget& ctd) {
      Use(ctd);
      Add();
      Add();
      Click("SSRibbon1(4)");
      Type("Text2(1)", "2");
      OpenTab(2);
      OpenTab(1);
      Click("SSRibbon3(1)");
      Choose(ctd, command);
    });
    steps.Then("frmCTD", [this, &check](QWidget& ctd) {
      EXPECT_EQ(&VisibleToolForm(), &ctd);
      EXPECT_EQ(Control<QTabWidget>("SSTab1").currentIndex(), 0);
      EXPECT_FALSE(Control<QMenu>("mnuEdit").isEnabled());
      EXPECT_EQ(Down("SSRibbon3"), "");
      check();
      Choose(ctd, "mnuFileExit");
    });
    QTest::mouseClick(&Find<QPushButton>(*window, "SSCommand2(1)"), Qt::LeftButton);
  }
};

TEST_F(CtdReload, NewShowsTheEmptyJobStillMarked) {
  platform.WillAnswer(Answer::No);
  Reload("mnuFileNew", [this] {
    EXPECT_EQ(Nodes(), QStringList());
    EXPECT_FALSE(InputsAreEnabled());
    EXPECT_EQ(Down("SSRibbon1"), "0");
    EXPECT_EQ(TextOf("Text2(1)"), "0");
    EXPECT_EQ(TextOf("Text2(2)"), "");
    EXPECT_EQ(Module1.JobDirty, kTrue);
  });
}

TEST_F(CtdReload, OpenShowsTheLastActiveTaskOfTheFile) {
  for (int i = 0; i < 3; ++i) AddTaskRecord();
  Module1.TaskNames.at(2) = "Cut";
  Module1.TaskActive.at(3) = Integer{0};
  Module1.CtdGripType.at(2) = Integer{2};
  Module1.CtdBackFlexion.at(2) = Integer{3};
  Module1.CtdLoadHeld.at(2, 6) = 4.5;
  Module1.JobAnalyst = "Ann";
  WriteBytes(folder.File("cut.qjt"), JobFileBytes(Module1));
  Module1 = JobState{};
  platform.WillAnswer(Answer::No);
  platform.WillOpen(File("cut.qjt"));
  Reload("mnuFileOpen", [this] {
    EXPECT_EQ(Nodes(), (QStringList{"Task 1", "Cut"}));
    EXPECT_EQ(SelectedNode(), "Cut");
    EXPECT_EQ(CurrentTask(), 2);
    EXPECT_EQ(Down("SSRibbon1"), "2");
    EXPECT_EQ(TextOf("Text1(8)"), "Ann");
    EXPECT_EQ(Module1.JobDirty, kTrue) << "a ribbon got its saved value";
    OpenTab(1);
    Click("SSRibbon3(3)");
    EXPECT_EQ(Down("SSctdBack"), "3");
    EXPECT_EQ(TextOf("Text3(6)"), "4.5");
  });
}

TEST_F(CtdReload, OpenOfAJobAsDesignedLeavesItClean) {
  AddTaskRecord();
  WriteBytes(folder.File("plain.qjt"), JobFileBytes(Module1));
  Module1 = JobState{};
  platform.WillAnswer(Answer::No);
  platform.WillOpen(File("plain.qjt"));
  Reload("mnuFileOpen", [] { EXPECT_EQ(Module1.JobDirty, kFalse); });
}

class CtdUnits : public CtdTaskTest {};

TEST_F(CtdUnits, ChoiceOfTheMainWindowConvertsEveryHandSpan) {
  const auto window = IdleMainWindow();
  const auto expectShown = [&](const char* span, const char* unit) {
    OpenTool(*window, 1, "frmCTD", [&](QWidget& ctd) {
      Use(ctd);
      EXPECT_EQ(TextOf("Text1(6)"), span);
      EXPECT_EQ(Control<QLabel>("Label2(1)").text(), unit);
    });
  };
  OpenTool(*window, 1, "frmCTD", [this](QWidget& ctd) {
    Use(ctd);
    Add();
    Type("Text1(6)", "20");
    Add();
    Add();
    Delete(Answer::Yes);
    Type("Text1(6)", "25.4");
  });
  Module1.CtdHandSpan.at(3) = 12.7;
  expectShown("25.4", "cm");
  Module1.JobDirty = kFalse;
  Choose(*window, "mnuEnglish");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  expectShown("10", "in");
  EXPECT_EQ(Module1.CtdHandSpan.at(1), TaggedField(7.87));
  EXPECT_EQ(Module1.CtdHandSpan.at(3), TaggedField(5.0)) << "deleted";
  Choose(*window, "mnuEnglish");
  expectShown("3.94", "in");
  Choose(*window, "mnuMetric");
  expectShown("10.01", "cm");
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

}  // namespace
}  // namespace halvane
