#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "core/integer.h"
#include "core/runtime_failure.h"

namespace halvane {

/// Subscript `index` of an array with the bounds 0 to `size` - 1. Throws `SubscriptOutOfRange`.
inline std::size_t CheckedSubscript(int index, std::size_t size) {
  if (index < 0 || static_cast<std::size_t>(index) >= size) {
    throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
  }
  return static_cast<std::size_t>(index);
}

/// Elements 0 to N - 1, each subscript checked.
template <typename T, std::size_t N>
class FixedArray {
 public:
  /// Throws `SubscriptOutOfRange`.
  T& at(int index) { return elements_[CheckedSubscript(index, N)]; }
  [[nodiscard]] const T& at(int index) const { return elements_[CheckedSubscript(index, N)]; }

  void fill(const T& value) { elements_.fill(value); }
  [[nodiscard]] static constexpr int size() { return static_cast<int>(N); }

  bool operator==(const FixedArray&) const = default;

 private:
  std::array<T, N> elements_{};
};

/// Rows 0 to Rows - 1 by columns 0 to Columns - 1, each subscript checked. Stands outside the
/// object, so that two can be swapped without a copy.
template <typename T, std::size_t Rows, std::size_t Columns>
class FixedGrid {
 public:
  /// Throws `SubscriptOutOfRange`.
  T& at(int row, int column) {
    return elements_[CheckedSubscript(row, elements_.size())][CheckedSubscript(column, Columns)];
  }
  [[nodiscard]] const T& at(int row, int column) const {
    return elements_[CheckedSubscript(row, elements_.size())][CheckedSubscript(column, Columns)];
  }

  /// Fills all rows but row 0.
  void FillBehindRow0(const T& value) {
    std::array<T, Columns> row{};
    row.fill(value);
    std::fill(elements_.begin() + 1, elements_.end(), row);
  }

  /// Leaves no row until another grid is swapped in.
  void Drop() { elements_.clear(); }

  [[nodiscard]] static constexpr int rows() { return static_cast<int>(Rows); }
  [[nodiscard]] static constexpr int columns() { return static_cast<int>(Columns); }

  bool operator==(const FixedGrid&) const = default;

 private:
  std::vector<std::array<T, Columns>> elements_ = std::vector<std::array<T, Columns>>(Rows);
};

/// One element a task, at the task's number; slot 0 is there and is never a task. Each subscript is
/// checked. A new array has slot 0 alone.
template <typename T>
class TaskArray {
 public:
  /// Throws `SubscriptOutOfRange`.
  T& at(int task) { return elements_[CheckedSubscript(task, elements_.size())]; }
  [[nodiscard]] const T& at(int task) const {
    return elements_[CheckedSubscript(task, elements_.size())];
  }

  [[nodiscard]] int upperBound() const { return static_cast<int>(elements_.size()) - 1; }

  /// Gives the array the bounds 0 to `upperBound` and empties every element.
  void Redimension(Integer upperBound) { elements_.assign(SlotsUpTo(upperBound), T{}); }
  /// The same, keeping what the old and the new bounds share.
  void RedimensionKeeping(Integer upperBound) { elements_.resize(SlotsUpTo(upperBound)); }
  /// Leaves no element, slot 0 included, until another array is swapped in.
  void Drop() { elements_.clear(); }

  bool operator==(const TaskArray&) const = default;

 private:
  static std::size_t SlotsUpTo(Integer upperBound) {
    return static_cast<std::size_t>(upperBound) + 1;
  }

  std::vector<T> elements_ = std::vector<T>(1);
};

}  // namespace halvane
