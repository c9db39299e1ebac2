#include "core/platform_file.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "core/job_file.h"
#include "core/rescue_copy.h"
#include "tests/core/test_support.h"

namespace halvane {
namespace {

constexpr uid_t kNobody = 65534;

struct stat StatusOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status;
}

mode_t ModeOf(const std::string& path) { return StatusOf(path).st_mode & 07777U; }

void Replace(const std::string& path, std::string_view bytes) {
  FileReplacement file(path);
  file.Write(bytes);
  file.Commit();
}

TEST(FileReplacement, NewFileIsWhatWasWritten) {
  const TemporaryFolder folder;
  Replace(folder.File("job.qjt"), "new");
  EXPECT_EQ(BytesOf(folder.File("job.qjt")), "new");
  EXPECT_EQ(folder.Names(), "job.qjt");
}

TEST(FileReplacement, OldContentStandsBesideUntilTheNewIsWhole) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  const std::string old(200000, 'o');
  WriteBytes(path, old);
  FileReplacement file(path);
  EXPECT_EQ(BytesOf(path + ".previous"), old);
  EXPECT_EQ(BytesOf(path), "");
  file.Write("new ");
  file.Write("content");
  EXPECT_EQ(folder.Names(), "job.qjt job.qjt.previous");
  file.Commit();
  EXPECT_EQ(folder.Names(), "job.qjt");
  EXPECT_EQ(BytesOf(path), "new content");
}

TEST(FileReplacement, WithoutCommitTheOldContentStays) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, "old");
  {
    FileReplacement file(path);
    file.Write("ha");
  }
  EXPECT_EQ(BytesOf(path), "ha");
  EXPECT_EQ(BytesOf(path + ".previous"), "old");
}

TEST(FileReplacement, PreviousOfAnEarlierFailureIsKeptUntilASaveSucceeds) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, "hal");
  WriteBytes(path + ".previous", "last whole one");
  {
    FileReplacement file(path);
    file.Write("again ha");
  }
  EXPECT_EQ(BytesOf(path + ".previous"), "last whole one");
  Replace(path, "whole");
  EXPECT_EQ(BytesOf(path), "whole");
  EXPECT_EQ(folder.Names(), "job.qjt");
}

TEST(FileReplacement, PartOfACopyThatAKillLeftGoes) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, "old");
  WriteBytes(path + ".previous.part", "ol");
  Replace(path, "new");
  EXPECT_EQ(folder.Names(), "job.qjt");
}

TEST(FileReplacement, SymbolicLinkStaysALinkToTheSameFile) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.File("real"));
  WriteBytes(folder.File("real/target.qjt"), "old");
  std::filesystem::create_symlink("real/target.qjt", folder.File("job.qjt"));
  const ino_t inode = StatusOf(folder.File("real/target.qjt")).st_ino;
  Replace(folder.File("job.qjt"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.File("job.qjt")));
  EXPECT_EQ(std::filesystem::read_symlink(folder.File("job.qjt")), "real/target.qjt");
  EXPECT_EQ(BytesOf(folder.File("real/target.qjt")), "new");
  EXPECT_EQ(StatusOf(folder.File("real/target.qjt")).st_ino, inode);
  EXPECT_EQ(folder.Names(), "job.qjt real");
}

TEST(FileReplacement, ModeStaysAndThePreviousHasItToo) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  for (const mode_t mode : {0600, 0640, 0664, 0755}) {
    WriteBytes(path, "old");
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
    {
      FileReplacement file(path);
      EXPECT_EQ(ModeOf(path + ".previous"), mode);
      file.Commit();
    }
    EXPECT_EQ(ModeOf(path), mode);
  }
}

TEST(FileReplacement, OwnerStaysAndThePreviousHasHimToo) {
  if (geteuid() != 0) GTEST_SKIP() << "giving a file to another user takes root";
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, "old");
  ASSERT_EQ(chown(path.c_str(), kNobody, kNobody), 0);
  {
    FileReplacement file(path);
    EXPECT_EQ(StatusOf(path + ".previous").st_uid, kNobody);
    EXPECT_EQ(StatusOf(path + ".previous").st_gid, kNobody);
    file.Commit();
  }
  EXPECT_EQ(StatusOf(path).st_uid, kNobody);
  EXPECT_EQ(StatusOf(path).st_gid, kNobody);
}

TEST(FileReplacement, PreviousOfAForeignFileIsForTheWriterAlone) {
  if (geteuid() != 0) GTEST_SKIP() << "a file of another user takes root to make";
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, "old");
  ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(path.c_str(), 0666), 0);
  const RightsOfNobody rights;
  FileReplacement file(path);
  EXPECT_EQ(StatusOf(path + ".previous").st_uid, kNobody);
  EXPECT_EQ(ModeOf(path + ".previous"), 0600U);
  file.Commit();
  EXPECT_EQ(StatusOf(path).st_uid, 0U);
  EXPECT_EQ(ModeOf(path), 0666U);
}

TEST(FileReplacement, FileThatMayNotBeWrittenStaysAndLeavesNoCopy) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, "old");
  ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(path.c_str(), 0444), 0);
  {
    const RightsOfNobody rights;
    EXPECT_EQ(FailureOf([&] { FileReplacement file(path); }), "FileError");
  }
  EXPECT_EQ(BytesOf(path), "old");
  EXPECT_EQ(folder.Names(), "job.qjt");
}

TEST(FileReplacement, PreviousThatCannotBeLookedAtFailsTheSave) {
  const TemporaryFolder folder;
  // The name is short enough for a file and too long with ".previous" behind it.
  const std::string path = folder.File(std::string(250, 'x'));
  WriteBytes(path, "old");
  EXPECT_EQ(FailureOf([&] { FileReplacement file(path); }), "FileError");
  EXPECT_EQ(BytesOf(path), "old");
}

TEST(FileReplacement, PreviousThatCannotBeReachedIsNotOverwritten) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, "hal");
  // A link to itself: something is there, and nobody can look at it.
  std::filesystem::create_symlink("job.qjt.previous", path + ".previous");
  EXPECT_EQ(FailureOf([&] { FileReplacement file(path); }), "FileError");
  EXPECT_TRUE(std::filesystem::is_symlink(path + ".previous"));
  EXPECT_EQ(BytesOf(path), "hal");
}

TEST(FileReplacement, FolderInThePlaceOfThePreviousFailsTheSave) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, "old");
  std::filesystem::create_directory(path + ".previous");
  EXPECT_EQ(FailureOf([&] { FileReplacement file(path); }), "FileError");
  EXPECT_EQ(BytesOf(path), "old");
}

TEST(ReadOnlyFolder, SaveOfANewJobFailsAndLeavesNothingOpen) {
  const TemporaryFolder folder;
  ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
  Module1 = JobState{};
  Module1.JobFileName = folder.File("job.qjt");
  Module1.JobDirty = kTrue;
  {
    const RightsOfNobody rights;
    EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  }
  EXPECT_FALSE(Module1.JobFileOpen);
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(folder.Names(), "");
}

TEST(ReadOnlyFolder, SaveOverAJobFailsWithTheJobWhole) {
  const TemporaryFolder folder;
  const std::string path = folder.File("job.qjt");
  WriteBytes(path, EmptyJobText());
  ASSERT_EQ(chmod(path.c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
  Module1 = JobState{};
  Module1.JobFileName = path;
  Module1.JobAnalyst = "changed";
  {
    const RightsOfNobody rights;
    EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
    EXPECT_FALSE(Module1.JobFileOpen);
    EXPECT_EQ(FailureOf(OpenJobFile), "none");
  }
  EXPECT_EQ(BytesOf(path), EmptyJobText());
  EXPECT_EQ(folder.Names(), "job.qjt");
}

TEST(WriteNewFileTest, TakenNameIsLeftAlone) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("a"), "old");
  std::filesystem::create_symlink("nowhere", folder.File("b"));
  EXPECT_FALSE(WriteNewFile(folder.File("a"), "new"));
  EXPECT_FALSE(WriteNewFile(folder.File("b"), "new"));
  EXPECT_TRUE(WriteNewFile(folder.File("c"), "new"));
  EXPECT_EQ(BytesOf(folder.File("a")), "old");
  EXPECT_EQ(BytesOf(folder.File("c")), "new");
  EXPECT_EQ(folder.Names(), "a b c");
  EXPECT_EQ(FailureOf([&] { WriteNewFile(folder.File("missing/c"), "new"); }), "FileError");
}

/// A disk of 64 KiB in a folder, seen by this test program alone.
class SmallDisk : public testing::Test {
 protected:
  void SetUp() override {
    if (unshare(CLONE_NEWNS) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", folder_.path().c_str(), "tmpfs", 0, "size=64k") != 0) {
      GTEST_SKIP() << "a small disk takes the right to mount one";
    }
    mounted_ = true;
    Module1 = JobState{};
    Module1.JobFileName = path_;
  }
  void TearDown() override {
    if (!mounted_) return;
    EXPECT_EQ(umount2(folder_.path().c_str(), MNT_DETACH), 0);
  }

  const TemporaryFolder folder_;
  const std::string path_ = folder_.File("job.qjt");
  bool mounted_ = false;
};

TEST_F(SmallDisk, NoRoomForTheNewJobKeepsTheOldOneBesideIt) {
  WriteBytes(path_, EmptyJobText());
  Module1.JobAnalyst = std::string(100000, 'a');
  EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  EXPECT_TRUE(Module1.JobFileOpen);
  EXPECT_EQ(BytesOf(path_ + ".previous"), EmptyJobText());
}

TEST_F(SmallDisk, NoRoomForTheCopyOfTheOldJobLeavesItInPlace) {
  const std::string old = EmptyJobText() + std::string(40000, 'x');
  WriteBytes(path_, old);
  EXPECT_EQ(FailureOf(WriteJobFile), "FileError");
  EXPECT_FALSE(Module1.JobFileOpen);
  EXPECT_EQ(BytesOf(path_), old);
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(SmallDisk, RescueCopyGoesWhereThereIsRoom) {
  const TemporaryFolder roomy;
  Module1.JobAnalyst = std::string(100000, 'a');
  EXPECT_EQ(WriteRescueCopy(roomy.path()), roomy.File("job.rescue.qjt"));
  EXPECT_EQ(BytesOf(roomy.File("job.rescue.qjt")), JobFileBytes(Module1));
}

}  // namespace
}  // namespace halvane
