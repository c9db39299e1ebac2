#pragma once

#include <QLineEdit>
#include <set>

namespace halvane {

/// A text box that tells of released keys instead of changes, and selects all of its text when the
/// user or the program comes to it, so that typing replaces what stands there. It takes a text of
/// any length.
///
/// A release counts in the box that had the press. A key that is still down when the focus leaves
/// the box is released there at that moment, so that fast typing loses nothing; the release that
/// comes later, in whatever has the focus then, does nothing. Two releases have no press to go by:
/// that of the Tab key that brought the focus counts in the box that it reached, and a text that an
/// input method puts in counts at once.
///
/// It can be the place of a result instead.
class TextBox : public QLineEdit {
  Q_OBJECT
 public:
  explicit TextBox(const QString& name, QWidget* parent = nullptr);

  /// Makes it the place of a computed number: it looks like the text that it is, nobody types in it
  /// and the Tab key passes it. A click still selects its text, to be copied.
  void ShowResult();

  /// Tells of the keys that are down in the box with the focus as if they came up now; when they
  /// do they are told of once more. For a command that is given without taking the focus, before it
  /// changes what the boxes show.
  static void CountKeysDown();

  /// The place of a character in the box.
  [[nodiscard]] QRect PlaceOfCharacter(int position) const;

 signals:
  void keyReleased();

 protected:
  bool event(QEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  /// Takes a released key off the keys that are down; tells whether it counts here.
  bool TakeRelease(const QKeyEvent& event);

  void TellOfRelease();

  // Pressed in this box and not yet released, by their places on the keyboard.
  std::set<int> keysDown_;
  std::set<int> modifiersDown_;
  bool typedSinceRelease_ = false;  ///< the text has changed and no release has told of it yet
  bool tabBroughtFocus_ = false;
  bool focusCameByMouse_ = false;
};

}  // namespace halvane
