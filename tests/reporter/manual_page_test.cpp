#include <gtest/gtest.h>

#include "tests/core/test_support.h"
#include "tests/reporter/run_program.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

const char* const kPage = "docs/man/halvane-report.1";

TEST(ManualPage, HasNoWarnings) {
  if (!HasProgram("mandoc")) GTEST_SKIP() << "there is no mandoc";
  const ProgramRun run = RunProgram("mandoc", {"-T", "lint", "-W", "warning", SourcePath(kPage)});
  EXPECT_EQ(run.status, 0) << run.output << run.error;
}

TEST(ManualPage, NamesEveryTool) {
  const std::string page = BytesOf(SourcePath(kPage));
  for (const ToolRow& row : Tools()) {
    EXPECT_NE(page.find(std::string(" ").append(row.key)), std::string::npos) << row.key;
  }
}

}  // namespace
}  // namespace halvane
