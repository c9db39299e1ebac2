#pragma once

class QString;
class QWidget;

namespace halvane {

class TaskTree;

/// What both tools with a task list do to a task, once.

/// Makes the selected task the current one, for deleting. False, after a message, when none is
/// selected.
bool TakeTaskToDelete(const TaskTree& tree, QWidget& form);

/// Asks, then removes the selected node and marks the current task as deleted.
void DeleteCurrentTask(TaskTree& tree, QWidget& form);

/// Gives a task the name that was typed for it, and makes the selected task the current one.
void RenameTask(const TaskTree& tree, int task, const QString& name);

}  // namespace halvane
