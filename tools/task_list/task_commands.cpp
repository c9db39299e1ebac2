#include "tools/task_list/task_commands.h"

#include "core/program_title.h"
#include "platform/platform.h"
#include "tools/task_input.h"
#include "tools/task_list/task_tree.h"

namespace halvane {
namespace {

// The double blank is wanted.
constexpr auto kDeleteQuestion =
    "You are about to delete a Task. If you click Yes, you won't be able to undo this Delete "
    "operation.  Are you sure you want to delete this task?";
constexpr auto kNoTaskTitle = "Job Information";
constexpr auto kNoTaskSelected =
    "You must select a Task to Delete. If the Task list is empty use Add Task to create the first "
    "Task list.";

}  // namespace

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
  const Answer answer =
      ThePlatform().ShowMessage(&form, kProgramTitle, kDeleteQuestion, {Answer::Yes, Answer::No});
  if (answer != Answer::Yes) return;
  tree.RemoveSelected();
  CurrentTaskDeleted();
}

}  // namespace halvane
