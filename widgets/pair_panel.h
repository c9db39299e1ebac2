#pragma once

#include <QWidget>

namespace halvane {

/// What stands behind inputs of which at most one can be answered: a bracket on its left and a tint
/// say so. Put it into the same place of a layout, before them.
class PairPanel : public QWidget {
  Q_OBJECT
 public:
  explicit PairPanel(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace halvane
