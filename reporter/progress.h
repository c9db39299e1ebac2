#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace halvane {

/// A progress bar in one line of a terminal, for work that takes over a second.
class Progress {
 public:
  struct Surroundings {
    std::function<double()> seconds;                       ///< since any moment
    std::function<void(std::string_view)> write;           ///< to the terminal
    std::function<std::optional<std::size_t>()> jobsLeft;  ///< nothing where nobody knows
  };

  /// The work begins.
  explicit Progress(Surroundings surroundings);

  /// One more job is done.
  void Advance();
  /// Takes the bar away, before other text and at the end. It comes back with a later job.
  void Clear();

 private:
  [[nodiscard]] std::string Text() const;

  Surroundings surroundings_;
  double nextUpdate_;
  std::size_t done_ = 0;
  bool isCounted_ = false;
  std::optional<std::size_t> total_;
  bool isShown_ = false;
};

}  // namespace halvane
