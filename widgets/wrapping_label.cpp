#include "widgets/wrapping_label.h"

namespace halvane {
namespace {

/// A window that is dragged by its edge asks for more widths than are worth keeping.
constexpr std::size_t kMostKnown = 64;

}  // namespace

WrappingLabel::WrappingLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setWordWrap(true);
}

int WrappingLabel::heightForWidth(int width) const {
  const bool isOther = known_.text != text() || known_.font != font();
  if (isOther || known_.heights.size() >= kMostKnown) known_ = {text(), font(), {}};
  const auto [height, isNew] = known_.heights.try_emplace(width, 0);
  if (isNew) height->second = QLabel::heightForWidth(width);
  return height->second;
}

}  // namespace halvane
