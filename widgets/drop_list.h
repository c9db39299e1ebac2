#pragma once

#include <QComboBox>

namespace halvane {

/// A drop-down list that is wide enough for its entries in the font that it has now; the toolkit's
/// own keeps the least width of the font that it was first asked in. The wheel scrolls what is
/// behind it unless it has the focus.
class DropList : public QComboBox {
  Q_OBJECT
 public:
  DropList(const QString& name, QWidget* parent);

  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace halvane
