#include "core/file_name.h"

#include <gtest/gtest.h>

#include <string>

namespace halvane {
namespace {

TEST(FileName, PathFallsIntoFolderAndName) {
  EXPECT_EQ(FolderOf("/a/b.qjt"), "/a/");
  EXPECT_EQ(FileNameOf("/a/b.qjt"), "b.qjt");
  EXPECT_EQ(FolderOf("b.qjt"), "");
  EXPECT_EQ(FileNameOf("b.qjt"), "b.qjt");
  EXPECT_EQ(FolderOf("/a/"), "/a/");
  EXPECT_EQ(FileNameOf("/a/"), "");
}

TEST(FileName, ShortenedNameCutsNoCharacter) {
  EXPECT_EQ(ShortenedName("bench", 5), "bench");
  EXPECT_EQ(ShortenedName("bench", 4), "benc");
  EXPECT_EQ(ShortenedName("aé", 2), "a");
  EXPECT_EQ(ShortenedName("aé", 3), "aé");
  EXPECT_EQ(ShortenedName("工作", 5), "工");
  EXPECT_EQ(ShortenedName("工作", 6), "工作");
  EXPECT_EQ(ShortenedName("a\xF0\x9F\x94\xA7", 4), "a");
}

TEST(FileName, ShortenedNameThatIsNoUtf8IsCutAllTheSame) {
  EXPECT_EQ(ShortenedName("\x80\x80\x80\x80", 2), "\x80\x80");
}

}  // namespace
}  // namespace halvane
