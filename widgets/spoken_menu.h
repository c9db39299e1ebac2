#pragma once

#include <QAccessibleWidget>

class QMenu;

namespace halvane {

/// A menu for screen readers, which finds its items where the toolkit looks for them: at their
/// place in the menu.
class SpokenMenu : public QAccessibleWidget {
 public:
  explicit SpokenMenu(QMenu& menu);

  [[nodiscard]] QAccessibleInterface* parent() const override;
  [[nodiscard]] QAccessibleInterface* child(int index) const override;
  [[nodiscard]] int childCount() const override;
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
  [[nodiscard]] QString text(QAccessible::Text kind) const override;

 private:
  [[nodiscard]] QMenu& menu() const;
};

}  // namespace halvane
