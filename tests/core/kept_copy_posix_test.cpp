#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "core/checksum.h"
#include "core/file_calls.h"
#include "core/kept_copy.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

std::string FolderPath(const std::string& path) { return path.substr(0, path.rfind('/')); }

class KeptCopyOnPosix : public testing::Test {
 protected:
  void SetUp() override {
    WriteBytes(target_, "old");
    for (const TemporaryFolder* folder : {&folder_, &state_, &temporary_}) {
      ASSERT_EQ(chmod(folder->path().c_str(), 0777), 0);
    }
  }
  std::string Beside(std::string_view content) const {
    return target_ + "." + ChecksumOf(content) + ".previous";
  }

  const TemporaryFolder folder_;
  const TemporaryFolder state_;
  const TemporaryFolder temporary_;
  const EnvironmentVariable stateVariable_{"XDG_STATE_HOME", state_.path()};
  const EnvironmentVariable temporaryVariable_{"TMPDIR", temporary_.path()};
  const std::string target_ = folder_.File("job.qjt");
};

TEST_F(KeptCopyOnPosix, IsForTheWriterAloneWhateverTheMask) {
  for (const mode_t mask : {0000U, 0027U, 0077U, 0777U}) {
    const mode_t before = umask(mask);
    const std::string copy = MakeKeptCopy(target_, "new").path;
    umask(before);
    struct stat status {};
    ASSERT_EQ(stat(copy.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
    EXPECT_EQ(status.st_uid, geteuid());
    RemoveKeptCopies(target_);
    EXPECT_EQ(folder_.Names(), "job.qjt");
  }
}

TEST_F(KeptCopyOnPosix, IsForTheWriterAloneInAFolderWithAnAccessList) {
  const std::string command = "setfacl -m d:g::rwx,d:g:daemon:rwx,d:m::rwx " + folder_.path();
  if (std::system((command + " 2>/dev/null").c_str()) != 0) {
    GTEST_SKIP() << "the file system has no access lists, or nothing sets them";
  }
  const std::string copy = MakeKeptCopy(target_, "new").path;
  // The bits of the group are the most that anybody on the list may do.
  struct stat status {};
  ASSERT_EQ(stat(copy.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0600U);
}

TEST_F(KeptCopyOnPosix, WhatIsNoCopyIsNeitherTakenForOneNorRemovedNorInTheWay) {
  const std::string copy = Beside("new");
  const auto isInTheWay = [&] {
    EXPECT_TRUE(KeptCopiesOf(target_).empty());
    const std::string names = folder_.Names();
    const std::string made = MakeKeptCopy(target_, "new").path;
    EXPECT_NE(made, copy);
    EXPECT_EQ(BytesOf(made), "new");
    RemoveKeptCopies(target_);
    EXPECT_EQ(folder_.Names(), names);
    EXPECT_EQ(state_.Names(), "");
    std::filesystem::remove_all(copy);
  };
  WriteBytes(copy, "something else");
  isInTheWay();
  std::filesystem::create_directory(copy);
  isInTheWay();
  WriteBytes(folder_.File("whole"), "new");
  std::filesystem::create_symlink("whole", copy);
  isInTheWay();
  std::filesystem::create_symlink(copy, copy);
  isInTheWay();
  ASSERT_EQ(mkfifo(copy.c_str(), 0600), 0);
  isInTheWay();
  std::filesystem::create_directory(copy + ".part");
  const std::string made = MakeKeptCopy(target_, "new").path;
  EXPECT_EQ(BytesOf(made), "new");
  RemoveKeptCopies(target_);
  EXPECT_TRUE(Exists(copy + ".part"));
}

TEST_F(KeptCopyOnPosix, FolderThatTakesNoneLeavesItToTheStateFolder) {
  ASSERT_EQ(chmod(folder_.path().c_str(), 0555), 0);
  const RightsOfNobody rights;
  const std::string copy = MakeKeptCopy(target_, "new").path;
  EXPECT_EQ(FolderPath(copy), state_.File("halvane-tools"));
  EXPECT_EQ(BytesOf(copy), "new");
  EXPECT_EQ(KeptCopiesOf(target_), std::vector<std::string>{copy});
  // A job of the same name elsewhere is another job.
  EXPECT_TRUE(KeptCopiesOf("/elsewhere/job.qjt").empty());
  RemoveKeptCopies("/elsewhere/job.qjt");
  EXPECT_TRUE(Exists(copy));
  RemoveKeptCopies(target_);
  EXPECT_FALSE(Exists(copy));
}

TEST_F(KeptCopyOnPosix, TemporaryFolderIsTheLastPlace) {
  ASSERT_EQ(chmod(folder_.path().c_str(), 0555), 0);
  ASSERT_EQ(chmod(state_.path().c_str(), 0555), 0);
  const RightsOfNobody rights;
  const std::string copy = MakeKeptCopy(target_, "new").path;
  EXPECT_EQ(FolderPath(copy), temporary_.path());
  EXPECT_EQ(BytesOf(copy), "new");
  RemoveKeptCopies(target_);
  EXPECT_EQ(temporary_.Names(), "");
}

TEST_F(KeptCopyOnPosix, NoPlaceAtAllGivesNoPath) {
  for (const TemporaryFolder* folder : {&folder_, &state_, &temporary_}) {
    ASSERT_EQ(chmod(folder->path().c_str(), 0555), 0);
  }
  const RightsOfNobody rights;
  EXPECT_EQ(MakeKeptCopy(target_, "new").path, "");
}

TEST_F(KeptCopyOnPosix, FolderThatMayNotBeReadTakesOneWhereNoOtherDoes) {
  ASSERT_EQ(chmod(folder_.path().c_str(), 0333), 0);
  {
    const RightsOfNobody rights;
    const std::string safe = MakeKeptCopy(target_, "new").path;
    EXPECT_EQ(FolderPath(safe), state_.File("halvane-tools"));
    EXPECT_FALSE(Exists(Beside("new")));
    RemoveKeptCopies(target_);
  }
  ASSERT_EQ(chmod(state_.path().c_str(), 0555), 0);
  ASSERT_EQ(chmod(temporary_.path().c_str(), 0555), 0);
  std::filesystem::remove_all(state_.File("halvane-tools"));
  const RightsOfNobody rights;
  EXPECT_EQ(MakeKeptCopy(target_, "new").path, Beside("new"));
}

TEST_F(KeptCopyOnPosix, TargetIsTheFileBehindAllLinks) {
  std::filesystem::create_directory(folder_.File("real"));
  std::filesystem::create_symlink("real", folder_.File("folder"));
  std::filesystem::create_symlink("folder/b.qjt", folder_.File("a.qjt"));
  const std::string real = std::filesystem::canonical(folder_.File("real")).string();
  EXPECT_EQ(files::TargetOf(folder_.File("a.qjt")), real + "/b.qjt");
  WriteBytes(folder_.File("real/b.qjt"), "");
  EXPECT_EQ(files::TargetOf(folder_.File("a.qjt")), real + "/b.qjt");
  EXPECT_EQ(files::TargetOf(folder_.File("real/../folder/b.qjt")), real + "/b.qjt");
  EXPECT_EQ(files::TargetOf("/missing/b.qjt"), "/missing/b.qjt");
}

}  // namespace
}  // namespace halvane
