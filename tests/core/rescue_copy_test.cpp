#include "core/rescue_copy.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "core/job_file.h"
#include "tests/core/test_support.h"

namespace halvane {
namespace {

class RescueCopy : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }

  void MakeTasks(Integer count) {
    for (Integer task = 1; task <= count; ++task) {
      Module1.TaskCount = task;
      NewTaskRecord();
    }
  }

  const TemporaryFolder folder_;
  const TemporaryFolder fallback_;
};

TEST_F(RescueCopy, StandsBesideTheJobFileAndLeavesJobAndFileAlone) {
  Module1.JobFileName = folder_.File("press line.qjt");
  WriteBytes(Module1.JobFileName, "the job");
  Module1.JobAnalyst = "Ann";
  Module1.JobDirty = kTrue;
  Module1.JobFileOpen = true;
  const JobState before = Module1;
  EXPECT_EQ(WriteRescueCopy(fallback_.path()), folder_.File("press line.rescue.qjt"));
  EXPECT_EQ(Module1, before);
  EXPECT_EQ(BytesOf(Module1.JobFileName), "the job");
  EXPECT_EQ(BytesOf(folder_.File("press line.rescue.qjt")),
            EmptyJobWith(4, "\"Ann\",\"\",\"\",0,8"));
  EXPECT_EQ(fallback_.Names(), "");
}

TEST_F(RescueCopy, NeverGoesOverAnExistingFile) {
  Module1.JobFileName = folder_.File("job.qjt");
  WriteBytes(folder_.File("job.rescue.qjt"), "first");
  WriteBytes(folder_.File("job (2).rescue.qjt"), "second");
  EXPECT_EQ(WriteRescueCopy(fallback_.path()), folder_.File("job (3).rescue.qjt"));
  EXPECT_EQ(WriteRescueCopy(fallback_.path()), folder_.File("job (4).rescue.qjt"));
  EXPECT_EQ(BytesOf(folder_.File("job.rescue.qjt")), "first");
  EXPECT_EQ(BytesOf(folder_.File("job (2).rescue.qjt")), "second");
  EXPECT_EQ(BytesOf(folder_.File("job (3).rescue.qjt")), EmptyJobText());
}

TEST_F(RescueCopy, JobWithoutAFileGoesToTheFallbackFolder) {
  EXPECT_EQ(WriteRescueCopy(fallback_.path()), fallback_.File("Job.rescue.qjt"));
  EXPECT_EQ(WriteRescueCopy(fallback_.path()), fallback_.File("Job (2).rescue.qjt"));
  EXPECT_EQ(BytesOf(fallback_.File("Job.rescue.qjt")), EmptyJobText());
}

TEST_F(RescueCopy, NameWithAnotherExtensionKeepsIt) {
  Module1.JobFileName = folder_.File("job.txt");
  EXPECT_EQ(WriteRescueCopy(fallback_.path()), folder_.File("job.txt.rescue.qjt"));
  Module1.JobFileName = folder_.File(".qjt");
  EXPECT_EQ(WriteRescueCopy(fallback_.path()), folder_.File("Job.rescue.qjt"));
}

TEST_F(RescueCopy, FolderThatTakesNoFileSendsItToTheFallback) {
  Module1.JobFileName = folder_.File("missing/job.qjt");
  EXPECT_EQ(WriteRescueCopy(fallback_.path()), fallback_.File("job.rescue.qjt"));

  Module1.JobFileName = folder_.File("job.qjt");
  ASSERT_EQ(chmod(folder_.path().c_str(), 0555), 0);
  ASSERT_EQ(chmod(fallback_.path().c_str(), 0777), 0);
  const RightsOfNobody rights;
  EXPECT_EQ(WriteRescueCopy(fallback_.path()), fallback_.File("job (2).rescue.qjt"));
}

TEST_F(RescueCopy, FailsWhereNeitherFolderTakesIt) {
  Module1.JobFileName = folder_.File("missing/job.qjt");
  EXPECT_EQ(FailureOf([&] { WriteRescueCopy(fallback_.File("missing")); }), "FileError");
}

TEST_F(RescueCopy, StoresTheFortyTasksThatAFileCanHold) {
  MakeTasks(43);
  const JobState before = Module1;
  std::string expected = EmptyJobText("40");
  for (int task = 1; task <= 40; ++task) expected += UntouchedTaskText(task);
  EXPECT_EQ(BytesOf(WriteRescueCopy(fallback_.path())), expected);
  EXPECT_EQ(Module1, before);
}

TEST_F(RescueCopy, TaskCountThatIsNoneIsTakenFromTheTasks) {
  for (const TaggedField& count : {TaggedField("1E999"), TaggedField(1E9), TaggedField(Integer{-1}),
                                   TaggedField("many"), TaggedField()}) {
    Module1 = JobState{};
    MakeTasks(2);
    Module1.TaskCount = count;
    EXPECT_EQ(BytesOf(WriteRescueCopy(fallback_.path())),
              EmptyJobText("2") + UntouchedTaskText(1) + UntouchedTaskText(2));
    EXPECT_EQ(Module1.TaskCount, count);
  }
}

TEST_F(RescueCopy, CopyOpensAsTheJob) {
  MakeTasks(1);
  Module1.JobName = "日本";
  const std::string path = WriteRescueCopy(fallback_.path());
  Module1 = JobState{};
  Module1.JobFileName = path;
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened);
  EXPECT_EQ(Module1.JobName, TaggedField("日本"));
  EXPECT_EQ(Module1.TaskNames.at(1), "Task 1");
}

}  // namespace
}  // namespace halvane
