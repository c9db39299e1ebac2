#pragma once

class QString;
class QWidget;

namespace halvane {

/// What the viewer is asked for, with the numbers of its commands.
enum class HelpCommand { DisplayTopic = 0, DisplayContents = 1 };

/// What shows a help file: one window beside the program, which shows what the last command asked
/// for. The one in use is `TheHelpViewer()`; tests put their double there.
class HelpViewer {
 public:
  HelpViewer() = default;
  HelpViewer(const HelpViewer&) = delete;
  HelpViewer& operator=(const HelpViewer&) = delete;
  virtual ~HelpViewer() = default;

  /// Shows a topic of `file`, or its contents; `topic` is then empty. `file` may be followed by ">"
  /// and the name of a help window. The viewer stays above `owner` unless that is null.
  virtual void Show(QWidget* owner, const QString& file, HelpCommand command,
                    const QString& topic) = 0;
};

/// The viewer in use; the program's own window unless a test put another there.
HelpViewer& TheHelpViewer();
/// Puts another viewer in its place; null brings the program's own back.
void SetHelpViewer(HelpViewer* viewer);

}  // namespace halvane
