#pragma once

#include <QAbstractButton>

namespace halvane {

/// A two-state button; the one that is down is filled with the highlight colour. Its caption wraps.
class RibbonButton : public QAbstractButton {
  Q_OBJECT
 public:
  RibbonButton(const QString& name, const QString& caption, QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace halvane
