#pragma once

#include <QWidget>

namespace halvane {

/// A panel that goes from full blue at its top to black at its bottom, for white text.
class GradientPanel : public QWidget {
  Q_OBJECT
 public:
  explicit GradientPanel(const QString& name, QWidget* parent);

  /// Gives the panel round corners, in which its ground is seen.
  void RoundCorners();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintBoxes(QPainter& painter) const;

  bool round_ = false;
};

}  // namespace halvane
