#pragma once

#include <QWidget>

namespace halvane {

/// A panel that goes from full blue at its top to black at its bottom, for white text.
class GradientPanel : public QWidget {
  Q_OBJECT
 public:
  explicit GradientPanel(const QString& name, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace halvane
