#pragma once

#include <QPoint>
#include <QString>
#include <functional>

#include "shell/tool_form.h"

class QEvent;

namespace halvane {

/// What every program that measures an action prints: a line for each time that it was done, with
/// what it was done on and how much it took, in seconds of work or in KiB.
void PrintSample(const QString& what, double amount);

/// Ends the program with status 1 where an action has not done what was to be measured.
void Require(bool isSo, const char* complaint);

/// Lets the program do all that an action has left to do at once: what it told the controls, their
/// layout and their painting.
void FinishTurn();

/// The seconds of work of an action until all that it changes is painted, which has to be
/// something.
double SecondsOf(QWidget& form, const std::function<void()>& action);

// As the mouse does it, at a place of a widget.
void Press(QWidget& widget, QPoint place);
void DragTo(QWidget& widget, QPoint place);
void Release(QWidget& widget, QPoint place);
void Click(QWidget& widget, QPoint place);

/// Shows each page of a form that is open, the report aside, and runs `use` with its name: the
/// tabs, and what the pictures of body parts show in turn. A form with a task list has its first
/// task selected.
void OnEveryPage(ToolForm& form, const std::function<void(const QString& page)>& use);

/// The widgets of a kind that a user sees and can use, in the order in which they were made.
template <typename Widget>
QList<Widget*> UsableOnView(const ToolForm& form) {
  QList<Widget*> widgets;
  for (Widget* widget : form.findChildren<Widget*>()) {
    const bool isSeen = widget->isVisible() && !widget->visibleRegion().isEmpty();
    if (isSeen && widget->isEnabled()) widgets.append(widget);
  }
  return widgets;
}

/// The main function of a program that is given the key of a tool and maybe one more argument.
/// Gives its exit status.
int RunOnTool(int argc, char** argv,
              const std::function<void(Tool tool, const std::string& argument)>& measure);

}  // namespace halvane
