#include "widgets/printed_scale.h"

#include <QPainter>
#include <QPainterPath>
#include <utility>

namespace halvane {
namespace {

constexpr int kTick = 5;
constexpr double kLineWidth = 1.5;

}  // namespace

PrintedScale::PrintedScale(QStringList numbers, QStringList words, QWidget* parent)
    : TickLabels(std::move(numbers), std::move(words), parent) {}

int PrintedScale::TopHeight() const { return fontMetrics().lineSpacing() + kTick; }

void PrintedScale::paintEvent(QPaintEvent* event) {
  TickLabels::paintEvent(event);
  QPainter painter(this);
  const int line = TopHeight() - kTick;
  const auto last = static_cast<int>(numbers().size()) - 1;
  const int left = MarkAt(0, width());
  const int right = MarkAt(last, width());
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath wedge(QPointF(left, line));
  wedge.lineTo(right, line);
  wedge.lineTo(right, 0);
  wedge.closeSubpath();
  painter.fillPath(wedge, palette().color(QPalette::Highlight));
  painter.setRenderHint(QPainter::Antialiasing, false);
  const QColor ink = palette().color(QPalette::WindowText);
  painter.setPen(QPen(ink, kLineWidth));
  painter.drawLine(left, line, right, line);
  painter.setPen(ink);
  for (int i = 0; i <= last; ++i) {
    painter.drawLine(MarkAt(i, width()), line, MarkAt(i, width()), line + kTick - 1);
  }
}

}  // namespace halvane
