#include "widgets/spoken_menu_item.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>

#include "widgets/spoken.h"

namespace halvane {

SpokenMenuItem::SpokenMenuItem(QAction& item) : QAccessibleObject(&item) {}

QAction& SpokenMenuItem::item() const { return *static_cast<QAction*>(object()); }

QMenu* SpokenMenuItem::menu() const {
  for (QObject* owner : item().associatedObjects()) {
    if (auto* menu = qobject_cast<QMenu*>(owner)) return menu;
  }
  return nullptr;
}

QAccessibleInterface* SpokenMenuItem::parent() const {
  return QAccessible::queryAccessibleInterface(menu());
}

QAccessibleInterface* SpokenMenuItem::child(int index) const {
  return index == 0 ? QAccessible::queryAccessibleInterface(item().menu()) : nullptr;
}

int SpokenMenuItem::childCount() const { return item().menu() != nullptr ? 1 : 0; }

int SpokenMenuItem::indexOfChild(const QAccessibleInterface* child) const {
  return child->object() == item().menu() ? 0 : -1;
}

QWindow* SpokenMenuItem::window() const {
  const QAccessibleInterface* above = parent();
  return above != nullptr ? above->window() : nullptr;
}

QString SpokenMenuItem::text(QAccessible::Text kind) const {
  if (kind == QAccessible::Name) return WithoutLetters(item().text());
  if (kind != QAccessible::Accelerator) return {};
  const QKeySequence keys =
      item().shortcut().isEmpty() ? QKeySequence::mnemonic(item().text()) : item().shortcut();
  return keys.toString(QKeySequence::NativeText);
}

QAccessible::Role SpokenMenuItem::role() const {
  return item().isSeparator() ? QAccessible::Separator : QAccessible::MenuItem;
}

QAccessible::State SpokenMenuItem::state() const {
  QAccessible::State state;
  const QMenu* owner = menu();
  state.focusable = true;
  state.focused = owner != nullptr && owner->activeAction() == &item();
  state.disabled = !item().isEnabled();
  state.invisible = owner == nullptr || !owner->isVisible() || !item().isVisible();
  state.checkable = item().isCheckable();
  state.checked = item().isChecked();
  state.hasPopup = item().menu() != nullptr;
  return state;
}

QRect SpokenMenuItem::rect() const {
  const QMenu* owner = menu();
  if (owner == nullptr) return {};
  const QRect place = owner->actionGeometry(&item());
  return {owner->mapToGlobal(place.topLeft()), place.size()};
}

void* SpokenMenuItem::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
  return nullptr;
}

QStringList SpokenMenuItem::actionNames() const {
  const bool works = item().isEnabled() && !item().isSeparator();
  return works ? QStringList{pressAction()} : QStringList{};
}

void SpokenMenuItem::doAction(const QString& name) {
  if (actionNames().contains(name)) {
    QMetaObject::invokeMethod(&item(), &QAction::trigger, Qt::QueuedConnection);
  }
}

QStringList SpokenMenuItem::keyBindingsForAction(const QString& name) const {
  const QString keys = text(QAccessible::Accelerator);
  if (keys.isEmpty() || !actionNames().contains(name)) return {};
  return {keys};
}

}  // namespace halvane
