#include "core/task_list.h"

#include <algorithm>

#include "core/job_state.h"
#include "core/job_text_encoding.h"

namespace halvane {

std::vector<int> ActiveTasks() {
  std::vector<int> tasks;
  const double taskCount = Module1.TaskCount.AsDouble();
  const TaskArray<TaggedField>& active = Module1.TaskActive;
  tasks.reserve(static_cast<std::size_t>(std::max(active.upperBound(), 0)));
  for (int task = 1; task <= taskCount; ++task) {
    if (active.at(task).AsDouble() == 1) tasks.push_back(task);
  }
  return tasks;
}

bool AnyActiveTask() {
  const double last =
      std::min<double>(Module1.TaskCount.AsDouble(), Module1.TaskActive.upperBound());
  for (int task = 1; task <= last; ++task) {
    if (Module1.TaskActive.at(task).AsDouble() == 1) return true;
  }
  return false;
}

int CurrentTaskNumber() { return ToInteger(Module1.CurrentTask.AsDouble()); }

std::optional<int> TaskOnScreen() {
  if (!AnyActiveTask()) return std::nullopt;
  return CurrentTaskNumber();
}

int AddTaskRecord() {
  const Integer task = ToInteger(Module1.TaskCount.AsDouble() + 1);
  Module1.TaskCount = task;
  NewTaskRecord();
  return task;
}

std::string TaskKey(int task) { return PlainText(task) + "_"; }

int TaskOfKey(std::string_view key) { return ToInteger(ReadsAs(key)); }

std::string_view ShownTaskName(int task) {
  return FirstCharacters(Module1.TaskNames.at(task), kShownNameLength);
}

}  // namespace halvane
