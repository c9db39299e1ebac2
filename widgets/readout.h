#pragma once

#include <QLabel>

namespace halvane {

/// A number that is read and not typed, large; with room for the widest one.
class Readout : public QLabel {
  Q_OBJECT
 public:
  Readout(QString widest, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  QString widest_;
};

}  // namespace halvane
