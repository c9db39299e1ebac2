#include <gtest/gtest.h>

#include "core/job_file.h"
#include "core/job_state.h"
#include "tests/reporter/run_program.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class SampleJobs : public testing::TestWithParam<std::string> {};

TEST_P(SampleJobs, ReadAndWrittenAgainAreTheSameBytes) {
  const std::string sample = SourcePath("docs/samples/" + GetParam());
  Module1 = JobState{};
  Module1.JobFileName = sample;
  ASSERT_EQ(OpenJobFile(), OpenOutcome::Opened);
  const TemporaryFolder folder;
  Module1.JobFileName = folder.File(GetParam());
  WriteJobFile();
  const std::string bytes = BytesOf(sample);
  EXPECT_EQ(BytesOf(folder.File(GetParam())), bytes);
  EXPECT_EQ(bytes.size() > 64 && bytes.ends_with("\r\n"), true);
}

INSTANTIATE_TEST_SUITE_P(Files, SampleJobs,
                         testing::Values("board-assembly.qjt", "packing-line.qjt",
                                         "parcel-sorting.qjt"),
                         [](const auto& test) {
                           std::string name = test.param;
                           std::erase_if(name, [](char c) { return c == '-' || c == '.'; });
                           return name;
                         });

}  // namespace
}  // namespace halvane
