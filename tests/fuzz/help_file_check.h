#pragma once

#include <string>
#include <string_view>

namespace halvane {

/// What became of bytes that were read as a help file.
struct HelpFileVerdict {
  /// "Read", or what the reader says is wrong.
  std::string outcome;
  /// How many entries it has, and how many of them are damaged.
  int entries = 0;
  int damagedEntries = 0;
  int contentsEntries = 0;
  /// What is wrong with the program; empty when it kept its promises.
  std::string problem;
};

/// Reads `bytes`, their contents and their entries. Anything that the reader throws besides
/// `HelpFileFailure` goes through to the caller.
HelpFileVerdict CheckHelpFile(std::string_view bytes);

}  // namespace halvane
