#include "core/rich_text.h"

#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace halvane {
namespace {

using Stops = std::vector<int>;
// Inside a test, `Run` is a member of the test class.
using TextRun = Run;

TEST(RichText, NewPaneIsOneEmptyParagraphWithPlainFormat) {
  const RichText pane;
  EXPECT_EQ(pane.text(), "");
  EXPECT_FALSE(pane.locked());
  ASSERT_EQ(pane.paragraphs().size(), 1U);
  EXPECT_EQ(pane.paragraphs()[0], Paragraph{});
  EXPECT_EQ(CharacterFormat{}.size, 10);
}

TEST(RichText, EachLineEndMakesAParagraph) {
  RichText pane;
  pane.Append("a\r\nb\rc\nd\n\re");
  EXPECT_EQ(pane.text(), "a\r\nb\rc\nd\n\re");
  ASSERT_EQ(pane.paragraphs().size(), 6U);
  const std::vector<std::string> ends{"\r\n", "\r", "\n", "\n", "\r", ""};
  const std::vector<std::string> texts{"a", "b", "c", "d", "", "e"};
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(pane.paragraphs()[i].lineEnd, ends[i]) << i;
    ASSERT_EQ(pane.paragraphs()[i].runs.size(), texts[i].empty() ? 0U : 1U) << i;
    for (const TextRun& run : pane.paragraphs()[i].runs) EXPECT_EQ(run.text, texts[i]) << i;
  }
}

TEST(RichText, PiecesOfOneLookAreOneRun) {
  RichText pane;
  pane.Append("a", "b", std::string("c"));
  pane.SetFont({.size = 12, .bold = true, .underline = false});
  pane.Append("d");
  pane.SetFont({});
  pane.SetFont({.size = 12, .bold = true, .underline = false});
  pane.Append("e");
  pane.Append("");
  pane.SetFont({});
  pane.Append("f");
  const CharacterFormat bold{.size = 12, .bold = true, .underline = false};
  const std::vector<TextRun> expected{{"abc", {}, {}}, {"de", bold, {}}, {"f", {}, {}}};
  EXPECT_EQ(pane.paragraphs()[0].runs, expected);
}

TEST(RichText, LooksDifferInSizeBoldAndUnderline) {
  RichText pane;
  pane.SetFont({.size = 10});
  pane.Append("a");
  pane.SetFont({.size = 11});
  pane.Append("b");
  pane.SetFont({.size = 11, .bold = true});
  pane.Append("c");
  pane.SetFont({.size = 11, .bold = true, .underline = true});
  pane.Append("d");
  EXPECT_EQ(pane.paragraphs()[0].runs.size(), 4U);
}

TEST(RichText, FormatInForceCountsFromTheNextParagraphAndTheNextText) {
  RichText pane;
  pane.SetAlignment(Alignment::Center);
  pane.Append("title\r\n");
  pane.SetAlignment(Alignment::Left);
  pane.Append("\r\n");
  pane.SetAlignment(Alignment::Right);
  pane.Append("\r\nright");
  const auto& paragraphs = pane.paragraphs();
  ASSERT_EQ(paragraphs.size(), 4U);
  EXPECT_EQ(paragraphs[0].format.alignment, Alignment::Center);
  // A paragraph made before the change and left without text stays as it was made.
  EXPECT_EQ(paragraphs[1].format.alignment, Alignment::Center);
  EXPECT_EQ(paragraphs[2].format.alignment, Alignment::Left);
  EXPECT_EQ(paragraphs[3].format.alignment, Alignment::Right);
}

TEST(RichText, StopsSetBetweenColumnsCountForTheWholeLine) {
  RichText pane;
  pane.SetTabCount(1);
  pane.SetTab(0, 1000);
  pane.Append("header\r\n");
  pane.Append("left");
  pane.SetTab(0, 2000);
  pane.Append("\tright");
  EXPECT_EQ(pane.paragraphs()[0].format.tabStops, Stops{1000});
  EXPECT_EQ(pane.paragraphs()[1].format.tabStops, Stops{2000});
}

TEST(RichText, NewCountKeepsTheStopsThatAreSet) {
  RichText pane;
  pane.SetTabCount(2);
  pane.SetTab(1, 700);
  pane.SetTabCount(3);
  pane.Append("a");
  EXPECT_EQ(pane.paragraphs()[0].format.tabStops, (Stops{0, 700, 0}));
  pane.SetTabCount(1);
  pane.Append("b");
  EXPECT_EQ(pane.paragraphs()[0].format.tabStops, Stops{0});
}

TEST(RichText, StopBeyondTheCountFails) {
  RichText pane;
  EXPECT_EQ(FailureOf([&] { pane.SetTab(0, 1); }), "SubscriptOutOfRange");
  pane.SetTabCount(2);
  EXPECT_EQ(FailureOf([&] { pane.SetTab(2, 1); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([&] { pane.SetTab(-1, 1); }), "SubscriptOutOfRange");
}

TEST(RichText, PictureIsOneCharacterInARunOfItsOwn) {
  RichText pane;
  pane.Append("a");
  pane.SetAlignment(Alignment::Center);
  pane.AppendPicture("folder/chart");
  pane.AppendPicture("folder/other");
  pane.Append("b");
  EXPECT_EQ(pane.text(), "a\uFFFC\uFFFCb");
  EXPECT_EQ(pane.pictures(), (std::vector<std::string>{"folder/chart", "folder/other"}));
  const auto& paragraph = pane.paragraphs()[0];
  EXPECT_EQ(paragraph.format.alignment, Alignment::Center);
  ASSERT_EQ(paragraph.runs.size(), 4U);
  EXPECT_EQ(paragraph.runs[1], (TextRun{"\uFFFC", {}, "folder/chart"}));
  EXPECT_EQ(paragraph.runs[3], (TextRun{"b", {}, {}}));
}

TEST(RichText, PictureTakesTheFormatInForce) {
  RichText pane;
  pane.Append("\r\n");
  pane.SetAlignment(Alignment::Right);
  pane.AppendPicture("folder/chart");
  EXPECT_EQ(pane.paragraphs()[1].format.alignment, Alignment::Right);
}

TEST(RichText, ClearingTakesTextAndFormatAwayAndKeepsTheLock) {
  RichText pane;
  pane.SetLocked(true);
  pane.SetFont({.size = 12, .bold = true, .underline = true});
  pane.SetAlignment(Alignment::Center);
  pane.SetTabCount(2);
  pane.Append("a\r\nb");
  pane.AppendPicture("folder/chart");
  pane.Clear();
  EXPECT_EQ(pane.text(), "");
  EXPECT_TRUE(pane.pictures().empty());
  EXPECT_TRUE(pane.locked());
  ASSERT_EQ(pane.paragraphs().size(), 1U);
  EXPECT_EQ(pane.paragraphs()[0], Paragraph{});
  pane.Append("c\r\n");
  EXPECT_EQ(pane.paragraphs()[0], (Paragraph{{}, {{"c", {}, {}}}, "\r\n"}));
  EXPECT_EQ(pane.paragraphs()[1], Paragraph{});
}

TEST(RichText, AppendsNumbersInAPattern) {
  RichText pane;
  pane.Append("a ");
  pane.AppendNumber(1.25, Pattern::OneDecimal);
  pane.AppendNumber(-2, Pattern::TwoDecimals);
  EXPECT_EQ(pane.text(), "a 1.3-2.00");
}

TEST(RichText, DropsWhatIsAppendedWhereNobodyReadsIt) {
  RichText pane(RichText::Appended::Dropped);
  pane.SetTabCount(1);
  pane.Append("a", kTab, "b", kNewLine);
  pane.AppendNumber(1.25, Pattern::OneDecimal);
  pane.AppendPicture("ctd/report");
  EXPECT_EQ(pane.text(), "");
  EXPECT_TRUE(pane.pictures().empty());
  // What fails in a report does so all the same.
  EXPECT_THROW(pane.SetTab(1, 100), RuntimeFailure);
  pane.Clear();
  pane.Append("c");
  EXPECT_EQ(pane.text(), "");
}

}  // namespace
}  // namespace halvane
