#include "widgets/spoken_list.h"

#include <QAbstractItemView>
#include <QComboBox>

#include "widgets/spoken.h"

namespace halvane {

SpokenList::SpokenList(QComboBox& list) : QAccessibleWidget(&list, QAccessible::ComboBox) {
  QObject::connect(&list, &QComboBox::currentTextChanged, &list, [&list](const QString& answer) {
    QAccessibleTextInsertEvent another(&list, 0, answer);
    QAccessible::updateAccessibility(&another);
  });
}

QComboBox& SpokenList::list() const { return *static_cast<QComboBox*>(widget()); }

QString SpokenList::text(QAccessible::Text kind) const {
  if (kind == QAccessible::Value) return list().currentText();
  const QString text = QAccessibleWidget::text(kind);
  return kind == QAccessible::Name ? SpokenCaption(text) : text.trimmed();
}

QAccessible::State SpokenList::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.expandable = true;
  state.hasPopup = true;
  state.expanded = list().view()->isVisible();
  state.collapsed = !state.expanded;
  return state;
}

void* SpokenList::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QStringList SpokenList::actionNames() const {
  QStringList names;
  if (list().isEnabled()) names.append(showMenuAction());
  return names + QAccessibleWidget::actionNames();
}

void SpokenList::doAction(const QString& name) {
  if (name == showMenuAction()) {
    QMetaObject::invokeMethod(&list(), &QComboBox::showPopup, Qt::QueuedConnection);
  } else {
    QAccessibleWidget::doAction(name);
  }
}

void SpokenList::selection(int /*index*/, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
}

QString SpokenList::text(int start, int end) const {
  return list().currentText().mid(start, end - start);
}

int SpokenList::characterCount() const { return static_cast<int>(list().currentText().size()); }

QRect SpokenList::characterRect(int /*offset*/) const { return rect(); }

QString SpokenList::attributes(int /*offset*/, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

}  // namespace halvane
