#include "tools/report_parts.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "core/job_state.h"

namespace halvane {
namespace {

class ReportParts : public testing::Test {
 protected:
  void SetUp() override {
    Module1 = JobState{};
    Module1.JobAnalyst = "Zoe";
    Module1.JobName = "Packing";
    Module1.JobWorkstationId = "W7";
  }
  RichText pane_;
};

TEST_F(ReportParts, HandIsRightForZeroAndLeftForAllElse) {
  EXPECT_EQ(HandLine(), "Hand: Right Side");
  for (const int hand : {1, 2, -1}) {
    Module1.Hand = static_cast<Integer>(hand);
    EXPECT_EQ(HandLine(), "Hand: Left Side") << hand;
  }
}

TEST_F(ReportParts, NamesStandOnALineEach) {
  AppendNames(pane_);
  EXPECT_EQ(pane_.text(), "\r\nAnalyst: Zoe\r\nJob Name: Packing\r\nWorkstation ID: W7");
}

TEST_F(ReportParts, IdentificationEndsWithTheHand) {
  Module1.Hand = 1;
  AppendIdentification(pane_);
  EXPECT_EQ(pane_.text(),
            "\r\nAnalyst: Zoe\r\nJob Name: Packing\r\nWorkstation ID: W7\r\n"
            "\r\nHand: Left Side\r\n");
}

TEST_F(ReportParts, StopsTakeThePlaceOfThoseBefore) {
  SetStops(pane_, std::array{100, 200, 300});
  SetStops(pane_, std::array{700, 500});
  pane_.Append("x");
  EXPECT_EQ(pane_.paragraphs().back().format.tabStops, (std::vector<int>{700, 500}));
}

}  // namespace
}  // namespace halvane
