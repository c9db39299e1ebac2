#include "reporter/text_summary.h"

#include <gtest/gtest.h>

#include "tests/reporter/sample_summary.h"

namespace halvane {
namespace {

std::string TableOf(const std::vector<JobSummary>& summaries) {
  TextSummary writer(SampleTools());
  return Written(writer, summaries);
}

TEST(SummaryText, ColumnsAreAlignedByTheirWidestText) {
  JobSummary longer = SampleSummary();
  longer.file = "line 4/b.qjt";
  longer.analyst = "\u00C5sa";
  longer.workstation = "";
  longer.cells[0].headline.values = {1234.567, "Yellow/Green"};
  longer.cells[1].headline.values = {10, 0};
  EXPECT_EQ(
      TableOf({SampleSummary(), longer}),
      "File          Analyst  Job         Workstation    Index  zone          Grade  level\n"
      "a.qjt         Ann      Press line  W-17            1.50  Yellow            9      3\n"
      "line 4/b.qjt  \u00C5sa      Press line               1234.57  Yellow/Green     10      "
      "0\n");
}

TEST(SummaryText, ReasonStandsInTheFirstCellOfItsTool) {
  JobSummary summary = SampleSummary();
  summary.cells[0].reason = ReportFailure{"Overflow", "Overflow"};
  EXPECT_EQ(TableOf({summary, SampleSummary()}),
            "File   Analyst  Job         Workstation     Index  zone    Grade  level\n"
            "a.qjt  Ann      Press line  W-17         Overflow              9      3\n"
            "a.qjt  Ann      Press line  W-17             1.50  Yellow      9      3\n");
}

TEST(SummaryText, FileThatCouldNotBeReadWidensNoColumnButItsOwn) {
  EXPECT_EQ(TableOf({UnreadableSummary(), SampleSummary()}),
            "File      Analyst  Job         Workstation  Index  zone    Grade  level\n"
            "gone.qjt  File error: gone.qjt: No such file\n"
            "a.qjt     Ann      Press line  W-17          1.50  Yellow      9      3\n");
}

TEST(SummaryText, RowsAreKeptUntilTheLastJob) {
  TextSummary writer(SampleTools());
  EXPECT_FALSE(writer.writesAsItGoes());
  std::string out;
  writer.Begin(out);
  EXPECT_EQ(out, "");
}

TEST(SummaryText, WithoutAJobThereAreTheHeadings) {
  EXPECT_EQ(TableOf({}), "File  Analyst  Job  Workstation  Index  zone  Grade  level\n");
}

TEST(SummaryText, LongTextsAreCutAndFileNamesAreNot) {
  JobSummary summary = SampleSummary();
  summary.file = std::string(60, 'f');
  summary.analyst = std::string(40, 'a');
  summary.job = std::string(39, 'j') + "\u00E9\u00E9";
  const std::string table = TableOf({summary});
  EXPECT_NE(table.find(std::string(60, 'f') + "  " + std::string(40, 'a') + "  " +
                       std::string(37, 'j') + "...  W-17"),
            std::string::npos)
      << table;
}

TEST(SummaryText, NothingInAJobSteersTheTerminal) {
  JobSummary summary = SampleSummary();
  summary.file = "a\n.qjt";
  summary.analyst = "\x1B[31m";
  summary.job = "a\tb\r";
  summary.workstation = "\xE9";
  const std::string table = TableOf({summary});
  EXPECT_NE(table.find("a\uFFFD.qjt  \uFFFD[31m    a\uFFFDb\uFFFD  \uFFFD"), std::string::npos)
      << table;
}

}  // namespace
}  // namespace halvane
