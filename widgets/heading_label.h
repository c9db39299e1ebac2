#pragma once

#include <QFont>
#include <QLabel>
#include <QSize>
#include <QString>

namespace halvane {

/// The heading of a column: wraps to so many lines at most, in the middle and down to the column,
/// and keeps the room of all of them, so that columns with shorter headings begin at the same
/// height.
class HeadingLabel : public QLabel {
  Q_OBJECT
 public:
  HeadingLabel(const QString& text, int lines, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] bool hasHeightForWidth() const override { return false; }

 private:
  struct Known {
    QString text;
    QFont font;
    QSize least;
  };

  int lines_;
  /// Asked for with every layout.
  mutable Known known_;
};

}  // namespace halvane
