#include "reporter/hidden_characters.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace halvane {
namespace {

struct Range {
  char32_t first;
  char32_t last;
};
constexpr std::array kHidden{
    Range{0xAD, 0xAD},        // soft hyphen
    Range{0x34F, 0x34F},      // grapheme joiner
    Range{0x61C, 0x61C},      // direction of letters
    Range{0x115F, 0x1160},    // fillers
    Range{0x17B4, 0x17B5},    // vowels without a shape
    Range{0x180E, 0x180E},    // vowel separator
    Range{0x200B, 0x200F},    // of no width, marks of direction
    Range{0x2028, 0x202E},    // separators of lines, overrides of direction
    Range{0x2060, 0x206F},    // joiners, isolates of direction
    Range{0x3164, 0x3164},    // filler
    Range{0xFEFF, 0xFEFF},    // byte order mark
    Range{0xFFA0, 0xFFA0},    // filler
    Range{0xFFF9, 0xFFFB},    // marks of annotations
    Range{0xE0000, 0xE007F},  // tags
};

/// Nearly all fields are numbers.
bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

char32_t CodePointOf(std::string_view character) {
  const auto byte = [&character](std::size_t i) {
    return static_cast<unsigned char>(character[i]);
  };
  if (character.size() == 1) return byte(0);
  // The first byte has a bit for each byte of the character.
  char32_t code = byte(0) & (0xFFU >> (character.size() + 1));
  for (std::size_t i = 1; i < character.size(); ++i) code = code << 6U | (byte(i) & 0x3FU);
  return code;
}

/// "U+202E".
std::string NameOf(std::string_view character) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  constexpr std::size_t kLeastDigits = 4;
  std::string digits;
  for (char32_t rest = CodePointOf(character); rest > 0 || digits.size() < kLeastDigits;
       rest >>= 4U) {
    digits.insert(digits.begin(), kDigits[rest & 0xFU]);
  }
  return std::string("U+").append(digits);
}

}  // namespace

bool IsHiddenCharacter(std::string_view character) {
  // None of them is a byte of its own.
  if (character.size() < 2) return false;
  const char32_t code = CodePointOf(character);
  return std::ranges::any_of(
      kHidden, [code](const Range& range) { return code >= range.first && code <= range.last; });
}

std::string EscapeOfCharacter(std::string_view character) {
  return std::string("<").append(NameOf(character)).append(">");
}

std::string HiddenCharactersIn(std::string_view text) {
  std::string names;
  if (std::ranges::all_of(text, IsAscii)) return names;
  while (!text.empty()) {
    const std::string_view character =
        text.substr(0, LengthByLead(static_cast<unsigned char>(text[0])));
    if (IsHiddenCharacter(character)) {
      const std::string name = NameOf(character);
      if (names.find(name) == std::string::npos) names += (names.empty() ? "" : ", ") + name;
    }
    text.remove_prefix(character.size());
  }
  return names;
}

std::size_t LengthByLead(unsigned char lead) {
  if (lead >= 0xF0) return 4;
  if (lead >= 0xE0) return 3;
  return lead >= 0xC2 ? 2 : 1;
}

}  // namespace halvane
