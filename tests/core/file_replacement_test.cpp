#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "core/file_calls.h"
#include "core/platform_file.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

void Replace(const std::string& path, std::string_view bytes) {
  FileReplacement file(path);
  file.Write(bytes);
}

class FileReplacementTest : public testing::Test {
 protected:
  std::string Copy() const { return folder_.File(NameLike(folder_, "job.qjt.", ".previous")); }

  const TemporaryFolder folder_;
  const TemporaryFolder elsewhere_;
  const EnvironmentVariable state_{kStateVariable, elsewhere_.path()};
  const EnvironmentVariable temporary_{kTemporaryVariable, elsewhere_.path()};
  const std::string path_ = folder_.File("job.qjt");
};

TEST_F(FileReplacementTest, FileIsReplacedInPlace) {
  for (const std::size_t size : {3U, 300000U, 0U, 200000U}) {
    WriteBytes(path_, std::string(250000, 'o'));
    files::Status before;
    ASSERT_FALSE(files::StatusOf(path_, before));
    const std::string content(size, 'n');
    Replace(path_, content);
    EXPECT_EQ(BytesOf(path_), content);
    files::Status after;
    ASSERT_FALSE(files::StatusOf(path_, after));
    EXPECT_TRUE(after.IsSameFileAs(before));
    EXPECT_EQ(folder_.Names(), "job.qjt");
    EXPECT_EQ(elsewhere_.Names(), "");
  }
}

TEST_F(FileReplacementTest, FileThatSomebodyMakesMeanwhileIsReplacedInPlace) {
  FileReplacement file(path_);
  WriteBytes(path_, "of somebody else");
  files::Status before;
  ASSERT_FALSE(files::StatusOf(path_, before));
  file.Write("new");
  EXPECT_EQ(BytesOf(path_), "new");
  files::Status after;
  ASSERT_FALSE(files::StatusOf(path_, after));
  EXPECT_TRUE(after.IsSameFileAs(before));
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(FileReplacementTest, HardLinksStay) {
  WriteBytes(path_, "old");
  std::filesystem::create_hard_link(path_, folder_.File("other.qjt"));
  Replace(path_, "new");
  EXPECT_EQ(BytesOf(folder_.File("other.qjt")), "new");
  files::Status status;
  ASSERT_FALSE(files::StatusOf(path_, status));
  EXPECT_EQ(status.names, 2U);
}

TEST_F(FileReplacementTest, LockedFileIsReadAllTheSame) {
  WriteBytes(path_, "old");
  const FileReplacement file(path_);
  EXPECT_EQ(BytesOf(path_), "old");
}

TEST_F(FileReplacementTest, NewFileIsWhatWasWritten) {
  Replace(path_, "new");
  EXPECT_EQ(BytesOf(path_), "new");
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(FileReplacementTest, WithoutAWriteNothingChanges) {
  { const FileReplacement file(path_); }
  EXPECT_EQ(folder_.Names(), "");
  WriteBytes(path_, "old");
  { const FileReplacement file(path_); }
  EXPECT_EQ(BytesOf(path_), "old");
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(FileReplacementTest, IncompleteContentStandsWithTheOldOneInACopy) {
  const std::string old(200000, 'o');
  WriteBytes(path_, old);
  std::string copy;
  {
    FileReplacement file(path_);
    copy = file.WriteIncomplete("ha");
  }
  EXPECT_EQ(copy, Copy());
  EXPECT_EQ(BytesOf(copy), old);
  EXPECT_EQ(BytesOf(path_), "ha");
}

TEST_F(FileReplacementTest, LongestNamesAreSaved) {
  std::string chinese;
  for (int i = 0; i < 83; ++i) chinese += "工";
  for (const std::string& name : {chinese, chinese + ".qjt", std::string(242, 'x'),
                                  std::string(249, 'x'), std::string(255, 'x')}) {
    const std::string path = folder_.File(name);
    Replace(path, "first");
    EXPECT_EQ(BytesOf(path), "first");
    Replace(path, "second");
    EXPECT_EQ(BytesOf(path), "second");
    EXPECT_EQ(folder_.Names(), name);
    ASSERT_FALSE(files::Remove(path));
  }
}

TEST_F(FileReplacementTest, UsersOwnFilesStay) {
  WriteBytes(path_, "old");
  WriteBytes(path_ + ".previous", "mine");
  std::filesystem::create_directory(path_ + ".previous.part");
  Replace(path_, "new");
  EXPECT_EQ(BytesOf(path_ + ".previous"), "mine");
  EXPECT_EQ(folder_.Names(), "job.qjt job.qjt.previous job.qjt.previous.part");
}

TEST_F(FileReplacementTest, FileThatAnotherProgramKeepsLockedIsNotWritten) {
  WriteBytes(path_, "old");
  files::File other;
  ASSERT_FALSE(other.Open(path_, files::Access::Read));
  ASSERT_FALSE(other.TryLock());
  EXPECT_EQ(MessageOf([this] { FileReplacement file(path_); }),
            "File error: " + path_ + ": another program is using it. Nothing was written");
  EXPECT_EQ(BytesOf(path_), "old");
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

}  // namespace
}  // namespace halvane
