#include "widgets/product_icon.h"

#include <QIcon>
#include <QString>

namespace halvane {

QIcon ProductIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    icon.addFile(QString(":/assets/icon/halvane-tools-%1.png").arg(size), {size, size});
  }
  return icon;
}

}  // namespace halvane
