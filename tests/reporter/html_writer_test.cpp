#include "reporter/html_writer.h"

#include <gtest/gtest.h>

#include <vector>

#include "reporter/pictures.h"
#include "tests/reporter/sample_report.h"

namespace halvane {
namespace {

/// The paragraphs of a report, without the section around them.
std::string BodyOf(const RichText& report) {
  std::string html;
  HtmlWriter().Report(html, "a.qjt", kGoodTool, report, {});
  const std::string before = "<section>\n<h2>a.qjt: Good &lt;Tool&gt;</h2>\n";
  const std::string after = "</section>\n";
  EXPECT_TRUE(html.starts_with(before)) << html;
  EXPECT_TRUE(html.ends_with(after)) << html;
  return html.substr(before.size(), html.size() - before.size() - after.size());
}

TEST(ReportHtml, MarkupInTheJobIsText) {
  EXPECT_EQ(BodyOf(OneLine("<script>alert(\"x\" & 'y')</script>")),
            "<p>&lt;script&gt;alert(&quot;x&quot; &amp; &#39;y&#39;)&lt;/script&gt;</p>\n");
}

TEST(ReportHtml, MarkupInAFileNameIsText) {
  std::string html;
  HtmlWriter().Report(html, "\"><img>\xFF.qjt", kGoodTool, OneLine(""), {});
  EXPECT_NE(html.find("<h2>&quot;&gt;&lt;img&gt;\uFFFD.qjt: "), std::string::npos) << html;
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

TEST(ReportHtml, PictureStandsInThePage) {
  RichText report;
  report.AppendPicture("strain_index/risk_chart");
  const std::string svg(PictureSvg("strain_index/risk_chart"));
  EXPECT_EQ(BodyOf(report) + "\n", "<p>" + svg.substr(0, svg.size() - 1) + "</p>\n\n");
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
  EXPECT_EQ(html,
            "<section>\n<h2>a.qjt: Failing Tool</h2>\n"
            "<p class=\"failure\">Overflow: &quot;&lt;9&gt;&quot;</p>\n</section>\n"
            "<section>\n<h2>b.qjt</h2>\n<p class=\"failure\">gone</p>\n</section>\n");
}

TEST(ReportHtml, JobWithoutAReportSaysSoAndIsNoFailure) {
  std::string html;
  HtmlWriter().NoReport(html, "a.qjt", kGoodTool, {"NoReport", "no <task>"});
  EXPECT_EQ(html,
            "<section>\n<h2>a.qjt: Good &lt;Tool&gt;</h2>\n"
            "<p>no &lt;task&gt;</p>\n</section>\n");
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
  EXPECT_TRUE(html.ends_with("</body>\n</html>\n")) << html;
  for (const std::string_view reference : {"src=", "href", "url(", "@import", "<script", "<link"}) {
    EXPECT_EQ(html.find(reference), std::string::npos) << reference;
  }
  EXPECT_NE(html.find("@media print {"), std::string::npos);
  EXPECT_NE(html.find("<meta charset=\"utf-8\">"), std::string::npos);
}

}  // namespace
}  // namespace halvane
