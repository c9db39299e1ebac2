#include <gtest/gtest.h>

#include "core/file_name.h"

namespace halvane {
namespace {

TEST(FileNameOnPosix, BackslashAndColonBelongToTheName) {
  EXPECT_EQ(FolderOf("/a/b\\c.qjt"), "/a/");
  EXPECT_EQ(FileNameOf("/a/b\\c.qjt"), "b\\c.qjt");
  EXPECT_EQ(FolderOf("c:b.qjt"), "");
}

TEST(FileNameOnPosix, SeparatorIsASlash) {
  EXPECT_EQ(WithSeparator("/a"), "/a/");
  EXPECT_EQ(WithSeparator("/a/"), "/a/");
  EXPECT_EQ(WithSeparator("/"), "/");
  EXPECT_EQ(WithSeparator(""), "");
}

}  // namespace
}  // namespace halvane
