#include "widgets/input_lock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace halvane {
namespace {

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::Drop: return true;
    default: return false;
  }
}

}  // namespace

InputLock::InputLock(QWidget& window) : window_(window) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool InputLock::eventFilter(QObject* watched, QEvent* event) {
  if (!IsInput(event->type())) return QObject::eventFilter(watched, event);
  // Keys and mouse reach the window of the system first, and from there the widgets.
  const auto* widget = qobject_cast<QWidget*>(watched);
  return watched == window_.windowHandle() || (widget != nullptr && widget->window() == &window_);
}

}  // namespace halvane
