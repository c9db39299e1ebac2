#include "core/plain_number.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "core/number_text.h"

namespace halvane {
namespace {

struct Row {
  std::string text;
  double value;
  bool hasPoint;
  std::size_t length;
};

TEST(PlainNumberTest, IsSignDigitsAndPoint) {
  const std::vector<Row> rows = {
      {"0", 0, false, 1},
      {"7", 7, false, 1},
      {"-32768", -32768, false, 6},
      {"0.5", 0.5, true, 3},
      {".5", 0.5, true, 2},
      {"5.", 5, true, 2},
      {"-.25", -0.25, true, 4},
      {"007", 7, false, 3},
      {"999999999999999", 999999999999999, false, 15},
      {"0.00000000000001", 1e-14, true, 16},
      {"12.5,7", 12.5, true, 4},
      {"3\r\n", 3, false, 1},
      {"1.2.3", 1.2, true, 3},
      {"1E5", 1, false, 1},
      {"8 ", 8, false, 1},
  };
  for (const Row& row : rows) {
    const PlainNumber number = PlainNumberAt(row.text);
    EXPECT_EQ(number.value, row.value) << row.text;
    EXPECT_EQ(number.hasPoint, row.hasPoint) << row.text;
    EXPECT_EQ(number.length, row.length) << row.text;
  }
}

TEST(PlainNumberTest, OtherTextHasNone) {
  for (const std::string text :
       {"", "-", ".", "-.", "+5", " 5", "x", "--1", "1234567890123456", "0.000000000000001",
        "-123456789.1234567", "99999999999999999999999999999999", "999999999999999.999999999999999",
        "9999999999999999.9999999999999999"}) {
    EXPECT_EQ(PlainNumberAt(text).length, 0U) << text;
  }
}

TEST(PlainNumberTest, ValuesAreThoseOfTheGeneralWay) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 200000; ++i) {
    const std::size_t count = 1 + random() % 15;
    const std::size_t point = random() % (count + 1);
    std::string text = random() % 2 == 0 ? "-" : "";
    for (std::size_t digit = 0; digit < count; ++digit) {
      if (digit == point) text += '.';
      text += static_cast<char>('0' + random() % 10);
    }
    const PlainNumber number = PlainNumberAt(text);
    ASSERT_EQ(number.length, text.size()) << text;
    ASSERT_EQ(std::bit_cast<std::uint64_t>(number.value),
              std::bit_cast<std::uint64_t>(ReadsAs(text)))
        << text;
  }
}

}  // namespace
}  // namespace halvane
