#pragma once

#include "widgets/text_box.h"

namespace halvane {

/// A text box with room for so many digits of its font, whichever that is at the time. It is wider
/// only where its size policy says so.
class NumberBox : public TextBox {
  Q_OBJECT
 public:
  NumberBox(const QString& name, int digits, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  int digits_;
};

}  // namespace halvane
