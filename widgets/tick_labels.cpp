#include "widgets/tick_labels.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "widgets/text_lines.h"

namespace halvane {
namespace {

constexpr int kMostLines = 2;
constexpr int kGapBetween = 6;
/// Where the line over words that hold for two numbers stands.
constexpr int kUnderNumbers = 3;
constexpr float kLeadTint = 0.55F;

}  // namespace

TickLabels::TickLabels(QStringList numbers, QStringList words, QWidget* parent)
    : QWidget(parent), numbers_(std::move(numbers)), words_(std::move(words)) {
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void TickLabels::StretchWords(int position) {
  stretched_ = position;
  updateGeometry();
}

QSize TickLabels::WordsSize(int position) const {
  if (measured_.sizes.empty() || measured_.font != font()) {
    measured_ = {font(), std::vector<QSize>(static_cast<std::size_t>(words_.size()))};
  }
  QSize& size = measured_.sizes[static_cast<std::size_t>(position)];
  if (size.isEmpty()) {
    const QString& text = words_[position];
    const int width = WidthForLines(text, kMostLines, fontMetrics());
    size = fontMetrics().boundingRect(0, 0, width, QWIDGETSIZE_MAX, Qt::TextWordWrap, text).size();
  }
  return size;
}

int TickLabels::Inset() const {
  int inset = LeastInset();
  for (const int end : {0, Last()}) {
    int widest = fontMetrics().horizontalAdvance(numbers_[end]);
    if (!words_.isEmpty() && !words_[end].isEmpty()) {
      widest = std::max(widest, WordsSize(end).width());
    }
    inset = std::max(inset, widest / 2 + 1);
  }
  return inset;
}

int TickLabels::MarkAt(double position, int width) const {
  const int inset = Inset();
  return inset + static_cast<int>(position * (width - 2 * inset) / Last());
}

std::vector<TickLabels::Placed> TickLabels::PlaceWords(int width) const {
  std::vector<Placed> placed;
  std::vector<int> ends;  // where the last words of each level end
  for (int i = 0; i < words_.size(); ++i) {
    if (words_[i].isEmpty()) continue;
    const QSize size = WordsSize(i);
    const int mark = MarkAt(i == stretched_ ? i + 0.5 : i, width);
    const int left = std::clamp(mark - size.width() / 2, 0, std::max(0, width - size.width()));
    std::size_t level = 0;
    while (level < ends.size() && left < ends[level] + kGapBetween) ++level;
    ends.resize(std::max(ends.size(), level + 1));
    ends[level] = left + size.width();
    placed.push_back({i, mark, static_cast<int>(level), {QPoint(left, 0), size}});
  }
  int top = TopHeight() + fontMetrics().lineSpacing() + kUnderNumbers;
  for (int level = 0; level < static_cast<int>(ends.size()); ++level) {
    int height = 0;
    for (Placed& words : placed) {
      if (words.level != level) continue;
      words.box.moveTop(top);
      height = std::max(height, words.box.height());
    }
    top += height + kGapBetween;
  }
  return placed;
}

int TickLabels::heightForWidth(int width) const {
  int bottom = TopHeight() + fontMetrics().lineSpacing();
  for (const Placed& words : PlaceWords(width)) {
    bottom = std::max(bottom, words.box.y() + words.box.height());
  }
  return bottom;
}

QSize TickLabels::sizeHint() const {
  int widest = 0;
  for (const QString& number : numbers_) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(number));
  }
  const int width = 2 * Inset() + Last() * (widest + kGapBetween);
  return {width, heightForWidth(width)};
}

void TickLabels::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor ink = palette().color(QPalette::WindowText);
  painter.setPen(ink);
  const int line = fontMetrics().lineSpacing();
  const int top = TopHeight();
  for (int i = 0; i < numbers_.size(); ++i) {
    const int number = fontMetrics().horizontalAdvance(numbers_[i]) + 2;
    painter.drawText(QRect(MarkAt(i, width()) - number / 2, top, number, line), Qt::AlignCenter,
                     numbers_[i]);
  }
  const std::vector<Placed> placed = PlaceWords(width());
  // A lead passes behind words that stand in its way.
  QRegion free(rect());
  for (const Placed& words : placed) {
    painter.drawText(words.box, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     words_[words.position]);
    free -= words.box;
  }
  painter.setClipRegion(free);
  QColor lead = ink;
  lead.setAlphaF(kLeadTint);
  painter.setPen(lead);
  for (const Placed& words : placed) {
    const int under = top + line + 1;
    if (words.level > 0) painter.drawLine(words.mark, under, words.mark, words.box.y() - 1);
    if (words.position == stretched_) {
      painter.drawLine(MarkAt(stretched_, width()) - kGapBetween, under,
                       MarkAt(stretched_ + 1, width()) + kGapBetween, under);
    }
  }
}

}  // namespace halvane
