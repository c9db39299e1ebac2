#pragma once

#include <QAction>
#include <QMenu>
#include <QString>

namespace halvane {

/// Adds an item under its own name. `handler` is called as a member of `form` when it is chosen.
template <typename Form, typename Handler>
QAction* AddMenuItem(QMenu& menu, const QString& name, const QString& caption, Form* form,
                     Handler handler) {
  QAction* item = menu.addAction(caption, form, handler);
  item->setObjectName(name);
  return item;
}

/// Adds an item that does nothing.
inline QAction* AddMenuItem(QMenu& menu, const QString& name, const QString& caption) {
  QAction* item = menu.addAction(caption);
  item->setObjectName(name);
  return item;
}

}  // namespace halvane
