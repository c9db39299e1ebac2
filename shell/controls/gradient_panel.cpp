#include "shell/controls/gradient_panel.h"

#include <QLinearGradient>
#include <QPainter>

namespace halvane {

GradientPanel::GradientPanel(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  QPalette onBlue = palette();
  onBlue.setColor(QPalette::WindowText, Qt::white);
  setPalette(onBlue);
}

void GradientPanel::paintEvent(QPaintEvent* /*event*/) {
  QLinearGradient gradient(0, 0, 0, height());
  gradient.setColorAt(0, QColor(0, 0, 255));
  // Black is reached half way down.
  gradient.setColorAt(0.5, Qt::black);
  QPainter(this).fillRect(rect(), gradient);
}

}  // namespace halvane
