#include "shell/controls/text_box.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace halvane {

TextBox::TextBox(const QString& name, QWidget* parent) : QLineEdit(parent) { setObjectName(name); }

void TextBox::keyReleaseEvent(QKeyEvent* event) {
  QLineEdit::keyReleaseEvent(event);
  // A key that is held down repeats itself; it is released once.
  if (!event->isAutoRepeat()) emit keyReleased();
}

void TextBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  selectAll();
  focusCameByMouse_ = event->reason() == Qt::MouseFocusReason;
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  // The press that brought the focus also set the caret; a selection drawn by that press stays.
  if (focusCameByMouse_ && !hasSelectedText()) selectAll();
  focusCameByMouse_ = false;
}

}  // namespace halvane
