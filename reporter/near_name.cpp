#include "reporter/near_name.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace halvane {
namespace {

/// How many letters have to be put in, left out or changed to make `b` of `a`.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

/// A word of three letters may be one off, longer ones two.
std::size_t MostSlips(std::string_view typed) { return typed.size() < 4 ? 1 : 2; }

/// No name is so long; comparing takes the time of both lengths.
constexpr std::size_t kLongestTyped = 40;

}  // namespace

std::string HintFor(std::string_view typed, std::span<const std::string> names) {
  if (typed.size() > kLongestTyped) return {};
  const auto distance = [typed](const std::string& name) { return Distance(typed, name); };
  const auto nearest = std::ranges::min_element(names, {}, distance);
  if (nearest == names.end() || distance(*nearest) > MostSlips(typed)) return {};
  return "; did you mean \"" + *nearest + "\"?";
}

}  // namespace halvane
