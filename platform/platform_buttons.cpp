#include "platform/platform_buttons.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMenuBar>
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

bool HasMenuAtHand(const QWidget& window, const QKeySequence& keys) {
  for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
    for (const QAction* menu : bar->actions()) {
      if (menu->isEnabled() && QKeySequence::mnemonic(menu->text()) == keys) return true;
    }
  }
  return false;
}

/// The button of a window that keys stand for, where nothing else that is at hand has them.
QAbstractButton* OnlyButtonOf(const QWidget& window, const QKeySequence& keys) {
  if (HasMenuAtHand(window, keys)) return nullptr;
  QAbstractButton* only = nullptr;
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    if (!button->isVisible() || !button->isEnabled() || button->shortcut() != keys) continue;
    if (only != nullptr) return nullptr;
    only = button;
  }
  return only;
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
    const auto& shortcut = static_cast<const QShortcutEvent&>(event);
    if (!shortcut.isAmbiguous()) return qobject_cast<QAbstractButton*>(&watched);
    // Where two have the same letter, it goes from one to the other and presses none; a menu that
    // is not at hand has its turn too.
    const auto* widget = qobject_cast<const QWidget*>(&watched);
    return widget == nullptr ? nullptr : OnlyButtonOf(*widget->window(), shortcut.key());
  }
  if (event.type() == QEvent::KeyPress) {
    const auto* box = qobject_cast<const QMessageBox*>(&watched);
    if (box != nullptr) return ButtonOf(*box, static_cast<const QKeyEvent&>(event));
  }
  return nullptr;
}

}  // namespace halvane
