#include "widgets/slider_scale.h"

#include <QSlider>
#include <utility>

#include "widgets/layout.h"

namespace halvane {

SliderScale::SliderScale(QSlider* slider, QStringList numbers, QStringList words, QWidget* parent)
    : TickLabels(std::move(numbers), std::move(words), parent), slider_(slider) {
  slider_->setParent(this);
}

int SliderScale::TopHeight() const { return slider_->sizeHint().height(); }

int SliderScale::LeastInset() const { return HandleLength(*slider_) / 2; }

void SliderScale::resizeEvent(QResizeEvent* event) {
  TickLabels::resizeEvent(event);
  // The middle of the handle runs from the first mark to the last.
  const int overhang = HandleLength(*slider_) / 2;
  const int first = MarkAt(slider_->minimum(), width());
  const int last = MarkAt(slider_->maximum(), width());
  slider_->setGeometry(first - overhang, 0, last - first + 2 * overhang, TopHeight());
}

}  // namespace halvane
