#include "tests/monkey/hands.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace halvane {
namespace {

/// Longer than the double-click time that the program is given in `main`.
constexpr int kUnhurried = 2100;
constexpr int kHurried = 50;
/// A timer longer than this is waited for by nobody.
constexpr int kLongestTimer = 60000;
constexpr int kMostRounds = 40;
constexpr int kWheelStep = 120;

/// Events of the program and of its windows, without the timers: what happens does not depend on
/// how fast the machine is.
constexpr QEventLoop::ProcessEventsFlags kWithoutTimers = QEventLoop::X11ExcludeTimers;

QWindow* WindowOf(const QWidget& widget) { return widget.window()->windowHandle(); }

}  // namespace

void Hands::Settle() {
  for (int round = 0; round < kMostRounds; ++round) {
    if (!QAbstractEventDispatcher::instance()->processEvents(kWithoutTimers)) break;
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Hands::LetTimePass() {
  time_ += kUnhurried;
  struct Timer {
    QPointer<QObject> object;
    int id;
    int interval;
  };
  std::vector<Timer> timers;
  auto* dispatcher = QAbstractEventDispatcher::instance();
  const auto add = [&](QObject* object) {
    for (const auto& timer : dispatcher->registeredTimers(object)) {
      if (timer.interval <= kLongestTimer)
        timers.push_back({object, timer.timerId, timer.interval});
    }
  };
  QList<QObject*> roots{dispatcher, qApp};
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->parent() == nullptr) roots.append(window);
  }
  for (QObject* root : roots) {
    add(root);
    for (QObject* child : root->findChildren<QObject*>()) add(child);
  }
  // The order of the windows is that of their addresses.
  std::stable_sort(timers.begin(), timers.end(), [](const Timer& a, const Timer& b) {
    return std::pair(a.interval, a.id) < std::pair(b.interval, b.id);
  });
  for (const Timer& timer : timers) {
    if (timer.object == nullptr) continue;
    const auto running = dispatcher->registeredTimers(timer.object);
    const bool runs = std::any_of(running.begin(), running.end(),
                                  [&](const auto& other) { return other.timerId == timer.id; });
    if (!runs) continue;
    QTimerEvent event(timer.id);
    QCoreApplication::sendEvent(timer.object, &event);
  }
  Settle();
}

QWidget* Hands::KeyTarget() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  return QApplication::focusWidget();
}

bool Hands::IsDown(const Key& key) const {
  return std::any_of(held_.begin(), held_.end(),
                     [&](const HeldKey& held) { return held.key.code == key.code; });
}

void Hands::Press(const Key& key) {
  // A key that is down goes down again only after it came up.
  if (IsDown(key)) return;
  QWindow* window = QGuiApplication::focusWindow();
  if (window == nullptr) return;
  QWidget* target =
      QApplication::activePopupWidget() == nullptr ? QApplication::focusWidget() : nullptr;
  held_.push_back({key, target, showing_});
  // The letter of a menu or a button never comes to what has the focus.
  const bool isShortcut = key.modifiers == Qt::AltModifier && key.code != Qt::Key_Alt;
  held_.back().wasLeft = isShortcut;
  qt_handleKeyEvent(window, QEvent::KeyPress, key.code, key.modifiers, key.text);
  Settle();
}

void Hands::Release(std::size_t place) {
  const Key key = held_[place].key;
  held_.erase(held_.begin() + static_cast<std::ptrdiff_t>(place));
  QWindow* window = QGuiApplication::focusWindow();
  if (window == nullptr) return;
  qt_handleKeyEvent(window, QEvent::KeyRelease, key.code, key.modifiers, key.text);
  Settle();
}

void Hands::Repeat(std::size_t place) {
  const Key key = held_[place].key;
  for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
    QWindow* window = QGuiApplication::focusWindow();
    if (window == nullptr) return;
    qt_handleKeyEvent(window, type, key.code, key.modifiers, key.text, true);
    Settle();
  }
}

void Hands::SendMouse(QWidget& widget, QPoint at, QEvent::Type type, Qt::MouseButton button) {
  // A popup has the mouse wherever it is.
  QWidget* popup = QApplication::activePopupWidget();
  QWidget& target = popup != nullptr ? *popup->window() : *widget.window();
  QWindow* window = WindowOf(target);
  if (window == nullptr) return;
  const QPoint global = widget.mapToGlobal(at);
  mouseIn_ = &widget;
  mouseAt_ = at;
  qt_handleMouseEvent(window, target.mapFromGlobal(global), global, buttons_, button, type,
                      Qt::NoModifier, time_);
  Settle();
}

void Hands::MoveMouse(QWidget& widget, QPoint to) {
  SendMouse(widget, to, QEvent::MouseMove, Qt::NoButton);
}

void Hands::PressMouse(QWidget& widget, QPoint at, Qt::MouseButton button) {
  buttons_ |= button;
  SendMouse(widget, at, QEvent::MouseButtonPress, button);
}

void Hands::ReleaseMouse(QWidget& widget, QPoint at, Qt::MouseButton button) {
  buttons_ &= ~Qt::MouseButtons(button);
  SendMouse(widget, at, QEvent::MouseButtonRelease, button);
}

void Hands::Click(QWidget& widget, QPoint at, Qt::MouseButton button) {
  time_ += kUnhurried;
  const QPointer<QWidget> clicked(&widget);
  PressMouse(widget, at, button);
  if (clicked != nullptr) {
    ReleaseMouse(*clicked, at, button);
  } else {
    LetMouseGo();
  }
}

void Hands::DoubleClick(QWidget& widget, QPoint at) {
  const QPointer<QWidget> clicked(&widget);
  Click(widget, at);
  time_ += kHurried - kUnhurried;
  if (clicked != nullptr) Click(*clicked, at);
  time_ += kUnhurried;
}

void Hands::LetMouseGo() {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
    if (!buttons_.testFlag(button)) continue;
    if (mouseIn_ != nullptr && mouseIn_->isVisible()) {
      ReleaseMouse(*mouseIn_, mouseAt_, button);
    } else if (QWidget* window = QApplication::activeWindow()) {
      ReleaseMouse(*window, QPoint(1, 1), button);
    } else {
      buttons_ &= ~Qt::MouseButtons(button);
    }
  }
}

void Hands::TurnWheel(QWidget& widget, int steps) {
  const QPoint at = widget.rect().center();
  QWheelEvent event(at, widget.mapToGlobal(at), QPoint(), QPoint(0, kWheelStep * steps), buttons_,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&widget, &event);
  Settle();
}

}  // namespace halvane
