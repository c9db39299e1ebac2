// What stands on the OCRA form, and what its load makes of a job.
#include "tools/ocra/frm_ocra.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include "core/job_file.h"
#include "core/task_list.h"
#include "shell/frm_hand_main.h"
#include "tests/forms/ocra_form_support.h"
#include "widgets/pair_panel.h"
#include "widgets/rich_text_box.h"
#include "widgets/tick_labels.h"

namespace halvane {
namespace {

class OcraScreen : public OcraFormTest {
 protected:
  /// The label that names a control.
  [[nodiscard]] QString LabelOf(const QWidget& control) const {
    QStringList texts;
    for (const auto* label : form->findChildren<QLabel*>()) {
      if (label->buddy() == &control) texts.append(label->text());
    }
    return texts.join(" and ");
  }
};

/// The nearest frame around a control.
const QGroupBox* FrameAround(const QWidget& control) {
  const QWidget* around = control.parentWidget();
  while (around != nullptr && qobject_cast<const QGroupBox*>(around) == nullptr) {
    around = around->parentWidget();
  }
  return qobject_cast<const QGroupBox*>(around);
}

TEST_F(OcraScreen, FormTabsAndIdentificationHaveTheirCaptions) {
  Show();
  EXPECT_EQ(form->objectName(), "frmOCRA");
  EXPECT_EQ(form->windowTitle(), "Occupational Repetitive Actions Index");
  const auto& tabs = The<QTabWidget>("SSTab1");
  ASSERT_EQ(tabs.count(), 3);
  EXPECT_EQ(tabs.tabText(0), "Repetitive Task Factors");
  EXPECT_EQ(tabs.tabText(1), "Arm Posture Factors");
  EXPECT_EQ(tabs.tabText(2), "Estimated Risk");
  EXPECT_EQ(tabs.widget(2), &The<RichTextBox>("RichTextBox1"));
  EXPECT_EQ(LabelOf(Box("Text3(0)")), "Analyst");
  EXPECT_EQ(LabelOf(Box("Text3(1)")), "Job Name");
  EXPECT_EQ(LabelOf(Box("Text3(2)")), "Workstation ID");
}

struct FrameRow {
  const char* frame;
  const char* caption;
  const char* around;  ///< the frame that it stands in; empty: none
  QStringList holds;   ///< the controls in it
};

TEST_F(OcraScreen, FramesHaveTheirCaptionsAndControls) {
  Show();
  const std::vector<FrameRow> rows{
      {"SSPanel1", "Job Information", "", {}},
      {"SSFrame1(5)", "Hand", "SSPanel1", {"SSOption1(0)", "SSOption1(1)"}},
      {"SSFrame1(3)", "Job Cycle Time", "SSPanel1", {"Text2(1)"}},
      {"SSFrame1(0)", "Number Of Hours Without Adequate Recovery", "SSPanel1", {"Slider2"}},
      {"SSFrame2(0)",
       "Task Information",
       "",
       {"TreeView1", "SSCommand1(0)", "SSCommand1(1)", "SSCommand1(2)"}},
      // The blank behind the caption is wanted.
      {"SSFrame1(2)", "Task Duration ", "", {"Text1(2)"}},
      {"SSFrame1(1)", "Action Frequency", "", {"Text1(5)"}},
      {"SSFrame1(4)", "Rate Each Action According To The Following Force Level", "", {"Slider1"}},
      {"SSFrame3(2)", "Elbow Posture", "", {"Combo1(6)", "Combo1(7)", "Combo1(8)", "Combo1(9)"}},
      {"SSFrame3(1)",
       "Wrist Posture",
       "",
       {"Combo1(10)", "Combo1(11)", "Combo1(12)", "Combo1(13)"}},
      {"SSFrame3(0)",
       "Type Of Grip + Finger Posture",
       "",
       {"Combo1(0)", "Combo1(1)", "Combo1(2)", "Combo1(3)", "Combo1(4)", "Combo1(5)"}},
  };
  for (const FrameRow& row : rows) {
    SCOPED_TRACE(row.frame);
    const auto& frame = The<QGroupBox>(row.frame);
    EXPECT_EQ(frame.title(), row.caption);
    const QGroupBox* around = FrameAround(frame);
    EXPECT_EQ(around == nullptr ? "" : around->objectName(), row.around);
    for (const QString& name : row.holds) EXPECT_EQ(FrameAround(The<QWidget>(name)), &frame);
  }
}

TEST_F(OcraScreen, BoxesHaveTheirUnitsBehindThem) {
  Show();
  EXPECT_EQ(LabelsIn("SSFrame1(3)"), QStringList{"min"});
  EXPECT_EQ(LabelsIn("SSFrame1(2)"), QStringList{"total minutes per shift"});
  EXPECT_EQ(LabelsIn("SSFrame1(1)"), QStringList{"no. of action per min"});
}

TEST_F(OcraScreen, OptionsAndButtonsHaveTheirCaptions) {
  Show();
  EXPECT_EQ(The<QRadioButton>("SSOption1(0)").text(), "Right Side");
  EXPECT_EQ(The<QRadioButton>("SSOption1(1)").text(), "Left Side");
  const QStringList captions{"&Add Task", "&Delete Task", "&Edit Task"};
  for (int index = 0; index < 3; ++index) {
    const auto& button = The<QPushButton>(QString("SSCommand1(%1)").arg(index));
    EXPECT_EQ(button.text(), captions[index]);
    EXPECT_EQ(button.toolTip(), "");
  }
}

TEST_F(OcraScreen, SlidersHaveTheirRangesAndSteps) {
  Show();
  for (const auto& [name, page] : {std::pair{"Slider1", 2}, {"Slider2", 5}}) {
    const QSlider& slider = Slider(name);
    EXPECT_EQ(slider.minimum(), 0) << name;
    EXPECT_EQ(slider.maximum(), 10) << name;
    EXPECT_EQ(slider.singleStep(), 1) << name;
    EXPECT_EQ(slider.pageStep(), page) << name;
  }
}

TEST_F(OcraScreen, SlidersHaveTheirLabelsAtTheMarks) {
  Show();
  const auto& force = *The<QGroupBox>("SSFrame1(4)").findChild<TickLabels*>();
  EXPECT_EQ(force.numbers(), (QStringList{"0", "0.5", "1.0", "1.5", "2.0", "2.5", "3.0", "3.5",
                                          "4.0", "4.5", "5+"}));
  EXPECT_EQ(force.words(), (QStringList{"Nothing At All", "Very Very Weak (Just Noticeable)",
                                        "Very Weak", "", "Weak (Light)", "", "Moderate", "",
                                        "Somewhat Strong", "", "Strong (Heavy)"}));
  const auto& hours = *The<QGroupBox>("SSFrame1(0)").findChild<TickLabels*>();
  EXPECT_EQ(hours.numbers(), (QStringList{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(hours.words(), QStringList());
}

TEST_F(OcraScreen, ListsHaveTheirCaptionsAndTheFourAnswers) {
  Show();
  const QStringList captions{"Tight Grip (1.5 cm or 3/5 in)",
                             "Pinch Grip",
                             "Palmar Grip",
                             "Hook Grip",
                             "Keying",
                             "Wide Grip",
                             "Supination (>60 deg)",
                             "Pronation (>60 deg)",
                             "Flexion (>60 deg)",
                             "Extension (>60 deg)",
                             "Ulnar Deviation (>15 deg)",
                             "Radial Deviation (>15 deg)",
                             "Flexion (>45 deg)",
                             "Extension (>45 deg)"};
  for (int list = 0; list < 14; ++list) {
    EXPECT_EQ(LabelOf(Combo(list)), captions[list]);
    QStringList answers;
    for (int i = 0; i < Combo(list).count(); ++i) answers.append(Combo(list).itemText(i));
    EXPECT_EQ(answers, (QStringList{"1/3 of cycle/task time", "2/3 of cycle/task time",
                                    "3/3 of cycle/task time", "Not Applicable"}))
        << list;
  }
  EXPECT_EQ(form->findChildren<QComboBox*>().size(), 14);
}

TEST_F(OcraScreen, ListsOfAPairShareAPanel) {
  Show();
  The<QTabWidget>("SSTab1").setCurrentIndex(1);
  QCoreApplication::processEvents();
  const auto place = [this](const QWidget& widget) {
    return QRect(widget.mapTo(form.get(), QPoint()), widget.size());
  };
  for (int list = 0; list < 14; ++list) {
    QStringList others;
    for (const auto* panel : form->findChildren<PairPanel*>()) {
      if (!place(*panel).contains(place(Combo(list)))) continue;
      for (const auto* combo : form->findChildren<QComboBox*>()) {
        if (combo == &Combo(list) || !place(*panel).intersects(place(*combo))) continue;
        others.append(combo->objectName());
      }
    }
    const int pair = list % 2 == 0 ? list + 1 : list - 1;
    EXPECT_EQ(others, list < 6 ? QStringList() : QStringList{QString("Combo1(%1)").arg(pair)})
        << list;
  }
}

TEST_F(OcraScreen, ListsAndTickBoxesOfAllFramesStandLevel) {
  Show();
  The<QTabWidget>("SSTab1").setCurrentIndex(1);
  const auto middle = [this](const QWidget& widget) {
    return widget.mapTo(form.get(), QPoint(0, widget.height() / 2)).y();
  };
  for (const QSize size : {QSize(960, 620), QSize(1120, 700), QSize(1900, 1040)}) {
    form->resize(size);
    QCoreApplication::processEvents();
    for (int row = 0; row < 6; ++row) {
      const int grip = middle(Combo(row));
      if (row > 0) {
        EXPECT_GT(grip, middle(Combo(row - 1)) + Combo(row).height());
      }
      if (row > 3) continue;
      EXPECT_NEAR(middle(Combo(6 + row)), grip, 1) << size.width() << " " << row;
      EXPECT_NEAR(middle(Combo(10 + row)), grip, 1) << size.width() << " " << row;
    }
    // The first box of each frame.
    const int tick = middle(The<QCheckBox>("SSCheck1(2)"));
    EXPECT_NEAR(middle(The<QCheckBox>("SSCheck1(0)")), tick, 1) << size.width();
    EXPECT_NEAR(middle(The<QCheckBox>("SSCheck1(4)")), tick, 1) << size.width();
  }
}

TEST_F(OcraScreen, ForceSliderRunsAcrossThePage) {
  Show();
  for (const QSize size : {QSize(960, 620), QSize(1120, 700), QSize(1900, 1040)}) {
    form->resize(size);
    QCoreApplication::processEvents();
    EXPECT_GT(Slider("Slider1").width(), size.width() * 4 / 5);
    const auto& scale = *The<QGroupBox>("SSFrame1(4)").findChild<TickLabels*>();
    EXPECT_GE(scale.height(), scale.heightForWidth(scale.width()));
  }
}

TEST_F(OcraScreen, RowsOfTheFirstTabStandOnOneLine) {
  Show();
  const auto middle = [this](const QWidget& widget) {
    return widget.mapTo(form.get(), QPoint(0, widget.height() / 2)).y();
  };
  EXPECT_NEAR(middle(The<QRadioButton>("SSOption1(0)")), middle(The<QLineEdit>("Text2(1)")), 1);
  EXPECT_NEAR(middle(The<QLabel>("Label1(5)")), middle(The<QLineEdit>("Text2(1)")), 1);
  EXPECT_NEAR(middle(The<QLabel>("Label1(2)")), middle(The<QLineEdit>("Text1(2)")), 1);
  EXPECT_NEAR(middle(The<QLabel>("Label1(11)")), middle(The<QLineEdit>("Text3(0)")), 1);
}

struct TickRow {
  const char* region;
  const char* caption;
};

// "cyle" is how the captions spell it.
TEST_F(OcraScreen, TickBoxesStandUnderLackOfVariation) {
  Show();
  const std::vector<TickRow> rows{
      {"SSFrame3(1)",
       "Performs work actions of the same type involving the wrist for at least 50% of the cyle "
       "time"},
      {"SSFrame3(1)",
       "Keep the wrist flex/extend (>45 deg) or deviated laterally for at least 50% of cyle/task "
       "time"},
      {"SSFrame3(0)",
       "Performs work actions involving the same fingers for at least 50% of the cyle time"},
      {"SSFrame3(0)",
       "Hold an object in a pinch, palmar, or hook grip for at least 50% of the cyle time"},
      {"SSFrame3(2)",
       "Performs work gestures of the same type involving the elbow for at least 50% of the cyle"},
  };
  int index = 0;
  for (const TickRow& row : rows) {
    const auto& box = The<QCheckBox>(QString("SSCheck1(%1)").arg(index++));
    EXPECT_EQ(box.accessibleName(), row.caption);
    const QGroupBox* frame = FrameAround(box);
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->title(), "Lack of variation:");
    QStringList captions;
    for (const auto* label : frame->findChildren<QLabel*>()) captions.append(label->text());
    EXPECT_TRUE(captions.contains(row.caption)) << row.caption;
    const QGroupBox* region = FrameAround(*frame);
    ASSERT_NE(region, nullptr);
    EXPECT_EQ(region->objectName(), row.region) << row.caption;
  }
  EXPECT_EQ(form->findChildren<QCheckBox*>().size(), 5);
}

class OcraLoad : public OcraFormTest {
 protected:
  [[nodiscard]] std::vector<int> ShownAnswers() const {
    std::vector<int> answers;
    answers.reserve(14);
    for (int list = 0; list < 14; ++list) answers.push_back(Combo(list).currentIndex());
    return answers;
  }
  [[nodiscard]] std::vector<bool> ShownTicks() const {
    std::vector<bool> ticks;
    ticks.reserve(5);
    for (int i = 0; i < 5; ++i) {
      ticks.push_back(The<QCheckBox>(QString("SSCheck1(%1)").arg(i)).isChecked());
    }
    return ticks;
  }
};

TEST_F(OcraLoad, NewJobShowsItsDefaultsAndStaysClean) {
  const JobState before = Module1;
  Show();
  EXPECT_TRUE(Module1 == before);
  EXPECT_EQ(The<QTabWidget>("SSTab1").currentIndex(), 0);
  EXPECT_TRUE(The<QTabWidget>("SSTab1").isTabEnabled(2));
  EXPECT_FALSE(The<QMenu>("mnuEdit").isEnabled());
  EXPECT_EQ(ShownFrames(), (std::vector{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(Nodes(), QStringList());
  EXPECT_TRUE(The<QRadioButton>("SSOption1(0)").isChecked());
  EXPECT_EQ(Box("Text2(1)").text(), "0");
  EXPECT_EQ(Slider("Slider2").value(), 0);
  EXPECT_EQ(Slider("Slider1").value(), 0);
  EXPECT_EQ(Slider("Slider1").toolTip(), " ");
  EXPECT_EQ(ShownAnswers(), std::vector<int>(14, 3));
  EXPECT_EQ(ShownTicks(), std::vector<bool>(5, false));
  EXPECT_EQ(The<RichTextBox>("RichTextBox1").toPlainText(), "");
}

TEST_F(OcraLoad, SavedJobShowsItsValuesAndStaysClean) {
  Module1.JobAnalyst = "Ann";
  Module1.JobName = Integer{17};
  Module1.JobWorkstationId = "W\xC3\xB6rk 7";
  Module1.JobCycleTime = 1.25;
  Module1.OcraRecoveryHours = "7";
  // Both lists of some pairs are answered, as a file may have them.
  for (int list = 0; list < 14; ++list) {
    Module1.OcraComboChoice.at(list) = static_cast<Integer>(list % 4);
  }
  AddTaskOf(480, 30, 2.5);
  Module1.TaskNames.at(1) = "Packing";
  Module1.OcraActionFrequency.at(1) = "12.5";
  JobState expected = Module1;
  expected.CurrentTask = Integer{1};
  Show();
  EXPECT_TRUE(Module1 == expected);
  EXPECT_EQ(Box("Text3(0)").text(), "Ann");
  EXPECT_EQ(Box("Text3(1)").text(), "17");
  EXPECT_EQ(Box("Text3(2)").text(), QString::fromUtf8("W\xC3\xB6rk 7"));
  EXPECT_EQ(Box("Text2(1)").text(), "1.25");
  EXPECT_EQ(Slider("Slider2").value(), 7);
  EXPECT_EQ(LabelsIn("SSFrame1(0)"), QStringList{"7"});
  EXPECT_EQ(ShownAnswers(), (std::vector{0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3, 0, 1}));
  EXPECT_EQ(Nodes(), QStringList{"[Packing]"});
  EXPECT_EQ(Box("Text1(2)").text(), "480");
  EXPECT_EQ(Box("Text1(5)").text(), "12.5");
  EXPECT_EQ(Slider("Slider1").value(), 5);
  EXPECT_EQ(LabelsIn("SSFrame1(4)"), QStringList{"2.5"});
  EXPECT_EQ(Slider("Slider1").toolTip(), " ");
}

TEST_F(OcraLoad, FirstTaskOfTheTreeIsCurrent) {
  for (const double minutes : {10.0, 20.0, 30.0}) AddTaskOf(minutes, 1, 0);
  Show();
  EXPECT_EQ(Nodes(), (QStringList{"[Task 1]", "Task 2", "Task 3"}));
  EXPECT_EQ(CurrentTask(), 1);
  EXPECT_EQ(Box("Text1(2)").text(), "10");
}

TEST_F(OcraLoad, FirstNodeIsCurrentWhereTaskOneWasDeleted) {
  for (const double minutes : {10.0, 20.0, 30.0}) AddTaskOf(minutes, 1, 0);
  Module1.TaskActive.at(1) = Integer{0};
  Show();
  EXPECT_EQ(Nodes(), (QStringList{"[Task 2]", "Task 3"}));
  EXPECT_EQ(CurrentTask(), 2);
  EXPECT_EQ(Box("Text1(2)").text(), "20");
}

TEST_F(OcraLoad, JobWhoseTasksAreAllDeletedHidesTheTaskFramesAndCanReport) {
  AddTaskOf(10, 1, 0);
  AddTaskOf(20, 1, 0);
  Module1.TaskActive.at(1) = Integer{0};
  Module1.TaskActive.at(2) = Integer{0};
  Show();
  EXPECT_EQ(Nodes(), QStringList());
  EXPECT_EQ(ShownFrames(), (std::vector{0, 3, 5}));
  EXPECT_TRUE(The<QTabWidget>("SSTab1").isTabEnabled(2));
}

TEST_F(OcraLoad, LeftHandMarksTheJob) {
  Module1.Hand = 1;
  Show();
  EXPECT_TRUE(The<QRadioButton>("SSOption1(1)").isChecked());
  EXPECT_FALSE(The<QRadioButton>("SSOption1(0)").isChecked());
  EXPECT_EQ(Module1.Hand, 1);
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(OcraLoad, FieldsOfFourAreTickedAndMarkTheJob) {
  Module1.OcraWristActions = 4.0;
  Module1.OcraWristHold = 4;
  Module1.OcraSameFingers = "4";
  Module1.OcraHoldObject = 4;
  Module1.OcraElbowGesture = 4;
  Show();
  EXPECT_EQ(ShownTicks(), std::vector<bool>(5, true));
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(OcraLoad, OtherNumbersAreNotTickedAndStay) {
  Module1.OcraWristActions = Integer{1};
  Module1.OcraWristHold = -4;
  Module1.OcraSameFingers = 4.5;
  Module1.OcraHoldObject = 3;
  Module1.OcraElbowGesture = 5;
  const JobState before = Module1;
  Show();
  EXPECT_EQ(ShownTicks(), std::vector<bool>(5, false));
  EXPECT_TRUE(Module1 == before);
}

struct SliderRow {
  const char* label;
  TaggedField hours;
  double rating;
  int slider2;
  int slider1;
};

TEST_F(OcraLoad, SlidersStandAtTheNearestEndAndTheFieldsKeepTheirValues) {
  const std::vector<SliderRow> rows{
      {"beyond the end", Integer{12}, 7, 10, 10},
      {"before the start", -1.0, -0.5, 0, 0},
      {"no number, and between two marks", "none", 1.2, 0, 2},
  };
  for (const SliderRow& row : rows) {
    Module1 = JobState{};
    AddTaskOf(10, 1, row.rating);
    Module1.OcraRecoveryHours = row.hours;
    JobState expected = Module1;
    expected.CurrentTask = Integer{1};
    Show();
    EXPECT_EQ(Slider("Slider2").value(), row.slider2) << row.label;
    EXPECT_EQ(Slider("Slider1").value(), row.slider1) << row.label;
    EXPECT_TRUE(Module1 == expected) << row.label;
  }
}

TEST_F(OcraLoad, NextJobOfTheSameFormShowsNothingOfTheLast) {
  Module1.Hand = 1;
  Module1.OcraHoldObject = 4;
  Module1.OcraRecoveryHours = Integer{3};
  Module1.OcraComboChoice.at(0) = 0;
  AddTaskOf(480, 30, 2);
  Show();
  QTest::keyClick(&Slider("Slider1"), Qt::Key_Right);
  ClickTab(2);
  Module1 = JobState{};
  form->load();
  EXPECT_EQ(The<QTabWidget>("SSTab1").currentIndex(), 0);
  EXPECT_EQ(Nodes(), QStringList());
  EXPECT_EQ(ShownFrames(), (std::vector{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(Box("Text1(2)").text(), "");
  EXPECT_EQ(Box("Text1(5)").text(), "");
  EXPECT_EQ(Slider("Slider1").value(), 0);
  EXPECT_EQ(LabelsIn("SSFrame1(4)"), QStringList{"0.0"});
  EXPECT_EQ(Slider("Slider1").toolTip(), " ");
  EXPECT_EQ(Slider("Slider2").value(), 0);
  EXPECT_EQ(ShownAnswers(), std::vector<int>(14, 3));
  EXPECT_EQ(ShownTicks(), std::vector<bool>(5, false));
  EXPECT_TRUE(The<QRadioButton>("SSOption1(0)").isChecked());
  EXPECT_FALSE(The<QMenu>("mnuEdit").isEnabled());
  EXPECT_EQ(The<RichTextBox>("RichTextBox1").toPlainText(), "");
  EXPECT_TRUE(Module1 == JobState{});
}

TEST_F(OcraLoad, TaskFramesComeBackWithAnotherJob) {
  AddTaskOf(10, 1, 0);
  Module1.TaskActive.at(1) = Integer{0};
  Show();
  Module1 = JobState{};
  form->load();
  EXPECT_EQ(ShownFrames(), (std::vector{0, 1, 2, 3, 4, 5}));
}

/// A saved value that names no control of the form.
struct BadValueRow {
  const char* label;
  std::function<void()> set;
};

TEST_F(OcraLoad, ValueThatNamesNoControlEndsTheProgramWithARescueCopy) {
  const std::vector<BadValueRow> rows{
      {"hand 2", [] { Module1.Hand = 2; }},
      {"hand -1", [] { Module1.Hand = -1; }},
      {"answer 4 of the first list", [] { Module1.OcraComboChoice.at(0) = 4; }},
      {"answer -1 of the last list", [] { Module1.OcraComboChoice.at(13) = -1; }},
  };
  int number = 0;
  std::vector<int> ends;
  for (const BadValueRow& row : rows) {
    SCOPED_TRACE(row.label);
    const auto window = IdleMainWindow();
    row.set();
    const std::string name = "job" + std::to_string(++number);
    Module1.JobFileName = folder.File(name + ".qjt");
    Module1.JobDirty = kTrue;
    const ModalSteps none;
    platform.WillAnswer(Answer::Ok);
    QTest::mouseClick(&Find<QWidget>(*window, "SSCommand2(0)"), Qt::LeftButton);
    const QString copy = QString::fromStdString(folder.File(name + ".rescue.qjt"));
    EXPECT_EQ(platform.messages().back(),
              (ShownMessage{"Halvane Tools",
                            "Subscript out of range.\n\nHalvane Tools has to end.\n\n"
                            "A copy of the job was saved as\n" +
                                copy,
                            {Answer::Ok}}));
    EXPECT_EQ(BytesOf(copy.toStdString()), JobFileBytes(Module1));
    ends.push_back(1);
    EXPECT_EQ(platform.ends(), ends);
  }
}

}  // namespace
}  // namespace halvane
