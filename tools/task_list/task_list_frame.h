#pragma once

#include <QGroupBox>
#include <array>

#include "tools/task_input.h"

namespace halvane {

class TaskTree;

/// The frame "Task Information" with the task list and its three buttons, the same on every tool
/// that has a task list.
class TaskListFrame : public QGroupBox {
  Q_OBJECT
 public:
  /// The buttons are `SSCommand1(0)` add, `SSCommand1(1)` delete and `SSCommand1(2)` edit.
  TaskListFrame(const QString& name, const std::array<TaskButton, 3>& buttons, QWidget* parent);

  TaskTree& tree() { return *tree_; }

 signals:
  void buttonClicked(int index);

 private:
  TaskTree* tree_;
};

}  // namespace halvane
