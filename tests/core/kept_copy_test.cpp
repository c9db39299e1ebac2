#include "core/kept_copy.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/checksum.h"
#include "core/file_name.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class KeptCopyTest : public testing::Test {
 protected:
  void SetUp() override { WriteBytes(target_, "old"); }
  std::string Beside(std::string_view content) const {
    return target_ + "." + ChecksumOf(content) + ".previous";
  }

  const TemporaryFolder folder_;
  const TemporaryFolder elsewhere_;
  const EnvironmentVariable state_{kStateVariable, elsewhere_.path()};
  const EnvironmentVariable temporary_{kTemporaryVariable, elsewhere_.path()};
  const std::string target_ = folder_.File("job.qjt");
};

TEST_F(KeptCopyTest, StandsBesideTheJobWithTheChecksumOfItsContentInItsName) {
  const std::string copy = MakeKeptCopy(target_, "foobar").path;
  EXPECT_EQ(copy, target_ + ".85944171f73967e8.previous");
  EXPECT_EQ(BytesOf(copy), "foobar");
  EXPECT_EQ(KeptCopiesOf(target_), std::vector<std::string>{copy});
  RemoveKeptCopies(target_);
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(KeptCopyTest, NamesOfTheUsersOwnFilesAreLeftAlone) {
  const std::vector<std::string> names = {"job.qjt.previous",
                                          "job.qjt.previous.part",
                                          "job.qjt.part",
                                          "job.qjt.0123456789abcdef",
                                          "job.qjt.0123456789ABCDEF.part",
                                          "job.qjt.0123456789abcde.part",
                                          "job.qjt.0123456789abcdefa.part",
                                          "job.qjtx.0123456789abcdef.part",
                                          "xjob.qjt.0123456789abcdef.part"};
  for (const std::string& name : names) WriteBytes(folder_.File(name), "mine");
  const std::string before = folder_.Names();
  EXPECT_TRUE(KeptCopiesOf(target_).empty());
  RemoveKeptCopies(target_);
  EXPECT_EQ(folder_.Names(), before);
}

TEST_F(KeptCopyTest, PartsThatAKillLeftGo) {
  WriteBytes(target_ + ".0123456789abcdef.part", "ha");
  WriteBytes(target_ + ".0123456789abcdef.previous.part", "ha");
  WriteBytes(Beside("new") + ".part", "ne");
  EXPECT_TRUE(KeptCopiesOf(target_).empty());
  EXPECT_EQ(MakeKeptCopy(target_, "new").path, Beside("new"));
  RemoveKeptCopies(target_);
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(KeptCopyTest, CopyOfTheSameContentIsReplacedAndNotTakenBack) {
  WriteBytes(Beside("new"), "new");
  const KeptCopy again = MakeKeptCopy(target_, "new");
  EXPECT_EQ(again.path, Beside("new"));
  EXPECT_FALSE(again.isNew);
  TakeBack(again);
  EXPECT_EQ(BytesOf(Beside("new")), "new");
  const KeptCopy other = MakeKeptCopy(target_, "other");
  EXPECT_TRUE(other.isNew);
  TakeBack(other);
  EXPECT_FALSE(Exists(other.path));
}

TEST_F(KeptCopyTest, NameThatIsTooLongIsShortened) {
  std::string name;
  for (int i = 0; i < 83; ++i) name += "工";
  for (const std::string& longName : {name + ".qjt", std::string(255, 'x')}) {
    const std::string target = folder_.File(longName);
    const std::string copy = MakeKeptCopy(target, "new").path;
    EXPECT_EQ(FolderOf(copy), WithSeparator(folder_.path()));
    EXPECT_EQ(BytesOf(copy), "new");
    RemoveKeptCopies(target);
    EXPECT_EQ(folder_.Names(), "job.qjt");
  }
}

}  // namespace
}  // namespace halvane
