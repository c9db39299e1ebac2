#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// What became of bytes that were opened as a job file by a freshly started program.
struct JobFileVerdict {
  /// "Opened", "NotAJobFile" or the name of the failure kind.
  std::string outcome;
  /// The job was read whole and no text in it holds a double quote, so that writing and reading it
  /// again has to give the same bytes; it was tried.
  bool roundTripTried = false;
  /// What is wrong with the program; empty when it kept its promises.
  std::string problem;
};

/// Opens `bytes` from a file in memory, starting from `JobState{}`. Anything that the reader throws
/// besides `RuntimeFailure` goes through to the caller.
JobFileVerdict CheckJobFile(std::string_view bytes);

}  // namespace halvane
