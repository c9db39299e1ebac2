#pragma once

#include <QString>
#include <vector>

class QWidget;

namespace halvane {

/// Something wrong with the look of a window.
struct Finding {
  /// The control, by the name of its object.
  QString control;
  QString what;
};

using Findings = std::vector<Finding>;

inline void Append(Findings& all, const Findings& more) {
  all.insert(all.end(), more.begin(), more.end());
}

/// The name of a control: its own, else that of the next one around it that has a name and which
/// kind of control in it.
QString NameOfControl(const QWidget& control);

}  // namespace halvane
