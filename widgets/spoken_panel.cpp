#include "widgets/spoken_panel.h"

#include <QDialog>
#include <QGroupBox>

#include "widgets/spoken.h"

namespace halvane {

SpokenPanel::SpokenPanel(QWidget& panel) : QAccessibleWidget(&panel) {}

QString SpokenPanel::Name() const {
  const QWidget& panel = *widget();
  if (!panel.accessibleName().isEmpty()) return panel.accessibleName();
  if (const auto* frame = qobject_cast<const QGroupBox*>(&panel)) {
    return SpokenCaption(frame->title());
  }
  return panel.isWindow() ? panel.windowTitle() : QString();
}

QAccessible::Role SpokenPanel::role() const {
  if (widget()->isWindow()) {
    return qobject_cast<const QDialog*>(widget()) != nullptr ? QAccessible::Dialog
                                                             : QAccessible::Window;
  }
  return Name().isEmpty() ? QAccessible::Client : QAccessible::Grouping;
}

QString SpokenPanel::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? Name() : QAccessibleWidget::text(kind);
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>> SpokenPanel::relations(
    QAccessible::Relation /*match*/) const {
  return {};
}

QList<QAccessibleInterface*> SpokenPanel::Children() const {
  QList<QAccessibleInterface*> children;
  for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
    QAccessibleInterface* child = QAccessibleWidget::child(i);
    const auto* control = child == nullptr ? nullptr : qobject_cast<QWidget*>(child->object());
    if (control != nullptr && !IsUnspoken(*control)) children.append(child);
  }
  return children;
}

int SpokenPanel::childCount() const { return static_cast<int>(Children().size()); }

QAccessibleInterface* SpokenPanel::child(int index) const { return Children().value(index); }

int SpokenPanel::indexOfChild(const QAccessibleInterface* child) const {
  const QList<QAccessibleInterface*> children = Children();
  for (qsizetype i = 0; i < children.size(); ++i) {
    if (children[i]->object() == child->object()) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace halvane
