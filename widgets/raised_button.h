#pragma once

#include <QPushButton>

namespace halvane {

/// A three-dimensional button: round corners, light above and dark below, the other way round while
/// it is held down. Shows its picture where it has one, else its text.
class RaisedButton : public QPushButton {
  Q_OBJECT
 public:
  RaisedButton(const QString& name, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace halvane
