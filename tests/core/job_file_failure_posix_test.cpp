#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "core/job_file.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class JobFileFailureOnPosix : public testing::Test {
 protected:
  void SetUp() override {
    Module1 = JobState{};
    Module1.JobFileName = folder_.File("job.qjt");
    Module1.JobDirty = kTrue;
  }

  const TemporaryFolder folder_;
};

TEST_F(JobFileFailureOnPosix, PipeAndDeviceAreNotOpened) {
  ASSERT_EQ(mkfifo(folder_.File("pipe.qjt").c_str(), 0600), 0);
  for (const std::string& path : {folder_.File("pipe.qjt"), std::string("/dev/null")}) {
    Module1.JobFileName = path;
    EXPECT_EQ(FailureOf(OpenJobFile), "FileError") << path;
    EXPECT_EQ(FailureOf(ReadJobFile), "FileError") << path;
    EXPECT_FALSE(Module1.JobFileOpen) << path;
  }
}

TEST_F(JobFileFailureOnPosix, PipeIsNotWritten) {
  ASSERT_EQ(mkfifo(folder_.File("pipe.qjt").c_str(), 0600), 0);
  Module1.JobFileName = folder_.File("pipe.qjt");
  EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  EXPECT_FALSE(Module1.JobFileOpen);
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(folder_.Names(), "pipe.qjt");
}

TEST_F(JobFileFailureOnPosix, FullDeviceFailsTheSaveAndLeavesTheFileOpen) {
  Module1.JobFileName = "/dev/full";
  Module1.JobDirty = kTrue;
  EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  EXPECT_TRUE(Module1.JobFileOpen);
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(FailureOf(WriteJobFile), "FileAlreadyOpen");
}

TEST_F(JobFileFailureOnPosix, Task41IsNotWrittenOverAJobThatNoPlaceTakesACopyOf) {
  if (geteuid() != 0) GTEST_SKIP() << "a file in a folder that takes none is made as root";
  const EnvironmentVariable state("XDG_STATE_HOME", "/dev/null");
  const EnvironmentVariable temporary("TMPDIR", "/dev/null");
  for (Integer task = 1; task <= 41; ++task) {
    Module1.TaskCount = task;
    NewTaskRecord();
  }
  WriteBytes(Module1.JobFileName, "the old job");
  ASSERT_EQ(chmod(Module1.JobFileName.c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0555), 0);
  {
    const RightsOfNobody rights;
    EXPECT_EQ(FailureOf(WriteJobFile), "SubscriptOutOfRange");
  }
  EXPECT_EQ(BytesOf(Module1.JobFileName), "the old job");
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(JobFileFailureOnPosix, PathOfAFileThatMayNotBeWrittenIsNamedAsWhole) {
  WriteBytes(Module1.JobFileName, EmptyJobText());
  ASSERT_EQ(chmod(Module1.JobFileName.c_str(), 0444), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0777), 0);
  const RightsOfNobody rights;
  EXPECT_EQ(MessageOf(WriteJobFile), "File error: " + Module1.JobFileName +
                                         ": Permission denied. " + Module1.JobFileName +
                                         " holds the job as it was before");
  EXPECT_FALSE(Module1.JobFileOpen);
}

}  // namespace
}  // namespace halvane
