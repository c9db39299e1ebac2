#include "tools/posture/posture_report.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "tests/support/test_support.h"
#include "tests/tools/posture/small_tool.h"

namespace halvane {
namespace {

class PostureLines : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
  RichText pane_;
};

TEST_F(PostureLines, CaptionOfTheSavedChoiceKeepsItsBlanks) {
  RowOf(Small::Ribbons).factor.Value() = -1;
  WritePosture(pane_, "Arm", RowOf(Small::Ribbons));
  RowOf(Small::Ribbons).state.Value() = 1;
  WritePosture(pane_, "Arm", RowOf(Small::Ribbons), "   ");
  EXPECT_EQ(pane_.text(), "\r\nArm\tLow \t-1\r\nArm\tHigh   \t-1");
}

TEST_F(PostureLines, SavedIndexOfAnAddOnHasItsCaption) {
  RowOf(Small::Ribbons).state.Value() = 2;
  WritePosture(pane_, "Arm", RowOf(Small::Ribbons));
  EXPECT_EQ(pane_.text(), "\r\nArm\tBent\t0");
}

TEST_F(PostureLines, SavedValueWithoutACaptionFailsAndWritesNothing) {
  for (const Integer saved : std::array<Integer, 3>{-1, 3, 32767}) {
    RowOf(Small::Ribbons).state.Value() = saved;
    EXPECT_EQ(FailureOf([this] { WritePosture(pane_, "Arm", RowOf(Small::Ribbons)); }),
              "SubscriptOutOfRange")
        << saved;
  }
  EXPECT_EQ(pane_.text(), "");
}

struct WordedRow {
  Small control;
  Integer saved;
  std::string text;
};

TEST_F(PostureLines, WordedControlIsWrittenForItsChoicesAlone) {
  const std::vector<WordedRow> rows{
      {Small::Lone, 0, ""},
      {Small::Lone, 1, "\r\nLegs\tone\t6"},
      {Small::Lone, 2, ""},
      {Small::Lone, -1, ""},
      {Small::Pair, 0, ""},
      {Small::Pair, 1, "\r\nLegs\tone\t6"},
      {Small::Pair, 2, "\r\nLegs\ttwo \t6"},
      {Small::Knees, 1, "\r\nLegs\tone\t6"},
      {Small::Knees, 2, "\r\nLegs\ttwo \t6"},
      {Small::Knees, 3, ""},
      {Small::LastOf, 0, "\r\nLegs\tone\t6"},
      {Small::LastOf, 1, "\r\nLegs\ttwo \t6"},
      {Small::LastOf, 2, ""},
      {Small::LastOf, -32768, ""},
  };
  for (const WordedRow& row : rows) {
    SCOPED_TRACE(std::string(RowOf(row.control).objectName) + " " + std::to_string(row.saved));
    pane_.Clear();
    RowOf(row.control).state.Value() = row.saved;
    RowOf(row.control).factor.Value() = 6;
    WriteIfSet(pane_, "Legs", RowOf(row.control), {"one", "two "});
    EXPECT_EQ(pane_.text(), row.text);
  }
}

TEST_F(PostureLines, CountedBoxHasItsOwnScoreInsteadOfTheCount) {
  RowOf(Small::SecondCounted).state.Value() = 1;
  RowOf(Small::SecondCounted).factor.Value() = 2;
  WriteIfSet(pane_, "Use", RowOf(Small::FirstCounted), {"long"});
  WriteIfSet(pane_, "Use", RowOf(Small::SecondCounted), {"often"});
  EXPECT_EQ(pane_.text(), "\r\nUse\toften\t1");
}

TEST_F(PostureLines, ChoiceWithoutAWordingFails) {
  RowOf(Small::Pair).state.Value() = 2;
  EXPECT_EQ(FailureOf([this] { WriteIfSet(pane_, "Legs", RowOf(Small::Pair), {"one"}); }),
            "SubscriptOutOfRange");
  EXPECT_EQ(pane_.text(), "");
}

}  // namespace
}  // namespace halvane
