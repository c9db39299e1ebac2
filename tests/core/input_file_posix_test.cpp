#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "core/input_file.h"
#include "core/job_file.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

TEST(InputFileTest, FileThatMayNotBeReadFails) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, EmptyJobText());
  ASSERT_EQ(chmod(path.c_str(), 0000), 0);
  Module1 = JobState{};
  Module1.JobFileName = path;
  const RightsOfNobody rights;
  EXPECT_EQ(FailureOf(OpenJobFile), "FileError");
  EXPECT_FALSE(Module1.JobFileOpen);
}

TEST(InputFileTest, FileWithoutASizeIsReadToItsEnd) {
  // The system tells size 0 for it, as it does for files that it makes up when they are read.
  InputFile file("/proc/self/status");
  EXPECT_NE(file.ReadAll().find("Name:"), std::string::npos);
}

}  // namespace
}  // namespace halvane
