#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace halvane {

/// A checksum of bytes that come piece by piece, for names of files and to see whether a file is
/// whole (64 bits, FNV-1a). No protection against somebody who wants two contents to look equal.
class Checksum {
 public:
  void Add(std::string_view bytes);
  /// Sixteen hexadecimal digits, letters small.
  [[nodiscard]] std::string Text() const;

 private:
  std::uint64_t value_ = 0xCBF29CE484222325U;
};

/// How many digits the text of a checksum has.
constexpr std::size_t kChecksumDigits = 16;

/// The checksum of all of `bytes`.
std::string ChecksumOf(std::string_view bytes);

/// Whether a text looks like a checksum.
bool IsChecksum(std::string_view text);

}  // namespace halvane
