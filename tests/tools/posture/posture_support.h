#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tools/posture/posture_rows.h"

namespace halvane {

/// The control of a tool that has the widget "array(index)"; for an index beyond all of them, any
/// control of the array.
inline const PostureControl& ControlNamed(std::span<const PostureControl> controls,
                                          std::string_view array, int index) {
  const std::string widget = std::string(array) + "(" + std::to_string(index) + ")";
  for (const PostureControl& control : controls) {
    for (int own = control.first; own <= control.last(); ++own) {
      if (WidgetName(control, own) == widget) return control;
    }
  }
  for (const PostureControl& control : controls) {
    if (control.objectName.starts_with(array)) return control;
  }
  throw std::invalid_argument(widget);
}

}  // namespace halvane
