#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace halvane {

/// A place for a widget that asks for as much room as that one of its peers which needs most, so
/// that the rows of columns beside each other stand level. A cell may stay empty.
class LevelCell : public QLayout {
  Q_OBJECT
 public:
  /// Cells of one level; give each of them the same.
  using Peers = std::shared_ptr<std::vector<LevelCell*>>;
  static Peers MakePeers() { return std::make_shared<std::vector<LevelCell*>>(); }

  explicit LevelCell(Peers peers);
  ~LevelCell() override;

  void addItem(QLayoutItem* item) override;
  [[nodiscard]] int count() const override { return item_ != nullptr ? 1 : 0; }
  [[nodiscard]] QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;

  /// An empty cell takes its room too.
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  /// Of a large window a row takes so much that it still reads as one with its neighbours.
  [[nodiscard]] QSize maximumSize() const override;
  void setGeometry(const QRect& place) override;

 private:
  /// The largest of what `measure` tells of the peers' items.
  template <typename Measure>
  [[nodiscard]] QSize Largest(const Measure& measure) const;

  Peers peers_;
  QLayoutItem* item_ = nullptr;
};

}  // namespace halvane
