#include "widgets/gradient_panel.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace halvane {
namespace {

constexpr double kFullBlue = 255;
/// The boxes reach so far beyond the panel, to the right and below.
constexpr int kBeyond = 10;
constexpr int kRowsOfABox = 2;

}  // namespace

GradientPanel::GradientPanel(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  QPalette onBlue = palette();
  onBlue.setColor(QPalette::WindowText, Qt::white);
  setPalette(onBlue);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void GradientPanel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const int bottom = height() + kBeyond;
  const int right = width() + kBeyond;
  const double step = -2 * kFullBlue / bottom;
  double blue = kFullBlue;
  for (int y = 0; y <= bottom; y += kRowsOfABox) {
    // A box begins one row above and is painted over by the next one, which leaves it two rows.
    const QRect box(QPoint(-1, y - 1), QPoint(right, y + kRowsOfABox));
    painter.fillRect(box, QColor(0, 0, static_cast<int>(std::nearbyint(std::max(blue, 0.0)))));
    blue += step;
  }
}

}  // namespace halvane
