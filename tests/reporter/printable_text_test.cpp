#include "reporter/printable_text.h"

#include <gtest/gtest.h>

#include <vector>

namespace halvane {
namespace {

struct Row {
  std::string_view label;
  std::string_view text;
  std::string_view expected;
};

TEST(PrintableText, ReplacesWhatCouldSteerATerminal) {
  const std::vector<Row> rows = {
      {"empty", "", ""},
      {"plain", "Line 4 review ~", "Line 4 review ~"},
      {"accents and beyond", "caf\u00E9 \u2014 \u7DDA \U0001F4E6",
       "caf\u00E9 \u2014 \u7DDA \U0001F4E6"},
      {"first character behind the controls", "\u00A0", "\u00A0"},
      {"escape", "\x1B[31mred", "\uFFFD[31mred"},
      {"tab and line end", "a\tb\r\nc", "a\uFFFDb\uFFFD\uFFFDc"},
      {"null", std::string_view("a\0b", 3), "a\uFFFDb"},
      {"delete", "\x7F", "\uFFFD"},
      {"upper control", "a\u0085b\u009Fc", "a\uFFFDb\uFFFDc"},
      {"byte alone", "caf\xE9", "caf\uFFFD"},
      {"byte alone before a letter", "\xE9t\xE9", "\uFFFDt\uFFFD"},
      {"cut character", "\xE2\x82", "\uFFFD\uFFFD"},
      {"overlong slash", "\xC0\xAF", "\uFFFD\uFFFD"},
      {"surrogate", "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
  };
  for (const Row& row : rows) EXPECT_EQ(PrintableText(row.text), row.expected) << row.label;
}

}  // namespace
}  // namespace halvane
