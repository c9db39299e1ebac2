#pragma once

class QWidget;

namespace halvane {

class TaskTree;

/// What both tools with a task list ask of the user, once.

/// Makes the selected task the current one, for deleting. False, after a message, when none is
/// selected.
bool TakeTaskToDelete(const TaskTree& tree, QWidget& form);

/// Asks, then removes the selected node and marks the current task as deleted.
void DeleteCurrentTask(TaskTree& tree, QWidget& form);

}  // namespace halvane
