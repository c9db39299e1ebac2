#include "help/help_markup.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "core/ascii.h"
#include "core/job_text_encoding.h"

namespace halvane {
namespace {

struct EntityRow {
  std::string_view name;
  char32_t codePoint;
};

constexpr std::array kEntities{
    EntityRow{"amp", '&'},      EntityRow{"lt", '<'},       EntityRow{"gt", '>'},
    EntityRow{"quot", '"'},     EntityRow{"apos", '\''},    EntityRow{"ndash", 0x2013},
    EntityRow{"mdash", 0x2014}, EntityRow{"lsquo", 0x2018}, EntityRow{"rsquo", 0x2019},
    EntityRow{"sbquo", 0x201A}, EntityRow{"ldquo", 0x201C}, EntityRow{"rdquo", 0x201D},
    EntityRow{"bdquo", 0x201E}, EntityRow{"bull", 0x2022},  EntityRow{"hellip", 0x2026},
    EntityRow{"euro", 0x20AC},  EntityRow{"trade", 0x2122}, EntityRow{"minus", 0x2212},
    EntityRow{"le", 0x2264},    EntityRow{"ge", 0x2265},
};

// The names of U+00A0 to U+00FF, in order.
constexpr std::array<std::string_view, 96> kLatin1{
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",    // A0
    "uml",    "copy",   "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",    // A8
    "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",  "para",   "middot",  // B0
    "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest",  // B8
    "Agrave", "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil",  // C0
    "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave", "Iacute", "Icirc",  "Iuml",    // C8
    "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",   "times",   // D0
    "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",   // D8
    "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil",  // E0
    "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",    // E8
    "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",  // F0
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml",    // F8
};

constexpr std::size_t kLongestEntity = 10;
constexpr char32_t kLastCodePoint = 0x10FFFF;

std::optional<char32_t> NumberedEntity(std::string_view digits) {
  unsigned base = 10;
  if (digits.starts_with('x') || digits.starts_with('X')) {
    base = 16;
    digits.remove_prefix(1);
  }
  if (digits.empty()) return std::nullopt;
  char32_t value = 0;
  for (const char c : digits) {
    const std::string_view known = "0123456789abcdef";
    const std::size_t digit = known.find(LowerCase(c));
    if (digit >= base) return std::nullopt;
    value = value * base + static_cast<char32_t>(digit);
    if (value > kLastCodePoint) return std::nullopt;
  }
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  return value == 0 || surrogate ? std::nullopt : std::optional(value);
}

std::optional<char32_t> EntityOf(std::string_view name) {
  if (name.starts_with('#')) return NumberedEntity(name.substr(1));
  for (const EntityRow& row : kEntities) {
    if (row.name == name) return row.codePoint;
  }
  const auto* const found = std::find(kLatin1.begin(), kLatin1.end(), name);
  if (found == kLatin1.end()) return std::nullopt;
  return static_cast<char32_t>(0xA0 + (found - kLatin1.begin()));
}

constexpr std::string_view kBlanks = " \t\r\n\f";

void SkipBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
}

/// Takes what comes before the first of `ends`, or everything.
std::string_view TakeUntil(std::string_view& text, std::string_view ends) {
  const std::string_view taken = text.substr(0, text.find_first_of(ends));
  text.remove_prefix(taken.size());
  return taken;
}

std::string_view TakeValue(std::string_view& text) {
  if (text.starts_with('"') || text.starts_with('\'')) {
    const std::string_view quote = text.substr(0, 1);
    text.remove_prefix(1);
    const std::string_view value = TakeUntil(text, quote);
    if (!text.empty()) text.remove_prefix(1);
    return value;
  }
  return TakeUntil(text, " \t\r\n\f>");
}

/// Takes the attributes of a tag and its closing bracket.
void TakeAttributes(std::string_view& text, HelpTag& tag) {
  for (;;) {
    SkipBlanks(text);
    if (text.empty()) return;
    if (text.front() == '>') {
      text.remove_prefix(1);
      return;
    }
    const std::string_view name = TakeUntil(text, " \t\r\n\f=>");
    SkipBlanks(text);
    std::string value;
    if (text.starts_with('=')) {
      text.remove_prefix(1);
      SkipBlanks(text);
      value = WithoutEntities(TakeValue(text));
    }
    if (!name.empty()) tag.attributes.push_back({LowerCase(name), std::move(value)});
  }
}

}  // namespace

std::string_view HelpTag::operator[](std::string_view attribute) const {
  for (const Attribute& each : attributes) {
    if (each.name == attribute) return each.value;
  }
  return {};
}

bool NextTag(std::string_view& text, HelpTag& tag) {
  for (;;) {
    text.remove_prefix(std::min(text.find('<'), text.size()));
    if (text.empty()) return false;
    if (text.starts_with("<!--")) {
      const std::size_t end = text.find("-->");
      text.remove_prefix(end == std::string_view::npos ? text.size() : end + 3);
      continue;
    }
    text.remove_prefix(1);
    const std::string_view name = TakeUntil(text, " \t\r\n\f>");
    if (name.empty()) continue;
    tag.name = LowerCase(name);
    tag.attributes.clear();
    TakeAttributes(text, tag);
    return true;
  }
}

std::string WithoutEntities(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    result += TakeUntil(text, "&");
    if (text.empty()) break;
    const std::size_t end = text.substr(0, kLongestEntity + 1).find(';');
    const auto codePoint =
        end == std::string_view::npos ? std::nullopt : EntityOf(text.substr(1, end - 1));
    if (codePoint) {
      AppendUtf8(result, *codePoint);
      text.remove_prefix(end + 1);
    } else {
      result += '&';
      text.remove_prefix(1);
    }
  }
  return result;
}

}  // namespace halvane
