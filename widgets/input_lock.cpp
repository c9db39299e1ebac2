#include "widgets/input_lock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

#include "widgets/user_input.h"

namespace halvane {

InputLock::InputLock(QWidget& window) : window_(window) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool InputLock::eventFilter(QObject* watched, QEvent* event) {
  // Of a key the window is asked first whether it may be a shortcut.
  const bool isKeyToBe = event->type() == QEvent::ShortcutOverride;
  if (!isKeyToBe && !IsUserInput(*event)) return QObject::eventFilter(watched, event);
  // Keys and mouse reach the window of the system, and from there the widgets.
  const auto* widget = qobject_cast<QWidget*>(watched);
  const bool isOfWindow =
      watched == window_.windowHandle() || (widget != nullptr && widget->window() == &window_);
  // Accepted, it is none.
  if (isKeyToBe && isOfWindow) event->accept();
  return isOfWindow;
}

}  // namespace halvane
