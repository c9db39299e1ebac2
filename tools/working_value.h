#pragma once

#include <string_view>
#include <variant>
#include <vector>

#include "core/checked_array.h"
#include "core/tagged_field.h"

namespace halvane {

/// A working value of a tool under its own name, for programs that read results: one value, or one
/// an element from element 0 on.
struct WorkingValue {
  std::string_view name;
  std::variant<TaggedField, std::vector<TaggedField>> value;
  std::string_view unit = {};  ///< empty: a plain number
  std::string_view meaning = {};
};

/// The elements of an array as values.
template <typename T, std::size_t N>
std::vector<TaggedField> Elements(const FixedArray<T, N>& array) {
  std::vector<TaggedField> elements;
  elements.reserve(N);
  for (int i = 0; i < array.size(); ++i) elements.emplace_back(array.at(i));
  return elements;
}
template <typename T>
std::vector<TaggedField> Elements(const TaskArray<T>& array) {
  std::vector<TaggedField> elements;
  elements.reserve(static_cast<std::size_t>(array.upperBound()) + 1);
  for (int i = 0; i <= array.upperBound(); ++i) elements.emplace_back(array.at(i));
  return elements;
}

}  // namespace halvane
