#include "core/checksum.h"

#include <algorithm>

namespace halvane {
namespace {

constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::uint64_t kPrime = 0x100000001B3U;

}  // namespace

void Checksum::Add(std::string_view bytes) {
  for (const char byte : bytes) {
    value_ ^= static_cast<unsigned char>(byte);
    value_ *= kPrime;
  }
}

std::string Checksum::Text() const {
  std::string text(kChecksumDigits, '0');
  std::uint64_t rest = value_;
  for (std::size_t i = text.size(); i-- > 0; rest /= kDigits.size()) {
    text[i] = kDigits[rest % kDigits.size()];
  }
  return text;
}

std::string ChecksumOf(std::string_view bytes) {
  Checksum checksum;
  checksum.Add(bytes);
  return checksum.Text();
}

bool IsChecksum(std::string_view text) {
  return text.size() == kChecksumDigits && std::all_of(text.begin(), text.end(), [](char digit) {
           return kDigits.find(digit) != std::string_view::npos;
         });
}

}  // namespace halvane
