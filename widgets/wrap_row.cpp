#include "widgets/wrap_row.h"

#include <QWidget>
#include <algorithm>
#include <numeric>

#include "widgets/layout.h"

namespace halvane {
namespace {

/// What a widget has above and below its content.
QMargins InsetsOf(const QLayoutItem& item) {
  const QWidget* widget = item.widget();
  if (widget == nullptr || widget->layout() == nullptr) return {};
  return widget->contentsMargins() + widget->layout()->contentsMargins();
}

int RowWidthOf(QLayoutItem& item) {
  const QWidget* widget = item.widget();
  const auto* inner = widget != nullptr ? qobject_cast<WrapRow*>(widget->layout()) : nullptr;
  return inner != nullptr ? inner->RowWidth() : item.minimumSize().width();
}

bool IsHigh(const QLayoutItem& item) { return item.expandingDirections().testFlag(Qt::Vertical); }

int HeightAt(QLayoutItem& item, int width) {
  if (!item.hasHeightForWidth()) {
    return IsHigh(item) ? item.minimumSize().height() : item.sizeHint().height();
  }
  return IsHigh(item) ? item.minimumHeightForWidth(width) : item.heightForWidth(width);
}

/// How high a line is above and below the middles of its contents.
struct Level {
  int above = 0;
  int below = 0;

  void Take(const QLayoutItem& item, int height) {
    const int middle = MiddleOf(item, height);
    above = std::max(above, middle);
    below = std::max(below, height - middle);
  }
  static int MiddleOf(const QLayoutItem& item, int height) {
    const QMargins insets = InsetsOf(item);
    return insets.top() + (height - insets.top() - insets.bottom()) / 2;
  }
};

}  // namespace

WrapRow::WrapRow(int columns, QWidget* parent) : QLayout(parent), columns_(columns) {
  setContentsMargins(0, 0, 0, 0);
  setSpacing(kGap);
}

WrapRow::~WrapRow() {
  for (const Cell& cell : cells_) delete cell.item;
}

void WrapRow::Add(QWidget* widget, int stretch) {
  addWidget(widget);
  cells_.back().stretch = stretch;
}

void WrapRow::addItem(QLayoutItem* item) {
  cells_.push_back({item, 0});
  invalidate();
}

QLayoutItem* WrapRow::itemAt(int index) const {
  const bool there = index >= 0 && index < count();
  return there ? cells_[static_cast<std::size_t>(index)].item : nullptr;
}

QLayoutItem* WrapRow::takeAt(int index) {
  QLayoutItem* item = itemAt(index);
  if (item != nullptr) cells_.erase(cells_.begin() + index);
  return item;
}

Qt::Orientations WrapRow::expandingDirections() const {
  Qt::Orientations directions = Qt::Horizontal;
  for (const Cell& cell : Shown()) directions |= cell.item->expandingDirections();
  return directions;
}

WrapRow::Line WrapRow::Shown() const {
  Line shown;
  for (const Cell& cell : cells_) {
    if (!cell.item->isEmpty()) shown.push_back(cell);
  }
  return shown;
}

QSize WrapRow::Margins() const {
  const QMargins margins = contentsMargins();
  return {margins.left() + margins.right(), margins.top() + margins.bottom()};
}

int WrapRow::RowWidth() const {
  const Line shown = Shown();
  const int gaps = spacing() * (static_cast<int>(shown.size()) - 1);
  return std::accumulate(shown.begin(), shown.end(), gaps, [](int width, const Cell& cell) {
    return width + RowWidthOf(*cell.item);
  });
}

std::vector<WrapRow::Line> WrapRow::LinesFor(int width) const {
  const Line shown = Shown();
  if (width >= RowWidth()) return {shown};
  std::vector<Line> lines;
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (i % static_cast<std::size_t>(columns_) == 0) lines.emplace_back();
    lines.back().push_back(shown[i]);
  }
  return lines;
}

std::vector<int> WrapRow::WidthsFor(const std::vector<Line>& lines, int width) const {
  // The columns of all lines are the same.
  std::vector<int> widths;
  std::vector<int> stretches;
  for (const Line& line : lines) {
    widths.resize(std::max(widths.size(), line.size()));
    stretches.resize(widths.size());
    for (std::size_t i = 0; i < line.size(); ++i) {
      const int needed =
          lines.size() == 1 ? RowWidthOf(*line[i].item) : line[i].item->minimumSize().width();
      widths[i] = std::max(widths[i], needed);
      stretches[i] = std::max(stretches[i], line[i].stretch);
    }
  }
  int rest = width - std::accumulate(widths.begin(), widths.end(), 0) -
             spacing() * (static_cast<int>(widths.size()) - 1);
  int shares = std::accumulate(stretches.begin(), stretches.end(), 0);
  for (std::size_t i = 0; i < widths.size() && rest > 0 && shares > 0; ++i) {
    const int share = rest * stretches[i] / shares;
    widths[i] += share;
    rest -= share;
    shares -= stretches[i];
  }
  return widths;
}

int WrapRow::heightForWidth(int width) const {
  const int inside = width - Margins().width();
  const std::vector<Line> lines = LinesFor(inside);
  const std::vector<int> widths = WidthsFor(lines, inside);
  int height = Margins().height() + spacing() * (static_cast<int>(lines.size()) - 1);
  for (const Line& line : lines) {
    Level level;
    for (std::size_t i = 0; i < line.size(); ++i) {
      level.Take(*line[i].item, HeightAt(*line[i].item, widths[i]));
    }
    height += level.above + level.below;
  }
  return height;
}

QSize WrapRow::sizeHint() const {
  const int width = RowWidth() + Margins().width();
  return {width, heightForWidth(width)};
}

QSize WrapRow::minimumSize() const {
  const std::vector<Line> lines = LinesFor(0);
  const std::vector<int> widths = WidthsFor(lines, 0);
  const int width = std::accumulate(widths.begin(), widths.end(),
                                    spacing() * (static_cast<int>(widths.size()) - 1));
  // As high as the least: in a row. What stands around it asks for the height at its width.
  return {width + Margins().width(), sizeHint().height()};
}

const WrapRow::Line* WrapRow::HighestShare(const std::vector<Line>& lines) {
  const Line* best = nullptr;
  int share = -1;
  for (const Line& line : lines) {
    for (const Cell& cell : line) {
      if (!IsHigh(*cell.item) || cell.stretch <= share) continue;
      best = &line;
      share = cell.stretch;
    }
  }
  return best;
}

int WrapRow::GapFor(int lines, int missing) const {
  if (missing <= 0 || lines < 2) return spacing();
  const int gaps = lines - 1;
  return std::max(0, spacing() - (missing + gaps - 1) / gaps);
}

void WrapRow::setGeometry(const QRect& place) {
  QLayout::setGeometry(place);
  const QRect inside = place.marginsRemoved(contentsMargins());
  const std::vector<Line> lines = LinesFor(inside.width());
  const std::vector<int> widths = WidthsFor(lines, inside.width());
  const int needed = heightForWidth(place.width()) - Margins().height();
  int top = inside.top();
  const int rest = std::max(0, inside.height() - needed);
  const int gap = GapFor(static_cast<int>(lines.size()), needed - inside.height());
  const Line* growing = HighestShare(lines);
  for (const Line& line : lines) {
    Level level;
    for (std::size_t i = 0; i < line.size(); ++i) {
      level.Take(*line[i].item, HeightAt(*line[i].item, widths[i]));
    }
    const int height = level.above + level.below + (&line == growing ? rest : 0);
    int left = inside.left();
    for (std::size_t i = 0; i < line.size(); ++i) {
      QLayoutItem& item = *line[i].item;
      if (IsHigh(item)) {
        item.setGeometry({left, top, widths[i], height});
      } else {
        const int own = HeightAt(item, widths[i]);
        const int at = top + level.above - Level::MiddleOf(item, own);
        item.setGeometry({left, at, widths[i], own});
      }
      left += widths[i] + spacing();
    }
    top += height + gap;
  }
}

}  // namespace halvane
