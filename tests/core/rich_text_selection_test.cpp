// Formatting text that stands already: which characters and paragraphs a selection reaches.
#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "core/rich_text.h"

namespace halvane {
namespace {

// Inside a test, `Run` is a member of the test class.
using TextRun = Run;

constexpr CharacterFormat kPlain{};
constexpr CharacterFormat kBold{.size = 12, .bold = true, .underline = false};
constexpr CharacterFormat kLined{.size = 9, .bold = false, .underline = true};

/// The text of each run, in brackets where it has the look `kBold`; "|" between runs, "/" between
/// paragraphs; a paragraph that is centred begins with "^".
std::string Shown(const RichText& pane) {
  std::string shown;
  for (const Paragraph& paragraph : pane.paragraphs()) {
    if (&paragraph != &pane.paragraphs().front()) shown += "/";
    if (paragraph.format.alignment == Alignment::Center) shown += "^";
    for (const TextRun& run : paragraph.runs) {
      if (&run != &paragraph.runs.front()) shown += "|";
      shown += run.format == kBold ? "[" + run.text + "]" : run.text;
    }
  }
  return shown;
}

struct SelectionRow {
  const char* label;
  std::size_t start;
  std::size_t length;
  const char* shown;
};

// a 0, b 1, c 2, CR 3, LF 4, d 5, e 6, CR 7, LF 8, CR 9, LF 10, f 11
constexpr std::string_view kText = "abc\r\nde\r\n\r\nf";
constexpr std::size_t kMost = std::numeric_limits<std::size_t>::max();

TEST(RichTextSelection, ReachesItsCharactersAndEachParagraphOfWhichItCoversOne) {
  const std::array rows{
      SelectionRow{"nothing at the start", 0, 0, "abc/de//f"},
      SelectionRow{"nothing within", 1, 0, "abc/de//f"},
      SelectionRow{"first character", 0, 1, "^[a]|bc/de//f"},
      SelectionRow{"within a line", 1, 1, "^a|[b]|c/de//f"},
      SelectionRow{"end of a line", 1, 2, "^a|[bc]/de//f"},
      SelectionRow{"whole line", 0, 3, "^[abc]/de//f"},
      SelectionRow{"first half of a line end", 3, 1, "^abc/de//f"},
      SelectionRow{"second half of a line end", 4, 1, "^abc/de//f"},
      SelectionRow{"up to the next line", 0, 5, "^[abc]/de//f"},
      SelectionRow{"into the next line", 0, 6, "^[abc]/^[d]|e//f"},
      SelectionRow{"second line", 5, 2, "abc/^[de]//f"},
      SelectionRow{"line without text", 9, 2, "abc/de/^/f"},
      SelectionRow{"from a line end to the last line", 8, 4, "abc/^de/^/^[f]"},
      SelectionRow{"all", 0, 12, "^[abc]/^[de]/^/^[f]"},
      SelectionRow{"beyond the end", 2, 100, "^ab|[c]/^[de]/^/^[f]"},
      SelectionRow{"as far as can be", 2, kMost, "^ab|[c]/^[de]/^/^[f]"},
      SelectionRow{"at the end", 12, 5, "abc/de//f"},
      SelectionRow{"far beyond the end", kMost, kMost, "abc/de//f"},
  };
  for (const SelectionRow& row : rows) {
    RichText pane;
    pane.Append(kText);
    pane.FormatSelection(row.start, row.length, kBold, Alignment::Center);
    EXPECT_EQ(Shown(pane), row.shown) << row.label;
    EXPECT_EQ(pane.text(), kText) << row.label;
  }
}

TEST(RichTextSelection, LastParagraphWithoutTextHasNoCharacterToCover) {
  RichText pane;
  pane.Append("a\r\n");
  pane.FormatSelection(0, 100, kBold, Alignment::Center);
  EXPECT_EQ(Shown(pane), "^[a]/");
}

TEST(RichTextSelection, CountsCharactersNotBytes) {
  // One, two, three and four bytes a character.
  constexpr std::string_view text = "a\u00E9\u2264\U0001F590z";
  const std::array rows{
      SelectionRow{"one byte", 0, 1, "^[a]|\u00E9\u2264\U0001F590z"},
      SelectionRow{"two bytes", 1, 1, "^a|[\u00E9]|\u2264\U0001F590z"},
      SelectionRow{"three bytes", 2, 1, "^a\u00E9|[\u2264]|\U0001F590z"},
      SelectionRow{"four bytes", 3, 1, "^a\u00E9\u2264|[\U0001F590]|z"},
      SelectionRow{"behind them", 4, 1, "^a\u00E9\u2264\U0001F590|[z]"},
      SelectionRow{"end", 5, 1, "a\u00E9\u2264\U0001F590z"},
  };
  for (const SelectionRow& row : rows) {
    RichText pane;
    pane.Append(text);
    EXPECT_EQ(pane.length(), 5U);
    pane.FormatSelection(row.start, row.length, kBold, Alignment::Center);
    EXPECT_EQ(Shown(pane), row.shown) << row.label;
  }
}

TEST(RichTextSelection, EachLineEndIsAsLongAsItWasWritten) {
  RichText pane;
  pane.Append("a\rb\nc\r\nd");
  EXPECT_EQ(pane.length(), 8U);
  pane.FormatSelection(7, 1, kBold, Alignment::Center);
  EXPECT_EQ(Shown(pane), "a/b/c/^[d]");
  pane.FormatSelection(2, 1, kBold, Alignment::Center);
  EXPECT_EQ(Shown(pane), "a/^[b]/c/^[d]");
}

TEST(RichTextSelection, LaterOneOverridesAndRunsOfOneLookAreOne) {
  RichText pane;
  pane.Append("abcdef");
  pane.FormatSelection(1, 5, kLined, Alignment::Right);
  pane.FormatSelection(3, 1, kBold, Alignment::Left);
  const std::vector<TextRun> split{
      {"a", kPlain, {}}, {"bc", kLined, {}}, {"d", kBold, {}}, {"ef", kLined, {}}};
  EXPECT_EQ(pane.paragraphs()[0].runs, split);
  EXPECT_EQ(pane.paragraphs()[0].format.alignment, Alignment::Left);
  pane.FormatSelection(0, 4, kLined, Alignment::Center);
  EXPECT_EQ(pane.paragraphs()[0].runs, (std::vector<TextRun>{{"abcdef", kLined, {}}}));
}

TEST(RichTextSelection, PictureIsOneCharacterAndTakesTheLook) {
  RichText pane;
  pane.Append("a");
  pane.AppendPicture("folder/chart");
  pane.AppendPicture("folder/other");
  pane.Append("b");
  EXPECT_EQ(pane.length(), 4U);
  pane.FormatSelection(1, 1, kBold, Alignment::Center);
  const std::vector<TextRun> expected{{"a", kPlain, {}},
                                      {"\uFFFC", kBold, "folder/chart"},
                                      {"\uFFFC", kPlain, "folder/other"},
                                      {"b", kPlain, {}}};
  EXPECT_EQ(pane.paragraphs()[0].runs, expected);
  pane.FormatSelection(3, 1, kBold, Alignment::Center);
  EXPECT_EQ(pane.paragraphs()[0].runs[2], expected[2]);
  EXPECT_EQ(pane.paragraphs()[0].runs[3], (TextRun{"b", kBold, {}}));
  EXPECT_EQ(pane.pictures(), (std::vector<std::string>{"folder/chart", "folder/other"}));
}

TEST(RichTextSelection, TabStopsAndTheFormatInForceStay) {
  RichText pane;
  pane.SetTabCount(1);
  pane.SetTab(0, 700);
  pane.SetFont(kLined);
  pane.SetAlignment(Alignment::Right);
  pane.Append("a\r\n");
  pane.FormatSelection(0, 3, kBold, Alignment::Center);
  pane.Append("b");
  EXPECT_EQ(pane.paragraphs()[0].format, (ParagraphFormat{Alignment::Center, {700}}));
  EXPECT_EQ(pane.paragraphs()[1].format, (ParagraphFormat{Alignment::Right, {700}}));
  EXPECT_EQ(pane.paragraphs()[1].runs, (std::vector<TextRun>{{"b", kLined, {}}}));
}

TEST(RichTextSelection, NewPaneHasNoCharacters) {
  RichText pane;
  EXPECT_EQ(pane.length(), 0U);
  pane.FormatSelection(0, 10, kBold, Alignment::Center);
  EXPECT_EQ(pane.paragraphs(), std::vector<Paragraph>(1));
}

}  // namespace
}  // namespace halvane
