#pragma once

#include "widgets/wrapping_label.h"

class QCheckBox;

namespace halvane {

/// A caption beside its tick box, that wraps; a click on it is a click on the box.
class WrappedCaption : public WrappingLabel {
  Q_OBJECT
 public:
  WrappedCaption(QCheckBox& box, const QString& caption, QWidget* parent);

  /// Lets it get so narrow only that it has no more than these lines, in whichever font.
  void SetMostLines(int lines);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QCheckBox& box_;
  int mostLines_ = 0;  ///< 0: any number
  /// In the present font; asked for with every layout.
  int leastWidth_ = 0;
};

}  // namespace halvane
