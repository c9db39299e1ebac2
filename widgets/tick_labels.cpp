#include "widgets/tick_labels.h"

#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <algorithm>
#include <utility>

#include "widgets/spoken.h"

namespace halvane {
namespace {

/// Lines that a word may take on its level.
constexpr int kLevelLines = 2;
constexpr int kLeastMarkWidth = 34;

}  // namespace

TickLabels::TickLabels(const QSlider& slider, QStringList numbers, QStringList words,
                       QWidget* parent)
    : QWidget(parent), slider_(slider), numbers_(std::move(numbers)), words_(std::move(words)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  // The slider tells where it stands.
  KeepUnspoken(*this);
}

QSize TickLabels::sizeHint() const {
  const int lines = words_.isEmpty() ? 1 : 1 + 2 * kLevelLines;
  const int marks = static_cast<int>(numbers_.size());
  return {words_.isEmpty() ? marks * kLeastMarkWidth / 2 : marks * kLeastMarkWidth,
          lines * fontMetrics().lineSpacing()};
}

int TickLabels::MarkAt(int position) const {
  QStyleOptionSlider option;
  option.initFrom(&slider_);
  option.orientation = Qt::Horizontal;
  const int handle = slider_.style()->pixelMetric(QStyle::PM_SliderLength, &option, &slider_);
  const int offset = QStyle::sliderPositionFromValue(slider_.minimum(), slider_.maximum(), position,
                                                     width() - handle);
  return offset + handle / 2;
}

void TickLabels::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const int line = fontMetrics().lineSpacing();
  const auto draw = [&](int position, int top, int boxWidth, int boxHeight, const QString& text) {
    const int left =
        std::clamp(MarkAt(position) - boxWidth / 2, 0, std::max(0, width() - boxWidth));
    painter.drawText(QRect(left, top, boxWidth, boxHeight),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
  };
  for (int i = 0; i < numbers_.size(); ++i) {
    draw(i, 0, fontMetrics().horizontalAdvance(numbers_[i]) + 2, line, numbers_[i]);
  }
  const int spacing = MarkAt(1) - MarkAt(0);
  for (int i = 0; i < words_.size(); ++i) {
    // Words of odd marks stand one level lower, where they have all the room.
    const bool lower = i % 2 == 1;
    const int widest = lower ? 3 * spacing : 3 * spacing / 2;
    const QRect needed =
        fontMetrics().boundingRect(0, 0, widest, height(), Qt::TextWordWrap, words_[i]);
    draw(i, lower ? (1 + kLevelLines) * line : line, needed.width() + 1, kLevelLines * line,
         words_[i]);
  }
}

}  // namespace halvane
