#pragma once

#include <QKeyEvent>

namespace halvane {

/// The key as a place on the keyboard, since the same place may carry another letter when the shift
/// key goes up first; as the letter where the system does not tell the place.
inline int PlaceOf(const QKeyEvent& event) {
  const auto place = static_cast<int>(event.nativeScanCode());
  return place != 0 ? place : event.key();
}

}  // namespace halvane
