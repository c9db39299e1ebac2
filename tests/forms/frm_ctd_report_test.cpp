// The report tab of the CTD Risk Index form, its printing, and the copy of the data file.
#include <QMenu>
#include <QTabWidget>
#include <QTest>
#include <filesystem>

#include "core/job_file.h"
#include "core/number_text.h"
#include "core/task_list.h"
#include "platform/platform_qt.h"
#include "tests/forms/ctd_form_support.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

class CtdReportTest : public CtdFormTest {
 protected:
  /// Enters the worked task by mouse and keys: every box that is not 0, every ribbon that is not
  /// the first of its row.
  void EnterWorkedTask() {
    Load();
    Click("SSCommand1(0)");
    for (const auto& [box, text] : {std::pair{"Text1(8)", "Ann"},
                                    {"Text1(7)", "Press line"},
                                    {"Text1(4)", "W-17"},
                                    {"Text2(0)", "8"},
                                    {"Text2(1)", "1"},
                                    {"Text1(2)", "0.05"},
                                    {"Text1(5)", "10"},
                                    {"Text5", "20"},
                                    {"Text1(6)", "2.5"}}) {
      Type(box, text);
    }
    Click("SSRibbon5(6)");
    Click("SSRibbon4(4)");
    OpenTab(1);
    Click("SSRibbon3(0)");
    Click("SSctdLtShoulFlexT(1)");
    Type("Text3(0)", "2");
    Type("Text4(0)", "0.2");
    Click("SSRibbon3(1)");
    Click("SSctdLtShoulABD(2)");
    Type("Text3(2)", "1");
    Type("Text4(2)", "0.1");
    Click("SSRibbon3(2)");
    Click("SSctdLtElbowFlexT(1)");
    Type("Text3(4)", "1");
    Type("Text4(4)", "0.3");
    Click("SSRibbon3(3)");
    Click("SSctdBack(2)");
    Type("Text3(6)", "3");
    Type("Text4(6)", "0.25");
    Click("SSctdNeck(3)");
    Type("Text4(7)", "0.5");
  }
  [[nodiscard]] QMenu& EditMenu() const { return Control<QMenu>("mnuEdit"); }
};

class CtdReportTab : public CtdReportTest {};
class CtdPrint : public CtdReportTest {};

/// The report of the worked task, with the hand span's heading and the two results that depend on
/// its unit.
std::string WorkedPage(const char* spanHeading, const char* forceFactor, const char* grandScore) {
  return std::string(R"(Cumulative Trauma Disorders Risk Assessment Model

Hand: Right Side

Analyst: Ann
Job Name: Press line
Workstation ID: W-17

Hours Worked per Shift: 8
Job Cycle Time (min): 1.00


Task ID|Task Dur. (min)|Action (#/min)|Force (%MVC)|)") +
         spanHeading + R"(
Task 1|0.05|10.0|20.0|2.5

Task ID  |Grip Type|Wrist Position|Rad/Uln Dev.|Flex/Ext Dev.
Task 1|Power Grip|Mid-Position (Neutral)|Ulnar Deviation 5-15 deg.|Flexion 5-15 deg.

Body Posture        |Angle   |Load Held|Duration|Max. Posture Score
Lt Shoulder Flex/Ext|Greater Than 20|0.0|0.00|0.73
Rt Shoulder Flex/Ext|Neutral Posture|2.0|0.20|0.50
Lt Shoulder Abd/Add|Greater Than 60|0.0|0.00|1.13
Rt Shoulder Abd/Add|Neutral Posture|1.0|0.10|0.50
Lt Elbow Flex/Ext   |> 10 deg. Flexion|1.0|0.30|0.69
Rt elbow Flex/Ext   |Neutral Posture|0.0|0.00|0.50
Back Flexion          |Greater Than 20|3.0|0.25|2.34
Neck Flexion          |Greater Than 60|    |0.50|2.34

Force Frequency Factor: )" +
         forceFactor + "\nPosture Factor   : 1.22\n\nGrand Score: " + grandScore +
         "\n(Note: Grand Score is predicted incidence rate per 200,000 worked hours)\n\n^";
}

TEST_F(CtdReportTab, WorkedTaskInEnglishUnits) {
  Module1.Units = 1;
  EnterWorkedTask();
  OpenTab(2);
  EXPECT_EQ(Pane(), WorkedPage("Hand Span (in)", "0.60", "5.10"));
  EXPECT_EQ(Format(Module1.CtdGrandScore, Pattern::TwoDecimals), "5.10");
}

TEST_F(CtdReportTab, WorkedTaskInMetricUnitsLeavesTheHandSpanOut) {
  EnterWorkedTask();
  OpenTab(2);
  EXPECT_EQ(Pane(), WorkedPage("Hand Span (cm)", "3.66", "11.23"));
}

TEST_F(CtdReportTab, JobThatNeverHadATaskChangesNothing) {
  Load();
  Type("Text1(8)", "Ann");
  const JobState before = Module1;
  OpenTab(2);
  EXPECT_TRUE(Module1 == before);
  EXPECT_EQ(Pane(), "");
  EXPECT_FALSE(EditMenu().isEnabled());
  EXPECT_TRUE(Control("SSTab2").isVisible());
  OpenTab(0);
  EXPECT_FALSE(EditMenu().isEnabled());
}

TEST_F(CtdReportTab, JobWhoseTasksAreAllDeletedHasAReportOfZeros) {
  EnterWorkedTask();
  OpenTab(2);
  platform.WillAnswer(Answer::Yes);
  OpenTab(0);
  Click("SSCommand1(1)");
  OpenTab(2);
  EXPECT_NE(Pane().find("\nForce Frequency Factor: 0.00\nPosture Factor   : 0.00\n\n"
                        "Grand Score: 0.00\n"),
            std::string::npos);
  EXPECT_EQ(Pane().find("Task 1|"), std::string::npos);
}

TEST_F(CtdReportTab, HidesTheTaskListAndEnablesTheEditMenuForGood) {
  EnterWorkedTask();
  const auto& tabs = Control<QTabWidget>("SSTab1");
  const auto& tasks = Control("SSTab2");
  const QRect beside = tabs.geometry();
  EXPECT_FALSE(EditMenu().isEnabled());
  for (const int other : {0, 1}) {
    OpenTab(2);
    QCoreApplication::processEvents();
    EXPECT_TRUE(EditMenu().isEnabled());
    EXPECT_FALSE(tasks.isVisible());
    EXPECT_EQ(tabs.x(), tasks.x()) << "the tabs stand where the list began";
    EXPECT_EQ(tabs.geometry().right(), beside.right());
    OpenTab(other);
    QCoreApplication::processEvents();
    EXPECT_TRUE(EditMenu().isEnabled()) << other;
    EXPECT_TRUE(tasks.isVisible()) << other;
    EXPECT_EQ(tabs.geometry(), beside) << other;
  }
}

TEST_F(CtdReportTab, ComputesAnewEachTime) {
  Module1.Units = 1;
  EnterWorkedTask();
  OpenTab(2);
  OpenTab(0);
  Type("Text5", "40");
  Click("SSOption1(1)");
  OpenTab(2);
  EXPECT_NE(Pane().find("\nHand: Left Side\n"), std::string::npos);
  // Twice the force, twice the ratio to the allowable one.
  EXPECT_NE(Pane().find("\nForce Frequency Factor: 1.20\n"), std::string::npos);
}

TEST_F(CtdReportTab, WorksWithoutACycleTime) {
  EnterWorkedTask();
  OpenTab(0);
  Type("Text2(1)", "0");
  EXPECT_EQ(TextOf("Text2(2)"), "0");
  OpenTab(2);
  EXPECT_NE(Pane().find("\nJob Cycle Time (min): 0.00\n"), std::string::npos);
  EXPECT_EQ(Module1.JobCycleTime, 0);
  EXPECT_EQ(Module1.CtdCyclesPerShift, 48000);
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(CtdReportTab, NobodyTypesInThePane) {
  EnterWorkedTask();
  OpenTab(2);
  auto& pane = Control<RichTextBox>("RichTextBox1");
  EXPECT_EQ(Control<QTabWidget>("SSTab1").currentWidget(), &pane);
  const std::string before = Pane();
  QTest::keyClicks(&pane, "x");
  EXPECT_EQ(Pane(), before);
}

TEST_F(CtdReportTab, EditMenuSelectsAndCopiesTheReport) {
  EnterWorkedTask();
  OpenTab(2);
  Choose(form(), "mnuEditSelect");
  EXPECT_TRUE(Control("RichTextBox1").hasFocus());
  Choose(form(), "mnuEditCopy");
  ASSERT_EQ(platform.clipboard().size(), 2);
  EXPECT_TRUE(platform.clipboard()[1].startsWith("text: Cumulative Trauma Disorders Risk"));
}

struct FailureRow {
  const char* label;
  const char* sentence;
  std::function<void()> spoil;
  const char* paneEnd = "";  ///< what the report that failed half way ends with
};

TEST_F(CtdReportTab, FailureOfTheComputationEndsTheProgramWithARescueCopy) {
  const std::vector<FailureRow> rows{
      {"grip that is none", "Division by zero", [] { Module1.CtdGripType.at(1) = Integer{1}; }},
      {"negative duration", "Invalid call", [this] { Type("Text4(7)", "-0.1"); }},
      {"load that makes its base negative", "Invalid call", [this] { Type("Text3(6)", "-2.3"); }},
      {"load of a neutral posture", "Invalid call",
       [this] {
         Click("SSctdBack(0)");
         Type("Text3(6)", "-2.3");
       }},
      {"wrist that has no ribbon to name it", "Subscript out of range",
       [] { Module1.CtdWristPosition.at(1) = 2; }, "\nTask 1|Power Grip"},
  };
  for (const FailureRow& row : rows) {
    SCOPED_TRACE(row.label);
    Module1 = JobState{};
    EnterWorkedTask();
    row.spoil();
    const std::string copy = EndedOn(row.sentence, [this] { OpenTab(2); });
    EXPECT_EQ(copy, JobFileBytes(Module1));
    EXPECT_TRUE(Pane().ends_with(row.paneEnd)) << Pane();
    EXPECT_EQ(Pane().empty(), std::string_view(row.paneEnd).empty()) << Pane();
  }
}

TEST_F(CtdReportTab, NegativeLoadThatLeavesItsBasePositiveIsComputed) {
  EnterWorkedTask();
  Type("Text3(6)", "-2");
  OpenTab(2);
  EXPECT_NE(Pane().find("\nBack Flexion          |Greater Than 20|-2.0|0.25|"), std::string::npos);
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(CtdPrint, RewritesTheReportWithoutComputing) {
  Module1.Units = 1;
  EnterWorkedTask();
  OpenTab(2);
  OpenTab(0);
  Type("Text5", "40");
  Type("Text1(7)", "Packing");
  const JobState before = Module1;
  platform.WillChoosePrinter(true);
  Choose(form(), "mnuPrint");
  EXPECT_TRUE(Module1 == before);
  ASSERT_EQ(platform.printed().size(), 1);
  const QString& printed = platform.printed()[0];
  EXPECT_TRUE(printed.contains("\nJob Name: Packing\n"));
  EXPECT_TRUE(printed.contains("\nTask 1\t0.05\t10.0\t40.0\t2.5\n"));
  EXPECT_TRUE(printed.contains("\nForce Frequency Factor: 0.60\n"));
  EXPECT_TRUE(printed.contains("\nGrand Score: 5.10\n"));
  EXPECT_NE(Pane().find("\nJob Name: Packing\n"), std::string::npos);
}

TEST_F(CtdPrint, BeforeAnyReportHasNoResults) {
  EnterWorkedTask();
  platform.WillChoosePrinter(true);
  Choose(form(), "mnuPrint");
  ASSERT_EQ(platform.printed().size(), 1);
  EXPECT_TRUE(platform.printed()[0].contains("\nTask 1\t0.05\t10.0\t20.0\t2.5\n"));
  EXPECT_TRUE(platform.printed()[0].contains("\nGrand Score: 0.00\n"));
}

TEST_F(CtdPrint, CancelledMakesNoReport) {
  EnterWorkedTask();
  platform.WillChoosePrinter(false);
  Choose(form(), "mnuPrint");
  EXPECT_EQ(Pane(), "");
  EXPECT_EQ(platform.printed(), QStringList());
}

TEST_F(CtdPrint, FailureIsSilent) {
  EnterWorkedTask();
  Module1.CtdWristPosition.at(1) = 2;
  platform.WillChoosePrinter(true);
  Choose(form(), "mnuPrint");
  EXPECT_EQ(platform.printed(), QStringList());
  EXPECT_TRUE(platform.messages().empty());
  EXPECT_TRUE(platform.ends().empty());
}

/// The copy of the data file, which no control of the form starts.
class CtdDataFile : public CtdFormTest {
 protected:
  void Copy() { dynamic_cast<FrmCTD&>(form()).CTDcopyPdaFile(); }
};

TEST_F(CtdDataFile, IsCopiedFromTheProgramsFolderAndSaidSo) {
  AddTaskRecord();
  Load();
  const JobState before = Module1;
  // Blanks around the paths do not count.
  platform.SetFolders("  /programs/the tools", " /data of the user");
  platform.WillCopyFile(true);
  platform.WillAnswer(Answer::Ok);
  Copy();
  EXPECT_EQ(platform.copied(),
            QStringList{"/programs/the tools/me.pda -> /data of the user/me.pda"});
  EXPECT_EQ(platform.messages(),
            (std::vector{ShownMessage{"Halvane Tools", "File copied!", {Answer::Ok}}}));
  EXPECT_TRUE(Module1 == before);
}

TEST_F(CtdDataFile, CopyThatFailedIsSaidSo) {
  AddTaskRecord();
  Load();
  const JobState before = Module1;
  platform.SetFolders("/programs/tools", "/data of the user");
  platform.WillCopyFile(false);
  platform.WillAnswer(Answer::Ok);
  Copy();
  EXPECT_EQ(platform.copied(), QStringList{"/programs/tools/me.pda -> /data of the user/me.pda"});
  EXPECT_EQ(platform.messages(),
            (std::vector{ShownMessage{"Halvane Tools", "Error. File not moved!", {Answer::Ok}}}));
  EXPECT_TRUE(Module1 == before);
}

/// The double, with files that are really copied.
class CopyingPlatform : public TestPlatform {
 public:
  bool CopyFile(const QString& source, const QString& target) override {
    return real_.CopyFile(source, target);
  }

 private:
  QtPlatform real_;
};

TEST_F(CtdDataFile, ReplacesTheOneInTheDataFolder) {
  Load();
  CopyingPlatform copying;
  std::filesystem::create_directory(folder.File("program"));
  copying.SetFolders(File("program"), File("data"));
  const auto expectSaid = [&](const char* text) {
    copying.WillAnswer(Answer::Ok);
    Copy();
    EXPECT_EQ(copying.messages().back().text, text);
  };
  expectSaid("Error. File not moved!");
  WriteBytes(folder.File("program/me.pda"), "first");
  expectSaid("File copied!");
  EXPECT_EQ(BytesOf(folder.File("data/me.pda")), "first");
  WriteBytes(folder.File("program/me.pda"), "2nd");
  expectSaid("File copied!");
  EXPECT_EQ(BytesOf(folder.File("data/me.pda")), "2nd");
  std::filesystem::remove(folder.File("program/me.pda"));
  expectSaid("Error. File not moved!");
  EXPECT_EQ(BytesOf(folder.File("data/me.pda")), "2nd");
}

}  // namespace
}  // namespace halvane
