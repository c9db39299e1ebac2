#include "widgets/ribbon_page.h"

#include <QEvent>
#include <QLayout>

#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

constexpr int kStep = RibbonButton::kPictureStep;
/// Behind each picture that is drawn ahead, and before the first.
constexpr int kPauseMilliseconds = 20;

/// Has everything in a layout measured anew, what stands in widgets in it too.
void Invalidate(QLayoutItem& item) {
  QLayout* layout = item.layout();
  if (QWidget* widget = item.widget()) {
    widget->updateGeometry();
    layout = widget->layout();
  }
  if (layout == nullptr) return;
  layout->invalidate();
  for (int i = 0; i < layout->count(); ++i) Invalidate(*layout->itemAt(i));
}

}  // namespace

RibbonPage::RibbonPage(QWidget* parent) : QWidget(parent), size_(RibbonButton::kLeastPicture) {
  ahead_.setInterval(kPauseMilliseconds);
  connect(&ahead_, &QTimer::timeout, this, &RibbonPage::DrawAhead);
}

QSize RibbonPage::minimumSizeHint() const {
  return NeedWith(RibbonButton::kLeastPicture, width()).least;
}

bool RibbonPage::hasHeightForWidth() const {
  return layout() != nullptr && layout()->hasHeightForWidth();
}

int RibbonPage::heightForWidth(int width) const {
  return NeedWith(RibbonButton::kLeastPicture, width).height;
}

bool RibbonPage::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  // Measuring asks for a new layout itself, which changes nothing.
  const bool mayChange = event->type() == QEvent::LayoutRequest && isVisible();
  if (mayChange && IsChanged()) {
    needs_.clear();
    Fit();
  }
  return handled;
}

void RibbonPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  const bool changesSizes =
      event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
  if (changesSizes) needs_.clear();
}

void RibbonPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (IsChanged()) needs_.clear();
  Fit();
}

void RibbonPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // A hidden page gets several sizes before it is shown, and fits the last.
  if (isVisible()) Fit();
}

bool RibbonPage::IsChanged() const { return Measure(width()) != fitted_; }

void RibbonPage::Fit() {
  int size = size_;
  while (size < RibbonButton::kLargestPicture && HasRoomFor(size + kStep)) size += kStep;
  while (size > RibbonButton::kLeastPicture && !HasRoomFor(size)) size -= kStep;
  if (size != size_) {
    size_ = size;
    SetPictures(size);
    if (layout() != nullptr) layout()->activate();
  }
  fitted_ = Measure(width());
  // Again from the beginning of a pause, so that none is drawn for a size that does not last.
  ahead_.start();
}

void RibbonPage::DrawAhead() {
  for (const RibbonButton* ribbon : findChildren<RibbonButton*>()) {
    if (isVisible() && !ribbon->isVisible() && ribbon->DrawAhead()) return;
  }
  ahead_.stop();
}

bool RibbonPage::HasRoomFor(int size) const {
  const Need need = NeedWith(size, width());
  return need.least.width() <= width() && need.height <= height();
}

void RibbonPage::SetPictures(int size) const {
  for (RibbonButton* ribbon : findChildren<RibbonButton*>()) {
    if (!ribbon->Picture().isEmpty()) ribbon->setIconSize({size, size});
  }
  if (layout() != nullptr) Invalidate(*layout());
}

RibbonPage::Need RibbonPage::Measure(int width) const {
  if (layout() == nullptr) return {};
  const QSize least = layout()->totalMinimumSize();
  const bool wraps = layout()->hasHeightForWidth();
  return {least, wraps ? layout()->totalMinimumHeightForWidth(width) : least.height()};
}

RibbonPage::Need RibbonPage::NeedWith(int size, int width) const {
  // The layout itself knows it, and what changes on a page.
  if (size == size_) return Measure(width);
  // A hidden page is not told of what changes on it.
  if (!isVisible() && IsChanged()) needs_.clear();
  const auto key = std::pair(size, width);
  const auto known = needs_.find(key);
  if (known != needs_.end()) return known->second;
  SetPictures(size);
  const Need need = Measure(width);
  SetPictures(size_);
  return needs_[key] = need;
}

}  // namespace halvane
