#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace halvane {

/// What went wrong. The names are part of the reporter's JSON output.
enum class FailureKind {
  SubscriptOutOfRange,
  Overflow,
  DivisionByZero,
  InvalidCall,
  TypeMismatch,
  InputPastEnd,
  FileAlreadyOpen,
  FileError,
  OutOfMemory,
};

/// The name of a kind as it stands above, for output that programs read.
std::string_view KindName(FailureKind kind);

/// A failure that stops the computation or command under way. Nothing between the place that throws
/// it and one of the three places that may catch it looks at it: a command that ends silently, the
/// top of the event loop, and the reporter.
class RuntimeFailure : public std::runtime_error {
 public:
  /// The message is the kind's own sentence.
  explicit RuntimeFailure(FailureKind kind);
  /// The message is the kind's own sentence, a colon and `detail`.
  RuntimeFailure(FailureKind kind, const std::string& detail);

  [[nodiscard]] FailureKind kind() const { return kind_; }

 private:
  FailureKind kind_;
};

}  // namespace halvane
