#include "widgets/labelled_scale.h"

#include <QLabel>
#include <QPainter>
#include <QSlider>
#include <algorithm>

#include "widgets/layout.h"
#include "widgets/wrapping_label.h"

namespace halvane {
namespace {

/// Between neighbouring words, in logical pixels.
constexpr int kColumnGap = 4;
constexpr float kLeadTint = 0.4F;

template <typename Label>
Label* AddLabel(const QString& text, const QString& name, QWidget* parent) {
  auto* label = new Label(text, parent);
  label->setObjectName(name);
  label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  return label;
}

}  // namespace

LabelledScale::LabelledScale(QSlider* slider, QWidget* parent) : QWidget(parent), slider_(slider) {
  slider->setParent(this);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void LabelledScale::AddMark(const QString& tick, const QString& tickName, const QString& words,
                            const QString& wordsName) {
  auto* const wrapped = AddLabel<WrappingLabel>(words, wordsName, this);
  auto* const number = AddLabel<QLabel>(tick, tickName, this);
  QFont bold = number->font();
  bold.setBold(true);
  number->setFont(bold);
  marks_.push_back({number, wrapped});
}

int LabelledScale::ColumnWidth(int width) const { return width / static_cast<int>(marks_.size()); }

int LabelledScale::WordsHeight(int columnWidth) const {
  int height = 0;
  for (const Mark& mark : marks_) {
    height = std::max(height, mark.words->heightForWidth(columnWidth - kColumnGap));
  }
  return height;
}

int LabelledScale::heightForWidth(int width) const {
  return marks_.front().tick->sizeHint().height() + WordsHeight(ColumnWidth(width)) +
         slider_->sizeHint().height();
}

QSize LabelledScale::minimumSizeHint() const {
  int column = 0;
  for (const Mark& mark : marks_) {
    column = std::max(column, mark.words->minimumSizeHint().width() + kColumnGap);
  }
  const int width = column * static_cast<int>(marks_.size());
  return {width, heightForWidth(width)};
}

QSize LabelledScale::sizeHint() const { return minimumSizeHint(); }

void LabelledScale::resizeEvent(QResizeEvent* /*event*/) {
  const int column = ColumnWidth(width());
  const int line = marks_.front().tick->sizeHint().height();
  const int words = WordsHeight(column);
  int left = 0;
  for (const Mark& mark : marks_) {
    mark.tick->setGeometry(left, 0, column, line);
    mark.words->setGeometry(left + kColumnGap / 2, line, column - kColumnGap, words);
    left += column;
  }
  // The middle of the handle runs from the middle of the first column to that of the last.
  const int overhang = HandleLength(*slider_) / 2;
  const int start = column / 2 - overhang;
  slider_->setGeometry(start, line + words, left - column + 2 * overhang,
                       slider_->sizeHint().height());
}

void LabelledScale::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QColor lead = palette().color(QPalette::WindowText);
  lead.setAlphaF(kLeadTint);
  painter.setPen(lead);
  for (const Mark& mark : marks_) {
    const QRect place = mark.words->geometry();
    const int middle = place.left() + place.width() / 2;
    const int bottom = place.top() + mark.words->heightForWidth(place.width());
    painter.drawLine(middle, bottom + kColumnGap, middle, slider_->y());
  }
}

}  // namespace halvane
