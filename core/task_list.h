#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace halvane {

/// Numbers of the tasks that exist, in order: those of 1 to `TaskCount` whose `TaskActive` is 1.
std::vector<int> ActiveTasks();

/// Raises `TaskCount` by one and makes the record of the new task; gives its number. Throws as
/// `NewTaskRecord` does.
int AddTaskRecord();

/// The key of a task's node in a tree: "12_".
std::string TaskKey(int task);
/// The number at the start of a node's key.
int TaskOfKey(std::string_view key);

/// How much of a task's name the tables of reports show, in characters.
inline constexpr std::size_t kShownNameLength = 25;
/// The part of a task's name that reports show. Throws `SubscriptOutOfRange`.
std::string ShownTaskName(int task);

}  // namespace halvane
