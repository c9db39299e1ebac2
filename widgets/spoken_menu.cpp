#include "widgets/spoken_menu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "widgets/spoken.h"

namespace halvane {

SpokenMenu::SpokenMenu(QMenu& menu) : QAccessibleWidget(&menu, QAccessible::PopupMenu) {}

QMenu& SpokenMenu::menu() const { return *static_cast<QMenu*>(widget()); }

QAccessibleInterface* SpokenMenu::parent() const {
  QAction* item = menu().menuAction();
  for (QObject* owner : item->associatedObjects()) {
    const bool isMenu = qobject_cast<QMenu*>(owner) != nullptr;
    if (!isMenu && qobject_cast<QMenuBar*>(owner) == nullptr) continue;
    const int place = static_cast<int>(static_cast<QWidget*>(owner)->actions().indexOf(item));
    return QAccessible::queryAccessibleInterface(owner)->child(place);
  }
  return QAccessibleWidget::parent();
}

QAccessibleInterface* SpokenMenu::child(int index) const {
  return QAccessible::queryAccessibleInterface(menu().actions().value(index));
}

int SpokenMenu::childCount() const { return static_cast<int>(menu().actions().size()); }

int SpokenMenu::indexOfChild(const QAccessibleInterface* child) const {
  return static_cast<int>(menu().actions().indexOf(qobject_cast<QAction*>(child->object())));
}

QString SpokenMenu::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? WithoutLetters(menu().title()) : QAccessibleWidget::text(kind);
}

}  // namespace halvane
