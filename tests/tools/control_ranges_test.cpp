#include <gtest/gtest.h>

#include <array>

#include "tests/support/test_support.h"
#include "tools/reba/reba_controls.h"
#include "tools/rula/rula_controls.h"

namespace halvane {
namespace {

TEST(ControlRanges, RulaStatesEndAtTheirLastControl) {
  constexpr std::array<int, 20> kHighest{4, 1, 1, 1, 1, 1, 4, 1, 1, 3,
                                         1, 1, 3, 1, 1, 1, 1, 3, 1, 1};
  for (std::size_t i = 0; i < kHighest.size(); ++i) {
    EXPECT_EQ(HighestState(kRulaControls, static_cast<int>(i)), kHighest.at(i)) << i;
  }
  EXPECT_EQ(FailureOf([] { HighestState(kRulaControls, 20); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([] { HighestState(kRulaControls, -1); }), "SubscriptOutOfRange");
}

TEST(ControlRanges, RebaStatesEndAtTheirLastControl) {
  constexpr std::array<int, 23> kHighest{4, 1, 1, 1, 2, 0, 2, 1, 0, 2, 1, 0,
                                         5, 1, 0, 2, 2, 2, 1, 3, 1, 1, 1};
  for (std::size_t i = 0; i < kHighest.size(); ++i) {
    EXPECT_EQ(HighestState(kRebaControls, static_cast<int>(i)), kHighest.at(i)) << i;
  }
  EXPECT_EQ(FailureOf([] { HighestState(kRebaControls, 23); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([] { HighestState(kRebaControls, -1); }), "SubscriptOutOfRange");
}

}  // namespace
}  // namespace halvane
