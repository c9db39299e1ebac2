#include "tools/task_list/task_commands.h"

#include "core/messages.h"
#include "platform/platform.h"
#include "tools/task_input.h"
#include "tools/task_list/task_tree.h"

namespace halvane {
bool TakeTaskToDelete(const TaskTree& tree, QWidget& form) {
  const int task = tree.SelectedTask();
  if (task < 0) {
    ThePlatform().ShowMessage(&form, kNoTaskTitle, kNoTaskSelected, {Answer::Ok});
    return false;
  }
  TaskShown(task);
  return true;
}

void DeleteCurrentTask(TaskTree& tree, QWidget& form) {
  const Answer answer = ThePlatform().ShowMessage(&form, kProgramTitle, kDeleteTaskQuestion,
                                                  {Answer::Yes, Answer::No});
  if (answer != Answer::Yes) return;
  tree.RemoveSelected();
  CurrentTaskDeleted();
}

}  // namespace halvane
