#include "widgets/spoken_report.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "widgets/report_note.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

/// What is read for the one character of a picture. Two of them may stand side by side.
QString SenseOf(const ReportNote& picture) { return picture.words() + ' '; }

/// What a picture has more characters of than its one.
int Surplus(const ReportNote& picture) { return static_cast<int>(SenseOf(picture).size()) - 1; }

}  // namespace

SpokenReport::SpokenReport(RichTextBox& pane)
    : QAccessibleWidget(&pane, QAccessible::EditableText) {}

RichTextBox& SpokenReport::pane() const { return *static_cast<RichTextBox*>(widget()); }

QString SpokenReport::Words() const {
  QString words = pane().toPlainText();
  for (const ReportNote* picture : pane().pictures()) {
    words.replace(OffsetOf(picture->position()), 1, SenseOf(*picture));
  }
  return words;
}

int SpokenReport::OffsetOf(int position) const {
  int offset = position;
  for (const ReportNote* picture : pane().pictures()) {
    if (picture->position() < position) offset += Surplus(*picture);
  }
  return offset;
}

int SpokenReport::PositionOf(int offset) const {
  int position = offset;
  for (const ReportNote* picture : pane().pictures()) {
    if (position <= picture->position()) break;
    // All of its sense is one character.
    position = std::max(picture->position(), position - Surplus(*picture));
  }
  return std::clamp(position, 0, pane().document()->characterCount() - 1);
}

QString SpokenReport::text(QAccessible::Text kind) const {
  return kind == QAccessible::Value ? Words() : QAccessibleWidget::text(kind);
}

QAccessible::State SpokenReport::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.multiLine = true;
  state.selectableText = true;
  state.readOnly = pane().isReadOnly();
  state.editable = !pane().isReadOnly();
  return state;
}

int SpokenReport::childCount() const { return static_cast<int>(pane().notes().size()); }

QAccessibleInterface* SpokenReport::child(int index) const {
  return QAccessible::queryAccessibleInterface(pane().notes().value(index));
}

int SpokenReport::indexOfChild(const QAccessibleInterface* child) const {
  const QList<ReportNote*> notes = pane().notes();
  return static_cast<int>(notes.indexOf(qobject_cast<ReportNote*>(child->object())));
}

void* SpokenReport::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface && !pane().isReadOnly()) {
    return static_cast<QAccessibleEditableTextInterface*>(this);
  }
  return QAccessibleWidget::interface_cast(type);
}

void SpokenReport::selection(int index, int* start, int* end) const {
  const QTextCursor cursor = pane().textCursor();
  const bool is = index == 0 && cursor.hasSelection();
  *start = is ? OffsetOf(cursor.selectionStart()) : 0;
  *end = is ? OffsetOf(cursor.selectionEnd()) : 0;
}

int SpokenReport::selectionCount() const { return pane().textCursor().hasSelection() ? 1 : 0; }

void SpokenReport::addSelection(int start, int end) { setSelection(0, start, end); }

void SpokenReport::removeSelection(int index) {
  if (index == 0) setCursorPosition(cursorPosition());
}

void SpokenReport::setSelection(int index, int start, int end) {
  if (index != 0) return;
  const int first = PositionOf(start);
  pane().Select(first, PositionOf(end) - first);
}

int SpokenReport::cursorPosition() const { return OffsetOf(pane().textCursor().position()); }

void SpokenReport::setCursorPosition(int offset) { pane().Select(PositionOf(offset), 0); }

int SpokenReport::characterCount() const { return static_cast<int>(Words().size()); }

QString SpokenReport::text(int start, int end) const { return Words().mid(start, end - start); }

QString SpokenReport::LineAt(int offset, int* start, int* end) const {
  const int position = PositionOf(offset);
  const QTextBlock paragraph = pane().document()->findBlock(position);
  // Asked first, since that lays out the paragraph.
  (void)pane().PlaceOf(position);
  const QTextLine line = paragraph.layout()->lineForTextPosition(position - paragraph.position());
  const int first = paragraph.position() + (line.isValid() ? line.textStart() : 0);
  const int behind = line.isValid() ? first + line.textLength() : first;
  // The end of a paragraph belongs to its last line.
  const bool endsIt = behind == paragraph.position() + paragraph.length() - 1;
  *start = OffsetOf(first);
  *end = OffsetOf(behind) + (endsIt && paragraph.next().isValid() ? 1 : 0);
  return text(*start, *end);
}

QString SpokenReport::textBeforeOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                       int* end) const {
  if (kind != QAccessible::LineBoundary) {
    return QAccessibleTextInterface::textBeforeOffset(offset, kind, start, end);
  }
  (void)LineAt(offset, start, end);
  if (*start == 0) {
    *end = 0;
    return {};
  }
  return LineAt(*start - 1, start, end);
}

QString SpokenReport::textAtOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                   int* end) const {
  if (kind == QAccessible::LineBoundary) return LineAt(offset, start, end);
  return QAccessibleTextInterface::textAtOffset(offset, kind, start, end);
}

QString SpokenReport::textAfterOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                                      int* end) const {
  if (kind != QAccessible::LineBoundary) {
    return QAccessibleTextInterface::textAfterOffset(offset, kind, start, end);
  }
  (void)LineAt(offset, start, end);
  if (*end >= characterCount()) {
    *start = *end;
    return {};
  }
  return LineAt(*end, start, end);
}

QRect SpokenReport::characterRect(int offset) const {
  const QRect place = pane().PlaceOf(PositionOf(offset));
  return {pane().viewport()->mapToGlobal(place.topLeft()), place.size()};
}

int SpokenReport::offsetAtPoint(const QPoint& point) const {
  return OffsetOf(pane().cursorForPosition(pane().viewport()->mapFromGlobal(point)).position());
}

void SpokenReport::scrollToSubstring(int start, int /*end*/) {
  const QRect line = pane().PlaceOf(PositionOf(start));
  QScrollBar& bar = *pane().verticalScrollBar();
  const int below = line.bottom() - pane().viewport()->height();
  if (line.top() < 0) {
    bar.setValue(bar.value() + line.top());
  } else if (below > 0) {
    bar.setValue(bar.value() + below);
  }
}

QString SpokenReport::attributes(int offset, int* start, int* end) const {
  const int position = PositionOf(offset);
  const QTextBlock paragraph = pane().document()->findBlock(position);
  *start = offset;
  *end = offset + 1;
  QTextCharFormat format = paragraph.charFormat();
  for (auto piece = paragraph.begin(); !piece.atEnd(); ++piece) {
    const QTextFragment run = piece.fragment();
    if (!run.contains(position)) continue;
    *start = OffsetOf(run.position());
    *end = OffsetOf(run.position() + run.length());
    format = run.charFormat();
  }
  return QString("size:%1pt;weight:%2;text-underline-type:%3;")
      .arg(format.fontPointSize())
      .arg(format.fontWeight())
      .arg(format.fontUnderline() ? "single" : "none");
}

void SpokenReport::deleteText(int start, int end) { replaceText(start, end, {}); }

void SpokenReport::insertText(int offset, const QString& words) {
  replaceText(offset, offset, words);
}

void SpokenReport::replaceText(int start, int end, const QString& words) {
  setSelection(0, start, end);
  pane().insertPlainText(words);
}

}  // namespace halvane
