#include "widgets/font_share.h"

#include <QEvent>
#include <QFontMetrics>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace halvane {
namespace {

constexpr double kSame = 0.01;
/// A font of another size is not wider by exactly as much.
constexpr double kRounding = 0.97;

}  // namespace

FontShare::FontShare(QWidget& widget, double share, QSize room)
    : QObject(&widget), widget_(widget), share_(share), room_(room) {
  widget_.installEventFilter(this);
  FollowParent();
}

bool FontShare::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &widget_ && event->type() == QEvent::ParentChange) FollowParent();
  if (watched == parent_ && event->type() == QEvent::FontChange) TakeFont();
  return QObject::eventFilter(watched, event);
}

void FontShare::FollowParent() {
  if (parent_ != nullptr) parent_->removeEventFilter(this);
  parent_ = widget_.parentWidget();
  if (parent_ == nullptr) return;
  parent_->installEventFilter(this);
  TakeFont();
}

void FontShare::TakeFont() {
  // All but the size comes to the widget by itself.
  QFont font = widget_.font();
  font.setPointSizeF(parent_->font().pointSizeF());
  const double share = ShareThatFits(font);
  // Not when it changes nothing: another size is another font, which takes time to load.
  if (std::abs(share - 1) > kSame) font.setPointSizeF(font.pointSizeF() * share);
  widget_.setFont(font);
}

double FontShare::ShareThatFits(const QFont& font) const {
  if (!room_.isValid()) return share_;
  // Measured at the size as it is, since each size that is measured has to be loaded.
  const QString text = widget_.property("text").toString();
  const QSize size = QFontMetrics(font).size(Qt::TextSingleLine, text);
  return std::min({share_, kRounding * room_.width() / size.width(),
                   kRounding * room_.height() / size.height()});
}

}  // namespace halvane
