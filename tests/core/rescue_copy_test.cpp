#include "core/rescue_copy.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/job_file.h"
#include "tests/support/test_support.h"

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

  /// A copy of the job in memory, with the fallback as the one other place.
  std::string Rescue() { return RescueTo({fallback_.path()}); }

  static std::string RescueTo(const std::vector<std::string>& folders) {
    return WriteRescueCopy(Module1.JobFileName, RescueBytes(Module1), folders);
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
  EXPECT_EQ(Rescue(), folder_.File("press line.rescue.qjt"));
  EXPECT_EQ(Module1, before);
  EXPECT_EQ(BytesOf(Module1.JobFileName), "the job");
  EXPECT_EQ(BytesOf(folder_.File("press line.rescue.qjt")),
            EmptyJobWith(4, "\"Ann\",\"\",\"\",0,8"));
  EXPECT_EQ(fallback_.Names(), "");
}

TEST_F(RescueCopy, LeavesAJobOfMoreTasksThanAFileTakesAlone) {
  MakeTasks(kHighestTask + 2);
  const JobState before = Module1;
  const std::string bytes = RescueBytes(Module1);
  EXPECT_EQ(Module1, before);
  MakeTasks(kHighestTask);
  Module1.TaskCount = Integer{kHighestTask};
  EXPECT_EQ(bytes, RescueBytes(Module1));
  // Whatever the count is: a text, say.
  Module1.TaskCount = "many";
  RescueBytes(Module1);
  EXPECT_EQ(Module1.TaskCount, TaggedField("many"));
}

TEST_F(RescueCopy, NeverGoesOverAnExistingFile) {
  Module1.JobFileName = folder_.File("job.qjt");
  WriteBytes(folder_.File("job.rescue.qjt"), "first");
  WriteBytes(folder_.File("job (2).rescue.qjt"), "second");
  EXPECT_EQ(Rescue(), folder_.File("job (3).rescue.qjt"));
  Module1.Hand = 1;
  EXPECT_EQ(Rescue(), folder_.File("job (4).rescue.qjt"));
  EXPECT_EQ(BytesOf(folder_.File("job.rescue.qjt")), "first");
  EXPECT_EQ(BytesOf(folder_.File("job (2).rescue.qjt")), "second");
  EXPECT_EQ(BytesOf(folder_.File("job (3).rescue.qjt")), EmptyJobText());
}

TEST_F(RescueCopy, JobWithoutAFileGoesToTheFallbackFolder) {
  EXPECT_EQ(Rescue(), fallback_.File("Job.rescue.qjt"));
  Module1.Hand = 1;
  EXPECT_EQ(Rescue(), fallback_.File("Job (2).rescue.qjt"));
  EXPECT_EQ(BytesOf(fallback_.File("Job.rescue.qjt")), EmptyJobText());
}

TEST_F(RescueCopy, NameWithAnotherExtensionKeepsIt) {
  Module1.JobFileName = folder_.File("job.txt");
  EXPECT_EQ(Rescue(), folder_.File("job.txt.rescue.qjt"));
  Module1.JobFileName = folder_.File(".qjt");
  EXPECT_EQ(Rescue(), folder_.File("Job.rescue.qjt"));
}

TEST_F(RescueCopy, MissingFolderSendsItToTheFallback) {
  Module1.JobFileName = folder_.File("missing/job.qjt");
  EXPECT_EQ(Rescue(), fallback_.File("job.rescue.qjt"));
}

TEST_F(RescueCopy, FailsWhereNoPlaceTakesIt) {
  Module1.JobFileName = folder_.File("missing/job.qjt");
  WriteBytes(folder_.File("file"), "");
  EXPECT_EQ(FailureOf([&] { RescueTo({}); }), "FileError");
  EXPECT_EQ(FailureOf([&] { RescueTo({"", folder_.File("file")}); }), "FileError");
  EXPECT_EQ(folder_.Names(), "file");
}

TEST_F(RescueCopy, PlacesAreTriedInTurnAndMadeWhereMissing) {
  WriteBytes(folder_.File("file"), "");
  Module1.JobFileName = folder_.File("gone/job.qjt");
  const std::string made = WithSeparator(folder_.File("new")) + "er";
  EXPECT_EQ(RescueTo({folder_.File("file/in"), made, fallback_.path()}),
            WithSeparator(made) + "job.rescue.qjt");
  EXPECT_EQ(fallback_.Names(), "");
  EXPECT_FALSE(Exists(folder_.File("gone")));
}

TEST_F(RescueCopy, EqualOneCountsAsTheCopyWhereverItStands) {
  Module1.JobFileName = folder_.File("job.qjt");
  const std::string bytes = RescueBytes(Module1);
  // The one before it is gone.
  WriteBytes(fallback_.File("job (2).rescue.qjt"), bytes);
  WriteBytes(fallback_.File("other.rescue.qjt"), bytes);
  EXPECT_EQ(Rescue(), fallback_.File("job (2).rescue.qjt"));
  EXPECT_EQ(folder_.Names(), "");

  Module1.JobName = "Packing";
  EXPECT_EQ(Rescue(), folder_.File("job.rescue.qjt"));
  EXPECT_EQ(Rescue(), folder_.File("job.rescue.qjt"));
  EXPECT_EQ(folder_.Names(), "job.rescue.qjt");
}

TEST_F(RescueCopy, NameTooLongIsShortenedBetweenCharacters) {
  // 83 characters of three bytes and ".qjt": 253 bytes, and no room for ".rescue".
  std::string name;
  for (int i = 0; i < 83; ++i) name += "\u65E5";
  std::string shortened;
  for (int i = 0; i < 81; ++i) shortened += "\u65E5";
  Module1.JobFileName = folder_.File(name + ".qjt");
  EXPECT_EQ(Rescue(), folder_.File(shortened + ".rescue.qjt"));
  Module1.Hand = 1;
  shortened.resize(shortened.size() - 3);
  EXPECT_EQ(Rescue(), folder_.File(shortened + " (2).rescue.qjt"));
  // Found again under its shortened name.
  EXPECT_EQ(Rescue(), folder_.File(shortened + " (2).rescue.qjt"));
  EXPECT_TRUE(IsRescueName(shortened + " (2).rescue.qjt", name + ".qjt"));
}

TEST_F(RescueCopy, NamesOfCopiesAreKnown) {
  for (const char* name : {"job.rescue.qjt", "job (2).rescue.qjt", "job (40).rescue.qjt"}) {
    EXPECT_TRUE(IsRescueName(name, "job.qjt")) << name;
  }
  for (const char* name :
       {"job.qjt", "job2.rescue.qjt", "job (1).rescue.qjt", "job (x).rescue.qjt",
        "job ().rescue.qjt", "job (02).rescue.qjt", ".rescue.qjt", "rescue.qjt"}) {
    EXPECT_FALSE(IsRescueName(name, "job.qjt")) << name;
  }
  EXPECT_TRUE(IsRescueName("job (2).rescue.qjt", "job (2).qjt"));
  EXPECT_TRUE(IsRescueName("job.txt.rescue.qjt", "job.txt"));
}

/// Whether the job needs a rescue copy after each step.
TEST_F(RescueCopy, IsNeededForWhatNoWholeFileHolds) {
  EXPECT_FALSE(NeedsRescue(Module1));
  Module1.JobDirty = kTrue;
  EXPECT_TRUE(NeedsRescue(Module1));
  Module1.JobFileName = folder_.File("job.qjt");
  WriteJobFile();
  EXPECT_FALSE(NeedsRescue(Module1));

  Module1.JobDirty = kTrue;
  Module1.JobFileName = folder_.File("no folder/job.qjt");
  EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_TRUE(NeedsRescue(Module1));
  JobReset();
  EXPECT_FALSE(NeedsRescue(Module1));
  Module1.JobDirty = kFalse;

  // The dialog was cancelled: the job is where it was, in a file or nowhere.
  EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  EXPECT_FALSE(NeedsRescue(Module1));
  Module1.JobDirty = kTrue;
  EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  EXPECT_TRUE(NeedsRescue(Module1));

  Module1.JobFileName = folder_.File("job.qjt");
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened);
  EXPECT_FALSE(NeedsRescue(Module1));
  WriteBytes(folder_.File("half.qjt"), EmptyJobText().substr(0, 100));
  Module1.JobFileName = folder_.File("half.qjt");
  EXPECT_EQ(FailureOf(OpenJobFile), "InputPastEnd");
  EXPECT_TRUE(NeedsRescue(Module1));
}

TEST_F(RescueCopy, StoresTheFortyTasksThatAFileCanHold) {
  MakeTasks(43);
  const JobState before = Module1;
  std::string expected = EmptyJobText("40");
  for (int task = 1; task <= 40; ++task) expected += UntouchedTaskText(task);
  EXPECT_EQ(BytesOf(Rescue()), expected);
  EXPECT_EQ(Module1, before);
}

TEST_F(RescueCopy, TaskCountThatIsNoneIsTakenFromTheTasks) {
  for (const TaggedField& count : {TaggedField("1E999"), TaggedField(1E9), TaggedField(Integer{-1}),
                                   TaggedField("many"), TaggedField()}) {
    Module1 = JobState{};
    MakeTasks(2);
    Module1.TaskCount = count;
    EXPECT_EQ(BytesOf(Rescue()), EmptyJobText("2") + UntouchedTaskText(1) + UntouchedTaskText(2));
    EXPECT_EQ(Module1.TaskCount, count);
  }
}

TEST_F(RescueCopy, CopyOpensAsTheJob) {
  MakeTasks(1);
  Module1.JobName = "日本";
  const std::string path = Rescue();
  Module1 = JobState{};
  Module1.JobFileName = path;
  EXPECT_EQ(OpenJobFile(), OpenOutcome::Opened);
  EXPECT_EQ(Module1.JobName, TaggedField("日本"));
  EXPECT_EQ(Module1.TaskNames.at(1), "Task 1");
}

}  // namespace
}  // namespace halvane
