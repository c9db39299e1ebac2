#include "tools/reba/reba_controls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "tests/support/test_support.h"
#include "tests/tools/reba/reba_support.h"

namespace halvane {
namespace {

constexpr std::array kRegions{
    RebaRegion::UpperArms, RebaRegion::LowerArms, RebaRegion::Wrist,
    RebaRegion::Neck,      RebaRegion::Trunk,     RebaRegion::Legs,
    RebaRegion::Force,     RebaRegion::Coupling,  RebaRegion::MuscleUse,
};

struct RibbonRow {
  std::string_view caption, toolTip, picture;
  Integer factor, state;
};

struct CheckRow {
  std::string_view objectName, caption;
  Integer value;
  int stateEntry;
};

struct FrameRow {
  RebaRegion region;
  std::string_view caption, ribbonName;
  std::vector<RibbonRow> ribbons;
  std::vector<CheckRow> checks;
};

std::vector<FrameRow> Frames() {
  using enum RebaRegion;
  // clang-format off
  return {
    {UpperArms, "Upper Arms", "SSRibbon1",
     {{"-20 to 20",     "Upper arm between -20 and +20 deg. (Neutral)", "reba/ssribbon1_0", 1, 0},
      {"<-20         ", "Upper arm less than -20 deg. (extension)",     "reba/ssribbon1_1", 2, 1},
      {"21 to 45 ",     "Upper arm between 21 and 45 deg. (Flexion)",   "reba/ssribbon1_2", 2, 2},
      {"46 to 90 ",     "Upper arm between 46 and 90 deg.  (Flexion)",  "reba/ssribbon1_3", 3, 3},
      {">+90       ",   "Upper arm greater than 90 deg. (Flexion)",     "reba/ssribbon1_4", 4, 4}},
     {{"SSCheck1(0)", "Shoulder is raised",     1, 1},
      {"SSCheck1(1)", "Upper arm is abducted",  1, 2},
      {"SSCheck1(2)", "Arm is supported",      -1, 3}}},
    {LowerArms, "Lower Arms", "SSRibbon2",
     {{"60-100",  "Lower arms between 60 to 100 deg. (Neutral)", "reba/ssribbon2_0", 1, 0},
      {"> 100",   "Lower arms greater than 100 deg. (Flexion)",  "reba/ssribbon2_1", 2, 1},
      {"0 to 60", "Lower arm 0 to 60 deg. (Extension)",          "reba/ssribbon2_2", 2, 2}},
     {}},
    {Wrist, "Wrist", "SSRibbon3",
     {{"Neutral", "Wrist neutral posture",                "reba/ssribbon3_0", 1, 0},
      {"> 15",    "Wrist greater than 15 deg. flexion",   "reba/ssribbon3_1", 2, 1},
      {"<-15",    "Wrist less than 15 deg. extension",    "reba/ssribbon3_2", 2, 2},
      {"Side Bent or Twist", "Ulnar/Radial deviation",    "reba/ssribbon3_3", 1, 1}},
     {}},
    {Neck, "Neck", "SSRibbon4",
     {{"0 to 20",  "Neck between 0 and 10 deg. (neutral)", "reba/ssribbon4_0", 1, 0},
      {"< -20   ", "Neck extension",                       "reba/ssribbon4_1", 2, 1},
      {"> 20    ", "Neck greater than 20 deg. flexion",    "reba/ssribbon4_2", 2, 2}},
     {{"SSCheck2(0)", "Neck is twisting or side bending", 1, 10}}},
    {Trunk, "Trunk", "SSRibbon5",
     {{"Neutral",   "Trunk neutral posture",                   "reba/ssribbon5_0", 1, 0},
      {"0 to 20",   "Trunk between 0 and 20 deg. (Flexion)",   "reba/ssribbon5_1", 2, 1},
      {"21 to 60",  "Trunk between 21 and 60 deg. (Flexion)",  "reba/ssribbon5_2", 3, 2},
      {"> 60    ",  "Trunk greater than 60 deg. (Flexion)",    "reba/ssribbon5_3", 4, 3},
      {"-20 to 0",  "Trunk 0 to -20 deg. (Extension)",         "reba/ssribbon5_4", 2, 4},
      {"< -20    ", "Trunk less than -20 deg. (Extension)",    "reba/ssribbon5_5", 3, 5}},
     {{"SSCheck3(0)", "Trunk is twisting or side bending", 1, 13}}},
    {Legs, "Leg", "SSRibbon6",
     {{"Stable",   "Bilateral weight bearing, walking or sitting", "reba/ssribbon6_0", 1, 1},
      {"Unstable", "Unilateral weight bearing, feather weight bearing or an unstable posture",
       "reba/ssribbon6_1", 2, 2},
      {"30 to 60", "Knee(s) between 30-60 degree flexion",         "reba/ssribbon6_2", 1, 1},
      {"> 60",     "Knee(s) >60 degree flexion (not sitting)",     "reba/ssribbon6_3", 2, 2}},
     {}},
    {Force, "Force or Load", "", {}, {{"SSCheck4", "Shock/rapid build up of force", 1, 18}}},
    {Coupling, "Coupling/Grip", "", {}, {}},
    {MuscleUse, "Muscle Use", "", {},
     {{"SSCheck5(0)", "Static, eg. held for longer than 1 min",      1, 20},
      {"SSCheck5(1)", "Repeated more than 4 times/min",              1, 21},
      {"SSCheck5(2)", "Rapid large posture change or unstable base", 1, 22}}},
  };
  // clang-format on
}

bool Holds(const PostureRegion& region, const PostureControl& control) {
  return std::ranges::any_of(region.controls,
                             [&](const PostureControl& held) { return &held == &control; });
}

TEST(RebaTables, FramesRibbonsAndBoxesReadAsOnTheForm) {
  const std::vector<FrameRow> frames = Frames();
  ASSERT_EQ(frames.size(), kRebaRegionCount);
  for (const FrameRow& expected : frames) {
    SCOPED_TRACE(expected.caption);
    const auto region = std::ranges::find(kRebaRegions, expected.caption, &PostureRegion::caption);
    ASSERT_NE(region, kRebaRegions.end());
    const auto ribbons = RibbonsOf(expected.region);
    ASSERT_EQ(ribbons.size(), expected.ribbons.size());
    for (std::size_t i = 0; i < expected.ribbons.size(); ++i) {
      const int index = static_cast<int>(i);
      const PostureControl& control = RibbonControl(expected.region, index);
      EXPECT_TRUE(Holds(*region, control)) << i;
      EXPECT_EQ(control.objectName, expected.ribbonName);
      EXPECT_EQ(ribbons[i].caption, expected.ribbons[i].caption);
      EXPECT_EQ(ribbons[i].toolTip, expected.ribbons[i].toolTip);
      EXPECT_EQ(ribbons[i].picture, expected.ribbons[i].picture);
      EXPECT_EQ(ribbons[i].score, expected.ribbons[i].factor) << i;
      EXPECT_EQ(control.firstState + index - control.first, expected.ribbons[i].state) << i;
    }
    const auto boxes = BoxesOf(expected.region);
    ASSERT_EQ(boxes.size(), expected.checks.size());
    for (std::size_t i = 0; i < expected.checks.size(); ++i) {
      const PostureControl& control = BoxControl(expected.region, static_cast<int>(i));
      EXPECT_TRUE(Holds(*region, control)) << i;
      EXPECT_EQ(control.objectName, expected.checks[i].objectName);
      EXPECT_EQ(boxes[i].caption, expected.checks[i].caption);
      EXPECT_EQ(boxes[i].score, expected.checks[i].value) << i;
      EXPECT_EQ(control.state.element, expected.checks[i].stateEntry) << i;
    }
  }
}

struct GroupRow {
  RebaRegion region;
  int first, count;
  bool mayBeUp;
  int stateEntry;
};

TEST(RebaTables, SideBentRibbonAndKneePairAreTheGroupsThatMayBeUp) {
  using enum RebaRegion;
  const std::array<GroupRow, 8> rows{{
      {UpperArms, 0, 5, false, 0},
      {LowerArms, 0, 3, false, 4},
      {Wrist, 0, 3, false, 6},
      {Wrist, 3, 1, true, 7},
      {Neck, 0, 3, false, 9},
      {Trunk, 0, 6, false, 12},
      {Legs, 0, 2, false, 15},
      {Legs, 2, 2, true, 16},
  }};
  const auto groups = std::ranges::count_if(kRebaControls, [](const PostureControl& control) {
    return control.objectName.starts_with("SSRibbon");
  });
  ASSERT_EQ(groups, static_cast<std::ptrdiff_t>(rows.size()));
  for (const GroupRow& row : rows) {
    SCOPED_TRACE(NamesOf(row.region).caption);
    const PostureControl& control = RibbonControl(row.region, row.first);
    EXPECT_EQ(control.first, row.first);
    EXPECT_EQ(control.count, row.count);
    EXPECT_EQ(control.mayBeUp(), row.mayBeUp);
    EXPECT_EQ(control.state.element, row.stateEntry);
  }
}

TEST(RebaTables, LoadListAndCouplings) {
  const auto loads = RowOf(RebaControl::Load).array;
  std::vector<std::string_view> entries;
  for (const PostureChoice& load : loads) entries.push_back(load.caption);
  EXPECT_EQ(entries, (std::vector<std::string_view>{"<5 kg  ", "5-10 kg", ">10 kg "}));
  EXPECT_EQ(loads.front().toolTip, "Force or external load level");
  const std::array<std::array<std::string_view, 2>, 4> couplings{{
      {"Good       ", "Well-fitting handle and a mid-range, power grip"},
      {"Fair       ",
       "Hand hold acceptable but not ideal or coupling is acceptable via another part of the body"},
      {"Poor        ", "Hand hold not acceptable although possible"},
      {"Unacceptable", "Awkward, unsafe grip, no handle"},
  }};
  const auto options = RowOf(RebaControl::Coupling).array;
  ASSERT_EQ(options.size(), couplings.size());
  for (std::size_t i = 0; i < couplings.size(); ++i) {
    EXPECT_EQ(options[i].caption, couplings[i][0]);
    EXPECT_EQ(options[i].toolTip, couplings[i][1]);
  }
}

class RebaForm : public testing::Test {
 protected:
  void SetUp() override { StartFresh(); }
  /// The job before each row of a table.
  void StartFresh() { Module1 = JobState{}; }
  /// Which ribbons of a frame are down, "x" a ribbon.
  std::string DownIn(RebaRegion region) const {
    std::string down;
    for (std::size_t i = 0; i < RibbonsOf(region).size(); ++i) {
      down += IsDown(controls_, region, static_cast<int>(i)) ? 'x' : '.';
    }
    return down;
  }

  RebaControls controls_;
};

TEST_F(RebaForm, DesignStateHasNothingChosenDownOrChecked) {
  controls_.Load();
  for (const RebaRegion region : kRegions) {
    for (std::size_t i = 0; i < BoxesOf(region).size(); ++i) {
      SetCheck(controls_, region, static_cast<int>(i), true);
    }
  }
  controls_.Reset();
  EXPECT_EQ(controls_.hand(), RebaControls::kNone);
  EXPECT_EQ(controls_.chosen(RowOf(RebaControl::Load)), RebaControls::kNone);
  EXPECT_EQ(controls_.chosen(RowOf(RebaControl::Coupling)), RebaControls::kNone);
  for (const RebaRegion region : kRegions) {
    EXPECT_EQ(DownIn(region), std::string(RibbonsOf(region).size(), '.'));
    for (std::size_t i = 0; i < BoxesOf(region).size(); ++i) {
      EXPECT_FALSE(IsChecked(controls_, region, static_cast<int>(i)));
    }
  }
}

TEST_F(RebaForm, OneRibbonOfAFrameIsDownAtAllTimes) {
  using enum RebaRegion;
  controls_.Load();
  for (const RebaRegion region : {UpperArms, LowerArms, Neck, Trunk}) {
    for (std::size_t i = 0; i < RibbonsOf(region).size(); ++i) {
      SCOPED_TRACE(NamesOf(region).caption);
      std::string down(RibbonsOf(region).size(), '.');
      down[i] = 'x';
      ClickRibbon(controls_, region, static_cast<int>(i));
      EXPECT_EQ(DownIn(region), down);
      ClickRibbon(controls_, region, static_cast<int>(i));
      EXPECT_EQ(DownIn(region), down) << "clicked again";
    }
  }
}

struct ClickRow {
  std::string_view label;
  RebaRegion region;
  std::vector<int> clicks;
  std::string_view down;
};

TEST_F(RebaForm, RibbonsThatMayBeUpAreReleasedByAClick) {
  using enum RebaRegion;
  const std::vector<ClickRow> rows{
      {"wrist at load", Wrist, {}, "x..."},
      {"side bent", Wrist, {3}, "x..x"},
      {"side bent stays with another posture", Wrist, {3, 2}, "..xx"},
      {"side bent released", Wrist, {3, 3}, "x..."},
      {"wrist posture is not released", Wrist, {1, 1}, ".x.."},
      {"legs at load", Legs, {}, "x..."},
      {"unstable", Legs, {1}, ".x.."},
      {"stability is not released", Legs, {1, 1}, ".x.."},
      {"first knee", Legs, {2}, "x.x."},
      {"second knee", Legs, {3}, "x..x"},
      {"second knee after the first", Legs, {2, 3}, "x..x"},
      {"first knee after the second", Legs, {3, 2}, "x.x."},
      {"first knee released", Legs, {2, 2}, "x..."},
      {"second knee released", Legs, {3, 3}, "x..."},
      {"unstable keeps the knee", Legs, {2, 1}, ".xx."},
  };
  for (const ClickRow& row : rows) {
    StartFresh();
    controls_.Reset();
    controls_.Load();
    for (const int index : row.clicks) ClickRibbon(controls_, row.region, index);
    EXPECT_EQ(DownIn(row.region), row.down) << row.label;
  }
}

TEST_F(RebaForm, IndexThatNamesNoControlFailsAndChangesNothing) {
  for (const RebaRegion region : kRegions) {
    SCOPED_TRACE(NamesOf(region).caption);
    const auto ribbons = static_cast<int>(RibbonsOf(region).size());
    for (const int index : {-1, ribbons, 100}) {
      if (ribbons == 0) continue;
      EXPECT_EQ(FailureOf([&] { PressRibbon(controls_, region, index); }), "SubscriptOutOfRange");
      EXPECT_EQ(FailureOf([&] { ClickRibbon(controls_, region, index); }), "SubscriptOutOfRange");
      EXPECT_EQ(FailureOf([&] { (void)IsDown(controls_, region, index); }), "SubscriptOutOfRange");
    }
    const auto boxes = static_cast<int>(BoxesOf(region).size());
    for (const int index : {-1, boxes, 100}) {
      if (boxes == 0) continue;
      EXPECT_EQ(FailureOf([&] { SetCheck(controls_, region, index, true); }),
                "SubscriptOutOfRange");
      EXPECT_EQ(FailureOf([&] { (void)IsChecked(controls_, region, index); }),
                "SubscriptOutOfRange");
    }
  }
  for (const int index : {-1, 2}) {
    EXPECT_EQ(FailureOf([&] { controls_.ChooseHand(index); }), "SubscriptOutOfRange");
  }
  for (const int index : {-1, 3}) {
    EXPECT_EQ(FailureOf([&] { PickLoad(controls_, index); }), "SubscriptOutOfRange");
  }
  for (const int index : {-1, 4}) {
    EXPECT_EQ(FailureOf([&] { ChooseCoupling(controls_, index); }), "SubscriptOutOfRange");
  }
  EXPECT_EQ(Module1, JobState{});
}

}  // namespace
}  // namespace halvane
