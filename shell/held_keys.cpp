#include "shell/held_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "widgets/key_place.h"

namespace halvane {

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
    // Accepted, it is no shortcut; what has the focus gets the key as any other.
    event->accept();
    return true;
  }
  // Keys reach the window first, and from there the popup or the widget with the focus.
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
  if (isKey && watched->isWindowType() &&
      IsHeldFromElsewhere(*watched, static_cast<const QKeyEvent&>(*event))) {
    return true;
  }
  return QObject::eventFilter(watched, event);
}

bool HeldKeys::IsHeldFromElsewhere(QObject& window, const QKeyEvent& key) {
  QObject* popup = QApplication::activePopupWidget();
  QObject* receiver = popup != nullptr ? popup : &window;
  const int place = PlaceOf(key);
  if (key.isAutoRepeat()) {
    const auto pressed = pressedIn_.constFind(place);
    return pressed != pressedIn_.constEnd() && *pressed != receiver;
  }
  if (key.type() == QEvent::KeyPress) {
    pressedIn_[place] = receiver;
  } else {
    pressedIn_.remove(place);
  }
  return false;
}

}  // namespace halvane
