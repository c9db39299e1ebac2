// The task list of the OCRA form: tasks added, deleted and switched, in it and together with the
// other tool that has one.
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include "core/job_file.h"
#include "core/task_list.h"
#include "shell/frm_hand_main.h"
#include "tests/forms/ocra_form_support.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

const QString kAdd = "SSCommand1(0)";
const QString kDelete = "SSCommand1(1)";
const std::vector<int> kAllFrames{0, 1, 2, 3, 4, 5};
const std::vector<int> kJobFrames{0, 3, 5};

class OcraAddTask : public OcraFormTest {};
class OcraShared : public OcraFormTest {};

class OcraDeleteTask : public OcraThreeTasks {};
class OcraSwitchTask : public OcraThreeTasks {};

TEST_F(OcraAddTask, ClickMakesANewTaskCurrentAndMarksTheJob) {
  Show();
  ClickButton(kAdd);
  EXPECT_EQ(Nodes(), QStringList{"[Task 1]"});
  EXPECT_EQ(Module1.TaskCount, TaggedField(Integer{1}));
  EXPECT_EQ(Module1.TaskNames.at(1), "Task 1");
  EXPECT_EQ(Module1.TaskActive.at(1), TaggedField(Integer{1}));
  EXPECT_EQ(CurrentTask(), 1);
  EXPECT_EQ(Box("Text1(2)").text(), "0");
  EXPECT_EQ(Box("Text1(5)").text(), "0");
  EXPECT_EQ(Slider("Slider1").value(), 0);
  EXPECT_TRUE(Tree().hasFocus());
  EXPECT_EQ(ShownFrames(), kAllFrames);
  EXPECT_TRUE(The<QTabWidget>("SSTab1").isTabEnabled(2));
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(OcraAddTask, SecondTaskStartsFromZeroBehindTheFirst) {
  Show();
  ClickButton(kAdd);
  Type("Text1(2)", "480");
  Type("Text1(5)", "30");
  QTest::keyClick(&Slider("Slider1"), Qt::Key_End);
  ClickButton(kAdd);
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "[Task 2]"}));
  EXPECT_EQ(CurrentTask(), 2);
  EXPECT_EQ(Box("Text1(2)").text(), "0");
  EXPECT_EQ(Box("Text1(5)").text(), "0");
  EXPECT_EQ(Slider("Slider1").value(), 0);
  EXPECT_EQ(Module1.OcraTaskDuration.at(1), 480);
  EXPECT_EQ(Module1.OcraForceRating.at(1), 5);
}

TEST_F(OcraAddTask, KeysPressTheButtons) {
  Show();
  The<QPushButton>(kAdd).setFocus();
  QTest::keyClick(&The<QPushButton>(kAdd), Qt::Key_Space);
  EXPECT_EQ(Nodes(), QStringList{"[Task 1]"});
  QTest::keyClick(form.get(), Qt::Key_A, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Tree().topLevelItemCount() == 2; }));
  platform.WillAnswer(Answer::Yes);
  QTest::keyClick(form.get(), Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Tree().topLevelItemCount() == 1; }));
  EXPECT_EQ(Nodes(), QStringList{"[Task 1]"});
}

TEST_F(OcraDeleteTask, YesTakesTheNodeAwayAndKeepsTheSlot) {
  ClickNode(1);
  Module1.JobDirty = kFalse;
  JobState expected = Module1;
  expected.JobDirty = kTrue;
  expected.TaskActive.at(2) = Integer{0};
  expected.CurrentTask = Integer{3};
  platform.WillAnswer(Answer::Yes);
  ClickButton(kDelete);
  EXPECT_EQ(platform.messages(), std::vector{kDeleteQuestion});
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "[Task 3]"}));
  EXPECT_TRUE(Module1 == expected);
  EXPECT_EQ(Box("Text1(2)").text(), "30");
  EXPECT_EQ(Box("Text1(5)").text(), "3");
  EXPECT_EQ(Slider("Slider1").value(), 3);
  EXPECT_EQ(ShownFrames(), kAllFrames);
  EXPECT_TRUE(The<QTabWidget>("SSTab1").isTabEnabled(2));
}

TEST_F(OcraDeleteTask, LastNodeDeletedSelectsTheOneBefore) {
  ClickNode(2);
  platform.WillAnswer(Answer::Yes);
  ClickButton(kDelete);
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "[Task 2]"}));
  EXPECT_EQ(CurrentTask(), 2);
  EXPECT_EQ(Box("Text1(2)").text(), "20");
}

TEST_F(OcraDeleteTask, NoChangesNothingButTheMark) {
  ClickNode(1);
  Module1.JobDirty = kFalse;
  JobState expected = Module1;
  expected.JobDirty = kTrue;
  platform.WillAnswer(Answer::No);
  ClickButton(kDelete);
  EXPECT_EQ(platform.messages(), std::vector{kDeleteQuestion});
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "[Task 2]", "Task 3"}));
  EXPECT_TRUE(Module1 == expected);
}

TEST_F(OcraDeleteTask, QuestionStandsBeforeAnythingIsDeleted) {
  JobState during;
  QStringList nodes;
  platform.WhileNextMessageStands([&] {
    during = Module1;
    nodes = Nodes();
  });
  platform.WillAnswer(Answer::Yes);
  ClickButton(kDelete);
  EXPECT_EQ(during.TaskActive.at(1), TaggedField(Integer{1}));
  EXPECT_EQ(during.JobDirty, kTrue);
  EXPECT_EQ(nodes, (QStringList{"[Task 1]", "Task 2", "Task 3"}));
}

TEST_F(OcraDeleteTask, NewTaskAfterwardsHasTheNextNumber) {
  ClickNode(1);
  platform.WillAnswer(Answer::Yes);
  ClickButton(kDelete);
  ClickButton(kAdd);
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", "Task 3", "[Task 4]"}));
  EXPECT_EQ(Module1.TaskCount, TaggedField(Integer{4}));
  EXPECT_EQ(CurrentTask(), 4);
}

TEST_F(OcraDeleteTask, OnlyTaskTakesItsFramesAndTheReportWithItAndAddBringsThemBack) {
  for (int task = 1; task <= 3; ++task) {
    platform.WillAnswer(Answer::Yes);
    ClickButton(kDelete);
  }
  EXPECT_EQ(Nodes(), QStringList());
  EXPECT_EQ(ShownFrames(), kJobFrames);
  EXPECT_FALSE(The<QTabWidget>("SSTab1").isTabEnabled(2));
  ClickButton(kAdd);
  EXPECT_EQ(Nodes(), QStringList{"[Task 4]"});
  EXPECT_EQ(ShownFrames(), kAllFrames);
  EXPECT_TRUE(The<QTabWidget>("SSTab1").isTabEnabled(2));
}

TEST_F(OcraDeleteTask, NextShowingOfTheFormCanReportAgain) {
  for (int task = 1; task <= 3; ++task) {
    platform.WillAnswer(Answer::Yes);
    ClickButton(kDelete);
  }
  form->load();
  EXPECT_TRUE(The<QTabWidget>("SSTab1").isTabEnabled(2));
  EXPECT_EQ(ShownFrames(), kJobFrames);
}

TEST_F(OcraDeleteTask, WithoutATaskGivesItsMessageAndOnlyMarksTheJob) {
  for (const bool neverHadOne : {true, false}) {
    Module1 = JobState{};
    if (!neverHadOne) {
      AddTaskOf(10, 1, 0);
      Module1.TaskActive.at(1) = Integer{0};
    }
    Show();
    JobState expected = Module1;
    expected.JobDirty = kTrue;
    platform.WillAnswer(Answer::Ok);
    ClickButton(kDelete);
    EXPECT_EQ(platform.messages().back(), kNoTaskSelected);
    EXPECT_TRUE(Module1 == expected);
    EXPECT_EQ(ShownFrames(), neverHadOne ? kAllFrames : kJobFrames);
    EXPECT_TRUE(The<QTabWidget>("SSTab1").isTabEnabled(2));
  }
  EXPECT_EQ(platform.messages().size(), 2U);
}

TEST_F(OcraDeleteTask, ClickInTheEmptyTreeShowsTheTaskFramesAgain) {
  for (int task = 1; task <= 3; ++task) {
    platform.WillAnswer(Answer::Yes);
    ClickButton(kDelete);
  }
  ASSERT_EQ(ShownFrames(), kJobFrames);
  QTest::mouseClick(Tree().viewport(), Qt::LeftButton);
  EXPECT_EQ(ShownFrames(), kAllFrames);
  EXPECT_EQ(CurrentTask(), 3);
}

TEST_F(OcraSwitchTask, ClicksAndKeysShowEachTasksOwnValues) {
  ClickNode(2);
  EXPECT_EQ(CurrentTask(), 3);
  EXPECT_EQ(Box("Text1(2)").text(), "30");
  EXPECT_EQ(Box("Text1(5)").text(), "3");
  EXPECT_EQ(Slider("Slider1").value(), 3);
  QTest::keyClick(&Tree(), Qt::Key_Up);
  EXPECT_EQ(CurrentTask(), 2);
  EXPECT_EQ(Box("Text1(2)").text(), "20");
  EXPECT_EQ(Box("Text1(5)").text(), "2");
  EXPECT_EQ(Slider("Slider1").value(), 2);
  EXPECT_EQ(LabelsIn("SSFrame1(4)"), QStringList{"1.0"});
  EXPECT_EQ(Module1.JobDirty, kFalse) << "looking at a task changes nothing";
}

TEST_F(OcraSwitchTask, TasksKeepWhatWasTypedForThem) {
  Type("Text1(2)", "100");
  Type("Text1(5)", "11");
  QTest::keyClick(&Slider("Slider1"), Qt::Key_End);
  ClickNode(1);
  Type("Text1(2)", "200");
  QTest::keyClick(&Slider("Slider1"), Qt::Key_Home);
  EXPECT_EQ(Slider("Slider1").toolTip(), "0.0");
  ClickNode(0);
  EXPECT_EQ(Box("Text1(2)").text(), "100");
  EXPECT_EQ(Box("Text1(5)").text(), "11");
  EXPECT_EQ(Slider("Slider1").value(), 10);
  EXPECT_EQ(LabelsIn("SSFrame1(4)"), QStringList{"5.0"});
  EXPECT_EQ(Slider("Slider1").toolTip(), "0.0") << "the tip is of the last move";
  EXPECT_EQ(Module1.OcraTaskDuration.at(2), 200);
  EXPECT_EQ(Module1.OcraActionFrequency.at(2), TaggedField(2.0));
  EXPECT_EQ(Module1.OcraForceRating.at(2), 0);
  EXPECT_EQ(Module1.OcraTaskDuration.at(3), 30);
}

TEST_F(OcraSwitchTask, JobAnswersAreTheSameForEveryTask) {
  QTest::keyClick(&Slider("Slider2"), Qt::Key_PageUp);
  ClickNode(2);
  EXPECT_EQ(Slider("Slider2").value(), 5);
  EXPECT_EQ(Module1.OcraRecoveryHours, TaggedField(Integer{5}));
}

/// The texts of the nodes on a form.
QStringList NodesOn(const QWidget& form) {
  QStringList texts;
  const auto& tree = Find<TaskTree>(form, "TreeView1");
  for (int place = 0; place < tree.topLevelItemCount(); ++place) {
    texts.append(tree.topLevelItem(place)->text(0));
  }
  return texts;
}

TEST_F(OcraShared, TasksOfOneToolAreThoseOfTheOther) {
  const auto window = IdleMainWindow();
  ModalSteps steps;
  const auto press = [](const QWidget& screen, const QString& button) {
    QTest::mouseClick(&Find<QWidget>(screen, button), Qt::LeftButton);
  };
  steps.Then("frmOCRA", [&](QWidget& ocra) {
    press(ocra, kAdd);
    press(ocra, kAdd);
    Choose(ocra, "mnuFileExit");
  });
  press(*window, "SSCommand2(0)");
  steps.Then("frmCTD", [&](QWidget& ctd) {
    EXPECT_EQ(NodesOn(ctd), (QStringList{"Task 1", "Task 2"}));
    press(ctd, kAdd);
    Choose(ctd, "mnuFileExit");
  });
  press(*window, "SSCommand2(1)");
  EXPECT_EQ(CurrentTask(), 3);
  steps.Then("frmOCRA", [&](QWidget& ocra) {
    EXPECT_EQ(NodesOn(ocra), (QStringList{"Task 1", "Task 2", "Task 3"}));
    EXPECT_EQ(CurrentTask(), 1);
    platform.WillAnswer(Answer::Yes);
    press(ocra, kDelete);
    Choose(ocra, "mnuFileExit");
  });
  press(*window, "SSCommand2(0)");
  steps.Then("frmCTD", [&](QWidget& ctd) {
    EXPECT_EQ(NodesOn(ctd), (QStringList{"Task 2", "Task 3"}));
    Choose(ctd, "mnuFileExit");
  });
  press(*window, "SSCommand2(1)");
}

TEST_F(OcraShared, NewAndOpenLoadTheFormAgain) {
  AddTaskOf(10, 1, 0);
  AddTaskOf(20, 2, 0);
  Module1.TaskActive.at(1) = Integer{0};
  WriteBytes(folder.File("two.qjt"), JobFileBytes(Module1));
  const auto window = IdleMainWindow();
  ModalSteps steps;
  steps.Then("frmOCRA", [&](QWidget& ocra) {
    QTest::mouseClick(&Find<QWidget>(ocra, kAdd), Qt::LeftButton);
    QTest::keyClicks(&Find<QWidget>(ocra, "Text1(2)"), "480");
    Find<QTabWidget>(ocra, "SSTab1").setCurrentIndex(2);
    platform.WillAnswer(Answer::No);
    Choose(ocra, "mnuFileNew");
  });
  steps.Then("frmOCRA", [&](QWidget& ocra) {
    EXPECT_EQ(&VisibleToolForm(), &ocra);
    EXPECT_EQ(NodesOn(ocra), QStringList());
    EXPECT_EQ(Find<QLineEdit>(ocra, "Text1(2)").text(), "");
    EXPECT_EQ(Find<QTabWidget>(ocra, "SSTab1").currentIndex(), 0);
    EXPECT_FALSE(Find<QMenu>(ocra, "mnuEdit").isEnabled());
    platform.WillAnswer(Answer::No);
    platform.WillOpen(File("two.qjt"));
    Choose(ocra, "mnuFileOpen");
  });
  steps.Then("frmOCRA", [](QWidget& ocra) {
    EXPECT_EQ(NodesOn(ocra), QStringList{"Task 2"});
    EXPECT_EQ(CurrentTask(), 2);
    EXPECT_EQ(Find<QLineEdit>(ocra, "Text1(2)").text(), "20");
    EXPECT_EQ(Find<QTabWidget>(ocra, "SSTab1").currentIndex(), 0);
    EXPECT_EQ(Module1.JobDirty, kFalse);
    Choose(ocra, "mnuFileExit");
  });
  QTest::mouseClick(&Find<QWidget>(*window, "SSCommand2(0)"), Qt::LeftButton);
}

}  // namespace
}  // namespace halvane
