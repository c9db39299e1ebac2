#include "reporter/pictures.h"

#include <gtest/gtest.h>

#include "core/job_state.h"
#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

TEST(ReportPictures, EveryPictureOfAReportIsInTheProgram) {
  int count = 0;
  for (const ToolRow& row : Tools()) {
    Module1 = JobState{};
    RichText report;
    row.WriteReport(report);
    for (const std::string& name : report.pictures()) {
      ++count;
      EXPECT_EQ(PictureSvg(name), BytesOf(SourcePath("assets/" + name + ".svg"))) << name;
    }
  }
  EXPECT_GE(count, 1);
  EXPECT_EQ(PictureSvg("no/such"), "");
}

}  // namespace
}  // namespace halvane
