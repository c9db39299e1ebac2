#pragma once

#include <functional>
#include <memory>

#include "benchmarks/paint_watch.h"
#include "core/tool_names.h"
#include "shell/frm_hand_main.h"

namespace halvane {

class ToolForm;

/// The main window on the screen, with its launch buttons, and a job of so many tasks. Tools are
/// opened as its user opens them; the one that no button opens is kept and opened in the same way.
class OpenedTool {
 public:
  explicit OpenedTool(int tasks);
  ~OpenedTool();

  /// Lets the program stand unused for a second, and for as long as it still works then.
  static void BeQuiet();
  /// Lets it stand unused for as long as it works.
  static void BeIdle();

  /// Runs with a form that has been shown and painted, as often as that happens until it closes.
  using Use = std::function<void(ToolForm& form)>;

  /// Opens a tool; closes it once it has been painted. Gives the seconds of work until then.
  double Open(Tool tool);
  /// Opens a tool for `use`, which has to close it.
  void OpenFor(Tool tool, const Use& use);

 private:
  FrmHandMain main_;
  PaintWatch watch_;
  std::unique_ptr<ToolForm> withoutButton_;
};

}  // namespace halvane
