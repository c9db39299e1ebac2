#include "reporter/file_text.h"

#include <algorithm>

#include "core/job_text_encoding.h"
#include "reporter/hidden_characters.h"

namespace halvane {
namespace {

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

void AppendEscape(std::string& out, char byte) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto value = static_cast<unsigned char>(byte);
  out.append("\\x") += kDigits[value >> 4U];
  out += kDigits[value & 0xFU];
}

template <typename Condition>
std::string Escaped(std::string_view name, const Condition& isEscaped) {
  std::string text;
  while (!name.empty()) {
    const std::string_view character =
        name.substr(0, LengthByLead(static_cast<unsigned char>(name[0])));
    const bool isWhole = IsUtf8(character);
    if (!isWhole || isEscaped(name[0]) || name.starts_with("\\x")) {
      AppendEscape(text, name[0]);
    } else {
      text += character;
    }
    name.remove_prefix(isWhole ? character.size() : 1);
  }
  return text;
}

bool IsPlain(char c) { return c >= ' ' && c <= '~' && c != '\\'; }

}  // namespace

std::string EscapedFileName(std::string_view name) {
  if (std::ranges::all_of(name, IsPlain)) return std::string(name);
  return Escaped(name, [](char /*c*/) { return false; });
}

std::string EscapedFileNameOnOneLine(std::string_view name) {
  if (std::ranges::all_of(name, IsPlain)) return std::string(name);
  return Escaped(name, IsControl);
}

}  // namespace halvane
