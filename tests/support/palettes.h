#pragma once

#include <QPalette>
#include <QString>
#include <array>

#include "tests/support/dark_palette.h"

namespace halvane {

/// A palette of a desktop under the name by which programs of the tests are told of it.
struct NamedPalette {
  const char* name;
  QPalette (*make)();
};

/// The colours of a desktop for people who see little: no more than these eight, and nothing
/// between them.
struct ContrastColors {
  QColor ground, text, disabled, highlight, highlightedText, link, visited, tip;
};

/// What a desktop makes of them: edges that other palettes shade are as the ground.
inline QPalette ContrastPalette(const ContrastColors& colors) {
  QPalette palette(colors.text, colors.ground, colors.ground, colors.ground, colors.ground,
                   colors.text, colors.text, colors.ground, colors.ground);
  palette.setColor(QPalette::AlternateBase, colors.ground);
  palette.setColor(QPalette::Midlight, colors.ground);
  palette.setColor(QPalette::Shadow, colors.ground);
  palette.setColor(QPalette::Highlight, colors.highlight);
  palette.setColor(QPalette::HighlightedText, colors.highlightedText);
  palette.setColor(QPalette::Link, colors.link);
  palette.setColor(QPalette::LinkVisited, colors.visited);
  palette.setColor(QPalette::PlaceholderText, colors.text);
  palette.setColor(QPalette::ToolTipBase, colors.tip);
  palette.setColor(QPalette::ToolTipText, colors.text);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
    palette.setColor(QPalette::Disabled, role, colors.disabled);
  }
  return palette;
}

inline QPalette LightPalette() { return QPalette(QColor(239, 239, 239)); }

inline QPalette ContrastWhitePalette() {
  return ContrastPalette({.ground = Qt::white,
                          .text = Qt::black,
                          .disabled = QColor(96, 0, 0),
                          .highlight = QColor(55, 0, 110),
                          .highlightedText = Qt::white,
                          .link = QColor(0, 0, 159),
                          .visited = QColor(90, 0, 90),
                          .tip = Qt::white});
}

inline QPalette ContrastBlackPalette() {
  return ContrastPalette({.ground = Qt::black,
                          .text = Qt::white,
                          .disabled = QColor(63, 242, 63),
                          .highlight = QColor(26, 235, 255),
                          .highlightedText = Qt::black,
                          .link = Qt::yellow,
                          .visited = QColor(255, 190, 90),
                          .tip = Qt::black});
}

inline constexpr std::array kPalettes{
    NamedPalette{"light", LightPalette},
    NamedPalette{"dark", DarkPalette},
    NamedPalette{"white", ContrastWhitePalette},
    NamedPalette{"black", ContrastBlackPalette},
};

/// Takes the palette that HALVANE_PALETTE names, and the dark one where HALVANE_DARK is set.
inline void TakePaletteIfAsked() {
  TakeDarkPaletteIfAsked();
  for (const NamedPalette& palette : kPalettes) {
    if (qEnvironmentVariable("HALVANE_PALETTE") == palette.name) UsePalette(palette.make());
  }
}

}  // namespace halvane
