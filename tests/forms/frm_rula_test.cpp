#include <QTabWidget>
#include <QTest>

#include "core/job_file.h"
#include "tests/forms/posture_form_support.h"
#include "tests/tools/rula/rula_support.h"

namespace halvane {
namespace {

class RulaFormTest : public PostureFormTest {
 protected:
  RulaFormTest() : PostureFormTest(Tool::Rula) {}
};

class RulaForm : public RulaFormTest {};
class RulaFormLoad : public RulaFormTest {};
class RulaFormEvents : public RulaFormTest {};
class RulaFormJobs : public RulaFormTest {};

const QStringList kFresh{"SSOption1(0)", "SSOption3(0)", "SSOption4(0)",
                         "SSOption5(0)", "SSRibbon1(0)", "SSRibbon2(0)",
                         "SSRibbon3(0)", "SSRibbon4(0)", "SSRibbon5(0)"};

TEST_F(RulaForm, TitleAndTab) {
  Show();
  EXPECT_EQ(form->windowTitle(), "Repetitive Upper Limb Assessment");
  EXPECT_EQ(The<QTabWidget>("SSTab1").tabText(1), "RULA Score");
}

TEST_F(RulaForm, ControlsHaveTheirFramesCaptionsAndTips) {
  Show();
  // clang-format off
  EXPECT_EQ(ControlLines(), (QStringList{
      "Force or Load|SSOption3(0)|0 to <4 lbs intermittent load or force|",
      "Force or Load|SSOption3(1)|4 to 20 lbs intermittent load or force|",
      "Force or Load|SSOption3(2)|4 to 20 lbs static or repeated load or force|",
      "Force or Load|SSOption3(3)|+20 lb static or repeated loads|",
      "Hand|SSOption5(0)|Right Side|",
      "Hand|SSOption5(1)|Left Side|",
      "Leg|SSOption1(0)|Legs and feet are well-supported and in an evenly balance posture|",
      "Leg|SSOption1(1)|Legs and feet are not supported and in an uneven balance posture|",
      "Lower Arms|SSRibbon2(0)|0 to 90|Lower arms between 0 to 90 deg.",
      "Lower Arms|SSRibbon2(1)|> 90|Lower arms greater than 90 deg.",
      "Lower Arms|SSRibbon2(2)|Midline|Lower arm cross body midline",
      "Muscle Use|SSCheck4(0)|Mainly static, e.g. held for longer than 10 minutes|",
      "Muscle Use|SSCheck4(1)|Repeated more than 4 times/minute|",
      "Neck|SSCheck2(0)|Neck is twisting|",
      "Neck|SSCheck2(1)|Neck is side bending|",
      "Neck|SSRibbon4(0)|0 - 10|Neck between 0 and 10 deg. (Neutral)",
      "Neck|SSRibbon4(1)|Exten.|Neck extension",
      "Neck|SSRibbon4(2)|11 - 20|Neck between 11 and 20 deg. (Flexion)",
      "Neck|SSRibbon4(3)|> 20|Neck greater than 20 deg. (Flexion)",
      "Trunk|SSCheck3(0)|Twisting|",
      "Trunk|SSCheck3(1)|Side bend|",
      "Trunk|SSCheck3(2)|Not well support while seated|",
      "Trunk|SSRibbon5(0)|Neutral|Trunk neutral posture",
      "Trunk|SSRibbon5(1)|0 - 20|Trunk between 0 and 20 deg. (Flexion)",
      "Trunk|SSRibbon5(2)|21 - 60|Trunk between 21 and 60 deg. (Flexion)",
      "Trunk|SSRibbon5(3)|> 60|Trunk greater than 60 deg. (Flexion)",
      "Upper Arms|SSCheck1(0)|Shoulder is raised|",
      "Upper Arms|SSCheck1(1)|Upper arm abducted|",
      "Upper Arms|SSCheck1(2)|Arm is supported|",
      "Upper Arms|SSRibbon1(0)|-20 to 20|Upper arm between -20 and +20 deg.",
      "Upper Arms|SSRibbon1(1)|<-20        |Upper arm between lower than -20 deg. (Extension)",
      "Upper Arms|SSRibbon1(2)|21 to 45 |Upper arm between 21 and 45 deg. (Flexion)",
      "Upper Arms|SSRibbon1(3)|46 to 90 |Upper arm between 46 and 90 deg. (Flexion)",
      "Upper Arms|SSRibbon1(4)|>+90       |Upper arm greater than 90 deg. (Flexion)",
      "Wrist Twist|SSOption4(0)|In mid-range of wrist twisting range|",
      "Wrist Twist|SSOption4(1)|At/near end of wrist twisting range|",
      "Wrist|SSRibbon3(0)|Neutral|Wrist neutral posture",
      "Wrist|SSRibbon3(1)|0 to -20|Wrist between 0 to -20 deg. (Extension)",
      "Wrist|SSRibbon3(2)|<-20|Wrist less than -20 deg. (Extension)",
      "Wrist|SSRibbon3(3)|0 to 20|Wrist between 0 to 20 deg. (Flexion)",
      "Wrist|SSRibbon3(4)|> 20|Wrist greater than 20 deg. (Flexion)",
      "Wrist|SSRibbon3(5)|Side Bent|Ulnar/Radial deviation",
  }));
  // clang-format on
  EXPECT_EQ(FrameOfControl(*The("SSOption4(0)").parentWidget()), "Wrist");
}

TEST_F(RulaForm, ArmsStandLeftNeckTrunkAndLegsRight) {
  Show();
  EXPECT_EQ(FramesIn(Half::Left),
            (QStringList{"Upper Arms", "Lower Arms", "Wrist", "Wrist Twist"}));
  EXPECT_EQ(FramesIn(Half::Right),
            (QStringList{"Neck", "Trunk", "Leg", "Force or Load", "Muscle Use"}));
}

TEST_F(RulaFormLoad, FreshJobPressesTheFirstOfEachAndMarksTheJob) {
  Show();
  EXPECT_EQ(On(), kFresh);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(RulaFactors(),
            (std::vector<std::vector<int>>{
                {1, 0, 0, 0}, {1, 0}, {1, 0}, {1}, {1, 0, 0}, {1, 0, 0, 0}, {1}, {0}, {0}}));
}

/// A saved value of one element of the state, and what it sets.
struct SavedRow {
  int state;
  Integer value;
  const char* off;  ///< of the fresh job
  const char* on;
};

TEST_F(RulaFormLoad, EverySavedValueSetsItsControl) {
  const std::vector<SavedRow> rows{
      {0, 1, "SSRibbon1(0)", "SSRibbon1(1)"},
      {0, 4, "SSRibbon1(0)", "SSRibbon1(4)"},
      {1, 1, "", "SSCheck1(0)"},
      {2, 1, "", "SSCheck1(1)"},
      {3, 1, "", "SSCheck1(2)"},
      {4, 1, "SSRibbon2(0)", "SSRibbon2(1)"},
      {5, 1, "", "SSRibbon2(2)"},
      {6, 1, "SSRibbon3(0)", "SSRibbon3(1)"},
      {6, 4, "SSRibbon3(0)", "SSRibbon3(4)"},
      {7, 1, "", "SSRibbon3(5)"},
      {8, 1, "SSOption4(0)", "SSOption4(1)"},
      {8, -7, "SSOption4(0)", "SSOption4(1)"},
      {9, 1, "SSRibbon4(0)", "SSRibbon4(1)"},
      {9, 3, "SSRibbon4(0)", "SSRibbon4(3)"},
      {10, 1, "", "SSCheck2(0)"},
      {11, 1, "", "SSCheck2(1)"},
      {12, 2, "SSRibbon5(0)", "SSRibbon5(2)"},
      {12, 3, "SSRibbon5(0)", "SSRibbon5(3)"},
      {13, 1, "", "SSCheck3(0)"},
      {14, 1, "", "SSCheck3(1)"},
      {15, 1, "SSOption1(0)", "SSOption1(1)"},
      {15, 9, "SSOption1(0)", "SSOption1(1)"},
      {16, 1, "", "SSCheck4(0)"},
      {17, 3, "SSOption3(0)", "SSOption3(3)"},
      {18, 1, "", "SSCheck4(1)"},
      {19, 1, "", "SSCheck3(2)"},
      {1, 2, "", ""},
      {7, -1, "", ""},
      {19, 2, "", ""},
      // A force that is none of the four, and ribbons that stand by themselves.
      {17, 4, "SSOption3(0)", ""},
      {17, -1, "SSOption3(0)", ""},
      {4, 2, "SSRibbon2(0)", "SSRibbon2(2)"},
      {6, 5, "SSRibbon3(0)", "SSRibbon3(5)"},
  };
  Show();
  for (const SavedRow& row : rows) {
    SCOPED_TRACE("state " + std::to_string(row.state) + " " + std::to_string(row.value));
    JobState job;
    job.RulaControlState.at(row.state) = row.value;
    Reload(job);
    EXPECT_EQ(On(), Instead(kFresh, row.off, row.on));
    // Nothing of that job is left on screen with the next.
    Reload(JobState{});
    EXPECT_EQ(On(), kFresh);
  }
}

TEST_F(RulaFormLoad, EverythingSetComesBackWithTheLeftHand) {
  JobState job;
  job.Hand = 1;
  const std::array<Integer, 20> states{4, 1, 1, 1, 1, 1, 4, 1, 1, 3, 1, 1, 3, 1, 1, 1, 1, 3, 1, 1};
  for (int i = 0; i < 20; ++i) job.RulaControlState.at(i) = states.at(static_cast<std::size_t>(i));
  Show();
  Reload(job);
  EXPECT_EQ(On(), (QStringList{"SSCheck1(0)",  "SSCheck1(1)",  "SSCheck1(2)",  "SSCheck2(0)",
                               "SSCheck2(1)",  "SSCheck3(0)",  "SSCheck3(1)",  "SSCheck3(2)",
                               "SSCheck4(0)",  "SSCheck4(1)",  "SSOption1(1)", "SSOption3(3)",
                               "SSOption4(1)", "SSOption5(1)", "SSRibbon1(4)", "SSRibbon2(1)",
                               "SSRibbon2(2)", "SSRibbon3(4)", "SSRibbon3(5)", "SSRibbon4(3)",
                               "SSRibbon5(3)"}));
  EXPECT_EQ(Module1.RulaControlState, job.RulaControlState);
}

TEST_F(RulaFormLoad, ForceThatIsNoneOfTheFourKeepsItsFactor) {
  Show();
  Click("SSOption3(2)");
  JobState job = Module1;
  job.RulaControlState.at(17) = 4;
  Reload(job);
  EXPECT_EQ(On().filter("SSOption3"), QStringList());
  EXPECT_EQ(Module1.RulaForceFactor, 2);
}

TEST_F(RulaFormLoad, StopsAtTheStepOfAValueThatNamesNoControl) {
  Show();
  JobState job = Module1;
  for (const int state : {0, 9, 12}) job.RulaControlState.at(state) = 3;
  job.RulaControlState.at(9) = 4;
  EXPECT_EQ(FailureOf([&] { Reload(job); }), "SubscriptOutOfRange");
  // The arm stands before the neck, the trunk behind it.
  EXPECT_EQ(Module1.RulaUpperArmFactors.at(0), 3);
  EXPECT_EQ(Module1.RulaTrunkFactors.at(0), 1);
}

TEST_F(RulaFormLoad, ValueThatNamesNoControlEndsTheProgram) {
  const std::vector<std::pair<int, Integer>> rows{{0, 5},  {0, -1}, {4, 3},  {4, -1}, {6, 6},
                                                  {6, -1}, {9, 4},  {9, -1}, {12, 4}, {12, -1}};
  for (const auto& [state, value] : rows) {
    SCOPED_TRACE("state " + std::to_string(state) + " " + std::to_string(value));
    JobState job;
    job.RulaControlState.at(state) = value;
    ExpectLaunchEndsTheProgram(job);
  }
  for (const Integer hand : std::array<Integer, 2>{2, -1}) {
    SCOPED_TRACE("hand " + std::to_string(hand));
    JobState job;
    job.Hand = hand;
    ExpectLaunchEndsTheProgram(job);
  }
}

/// What a click on a control of the fresh form stores.
struct ClickRow {
  const char* control;
  const char* off;  ///< goes off by it
  int state;
  Integer value;
  int region;  ///< place in `RulaFactors`
  int element;
  int factor;
};

std::vector<ClickRow> Clicks() {
  // clang-format off
  return {
      {"SSRibbon1(1)", "SSRibbon1(0)",  0, 1, 0, 0,  2}, {"SSRibbon1(2)", "SSRibbon1(0)",  0, 2, 0, 0, 2},
      {"SSRibbon1(3)", "SSRibbon1(0)",  0, 3, 0, 0,  3}, {"SSRibbon1(4)", "SSRibbon1(0)",  0, 4, 0, 0, 4},
      {"SSCheck1(0)",  "",              1, 1, 0, 1,  1}, {"SSCheck1(1)",  "",              2, 1, 0, 2, 1},
      {"SSCheck1(2)",  "",              3, 1, 0, 3, -1},
      {"SSRibbon2(1)", "SSRibbon2(0)",  4, 1, 1, 0,  2}, {"SSRibbon2(2)", "",              5, 1, 1, 1, 1},
      {"SSRibbon3(1)", "SSRibbon3(0)",  6, 1, 2, 0,  2}, {"SSRibbon3(2)", "SSRibbon3(0)",  6, 2, 2, 0, 3},
      {"SSRibbon3(3)", "SSRibbon3(0)",  6, 3, 2, 0,  2}, {"SSRibbon3(4)", "SSRibbon3(0)",  6, 4, 2, 0, 3},
      {"SSRibbon3(5)", "",              7, 1, 2, 1,  1},
      {"SSOption4(1)", "SSOption4(0)",  8, 1, 3, 0,  2},
      {"SSRibbon4(1)", "SSRibbon4(0)",  9, 1, 4, 0,  4}, {"SSRibbon4(2)", "SSRibbon4(0)",  9, 2, 4, 0, 2},
      {"SSRibbon4(3)", "SSRibbon4(0)",  9, 3, 4, 0,  3},
      {"SSCheck2(0)",  "",             10, 1, 4, 1,  1}, {"SSCheck2(1)",  "",             11, 1, 4, 2, 1},
      {"SSRibbon5(1)", "SSRibbon5(0)", 12, 1, 5, 0,  2}, {"SSRibbon5(2)", "SSRibbon5(0)", 12, 2, 5, 0, 3},
      {"SSRibbon5(3)", "SSRibbon5(0)", 12, 3, 5, 0,  4},
      {"SSCheck3(0)",  "",             13, 1, 5, 1,  1}, {"SSCheck3(1)",  "",             14, 1, 5, 2, 1},
      {"SSCheck3(2)",  "",             19, 1, 5, 3,  1},
      {"SSOption1(1)", "SSOption1(0)", 15, 1, 6, 0,  2},
      {"SSCheck4(0)",  "",             16, 1, 7, 0,  1}, {"SSCheck4(1)",  "",             18, 1, 7, 0, 1},
      {"SSOption3(1)", "SSOption3(0)", 17, 1, 8, 0,  1}, {"SSOption3(2)", "SSOption3(0)", 17, 2, 8, 0, 2},
      {"SSOption3(3)", "SSOption3(0)", 17, 3, 8, 0,  3},
  };
  // clang-format on
}

TEST_F(RulaFormEvents, ClickStoresTheControlAndNothingElseAndASecondClickTakesItBack) {
  Show();
  for (const ClickRow& row : Clicks()) {
    SCOPED_TRACE(row.control);
    Reload(JobState{});
    const auto freshFactors = RulaFactors();
    auto factors = freshFactors;
    factors.at(static_cast<std::size_t>(row.region)).at(static_cast<std::size_t>(row.element)) =
        row.factor;
    JobState expected;
    expected.RulaControlState.at(row.state) = row.value;
    Module1.JobDirty = kFalse;
    Click(row.control);
    EXPECT_EQ(On(), Instead(kFresh, row.off, row.control));
    EXPECT_EQ(Module1.RulaControlState, expected.RulaControlState);
    EXPECT_EQ(RulaFactors(), factors);
    EXPECT_EQ(Module1.JobDirty, kTrue);

    // One of a group cannot be let go; the one that it took the place of can be had back.
    Module1.JobDirty = kFalse;
    Click(row.control);
    if (QString(row.off).isEmpty()) {
      EXPECT_EQ(Module1.JobDirty, kTrue);
    } else {
      EXPECT_EQ(On(), Instead(kFresh, row.off, row.control));
      EXPECT_EQ(RulaFactors(), factors);
      EXPECT_EQ(Module1.JobDirty, kFalse);
      Click(row.off);
    }
    EXPECT_EQ(On(), kFresh);
    if (QString(row.control) == "SSCheck3(2)") continue;  // keeps its score
    EXPECT_EQ(Module1.RulaControlState, JobState{}.RulaControlState);
    EXPECT_EQ(RulaFactors(), freshFactors);
  }
}

TEST_F(RulaFormEvents, NotSupportedThatIsUncheckedKeepsItsScoreAndIsCheckedByTheNextLoad) {
  Show();
  Click("SSCheck3(2)");
  Module1.JobDirty = kFalse;
  Click("SSCheck3(2)");
  EXPECT_EQ(On(), kFresh);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(Module1.RulaControlState.at(19), 1);
  EXPECT_EQ(Module1.RulaTrunkFactors.at(3), 1);
  ClickTab(1);
  EXPECT_TRUE(Report().contains("\nTrunk\tNot well supported while seated\t1\n"));
  form->load();
  EXPECT_EQ(On(), Instead(kFresh, "", "SSCheck3(2)"));
}

TEST_F(RulaFormEvents, SideBendThatIsUncheckedClearsNotSupportedBehindItsBox) {
  Show();
  Click("SSCheck3(1)");
  Click("SSCheck3(2)");
  Click("SSCheck3(1)");
  EXPECT_EQ(On(), Instead(kFresh, "", "SSCheck3(2)"));
  EXPECT_EQ(Module1.RulaControlState.at(14), 0);
  EXPECT_EQ(Module1.RulaControlState.at(19), 0);
  EXPECT_EQ(Module1.RulaTrunkFactors.at(3), 0);
  form->load();
  EXPECT_EQ(On(), kFresh);
}

TEST_F(RulaFormEvents, KeysSetEveryKindOfControl) {
  Show();
  Press("SSRibbon1(0)", Qt::Key_Right);
  Press("SSRibbon1(1)", Qt::Key_Right);
  EXPECT_EQ(Module1.RulaControlState.at(0), 2);
  Press("SSRibbon1(2)", Qt::Key_Left);
  EXPECT_EQ(Module1.RulaControlState.at(0), 1);
  Press("SSRibbon2(2)", Qt::Key_Space);
  EXPECT_EQ(Module1.RulaControlState.at(5), 1);
  Press("SSCheck4(1)", Qt::Key_Space);
  EXPECT_EQ(Module1.RulaControlState.at(18), 1);
  Press("SSOption3(0)", Qt::Key_Down);
  EXPECT_EQ(Module1.RulaControlState.at(17), 1);
  EXPECT_EQ(On(), (QStringList{"SSCheck4(1)", "SSOption1(0)", "SSOption3(1)", "SSOption4(0)",
                               "SSOption5(0)", "SSRibbon1(1)", "SSRibbon2(0)", "SSRibbon2(2)",
                               "SSRibbon3(0)", "SSRibbon4(0)", "SSRibbon5(0)"}));
  Press("SSRibbon2(2)", Qt::Key_Space);
  EXPECT_EQ(Module1.RulaControlState.at(5), 0);
}

TEST_F(RulaFormEvents, RibbonByItselfIsNotReachedByTheArrowsOfTheGroup) {
  Show();
  Press("SSRibbon2(0)", Qt::Key_Right);
  Press("SSRibbon2(1)", Qt::Key_Right);
  EXPECT_EQ(Module1.RulaControlState.at(5), 0);
  EXPECT_FALSE(On().contains("SSRibbon2(2)"));
}

TEST_F(RulaFormJobs, NewShowsTheEmptyJobAndKeepsTheAddOnFactors) {
  platform.WillAnswer(Answer::No);
  QStringList shown;
  QString report;
  Launch({[this] {
            Click("SSRibbon1(2)");
            Click("SSCheck1(0)");
            Choose(*form, "mnuFileNew");
          },
          [&] {
            shown = On();
            ClickTab(1);
            report = Report();
            Choose(*form, "mnuFileExit");
          }});
  EXPECT_EQ(shown, kFresh);
  EXPECT_EQ(Module1.RulaControlState, JobState{}.RulaControlState);
  // One more than the screen shows.
  EXPECT_EQ(Module1.RulaUpperArmScore, 2);
  EXPECT_TRUE(report.contains("\nUpper Arms\t-20 to 20\t1\nLower Arms\t0 to 90\t1\n"));
}

TEST_F(RulaFormJobs, AddOnFactorOfTheJobBeforeGoesWhenItsBoxIsUsed) {
  Module1.RulaUpperArmFactors.at(1) = 1;
  Show();
  Click("SSCheck1(0)");
  Click("SSCheck1(0)");
  ClickTab(1);
  EXPECT_EQ(Module1.RulaUpperArmScore, 1);
}

TEST_F(RulaFormJobs, OpenShowsTheSavedJobAndKeepsTheMuscleFactorOnly) {
  WriteBytes(folder.File("job.qjt"), EmptyJobWith(9, "1"));
  platform.WillAnswer(Answer::No);
  platform.WillOpen(File("job.qjt"));
  QStringList shown;
  Launch({[this] {
            for (const char* box : {"SSCheck1(0)", "SSCheck4(0)", "SSCheck4(1)"}) Click(box);
            Choose(*form, "mnuFileOpen");
          },
          [&] {
            shown = On();
            ClickTab(1);
            Choose(*form, "mnuFileExit");
          }});
  EXPECT_EQ(shown, Instead(kFresh, "", "SSCheck1(2)"));
  EXPECT_EQ(Module1.RulaUpperArmScore, 0);
  EXPECT_EQ(Module1.RulaMuscleScore, 2);
}

TEST_F(RulaFormJobs, SavedFileHasTheStatesInTheirLines) {
  Show();
  for (const char* control : {"SSRibbon1(3)", "SSRibbon2(2)", "SSOption3(2)"}) Click(control);
  platform.WillSave(File("job.qjt"));
  Choose(*form, "mnuSave");
  JobState job;
  for (const auto& [state, value] : {std::pair{0, 3}, {5, 1}, {17, 2}}) {
    job.RulaControlState.at(state) = static_cast<Integer>(value);
  }
  EXPECT_EQ(BytesOf(folder.File("job.qjt")), JobFileBytes(job));
}

}  // namespace
}  // namespace halvane
