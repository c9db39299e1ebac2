#include "core/checksum.h"

#include <gtest/gtest.h>

namespace halvane {
namespace {

// Published values of the function.
TEST(ChecksumTest, KnownTextsHaveTheirKnownChecksums) {
  EXPECT_EQ(ChecksumOf(""), "cbf29ce484222325");
  EXPECT_EQ(ChecksumOf("a"), "af63dc4c8601ec8c");
  EXPECT_EQ(ChecksumOf("foobar"), "85944171f73967e8");
}

TEST(ChecksumTest, PiecesCountAsTheWhole) {
  Checksum checksum;
  checksum.Add("foo");
  checksum.Add("");
  checksum.Add("bar");
  EXPECT_EQ(checksum.Text(), ChecksumOf("foobar"));
}

TEST(ChecksumTest, SixteenSmallDigitsLookLikeOne) {
  EXPECT_TRUE(IsChecksum("0123456789abcdef"));
  EXPECT_FALSE(IsChecksum("0123456789ABCDEF"));
  EXPECT_FALSE(IsChecksum("0123456789abcde"));
  EXPECT_FALSE(IsChecksum("0123456789abcdef0"));
  EXPECT_FALSE(IsChecksum("0123456789abcdeg"));
}

}  // namespace
}  // namespace halvane
