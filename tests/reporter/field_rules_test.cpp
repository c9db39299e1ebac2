#include "reporter/field_rules.h"

#include <gtest/gtest.h>

#include "core/job_state.h"
#include "reporter/check_command.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

/// Notes the fields that have neither a rule nor a reason for none, and those that have both.
class RuleWalk {
 public:
  void HeaderLine() {}
  template <typename... T>
  void Line(const JobField<T>&... fields) {
    (Look(fields.name), ...);
  }

  [[nodiscard]] const std::string& odd() const { return odd_; }
  [[nodiscard]] int count() const { return count_; }

 private:
  void Look(const FieldName& name) {
    ++count_;
    const bool hasRule = RuleOf(name) != FieldRule::None;
    if (hasRule != WhyWithoutRule(name.field).empty()) odd_ += name.text() + "\n";
  }

  std::string odd_;
  int count_ = 0;
};

TEST(FieldRules, EachFieldOfTheFileHasARuleOrAReasonForNone) {
  Module1 = JobState{};
  Module1.TaskCount = Integer{2};
  ResizeTaskArrays();
  RuleWalk walk;
  VisitJobFields(Module1, walk);
  EXPECT_EQ(walk.odd(), "");
  EXPECT_EQ(walk.count() + 5, static_cast<int>(CountJobFields(2)));
  EXPECT_EQ(RuleOf({"Nobody"}), FieldRule::None);
  EXPECT_EQ(WhyWithoutRule("Nobody"), "");
}

TEST(FieldRules, BoxesOfAllToolsHaveNumbers) {
  for (const std::string_view field :
       {"JobCycleTime", "JobDurationPerDay", "HalExertionFrequency", "HalDutyCycle",
        "SiExertionMinutes", "SiDutyObservationMinutes", "SiExertionCount",
        "SiEffortObservationMinutes", "OcraActionFrequency", "OcraTaskDuration", "CtdWorkTime",
        "CtdRepetitions", "CtdHandSpan", "CtdForceMvc", "CtdLoadHeld", "CtdPostureDuration"}) {
    EXPECT_EQ(RuleOf({field, 1, 0}), FieldRule::Number) << field;
  }
  EXPECT_EQ(RuleOf({"CtdRestTime", 1}), FieldRule::None);
}

struct ValueRow {
  FieldName name;
  TaggedField value;
  std::string expected;
  std::string effect;
};

TEST(FieldRules, TellWhatIsExpectedAndWhatTheProgramMakesOfIt) {
  const std::string force = "is outside its range, 0 to 5 in steps of 0.5";
  const std::string zero = "no multiplier answers to it, so the force multiplier of the task is 0";
  const std::string hours = "is outside its range, 0 to 10";
  const std::string none = "no multiplier answers to it, so the recovery multiplier is 0";
  const std::string gone = "is beyond any number that the program can hold";
  const std::vector<ValueRow> rows = {
      {{"OcraForceRating", 1}, 1.2, force, zero},
      {{"OcraForceRating", 1}, 9.0, force, zero},
      {{"OcraForceRating", 1}, 0.3, force, "its multiplier is 1"},
      {{"OcraRecoveryHours"}, Integer{11}, hours, none},
      {{"OcraRecoveryHours"}, 2.5, hours, none},
      {{"OcraRecoveryHours"}, "3.0", "is none of those that count, though it can be set", none},
      {{"OcraRecoveryHours"},
       Integer{9},
       "is none of those that count, though it can be set",
       none},
      {{"OcraRecoveryHours"}, "3,5", hours, none},
      {{"OcraWristActions"}, Integer{3}, "is outside its range, 0, 4", "it counts as 3 in the sum"},
      {{"TaskActive", 2}, Integer{2}, "is outside its range, 0 to 1", "the task counts as deleted"},
      {{"TaskActive", 2}, "1 x", "is outside its range, 0 to 1", "the task counts as there"},
      {{"TaskCount"}, 1.5, "is outside its range, 0 to 40", "tasks 1 to 1 are read"},
      {{"TaskCount"}, 0.4, "is outside its range, 0 to 40", "no task is read"},
      {{"HalActivityLevel"},
       Integer{12},
       "is outside its range, 0 to 10",
       "the limits are computed from 12 and are below 0"},
      {{"HalActivityLevel"},
       "9,5",
       "is outside its range, 0 to 10",
       "the limits are computed from 9"},
      {{"JobDurationPerDay"}, "9,5", "is no number", "it counts as 9"},
      {{"JobDurationPerDay"}, "8 h", "is no number", "it counts as 8"},
      {{"JobDurationPerDay"},
       Integer{-8},
       "is below 0, where 0 or more is expected",
       "it counts as it stands"},
      {{"CtdWorkTime", 1}, "1E999", gone, "each tool that reads it fails"},
      {{"CtdGripType", 1}, "2,0", "is outside its range, 0, 2, 3, 4", "it counts as 2"},
      {{"CtdGripType", 1},
       2.3,
       "is outside its range, 0, 2, 3, 4",
       "ctd fails on a task that exists"},
      {{"CtdBackFlexion", 1},
       1.3,
       "is outside its range, 0 to 3",
       "the joint counts as without any capacity"},
      {{"CtdLtElbowFlexion", 1},
       1.3,
       "is outside its range, 0 to 2",
       "the capacity of the joint is multiplied by 1.3"},
      {{"RulaControlState", 4},
       Integer{2},
       "is outside its range, 0 to 1",
       "it sets \"Midline\" and none of its own choices"},
      {{"RulaControlState", 15}, Integer{7}, "is outside its range, 0 to 1", "it counts as \""},
  };
  for (const ValueRow& row : rows) {
    const auto wrong = WrongWith(row.name, row.value);
    ASSERT_TRUE(wrong) << row.name.text() << " " << row.value.AsText();
    EXPECT_EQ(wrong->expected, row.expected) << row.name.text();
    EXPECT_EQ(wrong->effect.substr(0, row.effect.size()), row.effect) << row.name.text();
  }
}

TEST(FieldRules, WhatControlsStoreIsRight) {
  const std::vector<std::pair<FieldName, TaggedField>> rows = {
      {{"OcraForceRating", 1}, 1.5},    {{"OcraRecoveryHours"}, Integer{8}},
      {{"OcraRecoveryHours"}, "3"},     {{"OcraSameFingers"}, Integer{4}},
      {{"TaskActive", 1}, "1"},         {{"HalActivityLevel"}, "10.0"},
      {{"JobDurationPerDay"}, " 9.5 "}, {{"JobDurationPerDay"}, ""},
      {{"JobDurationPerDay"}, {}},      {{"CtdBackFlexion", 1}, {}},
      {{"JobName"}, "\u202E"},
  };
  for (const auto& [name, value] : rows) EXPECT_FALSE(WrongWith(name, value)) << name.text();
}

/// What the check says of a job with these bytes.
std::string Said(std::string_view bytes) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("a.qjt"), bytes);
  std::string text;
  AppendCheckText(text, "a.qjt", CheckJobFile(folder.File("a.qjt")));
  return text;
}

TEST(FieldRules, CheckTellsWhatAFreshSessionWouldEndOn) {
  EXPECT_EQ(Said(EmptyJobWith(49, "29.5,100,10,10,0,0,0")),
            "a.qjt:49: warning: SiDutyCyclePercent: \"29.5\": has no rating: one band ends at 29 "
            "and the next begins at 30; si fails\n");
  EXPECT_EQ(Said(EmptyJobWith(49, "0,0,85,10,0,0,0")),
            "a.qjt:49: warning: SiEffortsPerMinute: \"8.5\": has no rating: one band ends at 8 and "
            "the next begins at 9; si fails\n");
  EXPECT_EQ(
      Said(EmptyJobWith(49, "1E+300,1E-300,0,0,0,0,0")),
      "a.qjt:49: warning: SiDutyObservationMinutes: \"1E-300\": leads to a result beyond what "
      "can be held; si fails\n");
}

TEST(FieldRules, HiddenCharactersOfNamesAreTold) {
  EXPECT_EQ(
      Said(EmptyJobWith(4, "\"Jo\u202Ehn\",\"\",\"L\u200B4\",0,8")),
      "a.qjt:4: warning: JobAnalyst: \"Jo<U+202E>hn\": holds hidden characters, U+202E\n"
      "a.qjt:4: warning: JobWorkstationId: \"L<U+200B>4\": holds hidden characters, U+200B\n");
}

}  // namespace
}  // namespace halvane
