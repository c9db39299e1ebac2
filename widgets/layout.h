#pragma once

#include <QString>
#include <string_view>

class QGroupBox;
class QCheckBox;
class QGridLayout;
class QSlider;
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
/// The same at a row and column of the grid; the box stands in the next column.
TextBox* AddNumberAt(QGridLayout& grid, int row, int column, const QString& label,
                     const QString& boxName);

/// Keeps the columns of a grid at its left, so that wide frames have no label far from its box.
void KeepLeft(QGridLayout& grid);

/// A box for a number that has no label; `name` is its accessible name.
TextBox* MakeNumberBox(const QString& boxName, const QString& name, QWidget* parent);
/// Adds such a box with its unit behind it; `unitName` is the name of the unit's label.
TextBox* AddNumberWithUnit(QGridLayout& grid, const QString& boxName, const QString& name,
                           const QString& unit, const QString& unitName = {});

/// Adds a tick box whose long caption wraps beside it.
QCheckBox* AddWrappedCheck(QGridLayout& grid, const QString& boxName, const QString& caption);

/// Makes `slider` a level one from 0 to `highest`, a tick at each tenth of it; an arrow key moves
/// it by 1, a page key or a click beside its handle by `pageStep`.
void SetUpSlider(QSlider& slider, const QString& name, int highest, int pageStep);

/// How long the handle of a level slider is.
int HandleLength(const QSlider& slider);

/// Keeps the mouse wheel from changing an input that does not have the focus, and from giving it
/// the focus: the wheel then scrolls what is behind it. For lists and sliders.
void KeepWheelOff(QWidget& input);

/// The program's own texts for the screen.
QString ScreenText(std::string_view text);

/// The name of an element of a control array: "Text1(2)".
QString ElementName(const QString& array, int index);

}  // namespace halvane
