#include "widgets/readout.h"

#include "widgets/font_share.h"
#include "widgets/layout.h"

namespace halvane {
namespace {

constexpr double kShare = 1.8;

}  // namespace

Readout::Readout(const QString& widest, QWidget* parent) : QLabel(parent), widest_(widest) {
  QFont bold = font();
  bold.setBold(true);
  setFont(bold);
  new FontShare(*this, kShare);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QSize Readout::sizeHint() const {
  return {fontMetrics().horizontalAdvance(widest_) + kGap, fontMetrics().height()};
}

}  // namespace halvane
