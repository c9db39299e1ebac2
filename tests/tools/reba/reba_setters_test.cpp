#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/reba/reba_support.h"

namespace halvane {
namespace {

using FactorOf = Integer& (*)(JobState&);

Integer& UpperArm0(JobState& job) { return job.RebaUpperArmFactors.at(0); }
Integer& UpperArm1(JobState& job) { return job.RebaUpperArmFactors.at(1); }
Integer& UpperArm2(JobState& job) { return job.RebaUpperArmFactors.at(2); }
Integer& UpperArm3(JobState& job) { return job.RebaUpperArmFactors.at(3); }
Integer& LowerArm(JobState& job) { return job.RebaLowerArmFactor; }
Integer& Wrist0(JobState& job) { return job.RebaWristFactors.at(0); }
Integer& Wrist1(JobState& job) { return job.RebaWristFactors.at(1); }
Integer& Neck0(JobState& job) { return job.RebaNeckFactors.at(0); }
Integer& Neck1(JobState& job) { return job.RebaNeckFactors.at(1); }
Integer& Trunk0(JobState& job) { return job.RebaTrunkFactors.at(0); }
Integer& Trunk1(JobState& job) { return job.RebaTrunkFactors.at(1); }
Integer& Leg0(JobState& job) { return job.RebaLegFactors.at(0); }
Integer& Leg1(JobState& job) { return job.RebaLegFactors.at(1); }
Integer& Force0(JobState& job) { return job.RebaForceFactors.at(0); }
Integer& Force1(JobState& job) { return job.RebaForceFactors.at(1); }
Integer& Coupling0(JobState& job) { return job.RebaCouplingFactor; }
Integer& Activity(JobState& job) { return job.RebaActivityFactor; }

using Action = std::function<void(RebaControls&)>;

Action Click(RebaRegion region, int index) {
  return [=](RebaControls& controls) { ClickRibbon(controls, region, index); };
}
Action Check(RebaRegion region, int index) {
  return [=](RebaControls& controls) { SetCheck(controls, region, index, true); };
}
Action Uncheck(RebaRegion region, int index) {
  return [=](RebaControls& controls) { SetCheck(controls, region, index, false); };
}
Action PickLoad(int index) {
  return [=](RebaControls& controls) { PickLoad(controls, index); };
}
Action Couple(int index) {
  return [=](RebaControls& controls) { ChooseCoupling(controls, index); };
}

/// One event of a form that has loaded an empty job and seen the events `before`: what it leaves in
/// one working factor and one element of `RebaControlState`. All else of the job stays.
struct SetterRow {
  std::string_view label;
  std::vector<Action> before;
  Action event;
  FactorOf factor;
  Integer value;
  int entry;
  Integer state;
};

class RebaSetters : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
};

std::vector<SetterRow> RibbonRows() {
  using enum RebaRegion;
  // clang-format off
  return {
    {"upper arm neutral",       {Click(UpperArms, 4)}, Click(UpperArms, 0), UpperArm0, 1, 0, 0},
    {"upper arm back",          {}, Click(UpperArms, 1), UpperArm0, 2, 0, 1},
    {"upper arm 21 to 45",      {}, Click(UpperArms, 2), UpperArm0, 2, 0, 2},
    {"upper arm 46 to 90",      {}, Click(UpperArms, 3), UpperArm0, 3, 0, 3},
    {"upper arm over 90",       {}, Click(UpperArms, 4), UpperArm0, 4, 0, 4},
    {"lower arm 60 to 100",     {Click(LowerArms, 1)}, Click(LowerArms, 0), LowerArm, 1, 4, 0},
    {"lower arm over 100",      {}, Click(LowerArms, 1), LowerArm, 2, 4, 1},
    {"lower arm 0 to 60",       {}, Click(LowerArms, 2), LowerArm, 2, 4, 2},
    {"wrist neutral",           {Click(Wrist, 2)}, Click(Wrist, 0), Wrist0, 1, 6, 0},
    {"wrist flexed",            {}, Click(Wrist, 1), Wrist0, 2, 6, 1},
    {"wrist extended",          {}, Click(Wrist, 2), Wrist0, 2, 6, 2},
    {"wrist side bent",         {}, Click(Wrist, 3), Wrist1, 1, 7, 1},
    {"wrist side bent released", {Click(Wrist, 3)}, Click(Wrist, 3), Wrist1, 0, 7, 0},
    {"neck neutral",            {Click(Neck, 1)}, Click(Neck, 0), Neck0, 1, 9, 0},
    {"neck back",               {}, Click(Neck, 1), Neck0, 2, 9, 1},
    {"neck over 20",            {}, Click(Neck, 2), Neck0, 2, 9, 2},
    {"trunk neutral",           {Click(Trunk, 1)}, Click(Trunk, 0), Trunk0, 1, 12, 0},
    {"trunk 0 to 20",           {}, Click(Trunk, 1), Trunk0, 2, 12, 1},
    {"trunk 21 to 60",          {}, Click(Trunk, 2), Trunk0, 3, 12, 2},
    {"trunk over 60",           {}, Click(Trunk, 3), Trunk0, 4, 12, 3},
    {"trunk back to -20",       {}, Click(Trunk, 4), Trunk0, 2, 12, 4},
    {"trunk back beyond -20",   {}, Click(Trunk, 5), Trunk0, 3, 12, 5},
    {"legs stable",             {Click(Legs, 1)}, Click(Legs, 0), Leg0, 1, 15, 1},
    {"legs unstable",           {}, Click(Legs, 1), Leg0, 2, 15, 2},
    {"first knee",              {}, Click(Legs, 2), Leg1, 1, 16, 1},
    {"first knee released",     {Click(Legs, 2)}, Click(Legs, 2), Leg1, 0, 16, 0},
    {"second knee",             {}, Click(Legs, 3), Leg1, 2, 16, 2},
    {"second knee released",    {Click(Legs, 3)}, Click(Legs, 3), Leg1, 0, 16, 0},
    {"second knee for the first", {Click(Legs, 2)}, Click(Legs, 3), Leg1, 2, 16, 2},
    {"first knee for the second", {Click(Legs, 3)}, Click(Legs, 2), Leg1, 1, 16, 1},
    {"unstable keeps the knee", {Click(Legs, 3)}, Click(Legs, 1), Leg0, 2, 15, 2},
    {"knee keeps unstable",     {Click(Legs, 1)}, Click(Legs, 2), Leg1, 1, 16, 1},
    {"released knee keeps unstable", {Click(Legs, 1), Click(Legs, 2)}, Click(Legs, 2), Leg1, 0, 16, 0},
  };
  // clang-format on
}

std::vector<SetterRow> OtherRows() {
  using enum RebaRegion;
  // clang-format off
  return {
    {"shoulder raised",     {}, Check(UpperArms, 0), UpperArm1, 1, 1, 1},
    {"shoulder lowered",    {Check(UpperArms, 0)}, Uncheck(UpperArms, 0), UpperArm1, 0, 1, 0},
    {"arm abducted",        {}, Check(UpperArms, 1), UpperArm2, 1, 2, 1},
    {"arm not abducted",    {Check(UpperArms, 1)}, Uncheck(UpperArms, 1), UpperArm2, 0, 2, 0},
    {"arm supported",       {}, Check(UpperArms, 2), UpperArm3, -1, 3, 1},
    {"arm not supported",   {Check(UpperArms, 2)}, Uncheck(UpperArms, 2), UpperArm3, 0, 3, 0},
    {"neck twisting",       {}, Check(Neck, 0), Neck1, 1, 10, 1},
    {"neck not twisting",   {Check(Neck, 0)}, Uncheck(Neck, 0), Neck1, 0, 10, 0},
    {"trunk twisting",      {}, Check(Trunk, 0), Trunk1, 1, 13, 1},
    {"trunk not twisting",  {Check(Trunk, 0)}, Uncheck(Trunk, 0), Trunk1, 0, 13, 0},
    {"load below 5 kg",     {PickLoad(2)}, PickLoad(0), Force0, 0, 17, 0},
    {"load 5 to 10 kg",     {}, PickLoad(1), Force0, 1, 17, 1},
    {"load over 10 kg",     {}, PickLoad(2), Force0, 2, 17, 2},
    {"shock",               {}, Check(Force, 0), Force1, 1, 18, 1},
    {"no shock",            {Check(Force, 0)}, Uncheck(Force, 0), Force1, 0, 18, 0},
    {"good coupling",       {Couple(3)}, Couple(0), Coupling0, 0, 19, 0},
    {"fair coupling",       {}, Couple(1), Coupling0, 1, 19, 1},
    {"poor coupling",       {}, Couple(2), Coupling0, 2, 19, 2},
    {"no coupling",         {}, Couple(3), Coupling0, 3, 19, 3},
    {"static",              {}, Check(MuscleUse, 0), Activity, 1, 20, 1},
    {"repeated",            {}, Check(MuscleUse, 1), Activity, 1, 21, 1},
    {"rapid change",        {}, Check(MuscleUse, 2), Activity, 1, 22, 1},
    {"repeated too",        {Check(MuscleUse, 0)}, Check(MuscleUse, 1), Activity, 2, 21, 1},
    {"static too",          {Check(MuscleUse, 2)}, Check(MuscleUse, 0), Activity, 2, 20, 1},
    {"all three", {Check(MuscleUse, 0), Check(MuscleUse, 1)}, Check(MuscleUse, 2), Activity, 3, 22, 1},
    {"two of three", {Check(MuscleUse, 0), Check(MuscleUse, 1), Check(MuscleUse, 2)}, Uncheck(MuscleUse, 1), Activity, 2, 21, 0},
    {"static no longer",    {Check(MuscleUse, 0)}, Uncheck(MuscleUse, 0), Activity, 0, 20, 0},
  };
  // clang-format on
}

void ExpectEachRow(const std::vector<SetterRow>& rows) {
  for (const SetterRow& row : rows) {
    SCOPED_TRACE(row.label);
    Module1 = JobState{};
    RebaControls controls;
    controls.Load();
    for (const Action& action : row.before) action(controls);
    Module1.JobDirty = kFalse;
    // What the event has to write stands on another value first.
    row.factor(Module1) = 77;
    Module1.RebaControlState.at(row.entry) = 77;
    JobState expected = Module1;
    expected.JobDirty = kTrue;
    row.factor(expected) = row.value;
    expected.RebaControlState.at(row.entry) = row.state;
    row.event(controls);
    EXPECT_EQ(row.factor(Module1), row.value);
    EXPECT_EQ(Module1.RebaControlState.at(row.entry), row.state);
    EXPECT_EQ(Module1.JobDirty, kTrue);
    EXPECT_EQ(Module1, expected) << "something else changed";
  }
}

TEST_F(RebaSetters, RibbonsStoreTheirBaseAndState) { ExpectEachRow(RibbonRows()); }

TEST_F(RebaSetters, BoxesListAndOptionsStoreTheirValueAndState) { ExpectEachRow(OtherRows()); }

TEST_F(RebaSetters, HandIsStoredAndMarksTheJob) {
  RebaControls controls;
  controls.Load();
  for (const Integer hand : std::array<Integer, 2>{1, 0}) {
    Module1.JobDirty = kFalse;
    JobState expected = Module1;
    expected.Hand = hand;
    expected.JobDirty = kTrue;
    controls.ChooseHand(hand);
    EXPECT_EQ(Module1, expected) << hand;
    EXPECT_EQ(controls.hand(), hand);
  }
}

TEST_F(RebaSetters, ControlThatIsSetAlreadyRunsNothing) {
  using enum RebaRegion;
  RebaControls controls;
  controls.Load();
  SetCheck(controls, UpperArms, 2, true);
  SetCheck(controls, MuscleUse, 1, true);
  PressRibbon(controls, Legs, 2);
  Module1 = JobState{};
  controls.ChooseHand(0);
  for (const RebaRegion region : {UpperArms, LowerArms, Wrist, Neck, Trunk, Legs}) {
    PressRibbon(controls, region, 0);
    ClickRibbon(controls, region, 0);
  }
  PressRibbon(controls, Legs, 2);
  PickLoad(controls, 0);
  ChooseCoupling(controls, 0);
  SetCheck(controls, UpperArms, 2, true);
  SetCheck(controls, UpperArms, 0, false);
  SetCheck(controls, MuscleUse, 1, true);
  SetCheck(controls, MuscleUse, 2, false);
  EXPECT_EQ(Module1, JobState{});
}

TEST_F(RebaSetters, NoSetterChangesAScore) {
  using enum RebaRegion;
  Module1.RebaGrandScore = 12;
  Module1.RebaUpperArmScore = 5;
  RebaControls controls;
  controls.Load();
  PressRibbon(controls, UpperArms, 4);
  SetCheck(controls, MuscleUse, 0, true);
  EXPECT_EQ(Module1.RebaGrandScore, 12);
  EXPECT_EQ(Module1.RebaUpperArmScore, 5);
}

TEST_F(RebaSetters, KneeRibbonOfAFormWithoutStabilityClearsTheStability) {
  for (const int knee : {2, 3}) {
    Module1 = JobState{};
    Module1.RebaLegFactors.at(0) = 2;
    Module1.RebaControlState.at(15) = 2;
    RebaControls controls;
    ClickRibbon(controls, RebaRegion::Legs, knee);
    EXPECT_EQ(Module1.RebaLegFactors.at(0), 0) << knee;
    EXPECT_EQ(Module1.RebaControlState.at(15), 0) << knee;
    EXPECT_EQ(Module1.RebaLegFactors.at(1), knee - 1);
    EXPECT_EQ(Module1.RebaControlState.at(16), knee - 1);
  }
}

TEST_F(RebaSetters, MuscleUseSumsWhateverIsSaved) {
  RebaControls controls;
  Module1.RebaControlState.at(21) = 5;
  Module1.RebaControlState.at(22) = -2;
  controls.Load();
  EXPECT_EQ(Module1.RebaActivityFactor, 0) << "none of them is a checked box";
  SetCheck(controls, RebaRegion::MuscleUse, 0, true);
  EXPECT_EQ(Module1.RebaActivityFactor, 4);
  SetCheck(controls, RebaRegion::MuscleUse, 1, true);
  EXPECT_EQ(Module1.RebaActivityFactor, 0) << "1 + 1 - 2";
}

TEST_F(RebaSetters, MuscleUseBeyond16BitsOverflowsAndLeavesNothingCounted) {
  // The sum is made from the first box on, and each step counts.
  Module1.RebaActivityFactor = 3;
  Module1.RebaControlState.at(21) = 32767;
  Module1.RebaControlState.at(22) = -5;
  RebaControls controls;
  EXPECT_EQ(FailureOf([&] { SetCheck(controls, RebaRegion::MuscleUse, 0, true); }), "Overflow");
  EXPECT_EQ(Module1.RebaActivityFactor, 0);
  EXPECT_EQ(Module1.RebaControlState.at(20), 1);
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

}  // namespace
}  // namespace halvane
