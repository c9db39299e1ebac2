#pragma once

#include <QStringList>
#include <QWidget>

class QSlider;

namespace halvane {

/// The labels under a slider: a number at each of its positions and, where given, words under the
/// numbers, each centred on its mark and kept inside.
class TickLabels : public QWidget {
  Q_OBJECT
 public:
  /// One number a position; `words` is empty or has one, possibly empty, text a position.
  TickLabels(const QSlider& slider, QStringList numbers, QStringList words, QWidget* parent);

  [[nodiscard]] const QStringList& numbers() const { return numbers_; }
  [[nodiscard]] const QStringList& words() const { return words_; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int MarkAt(int position) const;

  const QSlider& slider_;
  QStringList numbers_;
  QStringList words_;
};

}  // namespace halvane
