// The first tab of the CTD Risk Index form: what its boxes, options and ribbons store.
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include "core/task_list.h"
#include "tests/forms/ctd_form_support.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

class CtdBoxes : public CtdFormTest {};
class CtdHand : public CtdFormTest {};
class CtdRibbons : public CtdFormTest {};

/// A job of two tasks, the second on the form: 10 minutes a cycle, 0.5 minutes four times.
void MakeNumbersJob() {
  Module1 = JobState{};
  AddTaskRecord();
  AddTaskRecord();
  Module1.JobCycleTime = 10;
  Module1.CtdWorkTime.at(2) = 0.5;
  Module1.CtdRepetitions.at(2) = 4;
}

/// A box, what typing "1.5 h" into it stores, and the rest time and number of cycles that come
/// with it; the job has 8 and 77 of them before.
struct BoxRow {
  const char* box;
  void (*store)(JobState& job);
  double rest;
  double cycles;
};

const std::vector<BoxRow>& Boxes() {
  static const std::vector<BoxRow> rows{
      {"Text1(2)", [](JobState& job) { job.CtdWorkTime.at(2) = 1.5; }, 4, 77},
      {"Text1(5)", [](JobState& job) { job.CtdRepetitions.at(2) = 1.5; }, 9.25, 77},
      {"Text1(6)", [](JobState& job) { job.CtdHandSpan.at(2) = 1.5; }, 8, 77},
      {"Text5", [](JobState& job) { job.CtdForceMvc.at(2) = 1.5; }, 8, 77},
      {"Text2(0)", [](JobState& job) { job.JobDurationPerDay = 1.5; }, 8, 9},
      {"Text2(1)", [](JobState& job) { job.JobCycleTime = 1.5; }, 0, 320},
      {"Text1(8)", [](JobState& job) { job.JobAnalyst = "1.5 h"; }, 8, 77},
      {"Text1(7)", [](JobState& job) { job.JobName = "1.5 h"; }, 8, 77},
      {"Text1(4)", [](JobState& job) { job.JobWorkstationId = "1.5 h"; }, 8, 77},
  };
  return rows;
}

TEST_F(CtdBoxes, EveryReleasedKeyStoresInTheBoxsOwnFieldAndMarksTheJob) {
  for (const BoxRow& row : Boxes()) {
    MakeNumbersJob();
    Module1.CtdRestTime.at(2) = 8.0;
    Module1.CtdCyclesPerShift = 77;
    Load();
    JobState expected = Module1;
    ASSERT_EQ(expected.JobDirty, kFalse);
    row.store(expected);
    expected.JobDirty = kTrue;
    expected.CtdRestTime.at(2) = row.rest;
    expected.CtdCyclesPerShift = row.cycles;
    Type(row.box, "1.5 h");
    EXPECT_TRUE(Module1 == expected) << row.box;
    EXPECT_EQ(TextOf(row.box), "1.5 h");
  }
}

TEST_F(CtdBoxes, KeyThatChangesNothingMarksTheJobToo) {
  AddTaskRecord();
  Load();
  for (const char* box : {"Text1(2)", "Text1(3)", "Text1(4)", "Text1(5)", "Text1(6)", "Text1(7)",
                          "Text1(8)", "Text2(0)", "Text2(1)", "Text2(2)", "Text5"}) {
    Module1.JobDirty = kFalse;
    TouchKey(box);
    EXPECT_EQ(Module1.JobDirty, kTrue) << box;
  }
}

TEST_F(CtdBoxes, TextThatIsNoNumberStoresZeroAndStaysOnScreen) {
  for (const char* text : {"many", "", "-", ".", " x1"}) {
    SCOPED_TRACE(text);
    MakeNumbersJob();
    Load();
    for (const char* box : {"Text1(2)", "Text1(5)", "Text1(6)", "Text5", "Text2(0)", "Text2(1)"}) {
      Type(box, "3");
      Type(box, text);
      EXPECT_EQ(TextOf(box), text) << box;
    }
    EXPECT_EQ(Module1.CtdWorkTime.at(2), TaggedField(0.0));
    EXPECT_EQ(Module1.CtdRepetitions.at(2), 0);
    EXPECT_EQ(Module1.CtdHandSpan.at(2), TaggedField(0.0));
    EXPECT_EQ(Module1.CtdForceMvc.at(2), 0);
    EXPECT_EQ(Module1.JobDurationPerDay, TaggedField(0.0));
    EXPECT_EQ(Module1.JobCycleTime, 0);
  }
}

TEST_F(CtdBoxes, FocusSelectsAll) {
  MakeNumbersJob();
  Module1.JobAnalyst = "Ann";
  Module1.JobName = "Packing";
  Module1.JobWorkstationId = "W-17";
  Module1.CtdCyclesPerShift = 48;
  Load();
  TouchKey("Text2(0)");
  for (const char* name : {"Text1(2)", "Text1(3)", "Text1(4)", "Text1(5)", "Text1(6)", "Text1(7)",
                           "Text1(8)", "Text2(0)", "Text2(1)", "Text2(2)", "Text5"}) {
    auto& box = Control<QLineEdit>(name);
    Control("TreeView1").setFocus();
    box.deselect();
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_NE(box.text(), "") << name;
    EXPECT_EQ(box.selectedText(), box.text()) << name;
  }
}

TEST_F(CtdBoxes, RestTimeIsComputedAndShownWhateverTheBox) {
  MakeNumbersJob();
  Module1.CtdWorkTime.at(2) = 0.505;
  Load();
  for (const char* box : {"Text1(2)", "Text1(3)", "Text1(4)", "Text1(5)", "Text1(6)", "Text1(7)",
                          "Text1(8)", "Text2(0)", "Text2(1)"}) {
    Module1.CtdRestTime.at(2) = 99.0;
    Control<QLineEdit>("Text1(3)").setText("99");
    TouchKey(box);
    EXPECT_EQ(Module1.CtdRestTime.at(2), TaggedField(7.98)) << box;
    EXPECT_EQ(TextOf("Text1(3)"), "7.98") << box;
  }
  Type("Text1(2)", "0.5");
  EXPECT_EQ(TextOf("Text1(3)"), "8.00");
}

TEST_F(CtdBoxes, ForceLeavesTheRestTimeAlone) {
  MakeNumbersJob();
  Module1.CtdRestTime.at(2) = 99.0;
  Load();
  Type("Text5", "20");
  EXPECT_EQ(Module1.CtdRestTime.at(2), TaggedField(99.0));
  EXPECT_EQ(TextOf("Text1(3)"), "99");
}

TEST_F(CtdBoxes, RestTimeIsNeverBelowZero) {
  MakeNumbersJob();
  Load();
  Type("Text1(5)", "21");
  EXPECT_EQ(Module1.CtdRestTime.at(2), TaggedField(0.0));
  EXPECT_EQ(TextOf("Text1(3)"), "0.00");
}

struct CyclesRow {
  const char* hours;
  const char* cycleTime;
  const char* shown;
  double stored;
};

TEST_F(CtdBoxes, NumberOfCyclesIsShownAndStored) {
  MakeNumbersJob();
  Load();
  const std::vector<CyclesRow> rows{
      {"8", "2.5", "192.00", 192}, {"7.5", "1", "450.00", 450}, {"7", "9", "46.67", 7.0 * 60 / 9},
      {"0", "1", "0.00", 0},       {"8", "0.5", "960.00", 960},
  };
  for (const CyclesRow& row : rows) {
    Type("Text2(0)", row.hours);
    Type("Text2(1)", row.cycleTime);
    EXPECT_EQ(TextOf("Text2(2)"), row.shown) << row.hours << " " << row.cycleTime;
    EXPECT_EQ(Module1.CtdCyclesPerShift, row.stored) << row.hours << " " << row.cycleTime;
  }
}

TEST_F(CtdBoxes, WithoutACycleTimeTheNumberOfCyclesShowsZeroAndTheFieldStays) {
  for (const char* cycleTime : {"0", "-1", "none"}) {
    MakeNumbersJob();
    Load();
    TouchKey("Text2(1)");
    ASSERT_EQ(Module1.CtdCyclesPerShift, 48);
    ASSERT_EQ(TextOf("Text2(2)"), "48.00");
    // Sets the text at once, so that no beginning of it counts.
    Control<QLineEdit>("Text2(1)").setText(cycleTime);
    for (const char* box : {"Text2(1)", "Text2(0)"}) {
      Control<QLineEdit>("Text2(2)").setText("stale");
      TouchKey(box);
      EXPECT_EQ(TextOf("Text2(2)"), "0") << cycleTime;
      EXPECT_EQ(Module1.CtdCyclesPerShift, 48) << cycleTime;
    }
  }
}

TEST_F(CtdBoxes, IdentificationOfAJobWithoutTasksGoesWithTheRestTimeOfNoTask) {
  Load();
  Type("Text1(8)", "Ann");
  EXPECT_EQ(Module1.JobAnalyst.AsText(), "Ann");
  EXPECT_EQ(TextOf("Text1(3)"), "0.00");
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(CtdHand, ClickStoresTheOptionAndMarksTheJob) {
  AddTaskRecord();
  Load();
  EXPECT_TRUE(Control<QRadioButton>("SSOption1(0)").isChecked());
  for (const int hand : {1, 0}) {
    Module1.JobDirty = kFalse;
    Click(ElementName("SSOption1", hand));
    EXPECT_EQ(Module1.Hand, hand);
    EXPECT_EQ(Module1.JobDirty, kTrue);
    EXPECT_TRUE(Control<QRadioButton>(ElementName("SSOption1", hand)).isChecked());
  }
}

TEST_F(CtdHand, LoadShowsTheSavedOne) {
  AddTaskRecord();
  for (const Integer hand : {Integer{1}, Integer{0}}) {
    Module1.Hand = hand;
    Load();
    EXPECT_TRUE(Control<QRadioButton>(ElementName("SSOption1", hand)).isChecked()) << hand;
  }
}

/// The code that the task has in each of the four groups.
std::vector<double> CodesOf(int task) {
  return {Module1.CtdGripType.at(task).AsDouble(),
          static_cast<double>(Module1.CtdWristPosition.at(task)),
          Module1.CtdRadUlnDeviation.at(task), Module1.CtdFlexExtDeviation.at(task).AsDouble()};
}

TEST_F(CtdRibbons, EveryOneStoresItsIndexForTheTaskOnTheForm) {
  AddTaskRecord();
  AddTaskRecord();
  Load();
  std::size_t group = 0;
  for (const CtdArrayRow& row : CtdHandArrays()) {
    EXPECT_EQ(Down(row.array), "0") << row.array;
    for (std::size_t i = 1; i <= row.ribbons.size(); ++i) {
      // The one with code 0 is down at first, so it comes last.
      const int index = row.ribbons[i % row.ribbons.size()].first;
      SCOPED_TRACE(std::string(row.array) + " " + std::to_string(index));
      Module1.JobDirty = kFalse;
      std::vector<double> expected = CodesOf(2);
      expected[group] = index;
      Click(ElementName(row.array, index));
      EXPECT_EQ(CodesOf(2), expected);
      EXPECT_EQ(CodesOf(1), std::vector<double>(4, 0));
      EXPECT_EQ(Module1.JobDirty, kTrue);
      EXPECT_EQ(Down(row.array), std::to_string(index));
    }
    ++group;
  }
}

TEST_F(CtdRibbons, SpaceBarPressesTheOneWithTheFocus) {
  AddTaskRecord();
  Load();
  auto& ribbon = Control<RibbonButton>("SSRibbon5(7)");
  ribbon.setFocus();
  QTest::keyClick(&ribbon, Qt::Key_Space);
  EXPECT_EQ(CodesOf(1), (std::vector<double>{0, 0, 0, 7}));
  EXPECT_EQ(Down("SSRibbon5"), "7");
}

TEST_F(CtdRibbons, ClickInADisabledFrameStoresNothing) {
  Load();
  QTest::mouseClick(&Control("SSRibbon1(3)"), Qt::LeftButton);
  EXPECT_EQ(Down("SSRibbon1"), "0");
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

}  // namespace
}  // namespace halvane
