#include "widgets/font_share.h"

#include <QEvent>
#include <QWidget>

namespace halvane {

FontShare::FontShare(QWidget& widget, double share)
    : QObject(&widget), widget_(widget), share_(share) {
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
  font.setPointSizeF(parent_->font().pointSizeF() * share_);
  widget_.setFont(font);
}

}  // namespace halvane
