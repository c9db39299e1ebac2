#include "tools/hand_controls.h"

#include <gtest/gtest.h>

#include "core/job_state.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

class Hand : public HandControls {
 public:
  explicit Hand(int designed) : HandControls(designed) {}
};

TEST(HandControls, ChoiceIsStoredAndMarksTheJob) {
  for (const int index : {0, 1}) {
    Module1 = JobState{};
    Module1.Hand = index == 0 ? 1 : 0;
    Hand hand(HandControls::kNoHand);
    EXPECT_EQ(hand.hand(), -1);
    hand.ChooseHand(index);
    EXPECT_EQ(hand.hand(), index);
    JobState expected;
    expected.Hand = static_cast<Integer>(index);
    expected.JobDirty = kTrue;
    EXPECT_TRUE(Module1 == expected) << index;
  }
}

TEST(HandControls, ChosenOneStaysAsItIs) {
  Module1 = JobState{};
  Hand hand(0);
  hand.ChooseHand(0);
  EXPECT_TRUE(Module1 == JobState{});
  hand.ChooseHand(1);
  Module1.JobDirty = kFalse;
  hand.ChooseHand(1);
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST(HandControls, IndexWithoutAnOptionFailsAndChangesNothing) {
  Module1 = JobState{};
  Hand hand(0);
  for (const int index : {2, -1}) {
    EXPECT_EQ(FailureOf([&] { hand.ChooseHand(index); }), "SubscriptOutOfRange") << index;
  }
  EXPECT_EQ(hand.hand(), 0);
  EXPECT_TRUE(Module1 == JobState{});
}

}  // namespace
}  // namespace halvane
