#include "widgets/number_box.h"

namespace halvane {
namespace {

/// What the frame of the box takes on both sides, in digits.
constexpr int kSides = 2;

}  // namespace

NumberBox::NumberBox(const QString& name, int digits, QWidget* parent)
    : TextBox(name, parent), digits_(digits) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize NumberBox::sizeHint() const {
  return {fontMetrics().horizontalAdvance('0') * (digits_ + kSides), TextBox::sizeHint().height()};
}

}  // namespace halvane
