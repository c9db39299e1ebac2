// The names of tasks on the OCRA form, edited in place.
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "core/task_list.h"
#include "tests/forms/ocra_form_support.h"

namespace halvane {
namespace {

const QString kAdd = "SSCommand1(0)";
const QString kDelete = "SSCommand1(1)";
const QString kEdit = "SSCommand1(2)";

class OcraRenameTask : public OcraThreeTasks {
 protected:
  /// The names of all three, deleted or not.
  static std::vector<std::string> Names() {
    return {Module1.TaskNames.at(1), Module1.TaskNames.at(2), Module1.TaskNames.at(3)};
  }
};

/// A way to start the edit of the selected name.
struct EditRow {
  const char* label;
  std::function<void(const QWidget& form, QWidget& tree)> start;
};

TEST_F(OcraRenameTask, EditButtonAndKeyStartAndReturnStores) {
  const std::vector<EditRow> rows{
      {"click on the button",
       [](const QWidget& screen, QWidget&) {
         QTest::mouseClick(&Find<QWidget>(screen, kEdit), Qt::LeftButton);
       }},
      {"blank on the button",
       [](const QWidget& screen, QWidget&) {
         auto& button = Find<QWidget>(screen, kEdit);
         button.setFocus();
         QTest::keyClick(&button, Qt::Key_Space);
       }},
      {"F2",
       [](const QWidget&, QWidget& tree) {
         tree.setFocus();
         QTest::keyClick(&tree, Qt::Key_F2);
       }},
  };
  ClickNode(1);
  for (const EditRow& row : rows) {
    SCOPED_TRACE(row.label);
    Module1.TaskNames.at(2) = "Task 2";
    form->load();
    ClickNode(1);
    Module1.JobDirty = kFalse;
    row.start(*form, Tree());
    EXPECT_EQ(Editor().selectedText(), "Task 2");
    EXPECT_TRUE(Editor().hasFocus());
    QTest::keyClicks(&Editor(), "Packing");
    EXPECT_EQ(Names()[1], "Task 2") << "stored before the edit is finished";
    EndEdit(Qt::Key_Return);
    EXPECT_EQ(Names(), (std::vector<std::string>{"Task 1", "Packing", "Task 3"}));
    EXPECT_EQ(Nodes(), (QStringList{"Task 1", "[Packing]", "Task 3"}));
    EXPECT_EQ(CurrentTask(), 2);
    EXPECT_EQ(Module1.JobDirty, kTrue);
  }
}

TEST_F(OcraRenameTask, EscapeLeavesTheNameAndTheJobClean) {
  TypeName("Packing");
  EndEdit(Qt::Key_Escape);
  EXPECT_EQ(Nodes(), (QStringList{"[Task 1]", "Task 2", "Task 3"}));
  EXPECT_EQ(Names()[0], "Task 1");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(OcraRenameTask, EveryNameIsStoredAsTyped) {
  for (const char* name :
       {"", "  blanks  ", "M\xC3\xA4ngd \"7\"", "a name of more than twenty-five characters"}) {
    TypeName("");
    Editor().setText(name);
    EndEdit(Qt::Key_Return);
    EXPECT_EQ(Names()[0], name);
    EXPECT_EQ(Tree().topLevelItem(0)->text(0), QString::fromUtf8(name));
  }
}

TEST_F(OcraRenameTask, CurrentTaskComesFromTheSelectedNode) {
  Module1.CurrentTask = Integer{3};
  Rename("Packing");
  EXPECT_EQ(CurrentTask(), 1);
  EXPECT_EQ(Names(), (std::vector<std::string>{"Packing", "Task 2", "Task 3"}));
}

TEST_F(OcraRenameTask, NodeOfALaterSlotKeepsItsOwnName) {
  platform.WillAnswer(Answer::Yes);
  ClickButton(kDelete);
  Rename("Packing");
  EXPECT_EQ(Nodes(), (QStringList{"[Packing]", "Task 3"}));
  EXPECT_EQ(Names(), (std::vector<std::string>{"Task 1", "Packing", "Task 3"}));
}

TEST_F(OcraRenameTask, WithoutATaskOnlyMarksTheJob) {
  Module1 = JobState{};
  form->load();
  ClickButton(kEdit);
  EXPECT_FALSE(IsEditing());
  JobState expected;
  expected.JobDirty = kTrue;
  EXPECT_TRUE(Module1 == expected);
}

/// What the user does while a name is being edited, other than to press Return.
struct FinishRow {
  const char* label;
  std::function<void()> act;
};

TEST_F(OcraRenameTask, WhateverTheUserDoesNextTheNameIsStoredInItsOwnTask) {
  auto& bar = *form->findChild<QMenuBar*>();
  const auto& file = Find<QMenu>(*form, "mnuFile");
  const std::vector<FinishRow> rows{
      {"arrow key", [this] { QTest::keyClick(&Editor(), Qt::Key_Down); }},
      {"click on another task", [this] { ClickNode(2); }},
      {"click in a box", [this] { QTest::mouseClick(&Box("Text2(1)"), Qt::LeftButton); }},
      {"another tab", [this] { ClickTab(1); }},
      {"click on Add", [this] { ClickButton(kAdd); }},
      {"key of Add",
       [this] {
         QTest::keyClick(&Editor(), Qt::Key_A, Qt::AltModifier);
         EXPECT_TRUE(QTest::qWaitFor([this] { return Tree().topLevelItemCount() == 4; }));
       }},
      {"key of Delete, answered No",
       [this] {
         platform.WillAnswer(Answer::No);
         QTest::keyClick(&Editor(), Qt::Key_D, Qt::AltModifier);
         EXPECT_TRUE(QTest::qWaitFor([this] { return !platform.messages().empty(); }));
       }},
      {"click on a menu",
       [&] {
         const ModalSteps none;
         QTest::mouseClick(&bar, Qt::LeftButton, {},
                           bar.actionGeometry(file.menuAction()).center());
         ASSERT_TRUE(file.isVisible());
         Find<QMenu>(*form, "mnuFile").close();
       }},
  };
  for (const FinishRow& row : rows) {
    SCOPED_TRACE(row.label);
    Module1 = JobState{};
    for (const double minutes : {10.0, 20.0, 30.0}) AddTaskOf(minutes, 1, 0);
    form->load();
    ClickNode(1);
    TypeName("Packing");
    row.act();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !IsEditing(); }));
    EXPECT_EQ(Names(), (std::vector<std::string>{"Task 1", "Packing", "Task 3"}));
    EXPECT_EQ(Tree().topLevelItem(1)->text(0), "Packing");
    EXPECT_EQ(Module1.JobDirty, kTrue);
  }
}

TEST_F(OcraRenameTask, TabStoresTheNameAndGoesOnToTheNext) {
  TypeName("Packing");
  QTest::keyClick(&Editor(), Qt::Key_Tab);
  EXPECT_EQ(Editor().selectedText(), "Task 2");
  QTest::keyClicks(&Editor(), "Sorting");
  EndEdit(Qt::Key_Return);
  EXPECT_EQ(Names(), (std::vector<std::string>{"Packing", "Sorting", "Task 3"}));
  EXPECT_EQ(CurrentTask(), 2);
}

TEST_F(OcraRenameTask, NewFromTheMenuWhileANameIsEditedMakesAnEmptyJob) {
  TypeName("Packing");
  auto& bar = *form->findChild<QMenuBar*>();
  auto& file = Find<QMenu>(*form, "mnuFile");
  // The edit marks the job, so New asks.
  platform.WillAnswer(Answer::No);
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(file.menuAction()).center());
  QTest::mouseClick(&file, Qt::LeftButton, {}, file.actionGeometry(file.actions()[0]).center());
  EXPECT_EQ(Module1.TaskCount, TaggedField(Integer{0}));
  EXPECT_EQ(platform.messages().size(), 1U);
  EXPECT_TRUE(platform.ends().empty());
  EXPECT_EQ(form->result(), ToolForm::Reload);
}

TEST_F(OcraRenameTask, SaveFromTheMenuWhileANameIsEditedWritesIt) {
  Module1.JobFileName = folder.File("job.qjt");
  TypeName("Packing");
  auto& bar = *form->findChild<QMenuBar*>();
  auto& file = Find<QMenu>(*form, "mnuFile");
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(file.menuAction()).center());
  QTest::mouseClick(&file, Qt::LeftButton, {}, file.actionGeometry(file.actions()[2]).center());
  EXPECT_NE(BytesOf(folder.File("job.qjt")).find("\"Packing\""), std::string::npos);
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

}  // namespace
}  // namespace halvane
