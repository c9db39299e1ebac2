#pragma once

#include <QApplication>
#include <QPalette>
#include <QStyle>

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

/// Takes a palette as the desktop's own: what a style makes of that, too.
inline void UsePalette(QPalette palette) {
  QApplication::style()->polish(palette);
  QApplication::setPalette(palette);
}

/// Takes them where HALVANE_DARK is set.
inline void TakeDarkPaletteIfAsked() {
  if (qEnvironmentVariableIsSet("HALVANE_DARK")) UsePalette(DarkPalette());
}

}  // namespace halvane
