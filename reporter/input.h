#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace halvane {

/// Standard input, or a file or a pipe that is read from its begin on.
class InputBytes {
 public:
  /// Standard input.
  InputBytes() = default;
  ~InputBytes();
  InputBytes(const InputBytes&) = delete;
  InputBytes& operator=(const InputBytes&) = delete;

  /// A file or a pipe instead.
  std::error_code Open(const std::string& path);

  /// Waits for input and reads what there is, at most `room`; gives how much. 0 at its end, on an
  /// `error`, and when the user interrupts the waiting.
  std::size_t Read(std::span<char> room, std::error_code& error) const;
  /// Whether `Read` would give something, or the end, at once.
  [[nodiscard]] bool IsReady() const;

 private:
  std::intptr_t handle_ = 0;  ///< as the system calls what is open
  bool isOpened_ = false;     ///< here, so that it is closed here
};

/// A list of names in standard input or a file, one a line, as every system writes lines: LF or CR
/// LF ends them, and a byte order mark in front counts for nothing. A list of names that a zero
/// byte ends has them as they stand.
class InputLines {
 public:
  enum class End { Line, Zero };

  /// Of standard input.
  explicit InputLines(End end = End::Line) : end_(end) {}

  /// Takes the list from a file or a pipe instead.
  std::error_code Open(const std::string& path);

  /// The next name without its end, empty ones passed over; nothing at the end of the input or on
  /// an interruption. What can be no file's name, and an input that cannot be read, come as
  /// sentences in `complaints`.
  std::optional<std::string> Next(std::vector<std::string>& complaints);
  /// Whether there is something to read without waiting for who writes it.
  [[nodiscard]] bool IsAtHand() const;

 private:
  struct Line {
    std::string text;
    bool isTooLong = false;
    bool atEnd = false;  ///< nothing behind it
  };

  Line Read(std::vector<std::string>& complaints);
  void TakeMarks(std::string& text);
  [[nodiscard]] char endOfName() const { return end_ == End::Line ? '\n' : '\0'; }

  End end_;
  std::string name_ = "standard input";  ///< as complaints call it
  std::shared_ptr<InputBytes> bytes_ = std::make_shared<InputBytes>();
  bool isFirst_ = true;
  std::vector<char> block_;
  std::string_view rest_;  ///< of `block_`, not yet taken
};

}  // namespace halvane
