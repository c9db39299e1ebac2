#include "widgets/text_box.h"

#include <QApplication>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QStyle>
#include <limits>

#include "widgets/key_place.h"

namespace halvane {
namespace {

bool IsModifier(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R: return true;
    default: return false;
  }
}

bool IsTab(const QKeyEvent& event) {
  return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

bool ComesByTab(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

/// Whether the focus only goes to a popup or the menu bar, to come back when that closes.
bool GoesToMenu(Qt::FocusReason reason) {
  return reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

}  // namespace

TextBox::TextBox(const QString& name, QWidget* parent) : QLineEdit(parent) {
  setObjectName(name);
  setMaxLength(std::numeric_limits<int>::max());
  connect(this, &QLineEdit::textEdited, this, [this] { typedSinceRelease_ = true; });
}

void TextBox::ShowResult() {
  setReadOnly(true);
  setFocusPolicy(Qt::ClickFocus);
  // Under the texts that are typed above or below it.
  const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  setFrame(false);
  setTextMargins(frame, 0, frame, 0);
  // What is behind shows through.
  QPalette flat = palette();
  flat.setBrush(QPalette::Base, Qt::NoBrush);
  setPalette(flat);
}

bool TextBox::event(QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QLineEdit::event(event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const int place = PlaceOf(key);
  // A Tab that moves the focus on is still down in the box that it reaches.
  if (IsTab(key)) {
    const bool handled = QLineEdit::event(event);
    if (hasFocus()) keysDown_.insert(place);
    return handled;
  }
  if (!key.isAutoRepeat()) {
    (IsModifier(key) ? modifiersDown_ : keysDown_).insert(place);
  } else if (!keysDown_.contains(place)) {
    // Held down since before the focus came here, as the key that answered a message is: what it
    // repeats was never meant for this box.
    return true;
  }
  return QLineEdit::event(event);
}

void TextBox::keyReleaseEvent(QKeyEvent* event) {
  QLineEdit::keyReleaseEvent(event);
  // A key that is held down repeats itself; it is released once.
  if (!event->isAutoRepeat() && TakeRelease(*event)) TellOfRelease();
}

bool TextBox::TakeRelease(const QKeyEvent& event) {
  const int place = PlaceOf(event);
  const bool pressedHere = keysDown_.erase(place) + modifiersDown_.erase(place) > 0;
  const bool reachedByTab = IsTab(event) && tabBroughtFocus_;
  if (reachedByTab) tabBroughtFocus_ = false;
  return pressedHere || reachedByTab;
}

void TextBox::CountKeysDown() {
  auto* box = qobject_cast<TextBox*>(QApplication::focusWidget());
  if (box != nullptr && !box->keysDown_.empty()) box->TellOfRelease();
}

void TextBox::TellOfRelease() {
  typedSinceRelease_ = false;
  emit keyReleased();
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
  const bool commits = !event->commitString().isEmpty() || event->replacementLength() > 0;
  QLineEdit::inputMethodEvent(event);
  // The keys went to the input method, so no release tells of this text.
  if (commits && !isReadOnly()) TellOfRelease();
}

QRect TextBox::PlaceOfCharacter(int position) const {
  const auto wayTo = [this](int place) {
    return fontMetrics().horizontalAdvance(text().left(place));
  };
  const QRect caret = cursorRect();
  const int left = caret.center().x() + wayTo(position) - wayTo(cursorPosition());
  return {left, caret.top(), wayTo(position + 1) - wayTo(position), caret.height()};
}

void TextBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  // Coming back from a menu or another window is no arrival: caret and selection stay.
  const Qt::FocusReason reason = event->reason();
  if (GoesToMenu(reason) || reason == Qt::ActiveWindowFocusReason) return;
  selectAll();
  focusCameByMouse_ = reason == Qt::MouseFocusReason;
  tabBroughtFocus_ = ComesByTab(reason);
}

void TextBox::focusOutEvent(QFocusEvent* event) {
  const Qt::FocusReason reason = event->reason();
  const int start = selectionStart();
  const int length = selectionLength();
  const bool caretInFront = cursorPosition() == start;
  QLineEdit::focusOutEvent(event);
  // The toolkit drops the selection for the menu bar.
  if (reason == Qt::MenuBarFocusReason && start >= 0) {
    setSelection(caretInFront ? start + length : start, caretInFront ? -length : length);
  }
  // The keys that open a menu type nothing; a letter that is still down has.
  const bool counts = !keysDown_.empty() && (typedSinceRelease_ || !GoesToMenu(reason));
  keysDown_.clear();
  modifiersDown_.clear();
  tabBroughtFocus_ = false;
  if (counts) TellOfRelease();
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  // The press that brought the focus also set the caret; a selection drawn by that press stays.
  if (focusCameByMouse_ && !hasSelectedText()) selectAll();
  focusCameByMouse_ = false;
}

}  // namespace halvane
