#include "tests/forms/ocra_form_support.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "app/tool_forms.h"
#include "core/task_list.h"

namespace halvane {

// The double blank is wanted.
const ShownMessage kDeleteQuestion{
    "Halvane Tools",
    "You are about to delete a Task. If you click Yes, you won't be able to undo this Delete "
    "operation.  Are you sure you want to delete this task?",
    {Answer::Yes, Answer::No}};
const ShownMessage kNoTaskSelected{
    "Job Information",
    "You must select a Task to Delete. If the Task list is empty use Add Task to create the first "
    "Task list.",
    {Answer::Ok}};

QLineEdit* EditorOf(const TaskTree& tree) {
  for (auto* editor : tree.viewport()->findChildren<QLineEdit*>()) {
    // One that has been closed is destroyed later.
    if (editor->isVisible()) return editor;
  }
  return nullptr;
}

void EndEditIn(const TaskTree& tree, Qt::Key key) {
  ASSERT_NE(EditorOf(tree), nullptr);
  QTest::keyClick(EditorOf(tree), key);
  // The toolkit lets the box see the key before it takes the name.
  EXPECT_TRUE(QTest::qWaitFor([&tree] { return EditorOf(tree) == nullptr; }));
}

double CurrentTask() { return Module1.CurrentTask.AsDouble(); }

std::vector<int> SavedAnswers() {
  std::vector<int> answers;
  answers.reserve(14);
  for (int list = 0; list < 14; ++list) answers.push_back(Module1.OcraComboChoice.at(list));
  return answers;
}

OcraFormTest::~OcraFormTest() {
  // An edit that is still open ends with the window, as it does in the program.
  if (form != nullptr) form->hide();
}

void OcraFormTest::AddTaskOf(double minutes, double frequency, double rating) {
  const int task = AddTaskRecord();
  Module1.OcraTaskDuration.at(task) = minutes;
  Module1.OcraActionFrequency.at(task) = frequency;
  Module1.OcraForceRating.at(task) = rating;
}

void OcraFormTest::Show() {
  form = MakeToolForm(Tool::Ocra, nullptr);
  form->load();
  ShowActive(*form);
}

void OcraFormTest::ShowAnswered(Integer answer) {
  for (int list = 0; list < 14; ++list) Module1.OcraComboChoice.at(list) = answer;
  if (form == nullptr) {
    Show();
  } else {
    form->load();
  }
  ClickTab(1);
}

QLineEdit& OcraFormTest::Box(const QString& name) const { return The<QLineEdit>(name); }

QSlider& OcraFormTest::Slider(const QString& name) const { return The<QSlider>(name); }

QComboBox& OcraFormTest::Combo(int list) const {
  return The<QComboBox>(QString("Combo1(%1)").arg(list));
}

QStringList OcraFormTest::LabelsIn(const QString& frame) const {
  QStringList texts;
  for (const auto* label : The<QGroupBox>(frame).findChildren<QLabel*>()) {
    texts.append(label->text());
  }
  return texts;
}

std::vector<int> OcraFormTest::ShownFrames() const {
  std::vector<int> shown;
  for (int index = 0; index <= 5; ++index) {
    if (!The<QGroupBox>(QString("SSFrame1(%1)").arg(index)).isHidden()) shown.push_back(index);
  }
  return shown;
}

QStringList OcraFormTest::Nodes() const {
  QStringList texts;
  for (int place = 0; place < Tree().topLevelItemCount(); ++place) {
    const QTreeWidgetItem* node = Tree().topLevelItem(place);
    texts.append(node->isSelected() ? "[" + node->text(0) + "]" : node->text(0));
  }
  return texts;
}

void OcraFormTest::ClickTab(int tab) const {
  auto& bar = *The<QTabWidget>("SSTab1").tabBar();
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
}

void OcraFormTest::ClickButton(const QString& name) const {
  QTest::mouseClick(&The<QWidget>(name), Qt::LeftButton);
}

void OcraFormTest::ClickNode(int place) const {
  const QTreeWidgetItem* node = Tree().topLevelItem(place);
  QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, Tree().visualItemRect(node).center());
}

void OcraFormTest::Type(const QString& box, const QString& text) const {
  Box(box).setFocus();
  Box(box).selectAll();
  QTest::keyClicks(&Box(box), text);
}

void OcraFormTest::Pick(int list, int answer) const {
  Combo(list).setFocus();
  QTest::keyClick(&Combo(list), Qt::Key_F4);
  QWidget* choices = Combo(list).view();
  QTest::keyClick(choices, Qt::Key_Home);
  for (int i = 0; i < answer; ++i) QTest::keyClick(choices, Qt::Key_Down);
  QTest::keyClick(choices, Qt::Key_Return);
}

bool OcraFormTest::IsEditing() const { return EditorOf(Tree()) != nullptr; }

QLineEdit& OcraFormTest::Editor() const {
  if (!IsEditing()) throw std::runtime_error("no name is being edited");
  return *EditorOf(Tree());
}

void OcraFormTest::TypeName(const QString& name) const {
  Tree().setFocus();
  QTest::keyClick(&Tree(), Qt::Key_F2);
  Editor().selectAll();
  if (name.isEmpty()) QTest::keyClick(&Editor(), Qt::Key_Delete);
  QTest::keyClicks(&Editor(), name);
}

void OcraFormTest::EndEdit(Qt::Key key) const { EndEditIn(Tree(), key); }

void OcraFormTest::Rename(const QString& name) const {
  TypeName(name);
  EndEdit(Qt::Key_Return);
}

}  // namespace halvane
