#pragma once

#include <QStringList>
#include <QWidget>
#include <vector>

namespace halvane {

/// The labels of a scale: a number at each of its positions, at equal distances, and words under
/// the numbers that have some, each centred on its mark. Words that would touch stand lower than
/// their neighbours and have a lead line from their number. What stands above the numbers is the
/// business of the scale's own class.
class TickLabels : public QWidget {
  Q_OBJECT
 public:
  [[nodiscard]] const QStringList& numbers() const { return numbers_; }
  [[nodiscard]] const QStringList& words() const { return words_; }

  /// Has the words of a position hold up to the next one: they stand between the two, under a line
  /// from one to the other.
  void StretchWords(int position);

  /// Where words stand.
  struct Placed {
    int position;
    int mark;  ///< the middle that they belong to
    int level;
    QRect box;
  };
  [[nodiscard]] std::vector<Placed> PlaceWords(int width) const;
  /// The place of a position, from the left.
  [[nodiscard]] int MarkAt(double position, int width) const;

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  /// One number a position; `words` is empty or has one, possibly empty, text a position.
  TickLabels(QStringList numbers, QStringList words, QWidget* parent);

  /// The height of what stands above the numbers.
  [[nodiscard]] virtual int TopHeight() const = 0;
  /// What the scale has at least outside of its first and last mark.
  [[nodiscard]] virtual int LeastInset() const = 0;

  void paintEvent(QPaintEvent* event) override;

 private:
  /// What the words need in a font; a layout asks for it many times.
  struct Measured {
    QFont font;
    std::vector<QSize> sizes{};  ///< empty: not yet known
  };

  [[nodiscard]] int Inset() const;
  [[nodiscard]] QSize WordsSize(int position) const;
  [[nodiscard]] int Last() const { return static_cast<int>(numbers_.size()) - 1; }

  QStringList numbers_;
  QStringList words_;
  int stretched_ = -1;
  mutable Measured measured_;
};

}  // namespace halvane
