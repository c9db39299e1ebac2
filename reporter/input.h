#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace halvane {

/// Waits for standard input and reads what there is, at most `room`; gives how much. 0 at its end,
/// on an `error`, and when the user interrupts the waiting.
std::size_t ReadInput(std::span<char> room, std::error_code& error);

/// The lines of standard input.
class InputLines {
 public:
  /// The next line without its line end, empty ones passed over; nothing at the end of the input or
  /// on an interruption. Lines that can be no file's name, and an input that cannot be read, come
  /// as sentences in `complaints`.
  std::optional<std::string> Next(std::vector<std::string>& complaints);

 private:
  struct Line {
    std::string text;
    bool isTooLong = false;
    bool atEnd = false;  ///< no line end behind it
  };

  Line Read(std::vector<std::string>& complaints);

  std::vector<char> block_;
  std::string_view rest_;  ///< of `block_`, not yet taken
};

}  // namespace halvane
