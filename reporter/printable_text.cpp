#include "reporter/printable_text.h"

#include <algorithm>
#include <cstddef>

#include "core/job_text_encoding.h"
#include "reporter/hidden_characters.h"

namespace halvane {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

bool IsPlain(char c) { return c >= ' ' && c <= '~'; }

/// U+0000 to U+001F and U+007F to U+009F.
bool IsControl(std::string_view character) {
  const auto first = static_cast<unsigned char>(character[0]);
  if (character.size() == 1) return first < 0x20 || first == 0x7F;
  return first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

}  // namespace

bool IsPrintableAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), IsPlain);
}

std::string PrintableText(std::string_view text) {
  if (IsPrintableAscii(text)) return std::string(text);
  std::string printable;
  while (!text.empty()) {
    const std::string_view character =
        text.substr(0, LengthByLead(static_cast<unsigned char>(text[0])));
    const bool wellFormed = IsUtf8(character);
    if (!wellFormed || IsControl(character)) {
      printable += kReplacement;
    } else if (IsHiddenCharacter(character)) {
      printable += EscapeOfCharacter(character);
    } else {
      printable += character;
    }
    text.remove_prefix(wellFormed ? character.size() : 1);
  }
  return printable;
}

}  // namespace halvane
