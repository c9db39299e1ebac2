#include "platform/platform_buttons.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMessageBox>
#include <QShortcutEvent>

namespace halvane {
namespace {

constexpr Qt::KeyboardModifiers kCommand = Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier;

/// The button of a message that a letter alone stands for.
QAbstractButton* ButtonOf(const QMessageBox& box, const QKeyEvent& key) {
  if ((key.modifiers() & kCommand) != Qt::NoModifier) return nullptr;
  for (QAbstractButton* button : box.buttons()) {
    const QKeySequence letter = button->shortcut();
    if (!letter.isEmpty() && letter[0].key() == key.key()) return button;
  }
  return nullptr;
}

}  // namespace

bool PromptButtons::eventFilter(QObject* watched, QEvent* event) {
  QAbstractButton* button = ButtonFor(*watched, *event);
  if (button == nullptr) return QObject::eventFilter(watched, event);
  event->accept();
  const bool takesFocus = (button->focusPolicy() & Qt::ClickFocus) != 0;
  if (button->isCheckable() && takesFocus) button->setFocus();
  button->click();
  return true;
}

QAbstractButton* PromptButtons::ButtonFor(QObject& watched, const QEvent& event) {
  if (event.type() == QEvent::Shortcut) {
    // Where two have the same letter, it goes from one to the other and presses none.
    const bool isAmbiguous = static_cast<const QShortcutEvent&>(event).isAmbiguous();
    return isAmbiguous ? nullptr : qobject_cast<QAbstractButton*>(&watched);
  }
  if (event.type() == QEvent::KeyPress) {
    const auto* box = qobject_cast<const QMessageBox*>(&watched);
    if (box != nullptr) return ButtonOf(*box, static_cast<const QKeyEvent&>(event));
  }
  return nullptr;
}

}  // namespace halvane
