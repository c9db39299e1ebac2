#include "core/job_text_encoding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace halvane {
namespace {

// Windows-1252, bytes 0x80 to 0x9F; the others are the code points of the same number. Source: the
// mapping table of the Unicode Consortium, with the unassigned bytes 81, 8D, 8F, 90 and 9D kept as
// the control characters of that number.
constexpr std::array<char32_t, 32> kUpperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80 to 87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88 to 8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90 to 97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98 to 9F
};

/// Looks at every byte instead of stopping at the first that is none, which lets the processor take
/// many at a time.
bool IsAllAscii(std::string_view text) {
  unsigned char seen = 0;
  for (const char c : text) seen |= static_cast<unsigned char>(c);
  return seen < 0x80;
}

char32_t CodePointOf(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? kUpperControls[byte - 0x80U] : byte;
}

std::optional<char> ByteOf(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
    return static_cast<char>(codePoint);
  }
  const auto* const found = std::find(kUpperControls.begin(), kUpperControls.end(), codePoint);
  if (found == kUpperControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

struct Decoded {
  char32_t codePoint;
  std::size_t length;
};

/// The character at the start of `bytes`, nothing where they are not well-formed UTF-8.
std::optional<Decoded> DecodeOne(std::string_view bytes) {
  const auto byteAt = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char lead = byteAt(0);
  if (lead < 0x80) return Decoded{lead, 1};
  std::size_t length = 0;
  char32_t smallest = 0;
  char32_t codePoint = 0;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2, smallest = 0x80, codePoint = lead & 0x1FU;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3, smallest = 0x800, codePoint = lead & 0x0FU;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4, smallest = 0x10000, codePoint = lead & 0x07U;
  } else {
    return std::nullopt;
  }
  if (bytes.size() < length) return std::nullopt;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byteAt(i) & 0xC0U) != 0x80U) return std::nullopt;
    codePoint = (codePoint << 6) | (byteAt(i) & 0x3FU);
  }
  const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  if (codePoint < smallest || codePoint > 0x10FFFF || surrogate) return std::nullopt;
  return Decoded{codePoint, length};
}

/// `text` in Windows-1252, nothing where a character has no place in it.
std::optional<std::string> ToWindows1252(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const auto character = DecodeOne(text);
    if (!character) return std::nullopt;
    const auto byte = ByteOf(character->codePoint);
    if (!byte) return std::nullopt;
    bytes += *byte;
    text.remove_prefix(character->length);
  }
  return bytes;
}

}  // namespace

void AppendUtf8(std::string& text, char32_t codePoint) {
  const auto tail = [&](unsigned shift) {
    text += static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
  };
  if (codePoint < 0x80) {
    text += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    text += static_cast<char>(0xC0U | (codePoint >> 6U));
    tail(0);
  } else if (codePoint < 0x10000) {
    text += static_cast<char>(0xE0U | (codePoint >> 12U));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0U | (codePoint >> 18U));
    tail(12);
    tail(6);
    tail(0);
  }
}

bool IsUtf8(std::string_view bytes) {
  if (IsAllAscii(bytes)) return true;
  while (!bytes.empty()) {
    const auto character = DecodeOne(bytes);
    if (!character) return false;
    bytes.remove_prefix(character->length);
  }
  return true;
}

std::size_t WholeCharacters(std::string_view bytes) {
  // No character has more than four bytes.
  for (std::size_t tail = 1; tail <= 3 && tail <= bytes.size(); ++tail) {
    const auto byte = static_cast<unsigned char>(bytes[bytes.size() - tail]);
    if (byte < 0x80) break;
    if (byte < 0xC0) continue;
    const std::size_t length = byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
    return length > tail ? bytes.size() - tail : bytes.size();
  }
  return bytes.size();
}

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
  }));
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
  // No character has less than a byte.
  if (text.size() <= count) return text;
  std::size_t end = 0;
  for (std::size_t i = 0; i < count && end < text.size(); ++i) {
    ++end;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) ++end;
  }
  return text.substr(0, end);
}

std::string DecodeJobText(std::string bytes) {
  if (IsUtf8(bytes)) return bytes;
  std::string text;
  text.reserve(Utf8SizeOfWindows1252(bytes));
  AppendFromWindows1252(text, bytes);
  return text;
}

void AppendFromWindows1252(std::string& text, std::string_view bytes) {
  if (IsAllAscii(bytes)) {
    text += bytes;
    return;
  }
  for (const char byte : bytes) AppendUtf8(text, CodePointOf(static_cast<unsigned char>(byte)));
}

std::size_t Utf8SizeOfWindows1252(std::string_view bytes) {
  std::size_t size = bytes.size();
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) continue;
    size += CodePointOf(byte) < 0x800 ? 1 : 2;
  }
  return size;
}

std::string EncodeJobText(std::string text) {
  if (IsAllAscii(text)) return text;
  auto bytes = ToWindows1252(text);
  if (!bytes || IsUtf8(*bytes)) return text;
  return *std::move(bytes);
}

}  // namespace halvane
