#pragma once

#include <QAccessible>
#include <QAccessibleObject>

class QAction;
class QMenu;

namespace halvane {

/// An item of a menu for screen readers: its caption without the marks of its letters, of which
/// there can be several.
class SpokenMenuItem : public QAccessibleObject, public QAccessibleActionInterface {
 public:
  explicit SpokenMenuItem(QAction& item);

  [[nodiscard]] QAccessibleInterface* parent() const override;
  [[nodiscard]] QAccessibleInterface* child(int index) const override;
  [[nodiscard]] int childCount() const override;
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
  [[nodiscard]] QWindow* window() const override;
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  [[nodiscard]] QAccessible::Role role() const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QRect rect() const override;
  [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;

  [[nodiscard]] QStringList actionNames() const override;
  /// Runs the item, once the caller has its answer.
  void doAction(const QString& name) override;
  [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override;

 private:
  [[nodiscard]] QAction& item() const;
  /// The menu that it stands in; null where there is none.
  [[nodiscard]] QMenu* menu() const;
};

}  // namespace halvane
