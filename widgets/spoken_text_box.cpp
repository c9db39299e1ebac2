#include "widgets/spoken_text_box.h"

#include <QCoreApplication>
#include <QInputMethodEvent>

#include "widgets/spoken.h"
#include "widgets/text_box.h"

namespace halvane {

SpokenTextBox::SpokenTextBox(TextBox& box) : QAccessibleWidget(&box, QAccessible::EditableText) {}

TextBox& SpokenTextBox::box() const { return *static_cast<TextBox*>(widget()); }

QString SpokenTextBox::text(QAccessible::Text kind) const {
  if (kind == QAccessible::Value) return box().text();
  const QString text = QAccessibleWidget::text(kind);
  return kind == QAccessible::Name ? SpokenCaption(text) : text;
}

void SpokenTextBox::setText(QAccessible::Text kind, const QString& text) {
  if (kind == QAccessible::Value) {
    replaceText(0, characterCount(), text);
  } else {
    QAccessibleWidget::setText(kind, text);
  }
}

QAccessible::State SpokenTextBox::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = box().isReadOnly();
  state.editable = !box().isReadOnly();
  state.selectableText = true;
  return state;
}

void* SpokenTextBox::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface && !box().isReadOnly()) {
    return static_cast<QAccessibleEditableTextInterface*>(this);
  }
  return QAccessibleWidget::interface_cast(type);
}

void SpokenTextBox::selection(int index, int* start, int* end) const {
  const bool is = index == 0 && box().hasSelectedText();
  *start = is ? box().selectionStart() : 0;
  *end = is ? box().selectionEnd() : 0;
}

int SpokenTextBox::selectionCount() const { return box().hasSelectedText() ? 1 : 0; }

void SpokenTextBox::addSelection(int start, int end) { setSelection(0, start, end); }

void SpokenTextBox::removeSelection(int index) {
  if (index == 0) box().deselect();
}

void SpokenTextBox::setSelection(int index, int start, int end) {
  if (index == 0) box().setSelection(start, end - start);
}

int SpokenTextBox::cursorPosition() const { return box().cursorPosition(); }

void SpokenTextBox::setCursorPosition(int position) { box().setCursorPosition(position); }

QString SpokenTextBox::text(int start, int end) const {
  return box().text().mid(start, end - start);
}

QString SpokenTextBox::textAtOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                    int* end) const {
  if (kind != QAccessible::LineBoundary) {
    return QAccessibleTextInterface::textAtOffset(offset, kind, start, end);
  }
  *start = 0;
  *end = characterCount();
  return box().text();
}

int SpokenTextBox::characterCount() const { return static_cast<int>(box().text().size()); }

QRect SpokenTextBox::characterRect(int offset) const {
  const QRect place = box().PlaceOfCharacter(offset);
  return {box().mapToGlobal(place.topLeft()), place.size()};
}

int SpokenTextBox::offsetAtPoint(const QPoint& point) const {
  return box().cursorPositionAt(box().mapFromGlobal(point));
}

void SpokenTextBox::scrollToSubstring(int /*start*/, int end) { setCursorPosition(end); }

QString SpokenTextBox::attributes(int /*offset*/, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

void SpokenTextBox::deleteText(int start, int end) { replaceText(start, end, {}); }

void SpokenTextBox::insertText(int offset, const QString& words) {
  replaceText(offset, offset, words);
}

void SpokenTextBox::replaceText(int start, int end, const QString& words) {
  if (!box().isEnabled() || box().isReadOnly()) return;
  box().deselect();
  // What has no key, as what an input method puts in.
  QInputMethodEvent typed;
  typed.setCommitString(words, start - box().cursorPosition(), end - start);
  QCoreApplication::sendEvent(&box(), &typed);
}

}  // namespace halvane
