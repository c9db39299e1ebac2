#include "tests/fuzz/output_shape.h"

#include <algorithm>
#include <cstddef>

#include "core/job_text_encoding.h"

namespace halvane {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsHexDigit(char c) { return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

/// Goes through a JSON text from left to right; each function says whether what it is named for
/// stands next, and takes it.
class JsonText {
 public:
  explicit JsonText(std::string_view text) : rest_(text) {}

  bool Object() {
    return List('{', '}', [this] { return String() && Take(":") && Value(); });
  }
  [[nodiscard]] bool isAtEnd() const { return rest_.empty(); }

 private:
  bool Value() {
    if (rest_.starts_with('{')) return Object();
    if (rest_.starts_with('[')) return List('[', ']', [this] { return Value(); });
    if (rest_.starts_with('"')) return String();
    return Take("true") || Take("false") || Take("null") || Number();
  }

  template <typename Element>
  bool List(char open, char close, const Element& element) {
    if (!Take({&open, 1})) return false;
    if (Take({&close, 1})) return true;
    do {
      if (!element()) return false;
    } while (Take(","));
    return Take({&close, 1});
  }

  bool String() {
    if (!Take("\"")) return false;
    while (!rest_.empty() && rest_.front() != '"') {
      if (static_cast<unsigned char>(rest_.front()) < ' ') return false;
      if (rest_.front() == '\\') {
        if (!Escape()) return false;
      } else {
        rest_.remove_prefix(1);
      }
    }
    return Take("\"");
  }

  bool Escape() {
    constexpr std::string_view kShort = "\"\\/bfnrt";
    Take("\\");
    if (rest_.empty()) return false;
    const char kind = rest_.front();
    rest_.remove_prefix(1);
    if (kind != 'u') return kShort.find(kind) != std::string_view::npos;
    for (int digit = 0; digit < 4; ++digit) {
      if (rest_.empty() || !IsHexDigit(rest_.front())) return false;
      rest_.remove_prefix(1);
    }
    return true;
  }

  bool Number() {
    Take("-");
    if (!Take("0") && !Digits()) return false;
    if (Take(".") && !Digits()) return false;
    if (!Take("e") && !Take("E")) return true;
    if (!Take("+")) Take("-");
    return Digits();
  }

  bool Digits() {
    if (rest_.empty() || !IsDigit(rest_.front())) return false;
    while (!rest_.empty() && IsDigit(rest_.front())) rest_.remove_prefix(1);
    return true;
  }

  bool Take(std::string_view text) {
    if (!rest_.starts_with(text)) return false;
    rest_.remove_prefix(text.size());
    return true;
  }

  std::string_view rest_;
};

/// Takes a field from the front of a table; false where it is none.
bool TakeCsvField(std::string_view& rest) {
  if (!rest.starts_with('"')) {
    const std::size_t end = std::min(rest.find_first_of(",\r\n\""), rest.size());
    rest.remove_prefix(end);
    return !rest.starts_with('"');
  }
  while (true) {
    const std::size_t end = rest.find('"', 1);
    if (end == std::string_view::npos) return false;
    rest.remove_prefix(end + 1);
    // A doubled one stands for itself.
    if (!rest.starts_with('"')) return true;
  }
}

/// Takes a record from the front of a table; gives the number of its fields, 0 where it is none.
int TakeCsvRecord(std::string_view& rest) {
  constexpr std::string_view kEnd = "\r\n";
  int fields = 0;
  while (TakeCsvField(rest)) {
    ++fields;
    if (rest.starts_with(kEnd)) {
      rest.remove_prefix(kEnd.size());
      return fields;
    }
    if (!rest.starts_with(',')) return 0;
    rest.remove_prefix(1);
  }
  return 0;
}

}  // namespace

std::string JsonLinesProblem(std::string_view text) {
  if (!IsUtf8(text)) return "the lines are no UTF-8";
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) return "the last line has no end";
    JsonText line(text.substr(0, end));
    if (!line.Object() || !line.isAtEnd()) {
      return "no JSON object: " + std::string(text.substr(0, end));
    }
    text.remove_prefix(end + 1);
  }
  return {};
}

std::string CsvProblem(std::string_view text) {
  if (!IsUtf8(text)) return "the table is no UTF-8";
  int expected = 0;
  while (!text.empty()) {
    const std::string_view before = text;
    const int fields = TakeCsvRecord(text);
    if (expected == 0) expected = fields;
    if (fields == 0 || fields != expected) {
      return std::to_string(fields) + " fields, not " + std::to_string(expected) +
             ", in the record that begins " + std::string(before.substr(0, 200));
    }
  }
  return {};
}

std::string TerminalProblem(std::string_view text) {
  if (!IsUtf8(text)) return "the text is no UTF-8";
  for (const char c : text) {
    if (c != '\n' && IsControl(c)) return "a control character in: " + std::string(text);
  }
  return {};
}

std::string TagsOf(std::string_view page) {
  std::string tags;
  std::size_t begin = page.find('<');
  while (begin != std::string_view::npos) {
    const std::size_t end = std::min(page.find('>', begin), page.size() - 1);
    tags.append(page.substr(begin, end - begin + 1)) += '\n';
    begin = page.find('<', end);
  }
  return tags;
}

}  // namespace halvane
