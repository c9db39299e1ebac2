#include "widgets/readout.h"

#include <utility>

#include "widgets/font_share.h"
#include "widgets/layout.h"

namespace halvane {
namespace {

constexpr double kShare = 1.8;

}  // namespace

Readout::Readout(QString widest, QWidget* parent) : QLabel(parent), widest_(std::move(widest)) {
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
