#include "widgets/drop_list.h"

#include "widgets/layout.h"

namespace halvane {

DropList::DropList(const QString& name, QWidget* parent) : QComboBox(parent) {
  setObjectName(name);
  KeepWheelOff(*this);
}

}  // namespace halvane
