#include "reporter/progress.h"

#include <gtest/gtest.h>

namespace halvane {
namespace {

constexpr std::string_view kErase = "\r\x1B[K";

class ProgressTest : public testing::Test {
 protected:
  Progress Start() {
    return Progress({[this] { return now_; }, [this](std::string_view text) { terminal_ += text; },
                     [this] {
                       ++counted_;
                       return left_;
                     }});
  }

  /// What has come on the terminal since the last call.
  std::string Shown() { return std::exchange(terminal_, {}); }

  double now_ = 1000;
  std::string terminal_;
  std::optional<std::size_t> left_;
  int counted_ = 0;
};

TEST_F(ProgressTest, WorkOfLessThanASecondHasNoBar) {
  Progress progress = Start();
  for (int i = 0; i < 100; ++i) {
    now_ += 0.0099;
    progress.Advance();
  }
  progress.Clear();
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(counted_, 0);
}

TEST_F(ProgressTest, BarGrowsWithTheWork) {
  left_ = 3;
  Progress progress = Start();
  now_ += 1;
  progress.Advance();
  EXPECT_EQ(Shown(), std::string(kErase) + "[#######.......................] 25 % of 4 jobs");
  now_ += 1;
  progress.Advance();
  EXPECT_EQ(Shown(), std::string(kErase) + "[###############...............] 50 % of 4 jobs");
  progress.Advance();
  now_ += 1;
  progress.Advance();
  EXPECT_EQ(Shown(), std::string(kErase) + "[##############################] 100 % of 4 jobs");
  EXPECT_EQ(counted_, 1);
}

TEST_F(ProgressTest, MoreJobsThanWereCountedStayAtTheEnd) {
  left_ = 0;
  Progress progress = Start();
  now_ += 2;
  progress.Advance();
  EXPECT_EQ(Shown(), std::string(kErase) + "[##############################] 100 % of 1 job");
  now_ += 2;
  progress.Advance();
  EXPECT_EQ(Shown(), std::string(kErase) + "[##############################] 100 % of 2 jobs");
}

TEST_F(ProgressTest, JobsAreCountedWhereNobodyKnowsHowManyThereAre) {
  Progress progress = Start();
  now_ += 1;
  progress.Advance();
  EXPECT_EQ(Shown(), std::string(kErase) + "1 job done");
  now_ += 1;
  progress.Advance();
  EXPECT_EQ(Shown(), std::string(kErase) + "2 jobs done");
}

TEST_F(ProgressTest, TerminalIsWrittenTenTimesASecondAtMost) {
  Progress progress = Start();
  now_ += 1;
  progress.Advance();
  EXPECT_NE(Shown(), "");
  now_ += 0.09;
  progress.Advance();
  EXPECT_EQ(Shown(), "");
  now_ += 0.02;
  progress.Advance();
  EXPECT_NE(Shown(), "");
}

TEST_F(ProgressTest, BarGoesForOtherTextAndComesBack) {
  Progress progress = Start();
  now_ += 1;
  progress.Advance();
  Shown();
  progress.Clear();
  EXPECT_EQ(Shown(), kErase);
  progress.Clear();
  EXPECT_EQ(Shown(), "");
  now_ += 1;
  progress.Advance();
  EXPECT_EQ(Shown(), std::string(kErase) + "2 jobs done");
}

}  // namespace
}  // namespace halvane
