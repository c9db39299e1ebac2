#pragma once

#include <QEvent>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <vector>

namespace halvane {

/// A key with what it types.
struct Key {
  int code = 0;
  Qt::KeyboardModifiers modifiers;
  QString text;
  const char* name = "";
};

/// A key that is down, and where it went down.
struct HeldKey {
  Key key;
  QPointer<QWidget> pressedIn;  ///< what had the focus; null while a popup or no window had it
  int showing = 0;              ///< which showing of the form it was
  bool wasLeft = false;         ///< the focus left that place since, or a popup came
};

/// Keyboard and mouse of the monkey. Events go the way of a platform's: to the popup on top, else
/// to the window that is active, and from there to what has the focus at that moment.
class Hands {
 public:
  /// The program handles what was posted; no timer fires by the clock.
  static void Settle();
  /// Every timer that is running fires once, the short ones first: the controlled way in which
  /// time passes.
  void LetTimePass();

  /// Number of the showing of the form that goes on, for `HeldKey`.
  void SetShowing(int showing) { showing_ = showing; }

  [[nodiscard]] bool IsDown(const Key& key) const;
  /// Nothing happens for a key that is down already.
  void Press(const Key& key);
  /// Releases the key at a place of `held()`.
  void Release(std::size_t place);
  /// The key at a place of `held()` repeats itself, as one does that is held long.
  void Repeat(std::size_t place);
  [[nodiscard]] const std::vector<HeldKey>& held() const { return held_; }
  /// Notes on every key that is down that its place was left.
  void LeaveHeldKeys() {
    for (HeldKey& key : held_) key.wasLeft = true;
  }

  void MoveMouse(QWidget& widget, QPoint to);
  void PressMouse(QWidget& widget, QPoint at, Qt::MouseButton button);
  void ReleaseMouse(QWidget& widget, QPoint at, Qt::MouseButton button);
  void Click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
  void DoubleClick(QWidget& widget, QPoint at);
  void TurnWheel(QWidget& widget, int steps);
  /// Releases whatever button is down.
  void LetMouseGo();
  [[nodiscard]] Qt::MouseButtons buttons() const { return buttons_; }

  /// What a key goes to: the popup on top, the focus of the active window, or nothing.
  static QWidget* KeyTarget();

 private:
  void SendMouse(QWidget& widget, QPoint at, QEvent::Type type, Qt::MouseButton button);

  std::vector<HeldKey> held_;
  Qt::MouseButtons buttons_;
  QPointer<QWidget> mouseIn_;
  QPoint mouseAt_;
  int showing_ = 0;
  int time_ = 0;  ///< milliseconds, as the events tell them
};

}  // namespace halvane
