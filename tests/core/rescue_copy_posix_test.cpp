#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "core/job_file.h"
#include "core/rescue_copy.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class RescueCopyOnPosix : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }

  std::string Rescue() {
    return WriteRescueCopy(Module1.JobFileName, RescueBytes(Module1), {fallback_.path()});
  }

  const TemporaryFolder folder_;
  const TemporaryFolder fallback_;
};

TEST_F(RescueCopyOnPosix, FolderThatTakesNoFileSendsItToTheFallback) {
  WriteBytes(fallback_.File("job.rescue.qjt"), "another");
  Module1.JobFileName = folder_.File("job.qjt");
  ASSERT_EQ(chmod(folder_.path().c_str(), 0555), 0);
  ASSERT_EQ(chmod(fallback_.path().c_str(), 0777), 0);
  const RightsOfNobody rights;
  EXPECT_EQ(Rescue(), fallback_.File("job (2).rescue.qjt"));
}

TEST_F(RescueCopyOnPosix, LinkToEqualBytesIsNoCopy) {
  Module1.JobFileName = folder_.File("job.qjt");
  WriteBytes(fallback_.File("elsewhere"), RescueBytes(Module1));
  ASSERT_EQ(symlink(fallback_.File("elsewhere").c_str(), folder_.File("job.rescue.qjt").c_str()),
            0);
  EXPECT_EQ(Rescue(), folder_.File("job (2).rescue.qjt"));
}

TEST_F(RescueCopyOnPosix, IsForTheWritersEyesAlone) {
  Module1.JobFileName = folder_.File("job.qjt");
  WriteBytes(Module1.JobFileName, "open to all");
  ASSERT_EQ(chmod(Module1.JobFileName.c_str(), 0666), 0);
  const mode_t before = umask(0);
  const std::string path = Rescue();
  umask(before);
  struct stat status {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0600U);
}

TEST_F(RescueCopyOnPosix, NameIsShortenedMoreForAPathThatIsNearlyTooLong) {
  // So deep that the whole path has room for a short name alone.
  constexpr std::size_t kLongestPath = 4095;
  constexpr std::size_t kRoom = 100;
  std::string folder = folder_.path();
  while (folder.size() + kRoom < kLongestPath) {
    folder +=
        "/" + std::string(std::min<std::size_t>(200, kLongestPath - kRoom - folder.size()), 'd');
  }
  ASSERT_TRUE(std::filesystem::create_directories(folder));
  Module1.JobFileName = folder + "/" + std::string(90, 'j') + ".qjt";
  const std::string path = Rescue();
  EXPECT_TRUE(path.starts_with(folder + "/jjjj")) << path.size();
  EXPECT_TRUE(path.ends_with("j.rescue.qjt"));
  EXPECT_LE(path.size(), kLongestPath);
  EXPECT_EQ(BytesOf(path), RescueBytes(Module1));
}

}  // namespace
}  // namespace halvane
