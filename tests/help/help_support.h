#pragma once

#include <QPalette>
#include <QString>

#include "help/help_browser.h"
#include "help/help_tree.h"
#include "help/help_window_viewer.h"
#include "tests/support/dark_palette.h"
#include "tests/support/form_support.h"

namespace halvane {

/// How far two colours are apart in brightness, from 1 to 21; text needs 4.5.
double ContrastOf(const QColor& one, const QColor& other);

/// A test of the help window: the program's own viewer, and a small help file as the program's.
class HelpWindowTest : public ShellTest {
 protected:
  HelpWindowTest();
  ~HelpWindowTest() override;

  /// Shows a topic of the little help file, and waits for the window to be the active one.
  HelpWindow& Show(const QString& topic);
  HelpWindow& ShowContents();
  [[nodiscard]] HelpWindow& window() const { return *viewer.window(); }
  [[nodiscard]] HelpBrowser& page() const { return Find<HelpBrowser>(window(), "HelpPage"); }
  [[nodiscard]] HelpTree& tree() const { return Find<HelpTree>(window(), "HelpContents"); }
  /// The topic on view, without the slash in front.
  [[nodiscard]] QString Topic() const;
  [[nodiscard]] QString StatusText() const;
  /// The line of the contents that is current, empty for none.
  [[nodiscard]] QString CurrentLine() const;
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

  HelpWindowViewer viewer;
  QString little;
};

}  // namespace halvane
