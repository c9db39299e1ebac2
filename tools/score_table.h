#pragma once

#include <array>
#include <cstddef>

#include "core/checked_array.h"
#include "core/integer.h"

namespace halvane {

/// A lookup table of scores with several subscripts, each from 0 to its bound. Scores start at 1,
/// so cells with a subscript of 0 are commonly left at 0.
template <int... Bounds>
class ScoreTable {
 public:
  /// Throws `SubscriptOutOfRange` for a subscript below 0 or above its bound.
  template <typename... Subscripts>
  requires(sizeof...(Subscripts) == sizeof...(Bounds)) Integer& at(Subscripts... subscripts) {
    return cells_[Position({subscripts...})];
  }
  template <typename... Subscripts>
  requires(sizeof...(Subscripts) == sizeof...(Bounds))
      [[nodiscard]] const Integer& at(Subscripts... subscripts) const {
    return cells_[Position({subscripts...})];
  }

 private:
  static constexpr std::array<std::size_t, sizeof...(Bounds)> kSizes{(Bounds + 1)...};

  /// The first subscript runs fastest.
  static std::size_t Position(const std::array<int, sizeof...(Bounds)>& subscripts) {
    std::size_t position = 0;
    for (std::size_t i = kSizes.size(); i-- > 0;) {
      position = position * kSizes[i] + CheckedSubscript(subscripts[i], kSizes[i]);
    }
    return position;
  }

  std::array<Integer, ((Bounds + 1) * ...)> cells_{};
};

/// Copies a table from paper; `place(row, column)` is the cell that a number goes to, both counted
/// from 0.
template <std::size_t Rows, std::size_t Columns, typename Place>
void CopyFromPaper(const std::array<std::array<Integer, Columns>, Rows>& paper,
                   const Place& place) {
  int row = 0;
  for (const auto& cells : paper) {
    int column = 0;
    for (const Integer cell : cells) place(row, column++) = cell;
    ++row;
  }
}

}  // namespace halvane
