#include <gtest/gtest.h>
#include <sys/stat.h>

#include <optional>
#include <string>

#include "core/user_folders.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

TEST(UserFolders, StateStandsWhereTheDesktopSays) {
  const EnvironmentVariable state("XDG_STATE_HOME", "/srv/state/");
  EXPECT_EQ(StateFolder(), "/srv/state/halvane-tools");
}

TEST(UserFolders, StateStandsInTheHomeFolderWhereTheDesktopSaysNothing) {
  const EnvironmentVariable home("HOME", "/srv/anna");
  for (const std::optional<std::string>& value :
       {std::optional<std::string>(), std::optional<std::string>(""),
        std::optional<std::string>("state")}) {
    const EnvironmentVariable state("XDG_STATE_HOME", value);
    EXPECT_EQ(StateFolder(), "/srv/anna/.local/state/halvane-tools");
  }
}

TEST(UserFolders, HomeThatTheEnvironmentDoesNotNameIsTheOneOfTheAccount) {
  const EnvironmentVariable home("HOME", std::nullopt);
  EXPECT_EQ(HomeFolder().substr(0, 1), "/");
}

TEST(UserFolders, TemporaryFolderIsTheNamedOneElseTheSystems) {
  {
    const EnvironmentVariable named("TMPDIR", "/srv/tmp");
    EXPECT_EQ(SystemTemporaryFolder(), "/srv/tmp");
  }
  const EnvironmentVariable none("TMPDIR", std::nullopt);
  EXPECT_EQ(SystemTemporaryFolder(), "/tmp");
}

TEST(UserFolders, FolderIsMadeWithThoseAboveItForTheUserAlone) {
  const TemporaryFolder folder;
  EXPECT_TRUE(MakeFolder(folder.File("a/b/c")));
  EXPECT_TRUE(MakeFolder(folder.File("a/b/c")));
  for (const char* name : {"a", "a/b", "a/b/c"}) {
    struct stat status {};
    ASSERT_EQ(stat(folder.File(name).c_str(), &status), 0) << name;
    EXPECT_EQ(status.st_mode & 07777U, 0700U) << name;
  }
}

}  // namespace
}  // namespace halvane
