#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "core/journal.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

mode_t ModeOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777U;
}

TEST(JournalOnPosix, IsForTheUsersEyesAlone) {
  const TemporaryFolder folder;
  const mode_t before = umask(0);
  Journal journal(folder.File("state/program"));
  ASSERT_TRUE(journal.Write({EmptyJobText(), "/a", true}));
  ASSERT_TRUE(journal.Write({EmptyJobText(), "/b", true}));
  umask(before);
  EXPECT_EQ(ModeOf(journal.path()), 0600U);
  EXPECT_EQ(ModeOf(folder.File("state/program")), 0700U);
}

TEST(JournalOnPosix, LinksAndPipesStay) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("elsewhere"), JournalText({EmptyJobText(), "/a", true}));
  ASSERT_EQ(symlink("elsewhere", folder.File("journal-link.qjt").c_str()), 0);
  ASSERT_EQ(mkfifo(folder.File("journal-pipe.qjt").c_str(), 0600), 0);
  const std::string names = folder.Names();
  KeepLeftJournals(folder.path(), [](const JournalEntry& entry) {
    ADD_FAILURE() << entry.jobFile;
    return true;
  });
  EXPECT_EQ(folder.Names(), names);
}

}  // namespace
}  // namespace halvane
