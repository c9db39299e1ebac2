#include "widgets/gradient_panel.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "widgets/raised_face.h"

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

void GradientPanel::RoundCorners() {
  round_ = true;
  setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void GradientPanel::PaintBoxes(QPainter& painter) const {
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

void GradientPanel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (!round_) return PaintBoxes(painter);
  // A shape that is filled has smooth edges; one that boxes are clipped to has not.
  const double ratio = painter.device()->devicePixelRatio();
  QImage boxes((QSizeF(size()) * ratio).toSize(), QImage::Format_RGB32);
  boxes.setDevicePixelRatio(ratio);
  QPainter ofBoxes(&boxes);
  PaintBoxes(ofBoxes);
  ofBoxes.end();
  boxes.setDevicePixelRatio(1);
  QBrush brush(boxes);
  brush.setTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(brush);
  FillRounded(painter, rect(), kCornerRadius);
}

}  // namespace halvane
