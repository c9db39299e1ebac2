#pragma once

#include <QStringList>

class QSlider;
class QWidget;

namespace halvane {

/// Has screen readers find the program's controls as they are meant: groups of buttons as options
/// or boxes, frames under their own names, sliders with what their scales say, reports with the
/// sense of their pictures. To be called once, before there is a window.
void UseSpokenControls();

/// Keeps a control from screen readers that says only what another one says already, or nothing: a
/// caption beside its box, an ornament.
void KeepUnspoken(QWidget& control);
[[nodiscard]] bool IsUnspoken(const QWidget& control);

/// Has a slider speak of its scale: each of its positions stands for so much more than the one
/// before, and `words` has one, possibly empty, text a position.
void SetSpokenScale(QSlider& slider, double step, const QStringList& words);

/// A caption without the marks of its letters: "&Add Task" is "Add Task".
QString WithoutLetters(const QString& caption);
/// A caption as it is spoken: without blanks around it and without a colon at its end.
QString SpokenCaption(const QString& caption);

}  // namespace halvane
