#pragma once

#include <QAccessibleWidget>

namespace halvane {

class RichTextBox;

/// The report pane for screen readers: its text line by line and paragraph by paragraph, each
/// picture in the place of its one character read by its sense, and its notes as children.
///
/// An offset counts characters of what is read, a position those of the document.
class SpokenReport : public QAccessibleWidget,
                     public QAccessibleTextInterface,
                     public QAccessibleEditableTextInterface {
 public:
  explicit SpokenReport(RichTextBox& pane);

  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] int childCount() const override;
  [[nodiscard]] QAccessibleInterface* child(int index) const override;
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
  [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;

  void selection(int index, int* start, int* end) const override;
  [[nodiscard]] int selectionCount() const override;
  void addSelection(int start, int end) override;
  void removeSelection(int index) override;
  void setSelection(int index, int start, int end) override;
  [[nodiscard]] int cursorPosition() const override;
  void setCursorPosition(int offset) override;
  [[nodiscard]] QString text(int start, int end) const override;
  [[nodiscard]] QString textBeforeOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                         int* end) const override;
  [[nodiscard]] QString textAtOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                     int* end) const override;
  [[nodiscard]] QString textAfterOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
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
  [[nodiscard]] RichTextBox& pane() const;
  [[nodiscard]] QString Words() const;
  [[nodiscard]] int OffsetOf(int position) const;
  [[nodiscard]] int PositionOf(int offset) const;
  /// The line on screen that an offset is in, from `start` up to `end`.
  [[nodiscard]] QString LineAt(int offset, int* start, int* end) const;
};

}  // namespace halvane
