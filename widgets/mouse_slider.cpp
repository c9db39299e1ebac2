#include "widgets/mouse_slider.h"

#include <QMouseEvent>

namespace halvane {

MouseSlider::MouseSlider(QWidget* parent) : QSlider(parent) {}

void MouseSlider::mousePressEvent(QMouseEvent* event) {
  QSlider::mousePressEvent(event);
  emit mouseHeld();
}

void MouseSlider::mouseMoveEvent(QMouseEvent* event) {
  QSlider::mouseMoveEvent(event);
  if (event->buttons() != Qt::NoButton) emit mouseHeld();
}

void MouseSlider::timerEvent(QTimerEvent* event) {
  // Runs for as long as a press beside the handle lasts.
  const int before = value();
  QSlider::timerEvent(event);
  if (value() != before) emit mouseHeld();
}

}  // namespace halvane
