#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// A button under the task list.
struct TaskButton {
  std::string_view caption;
  std::string_view tip;  ///< empty: none
};
inline constexpr int kAddTask = 0;
inline constexpr int kDeleteTask = 1;
inline constexpr int kEditTask = 2;

// What the task list does to the job, the same in both tools that have one.

/// A button was pressed: marks the job as changed, whatever comes of it.
void TaskButtonPressed();

/// A task is shown and becomes the current one.
void TaskShown(int task);

/// The current task is deleted: it keeps its number and all else that it has. Throws
/// `SubscriptOutOfRange` for a task that there is no place for.
void CurrentTaskDeleted();

/// A task was given a name: marks the job as changed and makes the task the current one. Throws
/// `SubscriptOutOfRange` as above.
void TaskRenamed(int task, std::string name);

}  // namespace halvane
