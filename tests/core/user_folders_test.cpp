#include "core/user_folders.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/test_support.h"

namespace halvane {
namespace {

TEST(UserFolders, FolderIsMadeWithThoseAboveIt) {
  const TemporaryFolder folder;
  EXPECT_TRUE(MakeFolder(folder.File("a/b/c")));
  EXPECT_TRUE(MakeFolder(folder.File("a/b/c")));
  EXPECT_TRUE(std::filesystem::is_directory(folder.File("a/b/c")));
}

TEST(UserFolders, FolderThatCannotBeMadeIsTold) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("file"), "");
  EXPECT_FALSE(MakeFolder(folder.File("file")));
  EXPECT_FALSE(MakeFolder(folder.File("file/a")));
  EXPECT_FALSE(MakeFolder(""));
}

}  // namespace
}  // namespace halvane
