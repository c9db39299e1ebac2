#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace halvane {

/// Tells when a widget has been painted.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

  void WaitForPaint() {
    painted_ = false;
    while (!painted_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    // What is painted reaches the screen at the end of the turn.
    QCoreApplication::processEvents();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted_ = true;
    return QObject::eventFilter(watched, event);
  }

 private:
  bool painted_ = false;
};

}  // namespace halvane
