#include "reporter/text_writer.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/reporter/sample_report.h"

namespace halvane {
namespace {

std::string TextOf(const RichText& report) {
  std::string text;
  TextWriter(false).Report(text, "a.qjt", kGoodTool, report, {});
  return text;
}

std::string Blanks(std::size_t count) { return std::string(count, ' '); }

struct TabRow {
  std::string_view label;
  std::vector<int> stops;
  std::string_view text;
  std::string expected;
};

TEST(ReportText, TabsGoToTheirStops) {
  const std::vector<TabRow> rows = {
      {"120 twips are a column", {1200}, "a\tb", std::string("a") + Blanks(9) + "b"},
      {"nearest column below", {500}, "\tb", Blanks(4) + "b"},
      {"nearest column above", {541}, "\tb", Blanks(5) + "b"},
      {"two stops", {1200, 2400}, "a\tb\tc", std::string("a") + Blanks(9) + "b" + Blanks(9) + "c"},
      {"text up to the stop", {360}, "abc\td", "abc d"},
      {"text past the stop", {360}, "abcdef\tg", "abcdef g"},
      {"text past the stop leaves the next column alone",
       {360, 1200},
       "abcdef\tg\th",
       std::string("abcdef g") + Blanks(2) + "h"},
      {"stop that was never set", {0}, "a\tb", "a b"},
      {"two tabs in a row", {1200, 2400}, "a\t\tb", std::string("a") + Blanks(19) + "b"},
      {"no stops: each 720 twips",
       {},
       "a\tb\tc",
       std::string("a") + Blanks(5) + "b" + Blanks(5) + "c"},
      {"default stop at the end of a text",
       {},
       "abcdef\tg",
       std::string("abcdef") + Blanks(6) + "g"},
      {"default stops behind the last",
       {1000},
       "a\tb\tc",
       std::string("a") + Blanks(7) + "b" + Blanks(3) + "c"},
      {"characters count, not bytes",
       {1200},
       "\u00E9\u7DDA\tb",
       std::string("\u00E9\u7DDA") + Blanks(8) + "b"},
      {"blanks at the end stay", {}, "Analyst: ", "Analyst: "},
  };
  for (const TabRow& row : rows) {
    EXPECT_EQ(TextOf(OneLine(row.text, Alignment::Left, row.stops)), row.expected + "\n")
        << row.label;
  }
}

TEST(ReportText, LinesWithTabsThatFollowEachOtherAreATable) {
  RichText report;
  const auto append = [&report](std::string_view text, const std::vector<int>& stops) {
    report.SetTabCount(static_cast<int>(stops.size()));
    for (std::size_t i = 0; i < stops.size(); ++i) report.SetTab(static_cast<int>(i), stops[i]);
    report.Append(text);
  };
  append("Name\tLong heading\tEnd\r\n", {600, 600});
  append("a\tb\tc\r\n", {600, 1200});
  append("a long name\tb\tand a text that nothing follows\r\n", {600, 1200});
  append("\t\tx\r\n", {600, 1200});
  append("between\r\n", {600, 1200});
  append("a\tb", {600, 1200});
  EXPECT_EQ(TextOf(report),
            "Name        Long heading End\n"
            "a           b            c\n"
            "a long name b            and a text that nothing follows\n"
            "                         x\n"
            "between\n"
            "a    b\n");
}

TEST(ReportText, TextBehindTheLastTabMovesNoColumn) {
  EXPECT_EQ(TextOf(OneLine("\ta text that is long\r\n\t\tb", Alignment::Left, {240, 600})),
            "  a text that is long\n     b\n");
}

TEST(ReportText, ParagraphsStandOnAPageOf72Columns) {
  EXPECT_EQ(TextOf(OneLine("title", Alignment::Center)), Blanks(33) + "title\n");
  EXPECT_EQ(TextOf(OneLine("end", Alignment::Right)), Blanks(69) + "end\n");
  EXPECT_EQ(TextOf(OneLine(std::string(80, 'x'), Alignment::Center)), std::string(80, 'x') + "\n");
  EXPECT_EQ(TextOf(OneLine("", Alignment::Center)), "\n");
}

TEST(ReportText, LineEndsAreThoseOfThePlatform) {
  EXPECT_EQ(TextOf(OneLine("a\r\n\r\nb\rc\nd")), "a\n\nb\nc\nd\n");
}

TEST(ReportText, RunsOfALineFollowEachOther) {
  RichText report;
  report.SetFont({.bold = true});
  report.Append("Score:");
  report.SetFont({});
  report.Append(" 1.5");
  EXPECT_EQ(TextOf(report), "Score: 1.5\n");
}

TEST(ReportText, PictureIsItsNameInBrackets) {
  RichText report;
  report.Append("See\r\n");
  report.AppendPicture("strain_index/risk_chart");
  EXPECT_EQ(TextOf(report), "See\n[picture: strain_index/risk_chart]\n");
}

TEST(ReportText, ControlCharactersOfTheJobAreReplaced) {
  EXPECT_EQ(TextOf(OneLine("Analyst: \x1B[2Jx")), "Analyst: \uFFFD[2Jx\n");
}

TEST(ReportText, SeveralReportsHaveHeadings) {
  std::string text;
  TextWriter writer(true);
  writer.Report(text, "a b.qjt", kGoodTool, OneLine("first"), {});
  writer.ToolFailed(text, "b.qjt", kFailingTool, {"Overflow", "Overflow"});
  writer.NoReport(text, "b.qjt", kGoodTool, {"NoReport", "no task"});
  writer.Report(text, "c\xFF\n.qjt", kGoodTool, OneLine("second"), {});
  EXPECT_EQ(text,
            "===== a b.qjt: good =====\n\nfirst\n"
            "\n===== b.qjt: good =====\n\nno task\n"
            "\n===== c\uFFFD\uFFFD.qjt: good =====\n\nsecond\n");
}

}  // namespace
}  // namespace halvane
