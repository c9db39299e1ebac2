#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "core/job_file.h"
#include "core/platform_file.h"
#include "core/rescue_copy.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

struct stat StatusOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status;
}

mode_t ModeOf(const std::string& path) { return StatusOf(path).st_mode & 07777U; }

TEST(WriteNewFileTest, LinkThatLeadsNowhereIsLeftAlone) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink("nowhere", folder.File("a"));
  EXPECT_FALSE(WriteNewFile(folder.File("a"), "new"));
  EXPECT_EQ(folder.Names(), "a");
}

TEST(WriteNewFileTest, FileIsForTheWriterAlone) {
  const TemporaryFolder folder;
  const mode_t before = umask(0);
  EXPECT_TRUE(WriteNewFile(folder.File("a"), "new"));
  umask(before);
  EXPECT_EQ(ModeOf(folder.File("a")), 0600U);
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
  const TemporaryFolder elsewhere_;
  const EnvironmentVariable state_{"XDG_STATE_HOME", elsewhere_.path()};
  const std::string path_ = folder_.File("job.qjt");
  bool mounted_ = false;
};

TEST_F(SmallDisk, NoRoomForTheNewJobKeepsTheOldOneInPlace) {
  WriteBytes(path_, EmptyJobText());
  Module1.JobAnalyst = std::string(100000, 'a');
  EXPECT_EQ(MessageOf(WriteJobFile), "File error: " + path_ + ": No space left on device. " +
                                         path_ + " holds the job as it was before");
  EXPECT_TRUE(Module1.JobFileOpen);
  EXPECT_EQ(BytesOf(path_), EmptyJobText());
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(SmallDisk, NoRoomForANewJobLeavesNoFile) {
  Module1.JobAnalyst = std::string(100000, 'a');
  EXPECT_EQ(MessageOf(WriteJobFile),
            "File error: " + path_ + ": No space left on device. No file was made");
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(SmallDisk, JobThatFitsInPlaceOfTheOldOneIsSavedWhereNoCopyFits) {
  WriteBytes(path_, EmptyJobText() + std::string(40000, 'x'));
  Module1.JobAnalyst = std::string(39000, 'a');
  EXPECT_EQ(FailureOf(WriteJobFile), "none");
  EXPECT_EQ(BytesOf(path_), JobFileBytes(Module1));
  EXPECT_EQ(folder_.Names(), "job.qjt");
  // The copy was there.
  EXPECT_EQ(elsewhere_.Names(), "halvane-tools");
}

TEST_F(SmallDisk, JobThatFitsInPlaceOfTheOldOneIsSavedWhereNoPlaceTakesACopy) {
  const EnvironmentVariable state("XDG_STATE_HOME", "/dev/null");
  const EnvironmentVariable temporary("TMPDIR", "/dev/null");
  WriteBytes(path_, EmptyJobText() + std::string(40000, 'x'));
  Module1.JobAnalyst = std::string(39000, 'a');
  EXPECT_EQ(FailureOf(WriteJobFile), "none");
  EXPECT_EQ(BytesOf(path_), JobFileBytes(Module1));
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(SmallDisk, NewFileThatDoesNotFitIsNotThere) {
  EXPECT_EQ(FailureOf([&] { WriteNewFile(path_, std::string(100000, 'a')); }), "FileError");
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(SmallDisk, RescueCopyGoesWhereThereIsRoom) {
  const TemporaryFolder roomy;
  Module1.JobAnalyst = std::string(100000, 'a');
  EXPECT_EQ(WriteRescueCopy(path_, JobFileBytes(Module1), {roomy.path()}),
            roomy.File("job.rescue.qjt"));
  EXPECT_EQ(BytesOf(roomy.File("job.rescue.qjt")), JobFileBytes(Module1));
}

}  // namespace
}  // namespace halvane
