#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace halvane {

/// How lines of text end: the same everywhere, so that what the program writes on one system can be
/// compared with what it writes on another.
inline constexpr std::string_view kLineEnd = "\n";

/// Standard output takes no more: a closed pipe, a full disk. The message is the system's reason.
class OutputFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Standard output, written in large pieces. A pipe, which other programs may write into too, gets
/// whole lines in pieces that the system keeps in one; a longer line is a piece of its own, which
/// another program's may come into the middle of.
class StandardOutput {
 public:
  StandardOutput();

  /// What is to be written; append to it.
  std::string& pending() { return pending_; }
  /// Writes what is pending once it is worth a call of the system. Throws `OutputFailure`.
  void WriteSome() {
    if (pending_.size() >= kPieceSize) Flush();
  }
  /// Writes all that is pending. Throws `OutputFailure`; what was pending is dropped.
  void Flush();

 private:
  static constexpr std::size_t kPieceSize = 256 * 1024;

  /// How much of what is pending goes out in one call.
  [[nodiscard]] std::string_view NextPiece(std::string_view rest) const;

  std::size_t mostAtOnce_ = SIZE_MAX;  ///< bytes that are kept in one
  std::string pending_;
};

/// Whether a terminal shows the stream.
bool OutputIsTerminal();
bool ErrorIsTerminal();

/// Writes to standard error. There is no one left to tell when that fails.
void WriteErrorText(std::string_view text);

}  // namespace halvane
