#include "reporter/hidden_characters.h"

#include <gtest/gtest.h>

#include "reporter/html_text.h"
#include "reporter/printable_text.h"

namespace halvane {
namespace {

TEST(HiddenCharacters, AreToldByTheirNumbersEachOnce) {
  EXPECT_EQ(HiddenCharactersIn("Line 4, caf\u00e9 \u65e5\u672c \U0001F600 \U0001F1E9"), "");
  EXPECT_EQ(HiddenCharactersIn("a\u202Eb\u200Bc\u202E"), "U+202E, U+200B");
  EXPECT_EQ(HiddenCharactersIn("\u00AD\u034F\u061C\u115F\u1160\u17B4\u180E"),
            "U+00AD, U+034F, U+061C, U+115F, U+1160, U+17B4, U+180E");
  EXPECT_EQ(HiddenCharactersIn("\u200F\u2028\u2029\u202A\u2060\u2066\u2069\u3164\uFEFF"),
            "U+200F, U+2028, U+2029, U+202A, U+2060, U+2066, U+2069, U+3164, U+FEFF");
  EXPECT_EQ(HiddenCharactersIn("\uFFA0\uFFF9\U000E0001"), "U+FFA0, U+FFF9, U+E0001");
  // The neighbours of what is hidden.
  EXPECT_EQ(HiddenCharactersIn("\u00AC\u00AE\u200A\u2010\u2027\u202F\u205F\u2070\uFFFC\uFFFD"), "");
}

TEST(HiddenCharacters, AreShownEscapedOnTerminalsAndPages) {
  EXPECT_EQ(PrintableText("exe\u202Etjq.\u200B"), "exe<U+202E>tjq.<U+200B>");
  std::string html;
  AppendHtml(html, "a\u2066b");
  EXPECT_EQ(html, "a&lt;U+2066&gt;b");
}

}  // namespace
}  // namespace halvane
