#include "tools/report_charts.h"

#include <gtest/gtest.h>

#include "core/runtime_failure.h"

namespace halvane {
namespace {

TEST(ReportCharts, AreAppendedWithTheirSense) {
  for (const ReportChart& chart : kReportCharts) {
    RichText report;
    AppendChart(report, chart.assetName);
    EXPECT_EQ(report.text(), kPictureCharacter);
    ASSERT_EQ(report.paragraphs().front().runs.size(), 1U);
    EXPECT_EQ(report.paragraphs().front().runs.front().picture, chart.assetName);
    EXPECT_EQ(report.paragraphs().front().runs.front().sense, chart.sense);
  }
}

TEST(ReportCharts, AnotherNameFails) {
  RichText report;
  EXPECT_THROW(AppendChart(report, "ocra/none"), RuntimeFailure);
  EXPECT_EQ(report.text(), "");
}

}  // namespace
}  // namespace halvane
