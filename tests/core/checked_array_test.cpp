#include "core/checked_array.h"

#include <gtest/gtest.h>

#include <string>

#include "core/checked_math.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

constexpr const char* kOutOfRange = "SubscriptOutOfRange";

TEST(CheckedArray, FixedArrayTestsBothBounds) {
  FixedArray<Integer, 3> array;
  EXPECT_EQ(array.size(), 3);
  array.at(0) = 10;
  array.at(2) = 12;
  const auto& readOnly = array;
  EXPECT_EQ(readOnly.at(0), 10);
  EXPECT_EQ(readOnly.at(1), 0);
  EXPECT_EQ(readOnly.at(2), 12);
  for (const int index : {-1, 3, 1000000, -2147483647}) {
    EXPECT_EQ(FailureOf([&] { array.at(index) = 1; }), kOutOfRange) << index;
    EXPECT_EQ(FailureOf([&] { (void)readOnly.at(index); }), kOutOfRange) << index;
  }
}

TEST(CheckedArray, FixedArrayFillsEveryElement) {
  FixedArray<Integer, 3> array;
  array.fill(7);
  EXPECT_EQ(array.at(0) + array.at(1) + array.at(2), 21);
}

TEST(CheckedArray, GridTestsRowsAndColumns) {
  FixedGrid<double, 2, 3> grid;
  EXPECT_EQ(grid.rows(), 2);
  EXPECT_EQ(grid.columns(), 3);
  grid.at(1, 2) = 5;
  grid.at(0, 2) = 4;
  const auto& readOnly = grid;
  EXPECT_EQ(readOnly.at(1, 2), 5);
  EXPECT_EQ(readOnly.at(0, 2), 4);
  EXPECT_EQ(readOnly.at(1, 1), 0);
  EXPECT_EQ(FailureOf([&] { grid.at(2, 0) = 1; }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { grid.at(-1, 0) = 1; }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { grid.at(0, 3) = 1; }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { (void)readOnly.at(0, -1); }), kOutOfRange);
}

TEST(CheckedArray, NewTaskArrayHasSlotZeroAlone) {
  TaskArray<std::string> array;
  EXPECT_EQ(array.upperBound(), 0);
  EXPECT_EQ(array.at(0), "");
  EXPECT_EQ(FailureOf([&] { array.at(1) = "x"; }), kOutOfRange);
  EXPECT_EQ(FailureOf([&] { array.at(-1) = "x"; }), kOutOfRange);
}

TEST(CheckedArray, RedimensionEmptiesAndRedimensionKeepingKeeps) {
  TaskArray<double> array;
  array.Redimension(2);
  array.at(1) = 1;
  array.at(2) = 2;
  array.RedimensionKeeping(3);
  EXPECT_EQ(array.upperBound(), 3);
  EXPECT_EQ(array.at(1), 1);
  EXPECT_EQ(array.at(2), 2);
  EXPECT_EQ(array.at(3), 0);
  array.RedimensionKeeping(1);
  EXPECT_EQ(array.at(1), 1);
  EXPECT_EQ(FailureOf([&] { array.at(2) = 0; }), kOutOfRange);
  array.Redimension(1);
  EXPECT_EQ(array.at(1), 0);
  const auto& readOnly = array;
  EXPECT_EQ(FailureOf([&] { (void)readOnly.at(2); }), kOutOfRange);
}

TEST(CheckedMath, DivisorZeroFailsBeforeAnythingElse) {
  EXPECT_EQ(FailureOf([] { Quotient(1, 0); }), "DivisionByZero");
  EXPECT_EQ(FailureOf([] { Quotient(0, 0); }), "DivisionByZero");
  EXPECT_EQ(FailureOf([] { Quotient(1, -0.0); }), "DivisionByZero");
  EXPECT_EQ(Quotient(1, 4), 0.25);
  EXPECT_EQ(Quotient(0, 4), 0);
}

TEST(CheckedMath, ResultBeyondADoubleOverflows) {
  EXPECT_EQ(FailureOf([] { Quotient(1E308, 1E-10); }), "Overflow");
  EXPECT_EQ(FailureOf([] { Product(1E308, -10); }), "Overflow");
  EXPECT_EQ(FailureOf([] { Finite(1E308 * 10); }), "Overflow");
  EXPECT_EQ(Product(3, -0.5), -1.5);
  EXPECT_EQ(Finite(-2), -2);
}

}  // namespace
}  // namespace halvane
