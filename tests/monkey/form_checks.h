#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "shell/tool_form.h"

namespace halvane {

class TaskTree;
class TextBox;

/// A box of a form and what it has to show.
struct WatchedBox {
  TextBox* box;
  /// What is wrong with the box; empty when it shows what its field holds, or when nothing is said
  /// about it, as about the boxes of a task while there is none.
  std::function<QString()> wrong;
};

/// The boxes of a form that are typed into.
std::vector<WatchedBox> WatchedBoxesOf(Tool tool, const ToolForm& form);

/// Everything else that a form has to show: options, lists, ticks, sliders, ribbons against their
/// fields, the current task against the task list. Empty when all is well. `isOdd` says that the
/// job has values that name no control.
QString WrongControl(Tool tool, const ToolForm& form, bool isOdd);

}  // namespace halvane
