#include "tools/ctd/ctd_controls.h"

#include <gtest/gtest.h>

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tests/support/test_support.h"

namespace halvane {
namespace {

/// "0 Power Grip; 2 ..." of a row of ribbons.
std::string Codes(std::span<const CtdRibbon> ribbons) {
  std::string text;
  for (const CtdRibbon& ribbon : ribbons) {
    if (!text.empty()) text += "; ";
    text += std::to_string(ribbon.index) + " " + std::string(ribbon.caption);
  }
  return text;
}

TEST(CtdTables, GroupsHaveTheirCodes) {
  struct Row {
    std::string_view objectName, caption, codes;
  };
  const std::array<Row, 4> rows{{
      {"SSRibbon1", "Grip Type", "0 Power Grip; 2 Lateral Pinch; 3 Chuck Pinch; 4 2-Point Pinch"},
      {"SSRibbon2", "Wrist Position", "0 Mid-Position (Neutral); 1 Pronation; 3 Supination"},
      {"SSRibbon4", "Radial/Ulnar Deviation Angle:",
       "0 Neutral; 1 Radial Deviation >15 deg.; 2 Radial Deviation 5-15 deg.; "
       "3 Ulnar Deviation >15 deg.; 4 Ulnar Deviation 5-15 deg."},
      {"SSRibbon5", "Flexion/Extension Angle:",
       "0 Neutral; 5 Flexion >35 deg.; 6 Flexion 5-15 deg.; 7 Extension >35 deg.; "
       "8 Extension 5-15 deg."},
  }};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(kCtdGroups.at(i).objectName, rows.at(i).objectName);
    EXPECT_EQ(kCtdGroups.at(i).caption, rows.at(i).caption);
    EXPECT_EQ(Codes(kCtdGroups.at(i).ribbons), rows.at(i).codes);
  }
}

TEST(CtdTables, SlotsHaveTheirFramesAndShouldersAreCrossed) {
  constexpr std::string_view kFlexion =
      "0 Neutral Posture; 1 Greater Than 20; 2 Greater Than 45; 3 Greater Than 90";
  constexpr std::string_view kAbduction =
      "0 Neutral Posture; 1 Greater Than 30; 2 Greater Than 60; 3 Greater Than 90";
  constexpr std::string_view kElbow = "0 Neutral Posture; 1 > 10 deg. Flexion; 2 >30 deg Extension";
  struct Row {
    std::string_view label, frame, objectName, codes;
    int frameSlot;
  };
  const std::array<Row, 8> rows{{
      {"Lt Shoulder Flex/Ext", "Left Shoulder Flexion/Extension", "SSctdLtShoulFlexT", kFlexion, 1},
      {"Rt Shoulder Flex/Ext", "Right Shoulder Flextion/Extension", "SSctdRtShoulFlexT", kFlexion,
       0},
      {"Lt Shoulder Abd/Add", "Left Shoulder Abduction", "SSctdLtShoulABD", kAbduction, 3},
      {"Rt Shoulder Abd/Add", "Right Shoulder Abduction", "SSctdRtShoulABD", kAbduction, 2},
      {"Lt Elbow Flex/Ext   ", "Left Elbow Flextion/Extension", "SSctdLtElbowFlexT", kElbow, 4},
      {"Rt elbow Flex/Ext   ", "Right Elbow Flexion/Extension", "SSctdRtElbowFlexT", kElbow, 5},
      {"Back Flexion          ", "Back Flexion", "SSctdBack",
       "0 Neutral Posture; 1 Greater Than 10; 2 Greater Than 20; 3 Greater Than 45", 6},
      {"Neck Flexion          ", "Neck Flexion", "SSctdNeck",
       "0 Neutral Posture; 1 Greater Than 30; 2 Greater Than 45; 3 Greater Than 60", 7},
  }};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(kCtdSlots.at(i).reportLabel, rows.at(i).label);
    EXPECT_EQ(kCtdSlots.at(i).frameCaption, rows.at(i).frame);
    EXPECT_EQ(kCtdSlots.at(i).objectName, rows.at(i).objectName);
    EXPECT_EQ(Codes(kCtdSlots.at(i).categories), rows.at(i).codes);
    EXPECT_EQ(kCtdSlots.at(i).frameSlot, rows.at(i).frameSlot) << i;
  }
}

TEST(CtdTables, BodyPartsShowTwoSlotsEach) {
  constexpr std::array<std::string_view, 4> kCaptions{
      "Shoulder Flexion/Extension", "Shoulder Abduction", "Elbow Flexion/Extension", "Neck + Back"};
  for (int i = 0; i < 4; ++i) {
    const CtdBodyPart& part = kCtdBodyParts.at(static_cast<std::size_t>(i));
    EXPECT_EQ(part.caption, kCaptions.at(static_cast<std::size_t>(i)));
    EXPECT_EQ(part.shownSlots, (std::array{2 * i, 2 * i + 1}));
  }
}

class CtdForm : public testing::Test {
 protected:
  void SetUp() override { Module1 = JobState{}; }
  static void AddTasks(int count) {
    for (int i = 0; i < count; ++i) AddTaskRecord();
  }
  static void SetCodes(int task, Integer grip, Integer wrist, Integer ulnar, Integer flexion) {
    Module1.CtdGripType.at(task) = grip;
    Module1.CtdWristPosition.at(task) = wrist;
    Module1.CtdRadUlnDeviation.at(task) = ulnar;
    Module1.CtdFlexExtDeviation.at(task) = flexion;
  }
  std::vector<int> Down() const {
    return {controls_.down(CtdGroup::Grip), controls_.down(CtdGroup::Wrist),
            controls_.down(CtdGroup::RadialUlnar), controls_.down(CtdGroup::FlexionExtension)};
  }
  CtdControls controls_;
};

TEST_F(CtdForm, LoadOfANewTaskLeavesTheJobClean) {
  AddTasks(2);
  controls_.Load();
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(Module1.CurrentTask.AsDouble(), 2);
  EXPECT_EQ(controls_.bodyPart(), CtdControls::kNoBodyPart);
}

TEST_F(CtdForm, LoadEndsAtTheLastActiveTask) {
  AddTasks(3);
  Module1.TaskActive.at(3) = Integer{0};
  SetCodes(1, 2, 1, 4, 8);
  SetCodes(2, 3, 3, 1, 5);
  controls_.Load();
  EXPECT_EQ(Module1.CurrentTask.AsDouble(), 2);
  EXPECT_EQ(Down(), (std::vector<int>{3, 3, 1, 5}));
  EXPECT_EQ(Module1.JobDirty, kTrue);
  controls_.Reset();
  EXPECT_EQ(Down(), (std::vector<int>{0, 0, 0, 0}));
}

TEST_F(CtdForm, LoadOfAHandThatIsNoneFails) {
  for (const Integer hand : std::array<Integer, 2>{2, -1}) {
    Module1.Hand = hand;
    EXPECT_EQ(FailureOf([this] { controls_.Load(); }), "SubscriptOutOfRange") << hand;
  }
  Module1.Hand = 1;
  controls_.Load();
  EXPECT_EQ(controls_.hand(), 1);
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(CtdForm, SavedCodeWithoutRibbonEndsTheShowingQuietly) {
  AddTasks(2);
  SetCodes(1, 2, 1, 4, 8);
  SetCodes(2, 3, 2, 0, 0);
  std::vector<int> shown;
  controls_.Load([&shown](int task) {
    EXPECT_EQ(Module1.CurrentTask.AsDouble(), task);
    shown.push_back(task);
  });
  EXPECT_EQ(shown, std::vector<int>{1});
  EXPECT_EQ(Down(), (std::vector<int>{3, 1, 4, 8})) << "what follows stays as task 1 had it";
  EXPECT_EQ(Module1.CtdWristPosition.at(2), 2);
}

TEST_F(CtdForm, RibbonStoresItsCodeInItsField) {
  AddTasks(2);
  Module1.CurrentTask = Integer{2};
  controls_.PressRibbon(CtdGroup::Grip, 0);
  EXPECT_EQ(Module1.JobDirty, kFalse) << "it was down";
  controls_.PressRibbon(CtdGroup::Grip, 4);
  controls_.PressRibbon(CtdGroup::Wrist, 3);
  controls_.PressRibbon(CtdGroup::RadialUlnar, 2);
  controls_.PressRibbon(CtdGroup::FlexionExtension, 7);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  constexpr std::array kGroups{CtdGroup::Grip, CtdGroup::Wrist, CtdGroup::RadialUlnar,
                               CtdGroup::FlexionExtension};
  constexpr std::array kCodes{4, 3, 2, 7};
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    EXPECT_EQ(CtdCodeOf(kGroups.at(i), 2), kCodes.at(i));
    EXPECT_EQ(CtdCodeOf(kGroups.at(i), 1), 0);
  }
  EXPECT_EQ(Module1.CtdGripType.at(2).AsDouble(), 4);
  EXPECT_EQ(Module1.CtdWristPosition.at(2), 3);
  EXPECT_EQ(Module1.CtdRadUlnDeviation.at(2), 2);
  EXPECT_EQ(Module1.CtdFlexExtDeviation.at(2).AsDouble(), 7);
  EXPECT_EQ(FailureOf([this] { controls_.PressRibbon(CtdGroup::Grip, 1); }), "SubscriptOutOfRange");
}

TEST_F(CtdForm, CategoryStoresInTheFieldOfItsSlot) {
  AddTasks(1);
  Module1.CurrentTask = Integer{1};
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    controls_.PressCategory(slot, slot % 2 + 1);
    EXPECT_EQ(controls_.category(slot), slot % 2 + 1);
    EXPECT_EQ(CtdCategoryOf(slot, 1), slot % 2 + 1);
  }
  EXPECT_EQ(Module1.CtdLtShoulderFlexion.at(1).AsDouble(), 1);
  EXPECT_EQ(Module1.CtdRtShoulderFlexion.at(1).AsDouble(), 2);
  EXPECT_EQ(Module1.CtdLtShoulderAbduction.at(1).AsDouble(), 1);
  EXPECT_EQ(Module1.CtdRtShoulderAbduction.at(1).AsDouble(), 2);
  EXPECT_EQ(Module1.CtdLtElbowFlexion.at(1).AsDouble(), 1);
  EXPECT_EQ(Module1.CtdRtElbowFlexion.at(1).AsDouble(), 2);
  EXPECT_EQ(Module1.CtdBackFlexion.at(1).AsDouble(), 1);
  EXPECT_EQ(Module1.CtdNeckFlexion.at(1), 2);
  EXPECT_EQ(FailureOf([this] { controls_.PressCategory(4, 3); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([this] { controls_.PressCategory(8, 0); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([] { CtdCategoryOf(8, 1); }), "SubscriptOutOfRange");
  EXPECT_EQ(FailureOf([] { StoreCtdCategory(8, 1, 0); }), "SubscriptOutOfRange");
}

TEST_F(CtdForm, BodyPartShowsItsTwoCategories) {
  AddTasks(2);
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    StoreCtdCategory(slot, 1, 1);
    StoreCtdCategory(slot, 2, 2);
  }
  controls_.Load();
  for (int part = 0; part < 4; ++part) {
    Module1.CurrentTask = Integer{1};
    controls_.PressBodyPart(part);
    for (int slot = 0; slot < kCtdSlotCount; ++slot) {
      EXPECT_EQ(controls_.category(slot), slot / 2 < part ? 2 : slot / 2 == part ? 1 : 0) << part;
    }
    Module1.CurrentTask = Integer{2};
    controls_.PressBodyPart(part);
    EXPECT_EQ(controls_.category(2 * part), 2) << part;
    EXPECT_EQ(controls_.category(2 * part + 1), 2) << part;
  }
  EXPECT_EQ(FailureOf([this] { controls_.PressBodyPart(4); }), "SubscriptOutOfRange");
}

TEST_F(CtdForm, BodyPartMarksTheJobChanged) {
  AddTasks(1);
  controls_.Load();
  ASSERT_EQ(Module1.JobDirty, kFalse);
  controls_.PressBodyPart(0);
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

}  // namespace
}  // namespace halvane
