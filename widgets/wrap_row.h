#pragma once

#include <QLayout>
#include <vector>

namespace halvane {

/// Puts its widgets side by side where the width is enough for that, and in lines one under another
/// where it is not. In a line the widgets stand level: the middles of what is inside them, so that
/// a frame's caption does not push its content below the line of its neighbours.
class WrapRow : public QLayout {
  Q_OBJECT
 public:
  /// Below another there stand `columns` widgets a line, which are not parted: 2 for a caption and
  /// its box.
  WrapRow(int columns, QWidget* parent);
  ~WrapRow() override;

  /// Adds a widget that gets its share of the width that is left over.
  void Add(QWidget* widget, int stretch);
  /// The least width at which all stand side by side.
  [[nodiscard]] int RowWidth() const;

  void addItem(QLayoutItem* item) override;
  [[nodiscard]] int count() const override { return static_cast<int>(cells_.size()); }
  [[nodiscard]] QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;

  [[nodiscard]] Qt::Orientations expandingDirections() const override;
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSize() const override;
  void setGeometry(const QRect& place) override;

 private:
  struct Cell {
    QLayoutItem* item;
    int stretch;
  };
  using Line = std::vector<Cell>;

  [[nodiscard]] Line Shown() const;
  [[nodiscard]] std::vector<Line> LinesFor(int width) const;
  [[nodiscard]] std::vector<int> WidthsFor(const std::vector<Line>& lines, int width) const;
  /// The line that gets the height that is left over; null: none can use it.
  static const Line* HighestShare(const std::vector<Line>& lines);
  /// Between lines; where height is missing they move together before one of them is cut.
  [[nodiscard]] int GapFor(int lines, int missing) const;
  [[nodiscard]] QSize Margins() const;

  int columns_;
  std::vector<Cell> cells_;
};

}  // namespace halvane
