#pragma once

#include <QAccessibleWidget>

class QComboBox;

namespace halvane {

/// A drop-down list for screen readers. Its name is its label, its text the answer that it shows,
/// where the toolkit gives the answer for both. Another answer is told of as a text that is put in,
/// since of what changes in a list screen readers speak nothing else.
class SpokenList : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit SpokenList(QComboBox& list);

  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;
  [[nodiscard]] QStringList actionNames() const override;
  /// Drops the list, once the caller has its answer.
  void doAction(const QString& name) override;

  void selection(int index, int* start, int* end) const override;
  /// The answer is what is selected.
  [[nodiscard]] int selectionCount() const override { return 1; }
  void addSelection(int /*start*/, int /*end*/) override {}
  void removeSelection(int /*index*/) override {}
  void setSelection(int /*index*/, int /*start*/, int /*end*/) override {}
  [[nodiscard]] int cursorPosition() const override { return 0; }
  void setCursorPosition(int /*position*/) override {}
  [[nodiscard]] QString text(int start, int end) const override;
  [[nodiscard]] int characterCount() const override;
  [[nodiscard]] QRect characterRect(int offset) const override;
  [[nodiscard]] int offsetAtPoint(const QPoint& /*point*/) const override { return 0; }
  void scrollToSubstring(int /*start*/, int /*end*/) override {}
  [[nodiscard]] QString attributes(int offset, int* start, int* end) const override;

 private:
  [[nodiscard]] QComboBox& list() const;
};

}  // namespace halvane
