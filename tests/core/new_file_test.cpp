#include <gtest/gtest.h>

#include "core/platform_file.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

TEST(WriteNewFileTest, TakenNameIsLeftAlone) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("a"), "old");
  EXPECT_FALSE(WriteNewFile(folder.File("a"), "new"));
  EXPECT_TRUE(WriteNewFile(folder.File("b"), "new"));
  EXPECT_EQ(BytesOf(folder.File("a")), "old");
  EXPECT_EQ(BytesOf(folder.File("b")), "new");
  EXPECT_EQ(folder.Names(), "a b");
  EXPECT_EQ(FailureOf([&] { WriteNewFile(folder.File("missing/c"), "new"); }), "FileError");
}

}  // namespace
}  // namespace halvane
