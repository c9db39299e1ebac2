#include "widgets/window_place.h"

#include <QApplication>
#include <QBackingStore>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "platform/platform.h"

namespace halvane {
namespace {

/// Taken for the frame until the window manager has told its own, which it does when the window is
/// on the screen.
constexpr QMargins kLikelyFrame{4, 32, 4, 4};
/// As much of the title bar as the mouse needs to take hold of.
constexpr int kGrip = 96;

QRect InsideFrame(const WindowMeasures& measures) {
  return measures.available.marginsRemoved(measures.frame);
}

/// A point of the screen that a window opens on for the first time: its owner's.
QPoint NearOwner(const QWidget& window) {
  const QWidget* owner =
      window.parentWidget() != nullptr ? window.parentWidget() : QApplication::activeWindow();
  return owner != nullptr ? owner->window()->geometry().center() : QPoint();
}

/// Has every layout in a window ask its controls anew, the innermost first: a page that is not on
/// view would do it when it is.
void LayOutAnew(const QWidget& window) {
  QList<QWidget*> controls = window.findChildren<QWidget*>();
  std::reverse(controls.begin(), controls.end());
  for (QWidget* control : controls) {
    if (control->layout() != nullptr) control->layout()->invalidate();
    control->updateGeometry();
  }
}

/// Has the picture of a window that is about to be shown lie in memory for the whole screen. X11
/// shares that memory with the program: where a window gets larger than it ever was, all of it is
/// made anew at each step, while what is there and was never drawn on costs nothing.
void ReserveScreen(const QWidget& window) {
  QBackingStore* picture = window.backingStore();
  if (picture == nullptr || QGuiApplication::platformName() != "xcb") return;
  picture->resize(window.screen()->size());
}

}  // namespace

QSize LeastSize(const WindowMeasures& measures) {
  return measures.least.boundedTo(InsideFrame(measures).size());
}

QRect FirstPlace(const WindowMeasures& measures) {
  const QRect inside = InsideFrame(measures);
  QRect place(QPoint(), measures.standard.expandedTo(measures.least).boundedTo(inside.size()));
  const QSize rest = inside.size() - place.size();
  place.moveTopLeft(inside.topLeft() + QPoint(rest.width() / 2, rest.height() / 2));
  return place;
}

QRect PlaceAgain(const QRect& last, const WindowMeasures& measures) {
  const QRect inside = InsideFrame(measures);
  const QSize size = last.size().expandedTo(LeastSize(measures));
  if (size.boundedTo(inside.size()) != size) return FirstPlace(measures);
  const QRect& available = measures.available;
  const int grip = std::min(kGrip, size.width());
  const int left = std::clamp(last.left(), available.left() + grip - size.width(),
                              available.left() + available.width() - grip);
  const int top = std::clamp(last.top(), inside.top(),
                             std::max(inside.top(), available.top() + available.height()));
  return {QPoint(left, top), size};
}

WindowPlace::WindowPlace(QWidget& window, QSize standard, std::function<QSize()> least,
                         LastPlace& last)
    : QObject(&window),
      window_(window),
      standard_(standard),
      least_(std::move(least)),
      last_(last) {
  if (last_.maximized) window_.setWindowState(window_.windowState() | Qt::WindowMaximized);
  window_.installEventFilter(this);
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event) {
  // What the system does by itself is minimising and its end, where the place stays as it is.
  if (event->type() == QEvent::Show && !event->spontaneous()) Show();
  if (event->type() == QEvent::Hide && !event->spontaneous()) Keep();
  if (event->type() == QEvent::WindowActivate) Settle();
  if (event->type() == QEvent::FontChange && watched == &window_) {
    // The window hears of it before its controls do.
    QMetaObject::invokeMethod(
        this, [this] { FitFont(); }, Qt::QueuedConnection);
  }
  return QObject::eventFilter(watched, event);
}

WindowMeasures WindowPlace::Measure() const {
  const QPoint at = last_.place ? last_.place->center() : NearOwner(window_);
  return {standard_, least_(), ThePlatform().AvailableArea(at), last_.frame.value_or(kLikelyFrame)};
}

void WindowPlace::Show() {
  settled_ = false;
  TakePlace();
  if (!std::exchange(reserved_, true)) ReserveScreen(window_);
}

void WindowPlace::TakePlace() {
  const WindowMeasures measures = Measure();
  window_.setMinimumSize(LeastSize(measures));
  if (window_.isMaximized() || window_.isFullScreen()) return;
  // Without the frame, of which a hidden window knows nothing: so it does not wander by it.
  window_.setGeometry(last_.place ? PlaceAgain(*last_.place, measures) : FirstPlace(measures));
}

void WindowPlace::Settle() {
  if (std::exchange(settled_, true) || window_.windowHandle() == nullptr) return;
  last_.frame = window_.windowHandle()->frameMargins();
  if (last_.place || window_.isMaximized() || window_.isFullScreen()) return;
  const WindowMeasures measures = Measure();
  const QRect framed = window_.geometry().marginsAdded(measures.frame);
  // A frame that is wider than most.
  if (measures.available.contains(framed)) return;
  window_.setMinimumSize(LeastSize(measures));
  window_.setGeometry(FirstPlace(measures));
}

void WindowPlace::FitFont() {
  if (!window_.isVisible()) return;
  LayOutAnew(window_);
  const WindowMeasures measures = Measure();
  const QSize least = LeastSize(measures);
  QRect place(window_.geometry().topLeft(), window_.size().expandedTo(least));
  const bool grows = place.size() != window_.size();
  window_.setMinimumSize(least);
  if (!grows || window_.isMaximized() || window_.isFullScreen()) return;
  // Grown, it keeps to the screen.
  const QRect inside = InsideFrame(measures);
  place.moveLeft(
      std::max(inside.left(), std::min(place.left(), inside.right() + 1 - place.width())));
  place.moveTop(
      std::max(inside.top(), std::min(place.top(), inside.bottom() + 1 - place.height())));
  window_.setGeometry(place);
}

void WindowPlace::Keep() {
  last_.maximized = window_.isMaximized();
  const bool normal = !last_.maximized && !window_.isFullScreen();
  const QRect place = normal ? window_.geometry() : window_.normalGeometry();
  if (place.isValid()) last_.place = place;
}

}  // namespace halvane
