#pragma once

#include <QFont>
#include <QLabel>
#include <QString>
#include <map>

namespace halvane {

/// A caption that wraps. Layouts ask it again and again how high it is at the same few widths, and
/// laying a text out is most of what opening a window costs beside its pictures: so it remembers.
class WrappingLabel : public QLabel {
  Q_OBJECT
 public:
  WrappingLabel(const QString& text, QWidget* parent);

  [[nodiscard]] int heightForWidth(int width) const override;

 private:
  struct Known {
    QString text;
    QFont font;
    std::map<int, int> heights;  ///< by width
  };
  mutable Known known_;
};

}  // namespace halvane
