// The CTD Risk Index form as it opens: its words, and the job that it shows.
#include "tools/ctd/frm_ctd.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include "core/job_file.h"
#include "core/task_list.h"
#include "shell/frm_hand_main.h"
#include "tests/forms/ctd_form_support.h"
#include "tools/task_list/task_tree.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

class CtdCaptions : public CtdFormTest {};
class CtdLoad : public CtdFormTest {};

constexpr int kInputFrames = 10;

QGroupBox& InputFrame(const QWidget& form, int index) {
  return Find<QGroupBox>(form, ElementName("SSFrame1", index));
}

/// Which of the ten input frames are enabled, "1" for each that is.
std::string EnabledFrames(const QWidget& form) {
  std::string enabled;
  for (int i = 0; i < kInputFrames; ++i) enabled += InputFrame(form, i).isEnabled() ? '1' : '0';
  return enabled;
}
const std::string kAllEnabled(kInputFrames, '1');
const std::string kAllDisabled(kInputFrames, '0');

/// The caption of the frame that a control stands in, empty for none.
QString FrameOf(const QWidget& control) {
  for (const QWidget* parent = control.parentWidget(); parent != nullptr;
       parent = parent->parentWidget()) {
    if (const auto* frame = qobject_cast<const QGroupBox*>(parent)) return frame->title();
  }
  return "";
}

TEST_F(CtdCaptions, TitleAndTabs) {
  Load();
  EXPECT_EQ(form().windowTitle(), "Cumulative Trauma Disorders Risk Assessment Model");
  EXPECT_EQ(form().objectName(), "frmCTD");
  const auto& tabs = Control<QTabWidget>("SSTab1");
  ASSERT_EQ(tabs.count(), 3);
  EXPECT_EQ(tabs.tabText(0), "Force Freq. Factors");
  EXPECT_EQ(tabs.tabText(1), "Body Posture Factors");
  EXPECT_EQ(tabs.tabText(2), "Grand Score");
}

TEST_F(CtdCaptions, EachTabHoldsItsControls) {
  Load();
  const auto& tabs = Control<QTabWidget>("SSTab1");
  for (int i = 0; i < kInputFrames; ++i) {
    EXPECT_TRUE(tabs.widget(0)->isAncestorOf(&InputFrame(form(), i))) << i;
  }
  for (const char* box : {"Text1(4)", "Text1(7)", "Text1(8)"}) {
    EXPECT_TRUE(tabs.widget(0)->isAncestorOf(&Control(box))) << box;
    EXPECT_EQ(FrameOf(Control(box)), "") << box;
  }
  for (int i = 0; i < 8; ++i) {
    EXPECT_TRUE(tabs.widget(1)->isAncestorOf(&Control(ElementName("SSFrame3", i)))) << i;
  }
  EXPECT_TRUE(tabs.widget(1)->isAncestorOf(&Control("SSPanel2")));
  EXPECT_EQ(tabs.widget(2), &Control<RichTextBox>("RichTextBox1"));
  const auto& tasks = Control("SSTab2");
  EXPECT_FALSE(tabs.isAncestorOf(&tasks));
  EXPECT_LE(tasks.geometry().right(), tabs.geometry().left());
  EXPECT_TRUE(tasks.isAncestorOf(&Control("TreeView1")));
}

TEST_F(CtdCaptions, InputFrames) {
  Load();
  QStringList captions;
  for (int i = 0; i < kInputFrames; ++i) captions.append(InputFrame(form(), i).title());
  EXPECT_EQ(captions,
            (QStringList{"Hand", "Job Duration", "Task Duration (per Cycle Time)", "Repetition",
                         "Strength Data:", "Hand Span", "Grip Type", "Wrist Position",
                         "Radial/Ulnar Deviation Angle:", "Flexion/Extension Angle:"}));
}

struct LabelRow {
  const char* box;
  const char* label;
  const char* frame;  ///< empty: none
};

TEST_F(CtdCaptions, EveryBoxHasItsLabelInItsFrame) {
  Load();
  const std::vector<LabelRow> rows{
      {"Text1(8)", "Analyst", ""},
      {"Text1(7)", "Job Name", ""},
      {"Text1(4)", "Workstation ID", ""},
      {"Text2(0)", "Hours Worked per Shift:", "Job Duration"},
      {"Text2(1)", "Job Cycle Time (min):", "Job Duration"},
      {"Text2(2)", "No. Of Cycles:", "Job Duration"},
      {"Text1(2)", "Work Time (min):", "Task Duration (per Cycle Time)"},
      {"Text1(3)", "Rest Time (min):", "Task Duration (per Cycle Time)"},
      {"Text1(5)", "No. Of Rep.", "Repetition"},
      {"Text5", "MVC % Required:", "Strength Data:"},
  };
  for (const LabelRow& row : rows) {
    const auto& box = Control<QLineEdit>(row.box);
    QStringList labels;
    for (const auto* label : form().findChildren<QLabel*>()) {
      if (label->buddy() == &box) labels.append(label->text());
    }
    EXPECT_EQ(labels, QStringList{row.label}) << row.box;
    EXPECT_EQ(FrameOf(box), row.frame) << row.box;
  }
  EXPECT_EQ(FrameOf(Control("Text1(6)")), "Hand Span");
  EXPECT_EQ(Control("Text1(6)").accessibleName(), "Hand Span");
}

TEST_F(CtdCaptions, ComputedBoxesTakeNoTyping) {
  AddTaskRecord();
  Load();
  for (const auto* box : form().findChildren<QLineEdit*>()) {
    const bool isComputed = box->objectName() == "Text1(3)" || box->objectName() == "Text2(2)";
    EXPECT_EQ(box->isReadOnly(), isComputed) << box->objectName().toStdString();
  }
}

TEST_F(CtdCaptions, BoxesAreThese) {
  Load();
  QStringList names;
  for (const auto* box : form().findChildren<QLineEdit*>()) names.append(box->objectName());
  names.sort();
  EXPECT_EQ(names,
            (QStringList{"Text1(2)", "Text1(3)", "Text1(4)", "Text1(5)", "Text1(6)", "Text1(7)",
                         "Text1(8)", "Text2(0)", "Text2(1)", "Text2(2)", "Text3(0)", "Text3(1)",
                         "Text3(2)", "Text3(3)", "Text3(4)", "Text3(5)", "Text3(6)", "Text4(0)",
                         "Text4(1)", "Text4(2)", "Text4(3)", "Text4(4)", "Text4(5)", "Text4(6)",
                         "Text4(7)", "Text5"}));
}

TEST_F(CtdCaptions, HandSpanIsInInchesOrCentimetres) {
  for (const auto& [units, label] : {std::pair{1, "in"}, {0, "cm"}}) {
    Module1.Units = static_cast<Integer>(units);
    Load();
    EXPECT_EQ(Control<QLabel>("Label2(1)").text(), label);
    EXPECT_EQ(FrameOf(Control("Label2(1)")), "Hand Span");
  }
}

TEST_F(CtdCaptions, HandOptionsAndTaskButtons) {
  Load();
  EXPECT_EQ(Control<QRadioButton>("SSOption1(0)").text(), "Right Side");
  EXPECT_EQ(Control<QRadioButton>("SSOption1(1)").text(), "Left Side");
  EXPECT_EQ(FrameOf(Control("SSOption1(1)")), "Hand");
  QStringList buttons;
  for (int i = 0; i < 3; ++i) {
    const auto& button = Control<QAbstractButton>(ElementName("SSCommand1", i));
    buttons.append(button.text() + ": " + button.toolTip());
    EXPECT_EQ(FrameOf(button), "Task Information");
  }
  EXPECT_EQ(buttons, (QStringList{"&Add: Add Task", "&Delete: Delete Task", "&Edit: Edit Task"}));
  EXPECT_EQ(FrameOf(Control("TreeView1")), "Task Information");
}

TEST_F(CtdCaptions, HandAndWristRibbonsStandInTheirFrameWithTheirIndexAndTip) {
  AddTaskRecord();
  Load();
  for (const CtdArrayRow& row : CtdHandArrays()) {
    SCOPED_TRACE(row.array);
    int left = -1;
    for (const auto& [index, caption] : row.ribbons) {
      const auto& ribbon = Control<RibbonButton>(ElementName(row.array, index));
      EXPECT_EQ(ribbon.text(), caption) << index;
      EXPECT_EQ(ribbon.toolTip(), caption) << index;
      EXPECT_EQ(FrameOf(ribbon), row.frame) << index;
      EXPECT_GT(ribbon.x(), left) << index;
      left = ribbon.x();
    }
    QStringList names;
    for (const auto* ribbon : form().findChildren<RibbonButton*>()) {
      if (ribbon->objectName().startsWith(QString(row.array) + "(")) {
        names.append(ribbon->objectName());
      }
    }
    EXPECT_EQ(names.size(), static_cast<qsizetype>(row.ribbons.size()));
  }
}

TEST_F(CtdLoad, InputFramesAreEnabledWhileATaskExists) {
  Load();
  EXPECT_EQ(EnabledFrames(form()), kAllDisabled) << "no task";
  AddTaskRecord();
  AddTaskRecord();
  Load();
  EXPECT_EQ(EnabledFrames(form()), kAllEnabled) << "two tasks";
  Module1.TaskActive.at(1) = Integer{0};
  Load();
  EXPECT_EQ(EnabledFrames(form()), kAllEnabled) << "the first one deleted";
  Module1.TaskActive.at(2) = Integer{0};
  Load();
  EXPECT_EQ(EnabledFrames(form()), kAllDisabled) << "both deleted";
}

TEST_F(CtdLoad, PlainJobStaysClean) {
  Load();
  EXPECT_EQ(Module1.JobDirty, kFalse) << "without a task";
  AddTaskRecord();
  AddTaskRecord();
  JobState expected = Module1;
  expected.CurrentTask = Integer{2};
  Load();
  EXPECT_TRUE(Module1 == expected) << "with two tasks";
}

TEST_F(CtdLoad, LastActiveTaskIsTheCurrentOne) {
  for (int i = 0; i < 4; ++i) AddTaskRecord();
  Module1.TaskNames.at(3) = "F\xC3\xBCgen";
  Module1.TaskActive.at(2) = Integer{0};
  Module1.TaskActive.at(4) = Integer{0};
  Module1.CtdWorkTime.at(3) = 0.25;
  Module1.CtdRestTime.at(3) = 1.5;
  Module1.CtdRepetitions.at(3) = 12;
  Module1.CtdHandSpan.at(3) = "2.5 in";
  Module1.CtdForceMvc.at(3) = 1E-05;
  Load();
  EXPECT_EQ(Nodes(), (QStringList{"Task 1", QString::fromUtf8("F\xC3\xBCgen")}));
  EXPECT_EQ(SelectedNode(), QString::fromUtf8("F\xC3\xBCgen"));
  EXPECT_EQ(CurrentTask(), 3);
  EXPECT_EQ(TextOf("Text1(2)"), "0.25");
  EXPECT_EQ(TextOf("Text1(3)"), "1.5");
  EXPECT_EQ(TextOf("Text1(5)"), "12");
  EXPECT_EQ(TextOf("Text1(6)"), "2.5 in");
  EXPECT_EQ(TextOf("Text5"), "1E-05");
}

TEST_F(CtdLoad, NodesHaveTheTaskNumberAsKeyAndThePictureOfATask) {
  for (int i = 0; i < 3; ++i) AddTaskRecord();
  Module1.TaskActive.at(2) = Integer{0};
  Load();
  auto& tree = Control<TaskTree>("TreeView1");
  ASSERT_EQ(tree.topLevelItemCount(), 2);
  const QImage picture = QIcon(":/assets/ctd/task.svg").pixmap(16, 16).toImage();
  const QStringList keys{"1_", "3_"};
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(tree.topLevelItem(i)->data(0, Qt::UserRole).toString(), keys[i]);
    EXPECT_EQ(tree.topLevelItem(i)->childCount(), 0);
    EXPECT_EQ(tree.topLevelItem(i)->icon(0).pixmap(16, 16).toImage(), picture);
  }
}

TEST_F(CtdLoad, BoxesOfTheJobShowTheirFields) {
  AddTaskRecord();
  Module1.JobDurationPerDay = 7.5;
  Module1.JobCycleTime = 0.25;
  Module1.CtdCyclesPerShift = 77;
  Module1.JobAnalyst = "Ann";
  Module1.JobName = Integer{7};
  Module1.JobWorkstationId = "W-17";
  Load();
  EXPECT_EQ(TextOf("Text2(0)"), "7.5");
  EXPECT_EQ(TextOf("Text2(1)"), "0.25");
  EXPECT_EQ(TextOf("Text1(8)"), "Ann");
  EXPECT_EQ(TextOf("Text1(7)"), "7");
  EXPECT_EQ(TextOf("Text1(4)"), "W-17");
  // Shown only once a key was released in one of the first two.
  EXPECT_EQ(TextOf("Text2(2)"), "");
}

TEST_F(CtdLoad, NothingOfTheLastJobStays) {
  AddTaskRecord();
  Load();
  Click("SSRibbon1(4)");
  Type("Text1(2)", "0.25");
  Type("Text5", "20");
  Type("Text2(1)", "2");
  OpenTab(2);
  EXPECT_NE(Pane(), "");
  EXPECT_TRUE(Control<QMenu>("mnuEdit").isEnabled());
  JobReset();
  Module1.JobDirty = kFalse;
  Load();
  EXPECT_EQ(Control<QTabWidget>("SSTab1").currentIndex(), 0);
  EXPECT_TRUE(Control("SSTab2").isVisible());
  EXPECT_FALSE(Control<QMenu>("mnuEdit").isEnabled());
  EXPECT_EQ(Pane(), "");
  EXPECT_EQ(Nodes(), QStringList());
  EXPECT_EQ(Down("SSRibbon1"), "0");
  for (const char* box : {"Text1(2)", "Text1(3)", "Text1(5)", "Text1(6)", "Text5", "Text2(2)"}) {
    EXPECT_EQ(TextOf(box), "") << box;
  }
  EXPECT_EQ(TextOf("Text2(1)"), "0");
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

struct SavedRow {
  const char* label;
  void (*save)();
  const char* array;
  const char* down;
};

TEST_F(CtdLoad, SavedStateThatDiffersFromTheDesignMarksTheJob) {
  const std::vector<SavedRow> rows{
      {"grip", [] { Module1.CtdGripType.at(1) = Integer{2}; }, "SSRibbon1", "2"},
      {"grip as a text", [] { Module1.CtdGripType.at(1) = "4"; }, "SSRibbon1", "4"},
      {"wrist", [] { Module1.CtdWristPosition.at(1) = 3; }, "SSRibbon2", "3"},
      {"radial/ulnar", [] { Module1.CtdRadUlnDeviation.at(1) = 1; }, "SSRibbon4", "1"},
      {"flexion/extension", [] { Module1.CtdFlexExtDeviation.at(1) = Integer{8}; }, "SSRibbon5",
       "8"},
      {"left side", [] { Module1.Hand = 1; }, "SSRibbon1", "0"},
  };
  for (const SavedRow& row : rows) {
    Module1 = JobState{};
    AddTaskRecord();
    row.save();
    Load();
    EXPECT_EQ(Down(row.array), row.down) << row.label;
    EXPECT_EQ(Module1.JobDirty, kTrue) << row.label;
  }
}

TEST_F(CtdLoad, EveryTaskIsShownInTurnSoAnEarlierOneMarksTheJobToo) {
  AddTaskRecord();
  AddTaskRecord();
  Module1.CtdGripType.at(1) = Integer{3};
  Load();
  EXPECT_EQ(Down("SSRibbon1"), "0");
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(CtdLoad, SavedPosturesMarkNothingUntilTheyAreShown) {
  AddTaskRecord();
  Module1.CtdBackFlexion.at(1) = Integer{3};
  Load();
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

/// Two tasks whose first has codes and numbers of its own.
void FillFirstOfTwoTasks() {
  Module1 = JobState{};
  AddTaskRecord();
  AddTaskRecord();
  Module1.CtdGripType.at(1) = Integer{2};
  Module1.CtdWristPosition.at(1) = 1;
  Module1.CtdRadUlnDeviation.at(1) = 4;
  Module1.CtdFlexExtDeviation.at(1) = Integer{7};
  Module1.CtdWorkTime.at(1) = 0.25;
  Module1.CtdForceMvc.at(1) = 20;
}

struct NoRibbonRow {
  const char* label;
  void (*save)();
  const char* down;  ///< of the four groups
};

const std::vector<NoRibbonRow>& CodesWithoutARibbon() {
  static const std::vector<NoRibbonRow> rows{
      {"grip 1", [] { Module1.CtdGripType.at(2) = Integer{1}; }, "2 1 4 7"},
      {"grip beyond 16 bits", [] { Module1.CtdGripType.at(2) = 1E+09; }, "2 1 4 7"},
      {"wrist 2", [] { Module1.CtdWristPosition.at(2) = 2; }, "0 1 4 7"},
      {"radial/ulnar 5", [] { Module1.CtdRadUlnDeviation.at(2) = 5; }, "0 0 4 7"},
      {"flexion/extension 1", [] { Module1.CtdFlexExtDeviation.at(2) = Integer{1}; }, "0 0 0 7"},
  };
  return rows;
}

TEST_F(CtdLoad, CodeWithoutARibbonEndsTheShowingQuietlyAndTheRestStaysAsTheTaskBeforeHadIt) {
  for (const NoRibbonRow& row : CodesWithoutARibbon()) {
    SCOPED_TRACE(row.label);
    FillFirstOfTwoTasks();
    row.save();
    Load();
    const auto down = [this] {
      return Down("SSRibbon1") + " " + Down("SSRibbon2") + " " + Down("SSRibbon4") + " " +
             Down("SSRibbon5");
    };
    EXPECT_EQ(down(), row.down);
    EXPECT_EQ(CurrentTask(), 2);
    EXPECT_EQ(SelectedNode(), "Task 2");
    EXPECT_EQ(TextOf("Text1(2)"), "0.25");
    EXPECT_EQ(TextOf("Text5"), "20");
    SelectNode(0);
    EXPECT_EQ(down(), "2 1 4 7");
    SelectNode(1);
    EXPECT_EQ(down(), row.down) << "selected by a click";
    EXPECT_EQ(CurrentTask(), 2);
    EXPECT_EQ(TextOf("Text1(2)"), "0.25");
    EXPECT_TRUE(platform.messages().empty());
  }
}

TEST_F(CtdLoad, HandThatIsNoneEndsTheProgram) {
  const auto window = IdleMainWindow();
  Module1.Hand = 2;
  const std::string copy = EndedOn("Subscript out of range", [&window] {
    QTest::mouseClick(&Find<QWidget>(*window, "SSCommand2(1)"), Qt::LeftButton);
  });
  EXPECT_EQ(copy, JobFileBytes(Module1));
}

}  // namespace
}  // namespace halvane
