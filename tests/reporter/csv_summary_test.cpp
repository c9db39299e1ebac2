#include "reporter/csv_summary.h"

#include <gtest/gtest.h>

#include "tests/reporter/sample_summary.h"

namespace halvane {
namespace {

std::string LinesOf(const std::vector<JobSummary>& summaries) {
  CsvSummary writer(SampleTools());
  return Written(writer, summaries);
}

constexpr std::string_view kHeadings =
    "file,analyst,job,workstation,index_index,index_zone,grade_score,grade_level,error\n";

TEST(SummaryCsv, HasHeadingsAndOneLineAJob) {
  JobSummary other = SampleSummary();
  other.file = "b.qjt";
  other.cells[0].headline.values[0] = 1.0 / 3;
  EXPECT_EQ(LinesOf({SampleSummary(), other}),
            std::string(kHeadings) +
                "a.qjt,Ann,Press line,W-17,1.5,Yellow,9,3,\n"
                "b.qjt,Ann,Press line,W-17,0.333333333333333,Yellow,9,3,\n");
  EXPECT_EQ(LinesOf({}), kHeadings);
}

TEST(SummaryCsv, ReasonStandsInTheFirstCellOfItsTool) {
  JobSummary summary = SampleSummary();
  summary.cells[0].reason = ReportFailure{"Overflow", "Overflow, \"9\""};
  EXPECT_EQ(LinesOf({summary}),
            std::string(kHeadings) + "a.qjt,Ann,Press line,W-17,\"Overflow, \"\"9\"\"\",,9,3,\n");
}

TEST(SummaryCsv, FileThatCouldNotBeReadHasItsReasonInTheLastCell) {
  EXPECT_EQ(LinesOf({UnreadableSummary()}),
            std::string(kHeadings) + "gone.qjt,,,,,,,,File error: gone.qjt: No such file\n");
}

TEST(SummaryCsv, NegativeNumberStaysANumber) {
  JobSummary summary = SampleSummary();
  summary.cells[0].headline.values[0] = -0.8;
  EXPECT_EQ(LinesOf({summary}),
            std::string(kHeadings) + "a.qjt,Ann,Press line,W-17,-0.8,Yellow,9,3,\n");
}

struct TextRow {
  std::string_view text;
  std::string_view cell;
};

TEST(SummaryCsv, TextsAreCellsThatNoSpreadsheetComputes) {
  const std::vector<TextRow> rows = {
      {"", ""},
      {"plain text", "plain text"},
      {"a,b", "\"a,b\""},
      {"a;b", "\"a;b\""},
      {"say \"x\"", "\"say \"\"x\"\"\""},
      {"\"", "\"\"\"\""},
      {" a", "\" a\""},
      {"a ", "\"a \""},
      {"=1+1", "'=1+1"},
      {"+1", "'+1"},
      {"-1", "'-1"},
      {"@SUM(A1)", "'@SUM(A1)"},
      {"  =1", "'  =1"},
      {"=A1,\"x\"", "\"'=A1,\"\"x\"\"\""},
      {"1=1", "1=1"},
      {"a\r\nb\tc", "a\uFFFD\uFFFDb\uFFFDc"},
      {"\t=1", "\uFFFD=1"},
      {"caf\xE9", "caf\uFFFD"},
      {"\x1B[31m", "\uFFFD[31m"},
      {"caf\u00E9 \u7DDA", "caf\u00E9 \u7DDA"},
      {"<script>", "<script>"},
  };
  for (const TextRow& row : rows) {
    std::string cell;
    AppendCsvText(cell, row.text);
    EXPECT_EQ(cell, row.cell);
  }
}

TEST(SummaryCsv, EveryTextOfTheJobIsEscaped) {
  JobSummary summary = SampleSummary();
  summary.file = "=f";
  summary.analyst = "=a";
  summary.job = "=j";
  summary.workstation = "=w";
  EXPECT_EQ(LinesOf({summary}), std::string(kHeadings) + "'=f,'=a,'=j,'=w,1.5,Yellow,9,3,\n");
}

}  // namespace
}  // namespace halvane
