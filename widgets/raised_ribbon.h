#pragma once

#include "widgets/ribbon_button.h"

namespace halvane {

/// A two-state button that is raised like the push buttons beside it.
class RaisedRibbon : public RibbonButton {
  Q_OBJECT
 public:
  using RibbonButton::RibbonButton;

 protected:
  void PaintGround(QPainter& painter) const override;
  void PaintFocus(QPainter& painter) const override;
  /// Its edges are sunk while it is down.
  void PaintTick(QPainter& painter) const override;
};

}  // namespace halvane
