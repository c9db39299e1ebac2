#include "tools/task_input.h"

#include <utility>

#include "core/job_state.h"
#include "core/task_list.h"

namespace halvane {
namespace {

constexpr Integer kDeleted = 0;

}  // namespace

void TaskButtonPressed() { Module1.JobDirty = kTrue; }

void TaskShown(int task) { Module1.CurrentTask = static_cast<Integer>(task); }

void CurrentTaskDeleted() { Module1.TaskActive.at(CurrentTaskNumber()) = kDeleted; }

void TaskRenamed(int task, std::string name) {
  Module1.JobDirty = kTrue;
  TaskShown(task);
  Module1.TaskNames.at(task) = std::move(name);
}

}  // namespace halvane
