#pragma once

#include <QApplication>
#include <QPalette>

namespace halvane {

/// The dark colours that windows are drawn in for looking at them.
inline QPalette DarkPalette() {
  const QColor window(45, 45, 48);
  QPalette dark(window, window);
  dark.setColor(QPalette::Base, QColor(30, 30, 32));
  dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  dark.setColor(QPalette::Link, QColor(110, 180, 255));
  return dark;
}

/// Takes them where HALVANE_DARK is set.
inline void TakeDarkPaletteIfAsked() {
  if (qEnvironmentVariableIsSet("HALVANE_DARK")) QApplication::setPalette(DarkPalette());
}

}  // namespace halvane
