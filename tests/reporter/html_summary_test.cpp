#include "reporter/html_summary.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/reporter/run_program.h"
#include "tests/reporter/sample_summary.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

std::string PageOf(const std::vector<JobSummary>& summaries) {
  HtmlSummary writer(SampleTools());
  return Written(writer, summaries);
}

/// The rows of the page's table.
std::string BodyOf(const std::vector<JobSummary>& summaries) {
  const std::string page = PageOf(summaries);
  const std::string_view open = "<tbody>\n";
  const std::size_t start = page.find(open) + open.size();
  return page.substr(start, page.find("</tbody>") - start);
}

TEST(SummaryHtml, RowHasTextsAndABarInEachCell) {
  EXPECT_EQ(BodyOf({SampleSummary()}),
            "<tr><th scope=\"row\">a.qjt</th><td>Ann</td><td>Press line</td><td>W-17</td>"
            "<td class=\"yellow\">1.50 Yellow"
            "<span class=\"bar\"><span style=\"width: 19%\"></span></span></td>"
            "<td class=\"red\">9, level 3"
            "<span class=\"bar\"><span style=\"width: 90%\"></span></span></td></tr>\n");
}

TEST(SummaryHtml, HeadingsTellWhatFillsABar) {
  const std::string page = PageOf({});
  EXPECT_NE(page.find("<tr><th scope=\"col\">File</th><th scope=\"col\">Analyst</th>"
                      "<th scope=\"col\">Job</th><th scope=\"col\">Workstation</th>"
                      "<th scope=\"col\">Index<small>bar: 0 to 8</small></th>"
                      "<th scope=\"col\">Grade<small>bar: 0 to 10</small></th></tr>\n"),
            std::string::npos)
      << page;
  EXPECT_NE(page.find("<main>\n<table>\n<caption>"), std::string::npos) << page;
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\n"));
  EXPECT_TRUE(page.ends_with("<tbody>\n</tbody>\n</table>\n</main>\n</body>\n</html>\n"));
}

TEST(SummaryHtml, NarrowScreensHaveTheHeadingInFrontOfAValue) {
  const std::string page = PageOf({});
  // Six columns of 76 points, and 48 beside them.
  EXPECT_NE(page.find("@media screen and (max-width: 504pt) {\n"), std::string::npos) << page;
  EXPECT_NE(page.find("  td:nth-child(2)::before { content: \"Analyst: \" / \"\"; }\n"
                      "  td:nth-child(3)::before { content: \"Job: \" / \"\"; }\n"
                      "  td:nth-child(4)::before { content: \"Workstation: \" / \"\"; }\n"
                      "  td:nth-child(5)::before { content: \"Index: \" / \"\"; }\n"
                      "  td:nth-child(6)::before { content: \"Grade: \" / \"\"; }\n"),
            std::string::npos)
      << page;
}

/// What stands in quotes of a style sheet as it is.
TEST(SummaryHtml, HeadingsOfTheToolsNeedNoEscape) {
  for (const ToolRow& tool : Tools()) {
    const std::string_view heading = tool.headline->columns.front().heading;
    EXPECT_EQ(heading.find_first_of("\"\\<\n"), std::string_view::npos) << heading;
  }
}

struct BarRow {
  double value;
  std::string_view width;
};

TEST(SummaryHtml, BarsAreAsLongAsTheirValues) {
  const std::vector<BarRow> rows = {{0, "0"},    {-1, "0"},  {0.04, "1"}, {4, "50"},
                                    {7.9, "99"}, {8, "100"}, {9, "100"},  {1e300, "100"}};
  for (const BarRow& row : rows) {
    JobSummary summary = SampleSummary();
    summary.cells[0].headline.values[0] = row.value;
    EXPECT_NE(BodyOf({summary}).find("Yellow<span class=\"bar\"><span style=\"width: " +
                                     std::string(row.width) + "%\">"),
              std::string::npos)
        << row.value;
  }
}

struct ColourRow {
  ZoneColour colour;
  std::string_view cell;
  std::string_view style;  ///< empty: the bar's own grey
  std::string_view chart;  ///< of a report, in which the colour stands
};

TEST(SummaryHtml, ColoursAreThoseOfTheCharts) {
  const std::vector<ColourRow> rows = {
      {ZoneColour::None, "<td>1.50", "", ""},
      {ZoneColour::Green, "<td class=\"green\">1.50", ".green .bar span { background: #9fd3b4; }",
       "ocra/zones.svg"},
      {ZoneColour::YellowGreen, "<td class=\"yellowgreen\">1.50",
       ".yellowgreen .bar span { background: #d5e3a0; }", "ocra/zones.svg"},
      {ZoneColour::Yellow, "<td class=\"yellow\">1.50",
       ".yellow .bar span { background: #f3e28a; }", "ocra/zones.svg"},
      {ZoneColour::Orange, "<td class=\"orange\">1.50",
       ".orange .bar span { background: #f3c58a; }", "strain_index/risk_chart.svg"},
      {ZoneColour::Red, "<td class=\"red\">1.50", ".red .bar span { background: #e99c91; }",
       "ocra/zones.svg"},
  };
  for (const ColourRow& row : rows) {
    JobSummary summary = SampleSummary();
    summary.cells[0].headline.colour = row.colour;
    const std::string page = PageOf({summary});
    EXPECT_NE(page.find(row.cell), std::string::npos) << row.cell;
    if (row.style.empty()) continue;
    EXPECT_NE(page.find(row.style), std::string::npos) << row.style;
    const std::string chart = BytesOf(SourcePath("assets/" + std::string(row.chart)));
    EXPECT_NE(chart.find(row.style.substr(row.style.find('#'), 7)), std::string::npos) << row.style;
  }
}

TEST(SummaryHtml, NothingComesFromElsewhereAndNothingRuns) {
  const std::string page = PageOf({SampleSummary(), UnreadableSummary()});
  for (const std::string_view part : {"<script", "<link", "<img", "src=", "href=", "url(",
                                      "@import", "http", "onload", "onclick"}) {
    EXPECT_EQ(page.find(part), std::string::npos) << part;
  }
}

TEST(SummaryHtml, ZoneWithoutANameIsLeftOut) {
  JobSummary summary = SampleSummary();
  summary.cells[0].headline.values[1] = std::string_view();
  EXPECT_NE(BodyOf({summary}).find(">1.50<span"), std::string::npos);
}

TEST(SummaryHtml, ReasonStandsInItsCellWithoutABar) {
  JobSummary summary = SampleSummary();
  summary.cells[0].reason = ReportFailure{"Overflow", "Overflow: <9>"};
  EXPECT_NE(BodyOf({summary}).find("<td>W-17</td><td class=\"failure\">Overflow: &lt;9&gt;</td>"
                                   "<td class=\"red\">9, level 3"),
            std::string::npos)
      << BodyOf({summary});
}

TEST(SummaryHtml, FileThatCouldNotBeReadFillsItsRow) {
  EXPECT_EQ(BodyOf({UnreadableSummary()}),
            "<tr><th scope=\"row\">gone.qjt</th><td class=\"failure\" colspan=\"5\">"
            "File error: gone.qjt: No such file</td></tr>\n");
}

TEST(SummaryHtml, MarkupInTextsIsText) {
  JobSummary summary = SampleSummary();
  summary.file = "<b>.qjt";
  summary.analyst = "<script>alert('x')</script>";
  summary.job = "a & \"b\"";
  summary.workstation = "</td></table>\x1B";
  const std::string body = BodyOf({summary});
  EXPECT_TRUE(body.starts_with(
      "<tr><th scope=\"row\">&lt;b&gt;.qjt</th>"
      "<td>&lt;script&gt;alert(&#39;x&#39;)&lt;/script&gt;</td><td>a &amp; &quot;b&quot;</td>"
      "<td>&lt;/td&gt;&lt;/table&gt;\uFFFD</td>"))
      << body;
}

}  // namespace
}  // namespace halvane
