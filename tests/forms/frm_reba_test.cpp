#include <QComboBox>
#include <QTabWidget>
#include <QTest>

#include "core/job_file.h"
#include "tests/forms/posture_form_support.h"

namespace halvane {
namespace {

class RebaFormTest : public PostureFormTest {
 protected:
  RebaFormTest() : PostureFormTest(Tool::Reba) {}

  [[nodiscard]] QString Load() const { return The<QComboBox>("Combo2").currentText(); }
  /// Picks an entry of the load list with the keyboard.
  void PickLoad(int entry) const {
    auto& list = The<QComboBox>("Combo2");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    for (int i = 0; i < entry; ++i) QTest::keyClick(&list, Qt::Key_Down);
  }
};

class RebaForm : public RebaFormTest {};
class RebaFormLoad : public RebaFormTest {};
class RebaFormEvents : public RebaFormTest {};
class RebaFormJobs : public RebaFormTest {};

const QStringList kFresh{"SSOption1(0)", "SSOption5(0)", "SSRibbon1(0)", "SSRibbon2(0)",
                         "SSRibbon3(0)", "SSRibbon4(0)", "SSRibbon5(0)", "SSRibbon6(0)"};

/// A job whose saved state is that of a fresh form.
JobState FreshJob() {
  JobState job;
  job.RebaControlState.at(15) = 1;
  return job;
}

/// The working factors: upper arm, lower arm, wrist, neck, trunk, legs, force, coupling, activity.
std::vector<std::vector<int>> Factors() {
  const auto elements = [](const auto& array) {
    std::vector<int> values;
    for (int i = 0; i < array.size(); ++i) values.push_back(array.at(i));
    return values;
  };
  return {elements(Module1.RebaUpperArmFactors), {Module1.RebaLowerArmFactor},
          elements(Module1.RebaWristFactors),    elements(Module1.RebaNeckFactors),
          elements(Module1.RebaTrunkFactors),    elements(Module1.RebaLegFactors),
          elements(Module1.RebaForceFactors),    {Module1.RebaCouplingFactor},
          {Module1.RebaActivityFactor}};
}

TEST_F(RebaForm, TitleAndTab) {
  Show();
  EXPECT_EQ(form->windowTitle(), "Rapid Entire Body Assessment");
  EXPECT_EQ(The<QTabWidget>("SSTab1").tabText(1), "REBA Score");
}

TEST_F(RebaForm, ControlsHaveTheirFramesCaptionsAndTips) {
  Show();
  // clang-format off
  EXPECT_EQ(ControlLines(), (QStringList{
      "Coupling/Grip|SSOption1(0)|Good       |Well-fitting handle and a mid-range, power grip",
      "Coupling/Grip|SSOption1(1)|Fair       |Hand hold acceptable but not ideal or coupling is acceptable via another part of the body",
      "Coupling/Grip|SSOption1(2)|Poor        |Hand hold not acceptable although possible",
      "Coupling/Grip|SSOption1(3)|Unacceptable|Awkward, unsafe grip, no handle",
      "Force or Load|Combo2|<5 kg  ,5-10 kg,>10 kg |Force or external load level",
      "Force or Load|SSCheck4|Shock/rapid build up of force|",
      "Hand|SSOption5(0)|Right Side|",
      "Hand|SSOption5(1)|Left Side|",
      "Leg|SSRibbon6(0)|Stable|Bilateral weight bearing, walking or sitting",
      "Leg|SSRibbon6(1)|Unstable|Unilateral weight bearing, feather weight bearing or an unstable posture",
      "Leg|SSRibbon6(2)|30 to 60|Knee(s) between 30-60 degree flexion",
      "Leg|SSRibbon6(3)|> 60|Knee(s) >60 degree flexion (not sitting)",
      "Lower Arms|SSRibbon2(0)|60-100|Lower arms between 60 to 100 deg. (Neutral)",
      "Lower Arms|SSRibbon2(1)|> 100|Lower arms greater than 100 deg. (Flexion)",
      "Lower Arms|SSRibbon2(2)|0 to 60|Lower arm 0 to 60 deg. (Extension)",
      "Muscle Use|SSCheck5(0)|Static, eg. held for longer than 1 min|",
      "Muscle Use|SSCheck5(1)|Repeated more than 4 times/min|",
      "Muscle Use|SSCheck5(2)|Rapid large posture change or unstable base|",
      "Neck|SSCheck2(0)|Neck is twisting or side bending|",
      "Neck|SSRibbon4(0)|0 to 20|Neck between 0 and 10 deg. (neutral)",
      "Neck|SSRibbon4(1)|< -20   |Neck extension",
      "Neck|SSRibbon4(2)|> 20    |Neck greater than 20 deg. flexion",
      "Trunk|SSCheck3(0)|Trunk is twisting or side bending|",
      "Trunk|SSRibbon5(0)|Neutral|Trunk neutral posture",
      "Trunk|SSRibbon5(1)|0 to 20|Trunk between 0 and 20 deg. (Flexion)",
      "Trunk|SSRibbon5(2)|21 to 60|Trunk between 21 and 60 deg. (Flexion)",
      "Trunk|SSRibbon5(3)|> 60    |Trunk greater than 60 deg. (Flexion)",
      "Trunk|SSRibbon5(4)|-20 to 0|Trunk 0 to -20 deg. (Extension)",
      "Trunk|SSRibbon5(5)|< -20    |Trunk less than -20 deg. (Extension)",
      "Upper Arms|SSCheck1(0)|Shoulder is raised|",
      "Upper Arms|SSCheck1(1)|Upper arm is abducted|",
      "Upper Arms|SSCheck1(2)|Arm is supported|",
      "Upper Arms|SSRibbon1(0)|-20 to 20|Upper arm between -20 and +20 deg. (Neutral)",
      "Upper Arms|SSRibbon1(1)|<-20         |Upper arm less than -20 deg. (extension)",
      "Upper Arms|SSRibbon1(2)|21 to 45 |Upper arm between 21 and 45 deg. (Flexion)",
      "Upper Arms|SSRibbon1(3)|46 to 90 |Upper arm between 46 and 90 deg.  (Flexion)",
      "Upper Arms|SSRibbon1(4)|>+90       |Upper arm greater than 90 deg. (Flexion)",
      "Wrist|SSRibbon3(0)|Neutral|Wrist neutral posture",
      "Wrist|SSRibbon3(1)|> 15|Wrist greater than 15 deg. flexion",
      "Wrist|SSRibbon3(2)|<-15|Wrist less than 15 deg. extension",
      "Wrist|SSRibbon3(3)|Side Bent or Twist|Ulnar/Radial deviation",
  }));
  // clang-format on
}

TEST_F(RebaForm, ArmsStandLeftNeckTrunkAndLegsRight) {
  Show();
  EXPECT_EQ(FramesIn(Half::Left),
            (QStringList{"Upper Arms", "Lower Arms", "Wrist", "Coupling/Grip"}));
  EXPECT_EQ(FramesIn(Half::Right),
            (QStringList{"Neck", "Trunk", "Leg", "Force or Load", "Muscle Use"}));
}

TEST_F(RebaFormLoad, FreshJobPressesTheFirstOfEachAndStableLegsAndMarksTheJob) {
  Show();
  EXPECT_EQ(On(), kFresh);
  EXPECT_EQ(Load(), "<5 kg  ");
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(Module1.RebaControlState, FreshJob().RebaControlState);
  EXPECT_EQ(Factors(),
            (std::vector<std::vector<int>>{
                {1, 0, 0, 0}, {1}, {1, 0}, {1, 0, 0}, {1, 0, 0}, {1, 0}, {0, 0}, {0}, {0}}));
}

/// A saved value of one element of the state, and what it sets.
struct SavedRow {
  int state;
  Integer value;
  const char* off;  ///< of the fresh job
  const char* on;
};

TEST_F(RebaFormLoad, EverySavedValueSetsItsControl) {
  const std::vector<SavedRow> rows{
      {0, 1, "SSRibbon1(0)", "SSRibbon1(1)"},
      {0, 4, "SSRibbon1(0)", "SSRibbon1(4)"},
      {1, 1, "", "SSCheck1(0)"},
      {2, 1, "", "SSCheck1(1)"},
      {3, 1, "", "SSCheck1(2)"},
      {4, 2, "SSRibbon2(0)", "SSRibbon2(2)"},
      {6, 1, "SSRibbon3(0)", "SSRibbon3(1)"},
      {6, 2, "SSRibbon3(0)", "SSRibbon3(2)"},
      {7, 1, "", "SSRibbon3(3)"},
      {9, 2, "SSRibbon4(0)", "SSRibbon4(2)"},
      {10, 1, "", "SSCheck2(0)"},
      {12, 4, "SSRibbon5(0)", "SSRibbon5(4)"},
      {12, 5, "SSRibbon5(0)", "SSRibbon5(5)"},
      {13, 1, "", "SSCheck3(0)"},
      {15, 2, "SSRibbon6(0)", "SSRibbon6(1)"},
      {15, 7, "", ""},
      {16, 1, "", "SSRibbon6(2)"},
      {16, 2, "", "SSRibbon6(3)"},
      {16, 3, "", ""},
      {18, 1, "", "SSCheck4"},
      {19, 1, "SSOption1(0)", "SSOption1(1)"},
      {19, 3, "SSOption1(0)", "SSOption1(3)"},
      {20, 1, "", "SSCheck5(0)"},
      {21, 1, "", "SSCheck5(1)"},
      {22, 1, "", "SSCheck5(2)"},
      {7, 2, "", ""},
      // A ribbon that stands by itself.
      {6, 3, "SSRibbon3(0)", "SSRibbon3(3)"},
  };
  Show();
  for (const SavedRow& row : rows) {
    SCOPED_TRACE("state " + std::to_string(row.state) + " " + std::to_string(row.value));
    JobState job;
    job.RebaControlState.at(row.state) = row.value;
    Reload(job);
    EXPECT_EQ(On(), Instead(kFresh, row.off, row.on));
    // Nothing of that job is left on screen with the next.
    Reload(JobState{});
    EXPECT_EQ(On(), kFresh);
  }
}

TEST_F(RebaFormLoad, SavedLoadIsShownAndScores) {
  Show();
  const QStringList loads{"<5 kg  ", "5-10 kg", ">10 kg "};
  for (const int level : {2, 1, 0}) {
    JobState job;
    job.RebaControlState.at(17) = static_cast<Integer>(level);
    Reload(job);
    EXPECT_EQ(Load(), loads.at(level));
    EXPECT_EQ(Module1.RebaForceFactors.at(0), level);
    EXPECT_EQ(Module1.JobDirty, kTrue);
  }
}

TEST_F(RebaFormLoad, EverythingSetComesBackWithTheLeftHand) {
  JobState job;
  job.Hand = 1;
  const std::array<Integer, 23> states{4, 1, 1, 1, 2, 0, 2, 1, 0, 1, 1, 0,
                                       3, 1, 0, 2, 2, 2, 1, 3, 1, 1, 1};
  for (int i = 0; i < 23; ++i) job.RebaControlState.at(i) = states.at(static_cast<std::size_t>(i));
  Show();
  Reload(job);
  EXPECT_EQ(On(), (QStringList{"SSCheck1(0)", "SSCheck1(1)", "SSCheck1(2)", "SSCheck2(0)",
                               "SSCheck3(0)", "SSCheck4", "SSCheck5(0)", "SSCheck5(1)",
                               "SSCheck5(2)", "SSOption1(3)", "SSOption5(1)", "SSRibbon1(4)",
                               "SSRibbon2(2)", "SSRibbon3(2)", "SSRibbon3(3)", "SSRibbon4(1)",
                               "SSRibbon5(3)", "SSRibbon6(1)", "SSRibbon6(3)"}));
  EXPECT_EQ(Load(), ">10 kg ");
  EXPECT_EQ(Module1.RebaControlState, job.RebaControlState);
}

TEST_F(RebaFormLoad, StopsAtTheStepOfAValueThatNamesNoControl) {
  Show();
  JobState job = Module1;
  for (const int state : {0, 12, 19}) job.RebaControlState.at(state) = 3;
  job.RebaControlState.at(17) = 3;
  EXPECT_EQ(FailureOf([&] { Reload(job); }), "SubscriptOutOfRange");
  // Arm and trunk stand before the load, the coupling behind it.
  EXPECT_EQ(Module1.RebaUpperArmFactors.at(0), 3);
  EXPECT_EQ(Module1.RebaTrunkFactors.at(0), 4);
  EXPECT_EQ(Module1.RebaCouplingFactor, 0);
}

TEST_F(RebaFormLoad, ValueThatNamesNoControlEndsTheProgram) {
  const std::vector<std::pair<int, Integer>> rows{{0, 5},  {0, -1},  {4, 3},  {4, -1}, {6, 4},
                                                  {6, -1}, {9, 3},   {9, -1}, {12, 6}, {12, -1},
                                                  {17, 3}, {17, -1}, {19, 4}, {19, -1}};
  for (const auto& [state, value] : rows) {
    SCOPED_TRACE("state " + std::to_string(state) + " " + std::to_string(value));
    JobState job;
    job.RebaControlState.at(state) = value;
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
  int region;  ///< place in `Factors`
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
      {"SSRibbon2(1)", "SSRibbon2(0)",  4, 1, 1, 0,  2}, {"SSRibbon2(2)", "SSRibbon2(0)",  4, 2, 1, 0, 2},
      {"SSRibbon3(1)", "SSRibbon3(0)",  6, 1, 2, 0,  2}, {"SSRibbon3(2)", "SSRibbon3(0)",  6, 2, 2, 0, 2},
      {"SSRibbon3(3)", "",              7, 1, 2, 1,  1},
      {"SSRibbon4(1)", "SSRibbon4(0)",  9, 1, 3, 0,  2}, {"SSRibbon4(2)", "SSRibbon4(0)",  9, 2, 3, 0, 2},
      {"SSCheck2(0)",  "",             10, 1, 3, 1,  1},
      {"SSRibbon5(1)", "SSRibbon5(0)", 12, 1, 4, 0,  2}, {"SSRibbon5(2)", "SSRibbon5(0)", 12, 2, 4, 0, 3},
      {"SSRibbon5(3)", "SSRibbon5(0)", 12, 3, 4, 0,  4}, {"SSRibbon5(4)", "SSRibbon5(0)", 12, 4, 4, 0, 2},
      {"SSRibbon5(5)", "SSRibbon5(0)", 12, 5, 4, 0,  3},
      {"SSCheck3(0)",  "",             13, 1, 4, 1,  1},
      {"SSRibbon6(1)", "SSRibbon6(0)", 15, 2, 5, 0,  2},
      {"SSRibbon6(2)", "",             16, 1, 5, 1,  1}, {"SSRibbon6(3)", "",             16, 2, 5, 1, 2},
      {"SSCheck4",     "",             18, 1, 6, 1,  1},
      {"SSOption1(1)", "SSOption1(0)", 19, 1, 7, 0,  1}, {"SSOption1(2)", "SSOption1(0)", 19, 2, 7, 0, 2},
      {"SSOption1(3)", "SSOption1(0)", 19, 3, 7, 0,  3},
      {"SSCheck5(0)",  "",             20, 1, 8, 0,  1}, {"SSCheck5(1)",  "",             21, 1, 8, 0, 1},
      {"SSCheck5(2)",  "",             22, 1, 8, 0,  1},
  };
  // clang-format on
}

TEST_F(RebaFormEvents, ClickStoresTheControlAndNothingElseAndASecondClickTakesItBack) {
  Show();
  for (const ClickRow& row : Clicks()) {
    SCOPED_TRACE(row.control);
    Reload(JobState{});
    const auto freshFactors = Factors();
    auto factors = freshFactors;
    factors.at(static_cast<std::size_t>(row.region)).at(static_cast<std::size_t>(row.element)) =
        row.factor;
    JobState expected = FreshJob();
    expected.RebaControlState.at(row.state) = row.value;
    Module1.JobDirty = kFalse;
    Click(row.control);
    EXPECT_EQ(On(), Instead(kFresh, row.off, row.control));
    EXPECT_EQ(Module1.RebaControlState, expected.RebaControlState);
    EXPECT_EQ(Factors(), factors);
    EXPECT_EQ(Module1.JobDirty, kTrue);

    // One of a group cannot be let go; the one that it took the place of can be had back.
    Module1.JobDirty = kFalse;
    Click(row.control);
    if (QString(row.off).isEmpty()) {
      EXPECT_EQ(Module1.JobDirty, kTrue);
    } else {
      EXPECT_EQ(On(), Instead(kFresh, row.off, row.control));
      EXPECT_EQ(Factors(), factors);
      EXPECT_EQ(Module1.JobDirty, kFalse);
      Click(row.off);
    }
    EXPECT_EQ(On(), kFresh);
    EXPECT_EQ(Module1.RebaControlState, FreshJob().RebaControlState);
    EXPECT_EQ(Factors(), freshFactors);
  }
}

/// A click on a knee ribbon of a fresh form and those after it.
struct KneeRow {
  const char* clicked;
  const char* down;  ///< the knee ribbon, or none
  Integer state;
  Integer factor;
};

TEST_F(RebaFormEvents, OfTheKneePairOneOrNoneIsDownWhateverTheLegsAre) {
  const std::vector<KneeRow> rows{
      {"SSRibbon6(2)", "SSRibbon6(2)", 1, 1}, {"SSRibbon6(3)", "SSRibbon6(3)", 2, 2},
      {"SSRibbon6(2)", "SSRibbon6(2)", 1, 1}, {"SSRibbon6(2)", "", 0, 0},
      {"SSRibbon6(3)", "SSRibbon6(3)", 2, 2}, {"SSRibbon6(3)", "", 0, 0},
  };
  Show();
  for (const char* legs : {"SSRibbon6(0)", "SSRibbon6(1)"}) {
    Click(legs);
    const Integer stability = Module1.RebaControlState.at(15);
    for (const KneeRow& row : rows) {
      SCOPED_TRACE(std::string(legs) + ", then " + row.clicked);
      Click(row.clicked);
      EXPECT_EQ(On().filter("SSRibbon6"), Instead({legs}, "", row.down));
      EXPECT_EQ(Module1.RebaControlState.at(16), row.state);
      EXPECT_EQ(Module1.RebaLegFactors.at(1), row.factor);
      EXPECT_EQ(Module1.RebaControlState.at(15), stability);
    }
  }
}

TEST_F(RebaFormEvents, PickedLoadIsStoredAndMarksTheJob) {
  Show();
  for (const int level : {1, 2, 0}) {
    PickLoad(level);
    EXPECT_EQ(Module1.RebaControlState.at(17), level);
    EXPECT_EQ(Module1.RebaForceFactors.at(0), level);
  }
  Module1.JobDirty = kFalse;
  QTest::keyClick(&The("Combo2"), Qt::Key_Down);
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(RebaFormEvents, KeysSetEveryKindOfControl) {
  Show();
  Press("SSRibbon5(0)", Qt::Key_Right);
  EXPECT_EQ(Module1.RebaControlState.at(12), 1);
  Press("SSRibbon6(0)", Qt::Key_Right);
  EXPECT_EQ(Module1.RebaControlState.at(15), 2);
  for (const char* control : {"SSRibbon3(3)", "SSRibbon6(2)", "SSCheck4", "SSCheck5(1)"}) {
    Press(control, Qt::Key_Space);
  }
  Press("SSOption1(0)", Qt::Key_Right);
  EXPECT_EQ(On(), (QStringList{"SSCheck4", "SSCheck5(1)", "SSOption1(1)", "SSOption5(0)",
                               "SSRibbon1(0)", "SSRibbon2(0)", "SSRibbon3(0)", "SSRibbon3(3)",
                               "SSRibbon4(0)", "SSRibbon5(1)", "SSRibbon6(1)", "SSRibbon6(2)"}));
  EXPECT_EQ(Factors(),
            (std::vector<std::vector<int>>{
                {1, 0, 0, 0}, {1}, {1, 1}, {1, 0, 0}, {2, 0, 0}, {2, 1}, {0, 1}, {1}, {1}}));
}

TEST_F(RebaFormEvents, ArrowsDoNotPressRibbonsThatMayAllBeUp) {
  Show();
  Press("SSRibbon6(2)", Qt::Key_Space);
  Press("SSRibbon6(2)", Qt::Key_Right);
  EXPECT_EQ(On().filter("SSRibbon6"), (QStringList{"SSRibbon6(0)", "SSRibbon6(2)"}));
  EXPECT_EQ(Module1.RebaControlState.at(16), 1);
  Press("SSRibbon3(2)", Qt::Key_Right);
  EXPECT_FALSE(On().contains("SSRibbon3(3)"));
}

TEST_F(RebaFormJobs, NewShowsTheEmptyJobAndKeepsTheAddOnFactors) {
  platform.WillAnswer(Answer::No);
  QStringList shown;
  Launch({[this] {
            for (const char* control : {"SSRibbon1(3)", "SSCheck2(0)", "SSCheck5(2)"}) {
              Click(control);
            }
            PickLoad(2);
            Choose(*form, "mnuFileNew");
          },
          [&] {
            shown = On();
            shown.append(Load());
            ClickTab(1);
            Choose(*form, "mnuFileExit");
          }});
  EXPECT_EQ(shown, kFresh + QStringList{"<5 kg  "});
  EXPECT_EQ(Module1.RebaControlState, FreshJob().RebaControlState);
  // The neck and the activity score one more than the screen shows.
  EXPECT_EQ(Module1.RebaNeckScore, 2);
  EXPECT_EQ(Module1.RebaActivityScore, 1);
  EXPECT_EQ(Module1.RebaForceScore, 0);
}

TEST_F(RebaFormJobs, OpenShowsTheSavedJobAndKeepsTheActivityOnly) {
  // Element 16 is the knees.
  WriteBytes(folder.File("job.qjt"), EmptyJobWith(26 + 16, "2"));
  platform.WillAnswer(Answer::No);
  platform.WillOpen(File("job.qjt"));
  QStringList shown;
  Launch({[this] {
            for (const char* control : {"SSCheck2(0)", "SSRibbon6(1)", "SSCheck5(2)"}) {
              Click(control);
            }
            Choose(*form, "mnuFileOpen");
          },
          [&] {
            shown = On();
            ClickTab(1);
            Choose(*form, "mnuFileExit");
          }});
  EXPECT_EQ(shown, Instead(kFresh, "", "SSRibbon6(3)"));
  EXPECT_EQ(Module1.RebaNeckScore, 1);
  EXPECT_EQ(Module1.RebaLegScore, 3);
  EXPECT_EQ(Module1.RebaActivityScore, 1);
}

TEST_F(RebaFormJobs, SavedFileHasTheStatesInTheirLines) {
  Show();
  for (const char* control : {"SSRibbon5(4)", "SSRibbon3(3)", "SSOption1(2)"}) Click(control);
  platform.WillSave(File("job.qjt"));
  Choose(*form, "mnuSave");
  JobState job = FreshJob();
  for (const auto& [state, value] : {std::pair{12, 4}, {7, 1}, {19, 2}}) {
    job.RebaControlState.at(state) = static_cast<Integer>(value);
  }
  EXPECT_EQ(BytesOf(folder.File("job.qjt")), JobFileBytes(job));
}

}  // namespace
}  // namespace halvane
