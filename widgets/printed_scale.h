#pragma once

#include "widgets/tick_labels.h"

namespace halvane {

/// A scale to look at: its line with a tick at each number, and a wedge that grows with what the
/// scale measures. In the colours of the palette, so that it suits a dark one.
class PrintedScale : public TickLabels {
  Q_OBJECT
 public:
  PrintedScale(QStringList numbers, QStringList words, QWidget* parent);

 protected:
  [[nodiscard]] int TopHeight() const override;
  [[nodiscard]] int LeastInset() const override { return 0; }
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace halvane
