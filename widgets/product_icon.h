#pragma once

class QIcon;

namespace halvane {

/// The program's icon, in every size that it is drawn in.
QIcon ProductIcon();

}  // namespace halvane
