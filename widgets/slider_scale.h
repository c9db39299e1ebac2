#pragma once

#include "widgets/tick_labels.h"

class QSlider;

namespace halvane {

/// A level slider over the labels of its positions.
class SliderScale : public TickLabels {
  Q_OBJECT
 public:
  /// `slider` becomes a child; its positions count from 0, one a number.
  SliderScale(QSlider* slider, QStringList numbers, QStringList words, QWidget* parent);

 protected:
  [[nodiscard]] int TopHeight() const override;
  [[nodiscard]] int LeastInset() const override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QSlider* slider_;
};

}  // namespace halvane
