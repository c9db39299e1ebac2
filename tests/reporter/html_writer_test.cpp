#include "reporter/html_writer.h"

#include <gtest/gtest.h>

#include <vector>

#include "reporter/pictures.h"
#include "tests/reporter/sample_report.h"

namespace halvane {
namespace {

/// What a report begins with on the page of a.qjt.
const std::string kSection = "<section>\n<p class=\"file\">a.qjt</p>\n";
const std::string kSectionEnd = "</section>\n";

/// A report on a.qjt.
std::string SectionOf(const RichText& report) {
  std::string html;
  HtmlWriter().Report(html, "a.qjt", kGoodTool, report, {});
  return html;
}

/// The paragraphs of a report, without the section around them and the heading that the tool's
/// title is where the report has none.
std::string BodyOf(const RichText& report) {
  const std::string html = SectionOf(report);
  const std::string before = kSection + "<h3>Good &lt;Tool&gt;</h3>\n";
  EXPECT_TRUE(html.starts_with(before)) << html;
  EXPECT_TRUE(html.ends_with(kSectionEnd)) << html;
  return html.substr(before.size(), html.size() - before.size() - kSectionEnd.size());
}

TEST(ReportHtml, MarkupInTheJobIsText) {
  EXPECT_EQ(BodyOf(OneLine("<script>alert(\"x\" & 'y')</script>")),
            "<p>&lt;script&gt;alert(&quot;x&quot; &amp; &#39;y&#39;)&lt;/script&gt;</p>\n");
}

TEST(ReportHtml, MarkupInAFileNameIsText) {
  const std::string name = "\"><img>\xFF.qjt";
  std::string html;
  HtmlWriter writer;
  writer.BeginJob(html, name);
  writer.Report(html, name, kGoodTool, OneLine(""), {});
  writer.EndJob(html);
  const std::string shown = "&quot;&gt;&lt;img&gt;\uFFFD.qjt";
  EXPECT_TRUE(html.starts_with("<article>\n<h2>" + shown + "</h2>\n<section>\n<p class=\"file\">" +
                               shown + "</p>\n<h3>"))
      << html;
  EXPECT_TRUE(html.ends_with(kSectionEnd + "</article>\n")) << html;
}

TEST(ReportHtml, ControlCharactersAreReplaced) {
  EXPECT_EQ(BodyOf(OneLine("a\x1B\u0085z")), "<p>a\uFFFD\uFFFDz</p>\n");
}

TEST(ReportHtml, ParagraphsKeepTheirAlignment) {
  EXPECT_EQ(BodyOf(OneLine("a", Alignment::Center)), "<p class=\"center\">a</p>\n");
  EXPECT_EQ(BodyOf(OneLine("a", Alignment::Right)), "<p class=\"right\">a</p>\n");
  EXPECT_EQ(BodyOf(OneLine("a\r\n\r\nb")), "<p>a</p>\n<p></p>\n<p>b</p>\n");
}

TEST(ReportHtml, RunsKeepTheirLook) {
  RichText report;
  report.SetFont({.size = 12, .bold = true, .underline = true});
  report.Append("a");
  report.SetFont({.underline = true});
  report.Append("b");
  report.SetFont({});
  report.Append("c");
  EXPECT_EQ(BodyOf(report),
            "<p><span style=\"font-size: 12pt\"><b><u>a</u></b></span><u>b</u>c</p>\n");
}

TEST(ReportHtml, TabsEndColumnsAsWideAsTheWayToTheNextStop) {
  EXPECT_EQ(BodyOf(OneLine("a\tb\tc\td", Alignment::Left, {4000, 6500})),
            "<p><span class=\"column\" style=\"min-width: 200pt\">a&#9;</span>"
            "<span class=\"column\" style=\"min-width: 125pt\">b&#9;</span>"
            "<span class=\"column\" style=\"min-width: 36pt\">c&#9;</span>d</p>\n");
  EXPECT_EQ(BodyOf(OneLine("a\tb\tc\td", Alignment::Left, {2000, 1000, 3000})),
            "<p><span class=\"column\" style=\"min-width: 100pt\">a&#9;</span>"
            "<span class=\"column\" style=\"min-width: 0pt\">b&#9;</span>"
            "<span class=\"column\" style=\"min-width: 50pt\">c&#9;</span>d</p>\n");
}

TEST(ReportHtml, TabsInFrontAreAnIndent) {
  EXPECT_EQ(BodyOf(OneLine("\ta", Alignment::Left, {200, 700})),
            "<p style=\"padding-left: 10pt\">a</p>\n");
  EXPECT_EQ(BodyOf(OneLine("\t\ta\tb", Alignment::Left, {200, 700, 1700})),
            "<p style=\"padding-left: 35pt\">"
            "<span class=\"column\" style=\"min-width: 50pt\">a&#9;</span>b</p>\n");
}

constexpr CharacterFormat kHeadingLook{.size = 10, .bold = true, .underline = true};

TEST(ReportHtml, LinesInTheLookOfHeadingsAreHeadings) {
  RichText report;
  report.SetFont({.size = 12, .bold = true, .underline = true});
  report.SetAlignment(Alignment::Center);
  report.Append("Title <1>", kNewLine);
  report.SetFont(kHeadingLook);
  report.Append("Part:", kNewLine, "Score:");
  report.SetFont({});
  report.Append(" 3");
  EXPECT_EQ(SectionOf(report), kSection +
                                   "<h3>Title &lt;1&gt;</h3>\n<h4>Part:</h4>\n"
                                   "<p class=\"center\"><b><u>Score:</u></b> 3</p>\n" +
                                   kSectionEnd);
}

TEST(ReportHtml, LinesBelowAHeadingWithTabsAreATable) {
  RichText report;
  report.Append("above", kNewLine);
  report.SetFont(kHeadingLook);
  report.Append("Task <ID>  ", kTab, " Level", kTab, "Score");
  report.SetFont({});
  report.Append(kNewLine, "a&b", kTab, "High", kTab, "3", kNewLine, "c", kTab, kTab, "2");
  report.Append(kNewLine, "below");
  EXPECT_EQ(BodyOf(report),
            "<p>above</p>\n<table>\n<caption>Level, Score by Task &lt;ID&gt;</caption>\n<thead>\n"
            "<tr><th scope=\"col\">Task &lt;ID&gt;  </th><th scope=\"col\"> Level</th>"
            "<th scope=\"col\">Score</th></tr>\n</thead>\n<tbody>\n"
            "<tr><th scope=\"row\">a&amp;b</th><td>High</td><td>3</td></tr>\n"
            "<tr><th scope=\"row\">c</th><td></td><td>2</td></tr>\n"
            "</tbody>\n</table>\n<p>below</p>\n");
}

TEST(ReportHtml, HeadingWithTabsEndsATable) {
  RichText report;
  report.SetFont(kHeadingLook);
  report.Append("A", kTab, "B", kNewLine, "C", kTab, " ");
  const std::string table = BodyOf(report);
  EXPECT_NE(table.find("<caption>B by A</caption>"), std::string::npos) << table;
  EXPECT_NE(table.find("<tbody>\n</tbody>\n</table>\n<table>\n<caption> by C</caption>"),
            std::string::npos)
      << table;
}

TEST(ReportHtml, PictureStandsInThePageWithItsSense) {
  RichText report;
  report.AppendPicture("strain_index/risk_chart", "3 < \"5\"");
  const std::string svg(PictureSvg("strain_index/risk_chart"));
  const std::string tag = "<svg";
  EXPECT_EQ(BodyOf(report),
            "<p><span role=\"img\" aria-label=\"3 &lt; &quot;5&quot;\"><svg aria-hidden=\"true\"" +
                svg.substr(tag.size(), svg.size() - tag.size() - 1) + "</span></p>\n");
}

TEST(ReportHtml, PictureThatIsNotThereIsItsName) {
  RichText report;
  report.AppendPicture("no/such");
  EXPECT_EQ(BodyOf(report), "<p>[picture: no/such]</p>\n");
}

TEST(ReportHtml, FailuresStandInThePage) {
  std::string html;
  HtmlWriter writer;
  writer.ToolFailed(html, "a.qjt", kFailingTool, {"Overflow", "Overflow: \"<9>\""});
  const std::vector<const ToolRow*> tools{&kGoodTool, &kFailingTool};
  writer.FileFailed(html, "b.qjt", tools, {"FileError", "gone"});
  EXPECT_EQ(html, kSection +
                      "<h3>Failing Tool</h3>\n"
                      "<p class=\"failure\">Overflow: &quot;&lt;9&gt;&quot;</p>\n</section>\n"
                      "<article>\n<h2>b.qjt</h2>\n<section>\n"
                      "<p class=\"failure\">gone</p>\n</section>\n</article>\n");
}

TEST(ReportHtml, JobWithoutAReportSaysSoAndIsNoFailure) {
  std::string html;
  HtmlWriter().NoReport(html, "a.qjt", kGoodTool, {"NoReport", "no <task>"});
  EXPECT_EQ(html, kSection + "<h3>Good &lt;Tool&gt;</h3>\n<p>no &lt;task&gt;</p>\n" + kSectionEnd);
}

TEST(ReportHtml, PageNeedsNothingElse) {
  std::string html;
  HtmlWriter writer;
  writer.Begin(html);
  RichText report;
  report.AppendPicture("strain_index/risk_chart");
  writer.Report(html, "a.qjt", kGoodTool, report, {});
  writer.End(html);
  EXPECT_TRUE(html.starts_with("<!DOCTYPE html>\n<html lang=\"en\">\n")) << html;
  EXPECT_NE(html.find("<body>\n<header><h1>Halvane Tools job reports</h1></header>\n<main>\n"),
            std::string::npos)
      << html;
  EXPECT_TRUE(html.ends_with("</main>\n</body>\n</html>\n")) << html;
  for (const std::string_view reference : {"src=", "href", "url(", "@import", "<script", "<link"}) {
    EXPECT_EQ(html.find(reference), std::string::npos) << reference;
  }
  EXPECT_NE(html.find("@media print {"), std::string::npos);
  EXPECT_NE(html.find("<meta charset=\"utf-8\">"), std::string::npos);
}

}  // namespace
}  // namespace halvane
