#pragma once

#include <QAccessibleWidget>

namespace halvane {

/// A frame, page, window or other widget that holds controls, for screen readers. It has its own
/// name or none, where the toolkit gives what stands in a frame the name of that frame, frames
/// inside it too. What is kept unspoken is not found in it.
class SpokenPanel : public QAccessibleWidget {
 public:
  explicit SpokenPanel(QWidget& panel);

  [[nodiscard]] QAccessible::Role role() const override;
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  [[nodiscard]] QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
      QAccessible::Relation match) const override;
  [[nodiscard]] int childCount() const override;
  [[nodiscard]] QAccessibleInterface* child(int index) const override;
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;

 private:
  [[nodiscard]] QString Name() const;
  [[nodiscard]] QList<QAccessibleInterface*> Children() const;
};

}  // namespace halvane
