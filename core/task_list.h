#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace halvane {

/// Numbers of the tasks that exist, in order: those of 1 to `TaskCount` whose `TaskActive` is 1.
std::vector<int> ActiveTasks();

/// Whether a task exists; looks no further than the first, and not beyond the tasks' arrays, which
/// a file with an impossible `TaskCount` leaves shorter than the count.
bool AnyActiveTask();

/// The number in `CurrentTask`. Throws `Overflow` for one beyond 16 bits.
int CurrentTaskNumber();

/// The task that the inputs of a form write to: `CurrentTask`, nothing while no task exists. What
/// `CurrentTask` then holds is left over from another task or job.
std::optional<int> TaskOnScreen();

/// Raises `TaskCount` by one and makes the record of the new task; gives its number. Throws as
/// `NewTaskRecord` does.
int AddTaskRecord();

/// The key of a task's node in a tree: "12_".
std::string TaskKey(int task);
/// The number at the start of a node's key.
int TaskOfKey(std::string_view key);

/// How much of a task's name the tables of reports show, in characters.
inline constexpr std::size_t kShownNameLength = 25;
/// The part of a task's name that reports show, as it stands in the job. Throws
/// `SubscriptOutOfRange`.
std::string_view ShownTaskName(int task);

}  // namespace halvane
