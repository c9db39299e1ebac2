#include "widgets/pair_panel.h"

#include <QPainter>

namespace halvane {
namespace {

constexpr float kTint = 0.08F;
constexpr int kBracketWidth = 3;

}  // namespace

PairPanel::PairPanel(QWidget* parent) : QWidget(parent) {}

void PairPanel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor accent = palette().color(QPalette::Highlight);
  QColor tint = accent;
  tint.setAlphaF(kTint);
  painter.fillRect(rect(), tint);
  painter.fillRect(QRect(0, 0, kBracketWidth, height()), accent);
}

}  // namespace halvane
