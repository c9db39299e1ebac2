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
    "file,analyst,job,workstation,index_index,index_zone,grade_score,grade_level,reasons,file_shown"
    "\r\n";

TEST(SummaryCsv, HasHeadingsAndOneLineAJob) {
  JobSummary other = SampleSummary();
  other.file = "b.qjt";
  other.cells[0].headline.values[0] = 1.0 / 3;
  EXPECT_EQ(LinesOf({SampleSummary(), other}),
            std::string(kHeadings) +
                "a.qjt,Ann,Press line,W-17,1.5,Yellow,9,3,,a.qjt\r\n"
                "b.qjt,Ann,Press line,W-17,0.333333333333333,Yellow,9,3,,b.qjt\r\n");
  EXPECT_EQ(LinesOf({}), kHeadings);
}

TEST(SummaryCsv, ReasonsStandInAColumnOfTheirOwn) {
  JobSummary summary = SampleSummary();
  summary.cells[0].reason = ReportFailure{"Overflow", "Overflow, \"9\""};
  EXPECT_EQ(LinesOf({summary}),
            std::string(kHeadings) +
                "a.qjt,Ann,Press line,W-17,,,9,3,\"index: Overflow, \"\"9\"\"\",a.qjt\r\n");
  summary.cells[1].reason = ReportFailure{"Overflow", "Overflow"};
  EXPECT_EQ(LinesOf({summary}), std::string(kHeadings) +
                                    "a.qjt,Ann,Press line,W-17,,,,,\"index: Overflow, \"\"9\"\"; "
                                    "grade: Overflow\",a.qjt\r\n");
}

TEST(SummaryCsv, FileThatCouldNotBeReadHasItsReason) {
  EXPECT_EQ(
      LinesOf({UnreadableSummary()}),
      std::string(kHeadings) + "gone.qjt,,,,,,,,File error: gone.qjt: No such file,gone.qjt\r\n");
}

TEST(SummaryCsv, NegativeNumberStaysANumber) {
  JobSummary summary = SampleSummary();
  summary.cells[0].headline.values[0] = -0.8;
  EXPECT_EQ(LinesOf({summary}),
            std::string(kHeadings) + "a.qjt,Ann,Press line,W-17,-0.8,Yellow,9,3,,a.qjt\r\n");
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
  EXPECT_EQ(LinesOf({summary}), std::string(kHeadings) + "=f,'=a,'=j,'=w,1.5,Yellow,9,3,,'=f\r\n");
}

TEST(SummaryCsv, FileIsFoundAgainByItsName) {
  const std::vector<TextRow> rows = {
      {"=f.qjt", "=f.qjt"},
      {"a,b.qjt", "\"a,b.qjt\""},
      {"caf\xE9.qjt", "caf\\xE9.qjt"},
      {"caf\u00E9\xFF\u65E5", "caf\u00E9\\xFF\u65E5"},
      {"a\nb\x7F", "a\\x0Ab\\x7F"},
      {"a\\xE9", "a\\x5CxE9"},
      {"a\\b", "a\\b"},
      {" -x", "\" -x\""},
  };
  for (const TextRow& row : rows) {
    JobSummary summary = SampleSummary();
    summary.file = row.text;
    const std::string lines = LinesOf({summary});
    EXPECT_EQ(lines.substr(kHeadings.size()).find(std::string(row.cell) + ",Ann,"), 0U) << lines;
  }
}

}  // namespace
}  // namespace halvane
