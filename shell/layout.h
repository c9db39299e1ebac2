#pragma once

#include <QString>

class QGroupBox;
class QGridLayout;
class QWidget;

namespace halvane {

class TextBox;

/// One margin, one gap between rows and columns and one width of number boxes for the whole
/// program, in logical pixels.
inline constexpr int kMargin = 9;
inline constexpr int kGap = 8;
inline constexpr int kNumberDigits = 8;

/// A frame with its caption and an empty grid inside.
struct Frame {
  QGroupBox* box;
  QGridLayout* grid;
};
Frame MakeFrame(const QString& caption, QWidget* parent);

/// Adds a row to `grid`: a label, and behind it a box for a number, which becomes the label's
/// buddy.
TextBox* AddNumberRow(QGridLayout& grid, const QString& label, const QString& boxName);

/// The name of an element of a control array: "Text1(2)".
QString ElementName(const QString& array, int index);

}  // namespace halvane
