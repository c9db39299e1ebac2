#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "core/user_folders.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

TEST(UserFoldersOnWindows, StateStandsWhereTheUsersLocalDataDo) {
  const EnvironmentVariable state("LOCALAPPDATA", "C:\\users\\J\u00fcrgen\\Local\\");
  EXPECT_EQ(StateFolder(), "C:\\users\\J\u00fcrgen\\Local\\halvane-tools");
}

TEST(UserFoldersOnWindows, StateStandsWhereTheSystemSaysWhereNoVariableDoes) {
  for (const std::optional<std::string>& value :
       {std::optional<std::string>(), std::optional<std::string>("Local")}) {
    const EnvironmentVariable state("LOCALAPPDATA", value);
    EXPECT_EQ(StateFolder().substr(1, 2), ":\\");
    EXPECT_TRUE(StateFolder().ends_with("\\halvane-tools"));
  }
}

TEST(UserFoldersOnWindows, HomeIsTheUsersProfile) {
  {
    const EnvironmentVariable home("USERPROFILE", "D:\\anna");
    EXPECT_EQ(HomeFolder(), "D:\\anna");
  }
  const EnvironmentVariable none("USERPROFILE", std::nullopt);
  EXPECT_EQ(HomeFolder().substr(1, 2), ":\\");
}

TEST(UserFoldersOnWindows, TemporaryFolderIsTheFirstNamedOne) {
  const EnvironmentVariable first("TMP", "C:\\first\\");
  const EnvironmentVariable second("TEMP", "C:\\second");
  EXPECT_EQ(SystemTemporaryFolder(), "C:\\first");
  const EnvironmentVariable none("TMP", std::nullopt);
  EXPECT_EQ(SystemTemporaryFolder(), "C:\\second");
}

TEST(UserFoldersOnWindows, FoldersAreMadeWithEitherSlash) {
  const TemporaryFolder folder;
  EXPECT_TRUE(MakeFolder(folder.path() + "/a\\b/c\\"));
  EXPECT_TRUE(Exists(folder.File("a\\b\\c")));
  EXPECT_FALSE(MakeFolder("\\\\.\\NUL\\a"));
}

}  // namespace
}  // namespace halvane
