#include <gtest/gtest.h>

#include "core/file_name.h"

namespace halvane {
namespace {

TEST(FileNameOnWindows, BothSlashesSeparate) {
  EXPECT_EQ(FolderOf("C:\\jobs\\line.qjt"), "C:\\jobs\\");
  EXPECT_EQ(FileNameOf("C:\\jobs\\line.qjt"), "line.qjt");
  EXPECT_EQ(FolderOf("C:\\jobs/line.qjt"), "C:\\jobs/");
  EXPECT_EQ(FileNameOf("C:/jobs\\line.qjt"), "line.qjt");
  EXPECT_EQ(FolderOf("\\\\server\\share\\line.qjt"), "\\\\server\\share\\");
  EXPECT_EQ(FileNameOf("C:\\jobs\\"), "");
}

TEST(FileNameOnWindows, DiskWithoutASlashIsAFolder) {
  EXPECT_EQ(FolderOf("C:line.qjt"), "C:");
  EXPECT_EQ(FileNameOf("C:line.qjt"), "line.qjt");
  EXPECT_EQ(FolderOf("line.qjt"), "");
  EXPECT_EQ(FileNameOf("line:2.qjt"), "line:2.qjt");
}

TEST(FileNameOnWindows, SeparatorIsABackslashWhereNoneStands) {
  EXPECT_EQ(WithSeparator("C:\\jobs"), "C:\\jobs\\");
  EXPECT_EQ(WithSeparator("C:\\jobs\\"), "C:\\jobs\\");
  EXPECT_EQ(WithSeparator("C:/jobs/"), "C:/jobs/");
  EXPECT_EQ(WithSeparator("C:"), "C:");
  EXPECT_EQ(WithSeparator(""), "");
}

}  // namespace
}  // namespace halvane
