#include "reporter/pictures.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/job_state.h"
#include "tests/core/test_support.h"
#include "tests/reporter/run_program.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

TEST(ReportPictures, EveryPictureOfAReportIsInTheProgram) {
  int count = 0;
  for (const ToolRow& row : Tools()) {
    if (!row.isBuilt()) continue;
    Module1 = JobState{};
    RichText report;
    row.writeReport(report);
    for (const std::string& name : report.pictures()) {
      ++count;
      EXPECT_EQ(PictureSvg(name), BytesOf(SourcePath("assets/" + name + ".svg"))) << name;
    }
  }
  EXPECT_GE(count, 1);
  EXPECT_EQ(PictureSvg("no/such"), "");
}

TEST(ReportPictures, DesktopProgramHasEveryPicture) {
  const std::string resources = BytesOf(SourcePath("assets/assets.qrc"));
  const std::filesystem::path assets = SourcePath("assets");
  int count = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(assets)) {
    if (entry.path().extension() != ".svg") continue;
    ++count;
    const std::string name = std::filesystem::relative(entry.path(), assets).generic_string();
    EXPECT_NE(resources.find(name + "</file>"), std::string::npos) << name;
  }
  EXPECT_GE(count, 1);
}

TEST(RiskChart, IsWhatTheScriptDraws) {
  const ProgramRun run = RunProgram(HALVANE_PYTHON, {SourcePath("scripts/make_risk_chart.py")});
  EXPECT_EQ(run.status, 0) << run.error;
  EXPECT_EQ(run.output, BytesOf(SourcePath("assets/strain_index/risk_chart.svg")));
  EXPECT_TRUE(run.output.starts_with("<svg ")) << run.output;
  EXPECT_NE(run.output.find("width=\"494\" height=\"292\""), std::string::npos);
}

}  // namespace
}  // namespace halvane
