#pragma once

#include <QIcon>
#include <QString>

namespace halvane {

/// An icon whose file is read when it is drawn for the first time. Reading a drawing takes longer
/// than all else that a button with a picture needs, and most buttons draw theirs themselves.
[[nodiscard]] QIcon LateIcon(const QString& file);

}  // namespace halvane
