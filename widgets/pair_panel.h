#pragma once

#include <QWidget>

namespace halvane {

/// A panel around inputs of which at most one can be answered: a bracket on its left and a tint say
/// so. Put the inputs into its layout.
class PairPanel : public QWidget {
  Q_OBJECT
 public:
  explicit PairPanel(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace halvane
