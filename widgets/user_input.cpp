#include "widgets/user_input.h"

#include <QEvent>
#include <QGuiApplication>

namespace halvane {

bool IsUserInput(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Drop:
    case QEvent::Shortcut:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd: return true;
    // A slider that is dragged.
    case QEvent::MouseMove: return QGuiApplication::mouseButtons() != Qt::NoButton;
    default: return false;
  }
}

}  // namespace halvane
