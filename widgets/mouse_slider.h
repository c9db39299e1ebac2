#pragma once

#include <QSlider>

namespace halvane {

/// A slider that tells of the mouse alone. What a key or the wheel does stays between the slider
/// and the user.
class MouseSlider : public QSlider {
  Q_OBJECT
 public:
  explicit MouseSlider(QWidget* parent = nullptr);

 signals:
  /// A mouse button is held on the slider: it was pressed, the mouse moved, or the handle went on
  /// by itself towards a press beside it.
  void mouseHeld();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
};

}  // namespace halvane
