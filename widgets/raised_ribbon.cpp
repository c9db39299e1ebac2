#include "widgets/raised_ribbon.h"

#include <QPainter>

#include "widgets/raised_face.h"

namespace halvane {

void RaisedRibbon::PaintGround(QPainter& painter) const {
  const QColor face = palette().color(QPalette::Button);
  PaintRaisedFace(painter, rect(), face, Fill(), isChecked() || isDown());
}

void RaisedRibbon::PaintTick(QPainter& /*painter*/) const {}

void RaisedRibbon::PaintFocus(QPainter& painter) const {
  PaintRaisedFocus(painter, rect(), palette().color(QPalette::ButtonText));
}

}  // namespace halvane
