#include "core/integer.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "tests/support/test_support.h"

namespace halvane {
namespace {

struct RoundingRow {
  double value;
  Integer rounded;
};

TEST(IntegerRounding, TiesGoToTheEvenNumber) {
  constexpr std::array rows{
      RoundingRow{0, 0},           RoundingRow{0.4, 0},         RoundingRow{0.5, 0},
      RoundingRow{0.51, 1},        RoundingRow{1.5, 2},         RoundingRow{2.5, 2},
      RoundingRow{3.5, 4},         RoundingRow{-0.5, 0},        RoundingRow{-1.5, -2},
      RoundingRow{-2.5, -2},       RoundingRow{-2.51, -3},      RoundingRow{32767, 32767},
      RoundingRow{32767.4, 32767}, RoundingRow{-32768, -32768}, RoundingRow{-32768.5, -32768},
  };
  for (const RoundingRow& row : rows) EXPECT_EQ(ToInteger(row.value), row.rounded) << row.value;
}

TEST(IntegerRounding, MoreThanSixteenBitsOverflow) {
  for (const double value :
       {32767.5, 32768.0, -32768.6, -32769.0, 1E9, -1E300, std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(FailureOf([value] { ToInteger(value); }), "Overflow") << value;
  }
}

}  // namespace
}  // namespace halvane
