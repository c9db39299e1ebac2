#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_file.h"
#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/reba/reba_support.h"
#include "tools/reba/reba_score.h"

namespace halvane {
namespace {

class RebaLoad : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() { Module1 = JobState{}; }
  /// What opening the tool on the present job does.
  void Load() {
    controls_.Reset();
    controls_.Load();
  }
  /// The controls that are set, in the order in which the load sets them.
  std::string Set() const;

  RebaControls controls_;
};

std::string RebaLoad::Set() const {
  std::string set;
  const auto add = [&set](std::string_view name, int index) {
    set += (set.empty() ? "" : " ") + std::string(name) + std::to_string(index);
  };
  const auto addRegion = [&](RebaRegion region, std::string_view name) {
    for (int i = 0; i < static_cast<int>(RibbonsOf(region).size()); ++i) {
      if (IsDown(controls_, region, i)) add(name, i);
    }
    for (int i = 0; i < static_cast<int>(BoxesOf(region).size()); ++i) {
      if (IsChecked(controls_, region, i)) add(std::string(name) + "+", i);
    }
  };
  if (controls_.hand() != RebaControls::kNone) add("hand", controls_.hand());
  addRegion(RebaRegion::UpperArms, "upper");
  addRegion(RebaRegion::LowerArms, "lower");
  addRegion(RebaRegion::Wrist, "wrist");
  addRegion(RebaRegion::Neck, "neck");
  addRegion(RebaRegion::Trunk, "trunk");
  addRegion(RebaRegion::Legs, "leg");
  if (controls_.chosen(RowOf(RebaControl::Load)) != RebaControls::kNone)
    add("load", controls_.chosen(RowOf(RebaControl::Load)));
  addRegion(RebaRegion::Force, "force");
  if (controls_.chosen(RowOf(RebaControl::Coupling)) != RebaControls::kNone)
    add("grip", controls_.chosen(RowOf(RebaControl::Coupling)));
  addRegion(RebaRegion::MuscleUse, "use");
  return set;
}

/// The text of all working factors.
std::string Factors() {
  std::string text;
  const auto add = [&text](int factor) {
    text += (text.empty() ? "" : " ") + std::to_string(factor);
  };
  for (int i = 0; i < 4; ++i) add(Module1.RebaUpperArmFactors.at(i));
  add(Module1.RebaLowerArmFactor);
  for (int i = 0; i < 2; ++i) add(Module1.RebaWristFactors.at(i));
  for (int i = 0; i < 3; ++i) add(Module1.RebaNeckFactors.at(i));
  for (int i = 0; i < 3; ++i) add(Module1.RebaTrunkFactors.at(i));
  for (int i = 0; i < 2; ++i) add(Module1.RebaLegFactors.at(i));
  for (int i = 0; i < 2; ++i) add(Module1.RebaForceFactors.at(i));
  add(Module1.RebaCouplingFactor);
  add(Module1.RebaActivityFactor);
  return text;
}

using States = std::array<Integer, 23>;

void SaveStates(const States& states) {
  for (int i = 0; i < 23; ++i) {
    Module1.RebaControlState.at(i) = states.at(static_cast<std::size_t>(i));
  }
}

// Every control away from its first choice, every box checked.
constexpr States kFull{4, 1, 1, 1, 2, 0, 2, 1, 0, 1, 1, 0, 3, 1, 0, 2, 2, 2, 1, 3, 1, 1, 1};

TEST_F(RebaLoad, FreshJobPressesTheFirstChoicesAndTheStableLegs) {
  JobState expected;
  expected.JobDirty = kTrue;
  expected.RebaControlState.at(15) = 1;
  expected.RebaUpperArmFactors.at(0) = 1;
  expected.RebaLowerArmFactor = 1;
  expected.RebaWristFactors.at(0) = 1;
  expected.RebaNeckFactors.at(0) = 1;
  expected.RebaTrunkFactors.at(0) = 1;
  expected.RebaLegFactors.at(0) = 1;
  Load();
  EXPECT_EQ(Module1, expected);
  EXPECT_EQ(Set(), "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip0");
}

TEST_F(RebaLoad, FullJobSetsEveryControlAndKeepsItsState) {
  SaveStates(kFull);
  Module1.Hand = 1;
  const JobState expected = Module1;
  Load();
  EXPECT_EQ(Set(),
            "hand1 upper4 upper+0 upper+1 upper+2 lower2 wrist2 wrist3 neck1 neck+0 trunk3 "
            "trunk+0 leg1 leg3 load2 force+0 grip3 use+0 use+1 use+2");
  EXPECT_EQ(Factors(), "4 1 1 -1 2 2 1 2 1 0 4 1 0 2 2 2 1 3 3");
  EXPECT_EQ(Module1.RebaControlState, expected.RebaControlState);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(Module1.Hand, 1);
}

struct SavedRow {
  int entry;
  Integer saved;
  std::string_view set;      ///< the controls that are set instead of the first ones
  std::string_view factors;  ///< empty: those of the fresh job
};

constexpr std::string_view kFreshFactors = "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 0";

TEST_F(RebaLoad, EachSavedValuePressesItsControlAlone) {
  // clang-format off
  const std::vector<SavedRow> rows{
      {0,  1, "hand0 upper1 lower0 wrist0 neck0 trunk0 leg0 load0 grip0", "2 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {0,  2, "hand0 upper2 lower0 wrist0 neck0 trunk0 leg0 load0 grip0", "2 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {0,  3, "hand0 upper3 lower0 wrist0 neck0 trunk0 leg0 load0 grip0", "3 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {0,  4, "hand0 upper4 lower0 wrist0 neck0 trunk0 leg0 load0 grip0", "4 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {1,  1, "hand0 upper0 upper+0 lower0 wrist0 neck0 trunk0 leg0 load0 grip0", "1 1 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {2,  1, "hand0 upper0 upper+1 lower0 wrist0 neck0 trunk0 leg0 load0 grip0", "1 0 1 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {3,  1, "hand0 upper0 upper+2 lower0 wrist0 neck0 trunk0 leg0 load0 grip0", "1 0 0 -1 1 1 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {4,  1, "hand0 upper0 lower1 wrist0 neck0 trunk0 leg0 load0 grip0", "1 0 0 0 2 1 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {4,  2, "hand0 upper0 lower2 wrist0 neck0 trunk0 leg0 load0 grip0", "1 0 0 0 2 1 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {6,  1, "hand0 upper0 lower0 wrist1 neck0 trunk0 leg0 load0 grip0", "1 0 0 0 1 2 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {6,  2, "hand0 upper0 lower0 wrist2 neck0 trunk0 leg0 load0 grip0", "1 0 0 0 1 2 0 1 0 0 1 0 0 1 0 0 0 0 0"},
      {7,  1, "hand0 upper0 lower0 wrist0 wrist3 neck0 trunk0 leg0 load0 grip0", "1 0 0 0 1 1 1 1 0 0 1 0 0 1 0 0 0 0 0"},
      {9,  1, "hand0 upper0 lower0 wrist0 neck1 trunk0 leg0 load0 grip0", "1 0 0 0 1 1 0 2 0 0 1 0 0 1 0 0 0 0 0"},
      {9,  2, "hand0 upper0 lower0 wrist0 neck2 trunk0 leg0 load0 grip0", "1 0 0 0 1 1 0 2 0 0 1 0 0 1 0 0 0 0 0"},
      {10, 1, "hand0 upper0 lower0 wrist0 neck0 neck+0 trunk0 leg0 load0 grip0", "1 0 0 0 1 1 0 1 1 0 1 0 0 1 0 0 0 0 0"},
      {12, 1, "hand0 upper0 lower0 wrist0 neck0 trunk1 leg0 load0 grip0", "1 0 0 0 1 1 0 1 0 0 2 0 0 1 0 0 0 0 0"},
      {12, 2, "hand0 upper0 lower0 wrist0 neck0 trunk2 leg0 load0 grip0", "1 0 0 0 1 1 0 1 0 0 3 0 0 1 0 0 0 0 0"},
      {12, 3, "hand0 upper0 lower0 wrist0 neck0 trunk3 leg0 load0 grip0", "1 0 0 0 1 1 0 1 0 0 4 0 0 1 0 0 0 0 0"},
      {12, 4, "hand0 upper0 lower0 wrist0 neck0 trunk4 leg0 load0 grip0", "1 0 0 0 1 1 0 1 0 0 2 0 0 1 0 0 0 0 0"},
      {12, 5, "hand0 upper0 lower0 wrist0 neck0 trunk5 leg0 load0 grip0", "1 0 0 0 1 1 0 1 0 0 3 0 0 1 0 0 0 0 0"},
      {13, 1, "hand0 upper0 lower0 wrist0 neck0 trunk0 trunk+0 leg0 load0 grip0", "1 0 0 0 1 1 0 1 0 0 1 1 0 1 0 0 0 0 0"},
      {15, 1, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip0", kFreshFactors},
      {15, 2, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg1 load0 grip0", "1 0 0 0 1 1 0 1 0 0 1 0 0 2 0 0 0 0 0"},
      {16, 1, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 leg2 load0 grip0", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 1 0 0 0 0"},
      {16, 2, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 leg3 load0 grip0", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 2 0 0 0 0"},
      {17, 1, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load1 grip0", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 1 0 0 0"},
      {17, 2, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load2 grip0", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 2 0 0 0"},
      {18, 1, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 force+0 grip0", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 1 0 0"},
      {19, 1, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip1", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 1 0"},
      {19, 2, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip2", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 2 0"},
      {19, 3, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip3", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 3 0"},
      {20, 1, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip0 use+0", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 1"},
      {21, 1, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip0 use+1", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 1"},
      {22, 1, "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip0 use+2", "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 1"},
  };
  // clang-format on
  for (const SavedRow& row : rows) {
    SCOPED_TRACE(std::to_string(row.entry) + " = " + std::to_string(row.saved));
    StartFresh();
    Module1.RebaControlState.at(row.entry) = row.saved;
    Load();
    EXPECT_EQ(Set(), row.set);
    EXPECT_EQ(Factors(), row.factors);
    JobState expected;
    expected.RebaControlState.at(15) = 1;
    expected.RebaControlState.at(row.entry) = row.saved;
    EXPECT_EQ(Module1.RebaControlState, expected.RebaControlState);
  }
}

struct IgnoredRow {
  std::string_view label;
  int entry;
  Integer saved;
  Integer after;
};

TEST_F(RebaLoad, SavedValueThatSetsNothingIsPassedOver) {
  const std::vector<IgnoredRow> rows{
      {"box 2", 1, 2, 2},       {"box -1", 2, -1, -1},         {"arm supported 7", 3, 7, 7},
      {"side bent 2", 7, 2, 2}, {"neck twisting 2", 10, 2, 2}, {"trunk twisting -1", 13, -1, -1},
      {"legs 0", 15, 0, 1},     {"legs 3", 15, 3, 1},          {"legs -1", 15, -1, 1},
      {"knees 3", 16, 3, 3},    {"knees -1", 16, -1, -1},      {"shock 2", 18, 2, 2},
      {"static 2", 20, 2, 2},   {"repeated 2", 21, 2, 2},      {"rapid 2", 22, 2, 2},
      {"unused 5", 5, 9, 9},    {"unused 8", 8, 9, 9},         {"unused 11", 11, 9, 9},
      {"unused 14", 14, 9, 9},
  };
  for (const IgnoredRow& row : rows) {
    SCOPED_TRACE(row.label);
    StartFresh();
    Module1.RebaControlState.at(row.entry) = row.saved;
    Load();
    EXPECT_EQ(Set(), "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip0");
    EXPECT_EQ(Factors(), kFreshFactors);
    EXPECT_EQ(Module1.RebaControlState.at(row.entry), row.after);
  }
}

TEST_F(RebaLoad, WristOf3PressesTheSideBentRibbonAndSetsNoBase) {
  Module1.RebaControlState.at(6) = 3;
  Load();
  EXPECT_EQ(Set(), "hand0 upper0 lower0 wrist3 neck0 trunk0 leg0 load0 grip0");
  EXPECT_EQ(Module1.RebaControlState.at(6), 3);
  EXPECT_EQ(Module1.RebaControlState.at(7), 1);
  EXPECT_EQ(Module1.RebaWristFactors.at(0), 0);
  EXPECT_EQ(Module1.RebaWristFactors.at(1), 1);
  // The base of the job before stays where there is one.
  StartFresh();
  Module1.RebaWristFactors.at(0) = 2;
  Module1.RebaControlState.at(6) = 3;
  Load();
  EXPECT_EQ(Module1.RebaWristFactors.at(0), 2);
}

struct FailureRow {
  std::string_view label;
  int entry;  ///< -1: the hand
  std::vector<Integer> saved;
  std::string_view set;
};

TEST_F(RebaLoad, SavedValueThatNamesNoControlFailsAtItsStep) {
  const std::vector<FailureRow> rows{
      {"hand", -1, {2, -1}, ""},
      {"upper arm", 0, {5, -1, 32767}, "hand1"},
      {"lower arm", 4, {3, -1}, "hand1 upper4 upper+0 upper+1 upper+2"},
      {"wrist", 6, {4, -1}, "hand1 upper4 upper+0 upper+1 upper+2 lower2"},
      {"neck", 9, {3, -1}, "hand1 upper4 upper+0 upper+1 upper+2 lower2 wrist2 wrist3"},
      {"trunk",
       12,
       {6, -1},
       "hand1 upper4 upper+0 upper+1 upper+2 lower2 wrist2 wrist3 neck1 neck+0"},
      {"load",
       17,
       {3, -1},
       "hand1 upper4 upper+0 upper+1 upper+2 lower2 wrist2 wrist3 neck1 neck+0 trunk3 trunk+0 "
       "leg1 leg3"},
      {"coupling",
       19,
       {4, -1},
       "hand1 upper4 upper+0 upper+1 upper+2 lower2 wrist2 wrist3 neck1 neck+0 trunk3 trunk+0 "
       "leg1 leg3 load2 force+0"},
  };
  for (const FailureRow& row : rows) {
    for (const Integer saved : row.saved) {
      SCOPED_TRACE(std::string(row.label) + " " + std::to_string(saved));
      StartFresh();
      SaveStates(kFull);
      Module1.Hand = 1;
      (row.entry < 0 ? Module1.Hand : Module1.RebaControlState.at(row.entry)) = saved;
      EXPECT_EQ(FailureOf([this] { Load(); }), "SubscriptOutOfRange");
      EXPECT_EQ(Set(), row.set);
    }
  }
}

// A job in which everything counts, loaded and left again: what its factors leave to the next job.
class RebaNextJob : public RebaLoad {
 protected:
  void SetUp() override {
    RebaLoad::SetUp();
    SaveStates(kFull);
    Load();
  }
  /// What the Open command and the load after it do.
  void Open(const std::string& bytes) {
    const TemporaryFolder folder;
    Module1.JobFileName = folder.File("job.qjt");
    WriteBytes(Module1.JobFileName, bytes);
    OpenJobFile();
    Load();
  }
};

TEST_F(RebaNextJob, NewKeepsTheAddOnFactors) {
  JobReset();
  EXPECT_EQ(Module1.RebaControlState, JobState{}.RebaControlState);
  EXPECT_EQ(Factors(), "4 1 1 -1 2 2 1 2 1 0 4 1 0 2 2 2 1 3 3");
  Load();
  EXPECT_EQ(Set(), "hand0 upper0 lower0 wrist0 neck0 trunk0 leg0 load0 grip0");
  // Ribbons, list and options have their first choice; side bent, knees and boxes are as before.
  EXPECT_EQ(Factors(), "1 1 1 -1 1 1 1 1 1 0 1 1 0 1 2 0 1 0 3");
  REBA_Calculate();
  // Trunk 2, neck 2, legs 3 give 5, shock makes it 6; arm 2, 1, wrist 2 give 2; 6 and three more.
  EXPECT_EQ(Module1.RebaScoreATotal, 6);
  EXPECT_EQ(Module1.RebaScoreBTotal, 2);
  EXPECT_EQ(Module1.RebaGrandScore, 9);
}

TEST_F(RebaNextJob, AddOnFactorGoesWhenItsControlIsUsedAgain) {
  using enum RebaRegion;
  JobReset();
  Load();
  SetCheck(controls_, UpperArms, 2, true);
  SetCheck(controls_, UpperArms, 2, false);
  EXPECT_EQ(Factors(), "1 1 1 0 1 1 1 1 1 0 1 1 0 1 2 0 1 0 3");
  ClickRibbon(controls_, Wrist, 3);
  ClickRibbon(controls_, Wrist, 3);
  EXPECT_EQ(Factors(), "1 1 1 0 1 1 0 1 1 0 1 1 0 1 2 0 1 0 3");
  ClickRibbon(controls_, Legs, 2);
  EXPECT_EQ(Factors(), "1 1 1 0 1 1 0 1 1 0 1 1 0 1 1 0 1 0 3");
  ClickRibbon(controls_, Legs, 2);
  EXPECT_EQ(Factors(), "1 1 1 0 1 1 0 1 1 0 1 1 0 1 0 0 1 0 3");
  SetCheck(controls_, MuscleUse, 0, true);
  EXPECT_EQ(Factors(), "1 1 1 0 1 1 0 1 1 0 1 1 0 1 0 0 1 0 1");
}

TEST_F(RebaNextJob, OpenClearsTheAddOnFactorsButTheActivity) {
  Open(EmptyJobText());
  EXPECT_EQ(Factors(), "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 3");
  REBA_Calculate();
  EXPECT_EQ(Module1.RebaGrandScore, 4);
  SetCheck(controls_, RebaRegion::MuscleUse, 1, true);
  SetCheck(controls_, RebaRegion::MuscleUse, 1, false);
  EXPECT_EQ(Factors(), kFreshFactors);
}

TEST_F(RebaNextJob, OpenOfAJobWithMuscleUseCountsItsOwn) {
  constexpr int kLineOfFirstEntry = 26;
  Open(EmptyJobWith(kLineOfFirstEntry + 22, "1"));
  EXPECT_EQ(Factors(), "1 0 0 0 1 1 0 1 0 0 1 0 0 1 0 0 0 0 1");
}

TEST_F(RebaNextJob, OpenOfAWristOf3HasNoBase) {
  constexpr int kLineOfFirstEntry = 26;
  Open(EmptyJobWith(kLineOfFirstEntry + 6, "3"));
  EXPECT_EQ(Factors(), "1 0 0 0 1 0 1 1 0 0 1 0 0 1 0 0 0 0 3");
}

}  // namespace
}  // namespace halvane
