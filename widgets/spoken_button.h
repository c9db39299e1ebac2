#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

namespace halvane {

/// A button for screen readers. One of a group of which one is down is an option, one of another
/// group a box. A ribbon's name begins with that of its frame, since captions repeat from frame to
/// frame.
class SpokenButton : public QAccessibleWidget {
 public:
  explicit SpokenButton(QAbstractButton& button);

  [[nodiscard]] QAccessible::Role role() const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] QStringList actionNames() const override;
  /// What the space bar does to the button, once the caller has its answer.
  void doAction(const QString& name) override;
  [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override;

 private:
  [[nodiscard]] QAbstractButton& button() const;
  [[nodiscard]] QString Name() const;
  [[nodiscard]] QString Description() const;
  [[nodiscard]] QString ActionName() const;
};

}  // namespace halvane
