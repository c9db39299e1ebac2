#include "widgets/level_cell.h"

#include <algorithm>
#include <utility>

namespace halvane {
namespace {

constexpr int kMostGrowth = 2;

}  // namespace

LevelCell::LevelCell(Peers peers) : peers_(std::move(peers)) {
  setContentsMargins(0, 0, 0, 0);
  peers_->push_back(this);
}

LevelCell::~LevelCell() {
  std::erase(*peers_, this);
  delete item_;
}

void LevelCell::addItem(QLayoutItem* item) {
  delete std::exchange(item_, item);
  invalidate();
}

QLayoutItem* LevelCell::itemAt(int index) const { return index == 0 ? item_ : nullptr; }

QLayoutItem* LevelCell::takeAt(int index) {
  return index == 0 ? std::exchange(item_, nullptr) : nullptr;
}

template <typename Measure>
QSize LevelCell::Largest(const Measure& measure) const {
  QSize largest(0, 0);
  for (const LevelCell* peer : *peers_) {
    if (peer->item_ != nullptr) largest = largest.expandedTo(measure(*peer->item_));
  }
  return largest;
}

int LevelCell::heightForWidth(int width) const {
  return Largest([width](QLayoutItem& item) {
           const bool wraps = item.hasHeightForWidth();
           return QSize(0, wraps ? item.minimumHeightForWidth(width) : item.sizeHint().height());
         })
      .height();
}

QSize LevelCell::sizeHint() const {
  return Largest([](QLayoutItem& item) { return item.sizeHint(); });
}

QSize LevelCell::minimumSize() const {
  return Largest([](QLayoutItem& item) { return item.minimumSize(); });
}

QSize LevelCell::maximumSize() const {
  return {QLAYOUTSIZE_MAX, kMostGrowth * std::max(sizeHint().height(), 1)};
}

void LevelCell::setGeometry(const QRect& place) {
  QLayout::setGeometry(place);
  if (item_ != nullptr) item_->setGeometry(place);
}

}  // namespace halvane
