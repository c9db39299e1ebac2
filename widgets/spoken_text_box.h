#pragma once

#include <QAccessibleWidget>

namespace halvane {

class TextBox;

/// A text box for screen readers. One that is read and not typed into is not editable, and a text
/// that comes from elsewhere than the keyboard is told of as a typed one.
class SpokenTextBox : public QAccessibleWidget,
                      public QAccessibleTextInterface,
                      public QAccessibleEditableTextInterface {
 public:
  explicit SpokenTextBox(TextBox& box);

  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text kind, const QString& text) override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;

  void selection(int index, int* start, int* end) const override;
  [[nodiscard]] int selectionCount() const override;
  void addSelection(int start, int end) override;
  void removeSelection(int index) override;
  void setSelection(int index, int start, int end) override;
  [[nodiscard]] int cursorPosition() const override;
  void setCursorPosition(int position) override;
  [[nodiscard]] QString text(int start, int end) const override;
  [[nodiscard]] QString textAtOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                     int* end) const override;
  [[nodiscard]] int characterCount() const override;
  [[nodiscard]] QRect characterRect(int offset) const override;
  [[nodiscard]] int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override;
  [[nodiscard]] QString attributes(int offset, int* start, int* end) const override;

  void deleteText(int start, int end) override;
  void insertText(int offset, const QString& words) override;
  void replaceText(int start, int end, const QString& words) override;

 private:
  [[nodiscard]] TextBox& box() const;
};

}  // namespace halvane
