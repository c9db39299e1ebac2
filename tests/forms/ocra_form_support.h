#pragma once

#include <QRect>
#include <memory>
#include <string>
#include <vector>

#include "shell/tool_form.h"
#include "tests/support/form_support.h"
#include "tools/task_list/task_tree.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QSlider;

namespace halvane {

/// A test of the OCRA form: the form, and what a user does in it.
class OcraFormTest : public ShellTest {
 public:
  ~OcraFormTest() override;

 protected:
  /// Adds a task to the job, before the form is shown.
  static void AddTaskOf(double minutes, double frequency, double rating);
  /// A new form, loaded from the job and active.
  void Show();
  /// Shows the job as it is now, with every list at `answer`.
  void ShowAnswered(Integer answer);

  /// The control of that name.
  template <typename T>
  [[nodiscard]] T& The(const QString& name) const {
    return Find<T>(*form, name);
  }
  [[nodiscard]] TaskTree& Tree() const { return The<TaskTree>("TreeView1"); }
  [[nodiscard]] QLineEdit& Box(const QString& name) const;
  [[nodiscard]] QSlider& Slider(const QString& name) const;
  [[nodiscard]] QComboBox& Combo(int list) const;
  /// What the labels within a frame say.
  [[nodiscard]] QStringList LabelsIn(const QString& frame) const;
  /// The indexes of the frames `SSFrame1` that are shown.
  [[nodiscard]] std::vector<int> ShownFrames() const;
  /// The texts of the nodes, the selected ones in brackets.
  [[nodiscard]] QStringList Nodes() const;

  /// Clicks the tab, so that a failure passes through the application.
  void ClickTab(int tab) const;
  void ClickButton(const QString& name) const;
  void ClickNode(int place) const;
  void Type(const QString& box, const QString& text) const;
  /// Picks an answer from the open list and nothing on the way.
  void Pick(int list, int answer) const;
  /// The box in which the name of a task is edited; fails the test when there is none.
  [[nodiscard]] QLineEdit& Editor() const;
  [[nodiscard]] bool IsEditing() const;
  /// Starts to edit the name of the selected task and types another one, without finishing.
  void TypeName(const QString& name) const;
  /// Presses a key that finishes the edit or gives it up.
  void EndEdit(Qt::Key key) const;
  /// Gives the selected task another name.
  void Rename(const QString& name) const;

  std::unique_ptr<ToolForm> form;
};

/// Three tasks on screen, of 10, 20 and 30 minutes; the first is selected.
class OcraThreeTasks : public OcraFormTest {
 protected:
  void SetUp() override {
    AddTaskOf(10, 1, 0.5);
    AddTaskOf(20, 2, 1);
    AddTaskOf(30, 3, 1.5);
    Show();
  }
};

/// The box in which a name is being edited; null when there is none.
QLineEdit* EditorOf(const TaskTree& tree);
/// Presses a key in that box and waits until it is gone.
void EndEditIn(const TaskTree& tree, Qt::Key key);
/// The number of the task on screen.
double CurrentTask();
/// The 14 saved answers.
std::vector<int> SavedAnswers();

extern const ShownMessage kDeleteQuestion;
extern const ShownMessage kNoTaskSelected;

}  // namespace halvane
