#pragma once

#include <QString>
#include <QWidget>
#include <vector>

class QLabel;
class QSlider;

namespace halvane {

/// A slider under its scale: at each mark a tick label and, under that, words that wrap. The marks
/// stand at equal distances from one end of the slider to the other, each with a column of one
/// width for its labels, so the slider ends within the first and the last column.
class LabelledScale : public QWidget {
  Q_OBJECT
 public:
  /// `slider` becomes a child.
  LabelledScale(QSlider* slider, QWidget* parent);

  /// Adds a mark behind the others; the labels have these names.
  void AddMark(const QString& tick, const QString& tickName, const QString& words,
               const QString& wordsName);

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  /// As narrow as the longest word of all lets the columns be, and as high as that needs.
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  /// Leads from the words down to the slider.
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] int ColumnWidth(int width) const;
  [[nodiscard]] int WordsHeight(int columnWidth) const;

  struct Mark {
    QLabel* tick;
    QLabel* words;
  };
  QSlider* slider_;
  std::vector<Mark> marks_;
};

}  // namespace halvane
