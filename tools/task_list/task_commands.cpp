#include "tools/task_list/task_commands.h"

#include "core/job_state.h"
#include "core/messages.h"
#include "platform/platform.h"
#include "tools/task_list/task_tree.h"

namespace halvane {
namespace {

constexpr Integer kDeleted = 0;

int CurrentTask() { return ToInteger(Module1.CurrentTask.AsDouble()); }

}  // namespace

bool TakeTaskToDelete(const TaskTree& tree, QWidget& form) {
  const int task = tree.SelectedTask();
  if (task < 0) {
    ThePlatform().ShowMessage(&form, kNoTaskTitle, kNoTaskSelected, {Answer::Ok});
    return false;
  }
  Module1.CurrentTask = static_cast<Integer>(task);
  return true;
}

void DeleteCurrentTask(TaskTree& tree, QWidget& form) {
  const Answer answer = ThePlatform().ShowMessage(&form, kProgramTitle, kDeleteTaskQuestion,
                                                  {Answer::Yes, Answer::No});
  if (answer != Answer::Yes) return;
  tree.RemoveSelected();
  Module1.TaskActive.at(CurrentTask()) = kDeleted;
}

void RenameTask(const TaskTree& tree, int task, const QString& name) {
  Module1.JobDirty = kTrue;
  Module1.CurrentTask = static_cast<Integer>(tree.SelectedTask());
  Module1.TaskNames.at(task) = name.toStdString();
}

}  // namespace halvane
