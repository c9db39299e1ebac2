#pragma once

#include <QPointer>

#include "help/help_viewer.h"
#include "help/help_window.h"
#include "widgets/window_place.h"

namespace halvane {

/// Shows help in the program's own window, which is made when it is first asked for and goes with
/// the program.
class HelpWindowViewer : public HelpViewer {
 public:
  HelpWindowViewer() = default;
  ~HelpWindowViewer() override;

  void Show(QWidget* owner, const QString& file, HelpCommand command,
            const QString& topic) override;

  /// The window, null while there is none.
  [[nodiscard]] HelpWindow* window() const { return window_; }

 private:
  HelpWindow& Window();

  LastPlace lastPlace_;
  QPointer<HelpWindow> window_;
};

}  // namespace halvane
