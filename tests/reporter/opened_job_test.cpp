#include "reporter/opened_job.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/reporter/run_program.h"
#include "tests/reporter/varied_job.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

constexpr std::uint32_t kJobs = 1000;

std::vector<const ToolRow*> AllTools() {
  std::vector<const ToolRow*> tools;
  for (const ToolRow& tool : Tools()) tools.push_back(&tool);
  return tools;
}

template <typename Action>
void RunWhateverFails(const Action& action) {
  (void)Try([&action]() -> std::optional<ReportFailure> {
    action();
    return std::nullopt;
  });
}

/// Runs all that a tool does on `Module1`, behind every other tool.
void TestThatEachToolFindsTheJob(const std::string& what) {
  const JobState opened = Module1;
  ForEachTool(AllTools(), [&](const ToolRow& tool, std::size_t /*place*/) {
    ASSERT_TRUE(Module1 == opened) << what << " before " << tool.key;
    RunWhateverFails([&tool] { tool.headline->compute(); });
    RunWhateverFails([&tool] {
      RichText report;
      tool.WriteReport(report);
    });
    ASSERT_TRUE(OpenedState() == opened) << what << " behind " << tool.key;
  });
}

// What stays in the job while a tool runs is not copied, so no tool may store it, whatever the job.
TEST(OpenedJob, EachToolFindsAVariedJobAsItWasOpened) {
  for (std::uint32_t number = 1; number <= kJobs; ++number) {
    for (const LengthUnit units : {LengthUnit::Metric, LengthUnit::English}) {
      MakeVariedJob(number);
      Module1.Units = static_cast<Integer>(units);
      TestThatEachToolFindsTheJob("job " + std::to_string(number));
    }
  }
}

TEST(OpenedJob, EachToolFindsAJobOfTheCorporaAsItWasOpened) {
  int jobs = 0;
  for (const char* folder : {"docs/samples", "tests/fuzz/report_corpus", "tests/fuzz/corpus"}) {
    for (const auto& entry : std::filesystem::directory_iterator(SourcePath(folder))) {
      if (OpenAfresh(entry.path().string(), LengthUnit::Metric)) continue;
      TestThatEachToolFindsTheJob(entry.path().string());
      ++jobs;
    }
  }
  EXPECT_GT(jobs, 10);
}

TEST(OpenedJob, NothingOfTheJobBeforeComesThrough) {
  MakeVariedJob(1);
  TestThatEachToolFindsTheJob("the job before");
  MakeVariedJob(2);
  TestThatEachToolFindsTheJob("the job behind it");
}

}  // namespace
}  // namespace halvane
