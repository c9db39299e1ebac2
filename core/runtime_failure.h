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

/// A failure that stops the computation or command under way. It ends at a command that ends
/// without a word, at the top of the event loop or at the reporter's line for a job; on its way
/// there it is caught by what has to undo a step or give the failure its place, and where something
/// can go on without the part that failed.
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
