#pragma once

#include <QStringList>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shell/tool_form.h"
#include "tests/support/form_support.h"
#include "tools/tool_table.h"

class QLineEdit;

namespace halvane {

enum class Half { Left, Right };

/// A test of a form that has the regions of the body in frames, and what a user does in it.
class PostureFormTest : public ShellTest {
 protected:
  explicit PostureFormTest(Tool which);
  ~PostureFormTest() override;

  /// A new form, loaded from the job and active.
  void Show();
  /// Loads the form again from `job`, as the launcher does after New and Open.
  void Reload(const JobState& job);

  /// The control of that name.
  template <typename T = QWidget>
  [[nodiscard]] T& The(const QString& name) const {
    return Find<T>(*form, name);
  }
  [[nodiscard]] QLineEdit& Box(int index) const;
  /// Clicks a ribbon, a box, an option or a button with the mouse.
  void Click(const QString& name) const;
  /// Gives a control the focus and presses a key.
  void Press(const QString& name, Qt::Key key) const;
  /// Clicks the tab, so that a failure passes through the application.
  void ClickTab(int tab) const;
  /// The names of the ribbons that are down, boxes that are checked and options that are chosen,
  /// sorted.
  [[nodiscard]] QStringList On() const;
  /// One line for each of these controls and each list, sorted: frame, name, caption, tool tip.
  [[nodiscard]] QStringList ControlLines() const;
  /// The frames in one half of the form, from the top.
  [[nodiscard]] QStringList FramesIn(Half half) const;
  /// The text of the report pane with a line feed at each end of a line.
  [[nodiscard]] QString Report() const;

  /// Opens the tool from the main window; `showings` are what the user does each time it is shown.
  void Launch(const std::vector<std::function<void()>>& showings);
  /// Opens the tool from the main window on a job that it cannot show, and expects the end of the
  /// program at a subscript out of range, with a rescue copy of the job.
  void ExpectLaunchEndsTheProgram(const JobState& job);

  const ToolRow& tool;
  ToolForm* form = nullptr;  ///< the form on screen

 private:
  [[nodiscard]] QString LaunchButton() const;

  std::unique_ptr<ToolForm> own_;
};

/// `names` with `off` taken out and `on` put in, sorted; an empty name is none.
QStringList Instead(QStringList names, const QString& off, const QString& on);

/// The frame that a control stands in, the innermost of several.
QString FrameOfControl(const QWidget& control);

}  // namespace halvane
