#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <string>

#include "core/file_calls.h"
#include "core/job_file.h"
#include "core/kept_copy.h"
#include "core/platform_file.h"
#include "tests/support/test_support.h"

namespace {

/// What a test does when the program brings a file to the disk, in place of doing so; gives the
/// error number, else 0.
std::function<int(int descriptor)>& OnSync() {
  static std::function<int(int)> action;
  return action;
}

/// What a test does before the program locks a file.
std::function<void()>& OnLock() {
  static std::function<void()> action;
  return action;
}

}  // namespace

/// Takes the place of the system's own, so that a test can look at the folder while a save is under
/// way.
extern "C" int fsync(int descriptor) {
  if (!OnSync()) return static_cast<int>(syscall(SYS_fsync, descriptor));
  errno = OnSync()(descriptor);
  return errno == 0 ? 0 : -1;
}

extern "C" int flock(int descriptor, int operation) {
  if (OnLock()) OnLock()();
  return static_cast<int>(syscall(SYS_flock, descriptor, operation));
}

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
}

class FileReplacementOnPosix : public testing::Test {
 protected:
  void TearDown() override {
    OnSync() = nullptr;
    OnLock() = nullptr;
  }

  /// Calls `action` when the job's file itself is brought to the disk.
  void AtTheSyncOfTheJob(const std::function<int()>& action) {
    OnSync() = [this, action](int descriptor) {
      struct stat synced {};
      EXPECT_EQ(fstat(descriptor, &synced), 0);
      struct stat job {};
      if (stat(path_.c_str(), &job) != 0 || job.st_ino != synced.st_ino) return 0;
      return action();
    };
  }
  std::string Copy() const { return folder_.File(NameLike(folder_, "job.qjt.", ".previous")); }

  const TemporaryFolder folder_;
  const TemporaryFolder elsewhere_;
  const EnvironmentVariable state_{"XDG_STATE_HOME", elsewhere_.path()};
  const EnvironmentVariable temporary_{"TMPDIR", elsewhere_.path()};
  const std::string path_ = folder_.File("job.qjt");
};

TEST_F(FileReplacementOnPosix, NewFileHasTheModeThatTheUserWants) {
  const mode_t before = umask(0);
  for (const mode_t mask : {0022U, 0027U, 0077U}) {
    umask(mask);
    Replace(path_, "new");
    EXPECT_EQ(ModeOf(path_), 0666U & ~mask);
    std::filesystem::remove(path_);
  }
  umask(before);
}

TEST_F(FileReplacementOnPosix, NewFileHasItsNameOnlyWhenItIsWhole) {
  {
    FileReplacement file(path_);
    EXPECT_FALSE(Exists(path_));
    OnSync() = [this](int) {
      EXPECT_FALSE(Exists(path_));
      OnSync() = nullptr;
      return EIO;
    };
    EXPECT_EQ(MessageOf([&file] { file.Write("new"); }),
              "File error: " + path_ + ": Input/output error. No file was made");
  }
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(FileReplacementOnPosix, NewContentStandsInACopyUntilItIsInTheFile) {
  const std::string content(200000, 'n');
  WriteBytes(path_, std::string(300000, 'o'));
  bool looked = false;
  AtTheSyncOfTheJob([&] {
    looked = true;
    EXPECT_EQ(BytesOf(Copy()), content);
    return 0;
  });
  Replace(path_, content);
  EXPECT_TRUE(looked);
  EXPECT_EQ(BytesOf(path_), content);
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(FileReplacementOnPosix, OldContentIsThereUntilTheCopyIsOnTheDisk) {
  WriteBytes(path_, "old");
  bool looked = false;
  OnSync() = [&](int) {
    if (!looked) {
      EXPECT_EQ(BytesOf(path_), "old");
    }
    looked = true;
    return 0;
  };
  Replace(path_, "new");
  EXPECT_TRUE(looked);
}

TEST_F(FileReplacementOnPosix, FailureBehindTheFirstByteKeepsTheCopyAndNamesIt) {
  WriteBytes(path_, "old");
  AtTheSyncOfTheJob([] { return EIO; });
  const std::string message = MessageOf([this] { Replace(path_, "new"); });
  EXPECT_EQ(BytesOf(Copy()), "new");
  EXPECT_EQ(message,
            "File error: " + path_ + ": Input/output error. The whole job stands in " + Copy());
}

TEST_F(FileReplacementOnPosix, CopyOfAnEarlierKillStaysUntilASaveSucceeds) {
  WriteBytes(path_, "hal");
  const std::string copy = MakeKeptCopy(path_, "last whole one").path;
  AtTheSyncOfTheJob([&copy] {
    EXPECT_EQ(BytesOf(copy), "last whole one");
    return EIO;
  });
  EXPECT_EQ(FailureOf([this] { Replace(path_, "again"); }), "FileError");
  EXPECT_EQ(BytesOf(copy), "last whole one");
  OnSync() = nullptr;
  Replace(path_, "whole");
  EXPECT_EQ(BytesOf(path_), "whole");
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(FileReplacementOnPosix, FailureWithIncompleteContentNamesTheOldOne) {
  WriteBytes(path_, "old");
  AtTheSyncOfTheJob([] { return EIO; });
  FileReplacement file(path_);
  const std::string message = MessageOf([&file] { file.WriteIncomplete("ha"); });
  EXPECT_EQ(message, "File error: " + path_ + ": Input/output error. " + Copy() +
                         " holds the job as it was before");
  EXPECT_EQ(BytesOf(Copy()), "old");
}

TEST_F(FileReplacementOnPosix, SymbolicLinkStaysALinkToTheSameFile) {
  std::filesystem::create_directory(folder_.File("real"));
  WriteBytes(folder_.File("real/target.qjt"), "old");
  std::filesystem::create_symlink("real/target.qjt", path_);
  const ino_t inode = StatusOf(folder_.File("real/target.qjt")).st_ino;
  Replace(path_, "new");
  EXPECT_EQ(std::filesystem::read_symlink(path_), "real/target.qjt");
  EXPECT_EQ(BytesOf(folder_.File("real/target.qjt")), "new");
  EXPECT_EQ(StatusOf(folder_.File("real/target.qjt")).st_ino, inode);
  EXPECT_EQ(folder_.Names(), "job.qjt real");
}

TEST_F(FileReplacementOnPosix, SymbolicLinkThatLeadsNowhereStaysALink) {
  std::filesystem::create_directory(folder_.File("real"));
  std::filesystem::create_symlink("real/target.qjt", path_);
  Replace(path_, "new");
  EXPECT_EQ(std::filesystem::read_symlink(path_), "real/target.qjt");
  EXPECT_EQ(BytesOf(folder_.File("real/target.qjt")), "new");
  EXPECT_EQ(folder_.Names(), "job.qjt real");
}

TEST_F(FileReplacementOnPosix, ModeStaysAndTheCopyIsForTheWriterAlone) {
  for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
    WriteBytes(path_, "old");
    ASSERT_EQ(chmod(path_.c_str(), mode), 0);
    AtTheSyncOfTheJob([this] {
      EXPECT_EQ(ModeOf(Copy()), 0600U);
      return 0;
    });
    Replace(path_, "new");
    EXPECT_EQ(ModeOf(path_), mode);
  }
}

TEST_F(FileReplacementOnPosix, OwnerStaysAndTheCopyIsTheWriters) {
  if (geteuid() != 0) GTEST_SKIP() << "giving a file to another user takes root";
  WriteBytes(path_, "old");
  ASSERT_EQ(chown(path_.c_str(), kNobody, kNobody), 0);
  AtTheSyncOfTheJob([this] {
    EXPECT_EQ(StatusOf(Copy()).st_uid, 0U);
    return 0;
  });
  Replace(path_, "new");
  EXPECT_EQ(StatusOf(path_).st_uid, kNobody);
  EXPECT_EQ(StatusOf(path_).st_gid, kNobody);
}

TEST_F(FileReplacementOnPosix, ForeignFileIsWrittenWithACopyForTheWriterAlone) {
  if (geteuid() != 0) GTEST_SKIP() << "a file of another user takes root to make";
  WriteBytes(path_, "old");
  ASSERT_EQ(chmod(folder_.path().c_str(), 01777), 0);
  ASSERT_EQ(chmod(path_.c_str(), 0666), 0);
  {
    const RightsOfNobody rights;
    AtTheSyncOfTheJob([this] {
      EXPECT_EQ(StatusOf(Copy()).st_uid, kNobody);
      EXPECT_EQ(ModeOf(Copy()), 0600U);
      return 0;
    });
    Replace(path_, "new");
  }
  EXPECT_EQ(StatusOf(path_).st_uid, 0U);
  EXPECT_EQ(ModeOf(path_), 0666U);
  EXPECT_EQ(BytesOf(path_), "new");
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(FileReplacementOnPosix, FileThatMayNotBeWrittenStaysAndLeavesNoCopy) {
  WriteBytes(path_, "old");
  ASSERT_EQ(chmod(folder_.path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(elsewhere_.path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(path_.c_str(), 0444), 0);
  {
    const RightsOfNobody rights;
    EXPECT_EQ(FailureOf([this] { FileReplacement file(path_); }), "FileError");
  }
  EXPECT_EQ(BytesOf(path_), "old");
  EXPECT_EQ(folder_.Names(), "job.qjt");
  EXPECT_EQ(elsewhere_.Names(), "");
}

TEST_F(FileReplacementOnPosix, FileThatMayOnlyBeWrittenIsWritten) {
  WriteBytes(path_, "old");
  ASSERT_EQ(chmod(folder_.path().c_str(), 0755), 0);
  ASSERT_EQ(chmod(path_.c_str(), 0222), 0);
  {
    const RightsOfNobody rights;
    Replace(path_, "new");
  }
  EXPECT_EQ(BytesOf(path_), "new");
}

TEST_F(FileReplacementOnPosix, FileThatIsReplacedWhileItsTurnIsAwaitedIsOpenedAgain) {
  WriteBytes(path_, "old");
  const std::string other = folder_.File("other");
  WriteBytes(other, "of another program");
  const ino_t inode = StatusOf(other).st_ino;
  OnLock() = [&] {
    if (Exists(other)) std::filesystem::rename(other, path_);
  };
  Replace(path_, "new");
  EXPECT_EQ(BytesOf(path_), "new");
  EXPECT_EQ(StatusOf(path_).st_ino, inode);
}

TEST_F(FileReplacementOnPosix, FileThatIsRemovedWhileItsTurnIsAwaitedIsMadeAgain) {
  WriteBytes(path_, "old");
  OnLock() = [this] { std::filesystem::remove(path_); };
  Replace(path_, "new");
  EXPECT_EQ(BytesOf(path_), "new");
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

TEST_F(FileReplacementOnPosix, NewFileIsLockedUntilItsSaveIsOver) {
  bool looked = false;
  OnSync() = [&](int) {
    // The folder's turn comes when the file has its name already.
    if (!Exists(path_)) return 0;
    looked = true;
    files::File other;
    EXPECT_FALSE(other.Open(path_, files::Access::Read));
    EXPECT_EQ(other.TryLock(), std::errc::operation_would_block);
    return 0;
  };
  Replace(path_, "new");
  EXPECT_TRUE(looked);
}

TEST_F(FileReplacementOnPosix, FailureOfTheFolderAloneIsNone) {
  OnSync() = [](int descriptor) {
    struct stat status {};
    EXPECT_EQ(fstat(descriptor, &status), 0);
    return S_ISDIR(status.st_mode) ? EIO : 0;
  };
  Replace(path_, "new");
  EXPECT_EQ(BytesOf(path_), "new");
  Replace(path_, "newer");
  EXPECT_EQ(BytesOf(path_), "newer");
  EXPECT_EQ(folder_.Names(), "job.qjt");
}

class ReadOnlyFolder : public FileReplacementOnPosix {
 protected:
  void SetUp() override {
    ASSERT_EQ(chmod(elsewhere_.path().c_str(), 0777), 0);
    Module1 = JobState{};
    Module1.JobFileName = path_;
    Module1.JobAnalyst = "changed";
    Module1.JobDirty = kTrue;
  }
};

TEST_F(ReadOnlyFolder, SaveOfANewJobFailsAndLeavesNothingOpen) {
  ASSERT_EQ(chmod(folder_.path().c_str(), 0555), 0);
  {
    const RightsOfNobody rights;
    EXPECT_EQ(MessageOf(WriteJobFile),
              "File error: " + path_ + ": Permission denied. No file was made");
  }
  EXPECT_FALSE(Module1.JobFileOpen);
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(folder_.Names(), "");
}

TEST_F(ReadOnlyFolder, SaveOverAJobKeepsItsCopyInTheStateFolder) {
  WriteBytes(path_, EmptyJobText());
  ASSERT_EQ(chmod(path_.c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0555), 0);
  bool looked = false;
  AtTheSyncOfTheJob([&] {
    looked = true;
    const std::string state = elsewhere_.File("halvane-tools");
    for (const auto& entry : std::filesystem::directory_iterator(state)) {
      EXPECT_EQ(BytesOf(entry.path().string()), JobFileBytes(Module1));
    }
    EXPECT_FALSE(std::filesystem::is_empty(state));
    return 0;
  });
  {
    const RightsOfNobody rights;
    EXPECT_EQ(FailureOf(WriteJobFile), "none");
  }
  EXPECT_TRUE(looked);
  EXPECT_EQ(BytesOf(path_), JobFileBytes(Module1));
  EXPECT_TRUE(std::filesystem::is_empty(elsewhere_.File("halvane-tools")));
}

}  // namespace
}  // namespace halvane
