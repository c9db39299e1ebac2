#include "help/help_file.h"

#include <gtest/gtest.h>

#include <array>

#include "help/help_markup.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

std::string LittleFile() { return BytesOf(HALVANE_HELP_DATA "/little.chm"); }

std::string FailureOfReading(std::string bytes) {
  try {
    const HelpFile help(std::move(bytes));
    return "none";
  } catch (const HelpFileFailure& failure) {
    return failure.what();
  }
}

/// One line an entry, a blank in front for each level.
std::string Outline(const std::vector<HelpContentsEntry>& list, const std::string& indent = "") {
  std::string outline;
  for (const HelpContentsEntry& entry : list) {
    outline += indent + entry.title + " -> " + entry.topic + "\n";
    outline += Outline(entry.children, indent + " ");
  }
  return outline;
}

TEST(HelpFileReading, TellsWhatTheFileSaysOfItself) {
  const HelpFile help(LittleFile());
  EXPECT_EQ(help.description().title, "A little help");
  EXPECT_EQ(help.description().defaultTopic, "home.htm");
  EXPECT_EQ(help.description().contentsFile, "contents.hhc");
  EXPECT_EQ(help.description().language, 0x409U);
}

TEST(HelpFileReading, GivesTheContentsAsATree) {
  EXPECT_EQ(Outline(HelpFile(LittleFile()).contents()),
            "Home & more -> home.htm\n"
            "Chapter -> \n"
            " Second -> sub/two.htm\n"
            " Its end -> sub/two.htm#end\n"
            "Third -> Three (with a blank)2.htm\n");
}

TEST(HelpFileReading, GivesEachEntryByteByByte) {
  const HelpFile help(LittleFile());
  for (const char* name : {"home.htm", "sub/two.htm", "Three (with a blank)2.htm", "style.css",
                           "images/dot.png", "contents.hhc"}) {
    const auto bytes = help.Entry(name);
    ASSERT_TRUE(bytes.has_value()) << name;
    EXPECT_EQ(*bytes, BytesOf(std::string(HALVANE_HELP_DATA "/little/") + name)) << name;
  }
}

TEST(HelpFileReading, NamesDoNotTellCapitalsFromSmallLetters) {
  const HelpFile help(LittleFile());
  EXPECT_EQ(help.Entry("THREE (WITH A BLANK)2.HTM"), help.Entry("Three (with a blank)2.htm"));
  EXPECT_TRUE(help.Has("SUB/TWO.HTM"));
  EXPECT_FALSE(help.Has("sub/two"));
  EXPECT_FALSE(help.Entry("sub/none.htm").has_value());
}

TEST(HelpFileReading, TakesTheSecondIdentificationOfOtherCompilers) {
  std::string bytes = LittleFile();
  ASSERT_EQ(bytes[0x28], 0x10);
  EXPECT_EQ(FailureOfReading(bytes), "none");
  bytes[0x28] = 0x11;
  EXPECT_EQ(FailureOfReading(bytes), "none");
  bytes[0x28] = 0x12;
  EXPECT_EQ(FailureOfReading(bytes), "This is no compiled HTML help file.");
}

TEST(HelpFileReading, AnEntryBeyondTheLimitIsRefusedAndTheOthersAreRead) {
  const HelpFile help(BytesOf(HALVANE_HELP_DATA "/large_entry.chm"));
  EXPECT_EQ(help.Entry("a.htm"), "<html><body>a</body></html>\n");
  try {
    const auto bytes = help.Entry("big.txt");
    ADD_FAILURE() << bytes->size() << " bytes were unpacked";
  } catch (const HelpFileFailure& failure) {
    EXPECT_STREQ(failure.what(), "The help file is larger than this program can show.");
  }
}

struct MarkupRow {
  std::string_view label;
  std::string_view text;
  std::string_view outline;
};

#define ITEM(name, local)                                                \
  "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" name \
  "\"><param name=\"Local\" value=\"" local "\"></OBJECT>"

constexpr std::array kSitemaps{
    MarkupRow{"empty", "", ""},
    MarkupRow{"no list", ITEM("A", "a.htm"), "A -> a.htm\n"},
    MarkupRow{"nested", "<UL>" ITEM("A", "a") "<UL>" ITEM("B", "b") "</UL>" ITEM("C", "c") "</UL>",
              "A -> a\n B -> b\nC -> c\n"},
    MarkupRow{"end tags missing", "<UL>" ITEM("A", "a") "<UL>" ITEM("B", "b"), "A -> a\n B -> b\n"},
    MarkupRow{"more end tags than lists",
              "</UL></UL><UL>" ITEM("A", "a") "</UL></UL>" ITEM("B", "b"), "A -> a\nB -> b\n"},
    MarkupRow{"a list without an entry above", "<UL><UL><UL>" ITEM("A", "a"), "A -> a\n"},
    MarkupRow{"attributes in other order, case and quotes",
              "<object TYPE='TEXT/SITEMAP'><PARAM value='Name &lt;1&gt;' NAME=name>"
              "<param VALUE=a.htm name=LOCAL></object>",
              "Name <1> -> a.htm\n"},
    MarkupRow{"entities", "<UL>" ITEM("&eacute;&#233;&#xE9;&deg;&le; &none; &", "a&amp;b.htm"),
              "ééé°≤ &none; & -> a&b.htm\n"},
    MarkupRow{"comments", "<!-- <UL>" ITEM("A", "a") "--><UL>" ITEM("B", "b"), "B -> b\n"},
    MarkupRow{"a comment that never ends", ITEM("A", "a") "<!-- " ITEM("B", "b"), "A -> a\n"},
    MarkupRow{"other objects",
              "<OBJECT type=\"text/site properties\"><param name=\"Name\" value=\"X\">"
              "</OBJECT>" ITEM("A", "a"),
              "A -> a\n"},
    MarkupRow{"no title",
              "<OBJECT type=\"text/sitemap\"><param name=\"Local\" value=\"a\"></OBJECT>",
              "a -> a\n"},
    MarkupRow{"neither title nor page", "<OBJECT type=\"text/sitemap\"></OBJECT>", ""},
    MarkupRow{"several titles",
              "<OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"A\">"
              "<param name=\"Name\" value=\"B\"><param name=\"Local\" value=\"a\"></OBJECT>",
              "A -> a\n"},
    MarkupRow{"cut off inside a tag", ITEM("A", "a") "<OBJECT type=\"text/site", "A -> a\n"},
};

TEST(HelpContents, AreReadFromWhateverListsThereAre) {
  for (const MarkupRow& row : kSitemaps) {
    EXPECT_EQ(Outline(ReadHelpContents(row.text)), row.outline) << row.label;
  }
}

std::size_t DepthOf(const std::vector<HelpContentsEntry>& list) {
  return list.empty() ? 0 : 1 + DepthOf(list.back().children);
}

TEST(HelpContents, AreNoDeeperThanTheLimit) {
  std::string text;
  for (int i = 0; i < 5000; ++i) text += "<UL>" ITEM("A", "a");
  EXPECT_EQ(DepthOf(ReadHelpContents(text)), help_limits::kContentsDepth);
}

TEST(HelpContents, HaveNoMoreLinesThanTheLimit) {
  std::string text = "<UL>";
  for (std::size_t i = 0; i < help_limits::kContentsEntries + 10; ++i) text += ITEM("A", "a");
  EXPECT_EQ(ReadHelpContents(text).size(), help_limits::kContentsEntries);
}

#undef ITEM

TEST(HelpText, IsUtf8WhereItCanBeAndWindows1252Otherwise) {
  EXPECT_EQ(DecodeHelpText("caf\xE9 \x93x\x94"), "café “x”");
  EXPECT_EQ(DecodeHelpText("café"), "café");
  EXPECT_EQ(DecodeHelpText("\xEF\xBB\xBF"
                           "a"),
            "a");
}

struct EntityRow {
  std::string_view text;
  std::string_view plain;
};

TEST(HelpText, EntitiesAreReplacedAndOthersStay) {
  constexpr std::array kRows{
      EntityRow{"&#65;&#x41;&#X41;", "AAA"},
      EntityRow{"&#128512;", "😀"},
      EntityRow{"&#0;", "&#0;"},
      EntityRow{"&#xD800;", "&#xD800;"},
      EntityRow{"&#1114112;", "&#1114112;"},
      EntityRow{"&#99999999999;", "&#99999999999;"},
      EntityRow{"&#;", "&#;"},
      EntityRow{"&#1a;", "&#1a;"},
      EntityRow{"&nbsp;", "\xC2\xA0"},
      EntityRow{"&yuml;", "ÿ"},
      EntityRow{"&szlig;", "ß"},
      EntityRow{"&amp;lt;", "&lt;"},
      EntityRow{"a & b", "a & b"},
      EntityRow{"&amp", "&amp"},
  };
  for (const EntityRow& row : kRows) EXPECT_EQ(WithoutEntities(row.text), row.plain) << row.text;
}

}  // namespace
}  // namespace halvane
