#pragma once

#include <cstdint>
#include <type_traits>

namespace halvane {

/// Random numbers that are the same for the same seed on every machine.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed * 2 + 1) {}

  /// A number from 0 to `count` - 1.
  int Below(int count) { return static_cast<int>(Next() % static_cast<std::uint64_t>(count)); }
  /// True once in `count` times.
  bool OneIn(int count) { return Below(count) == 0; }
  /// An element of a sequence that is not empty.
  template <typename Sequence>
  decltype(auto) Of(Sequence&& sequence) {
    return sequence[static_cast<typename std::remove_cvref_t<Sequence>::size_type>(
        Below(static_cast<int>(sequence.size())))];
  }

 private:
  std::uint64_t Next() {
    // SplitMix64: short, and good enough for choosing keys.
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31U);
  }

  std::uint64_t state_;
};

}  // namespace halvane
