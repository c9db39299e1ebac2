// The report tab of the OCRA form, and printing from it.
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>

#include "tests/forms/ocra_form_support.h"
#include "tools/ocra/ocra_report.h"
#include "widgets/report_pictures.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

/// A job of one task, 480 minutes with 30 actions each, on screen.
class OcraReportTab : public OcraFormTest {
 protected:
  void SetUp() override {
    Module1.JobAnalyst = "Ann";
    AddTaskOf(480, 30, 0);
    Show();
  }

  [[nodiscard]] RichTextBox& Pane() const { return The<RichTextBox>("RichTextBox1"); }
  /// The line of the pane that begins so; empty when there is none.
  [[nodiscard]] QString Line(const QString& start) const {
    for (const QString& line : Pane().toPlainText().split('\n')) {
      if (line.startsWith(start)) return line;
    }
    return "";
  }
  /// Goes to the report tab and gives the index that it shows.
  [[nodiscard]] QString OpenedIndex() const {
    ClickTab(2);
    const QString line = Line("OCRA Risk Index:");
    ClickTab(0);
    return line;
  }
  /// Moves the recovery slider to the hours, by keys.
  void SetHours(int hours) const {
    QTest::keyClick(&Slider("Slider2"), Qt::Key_Home);
    for (int i = 0; i < hours; ++i) QTest::keyClick(&Slider("Slider2"), Qt::Key_Right);
  }
  void Print() {
    platform.WillChoosePrinter(true);
    Choose(*form, "mnuPrint");
  }
};

TEST_F(OcraReportTab, ShowsTheWholeReportWithItsTwoPictures) {
  ClickTab(2);
  RichText report;
  OcraReport(report);
  ASSERT_GT(report.text().size(), 500U);
  // One character ends a line on screen, two in the report.
  EXPECT_EQ(
      Pane().document()->toRawText(),
      QString::fromStdString(report.text()).replace("\r\n", QChar(QChar::ParagraphSeparator)));
  QStringList pictures;
  for (QTextBlock block = Pane().document()->begin(); block.isValid(); block = block.next()) {
    for (auto run = block.begin(); !run.atEnd(); ++run) {
      const QTextCharFormat format = run.fragment().charFormat();
      if (format.objectType() != ReportPictures::kObjectType) continue;
      pictures.append(format.property(ReportPictures::kNameProperty).toString());
    }
  }
  EXPECT_EQ(pictures, QStringList({"ocra/zones", "ocra/multipliers"}));
  EXPECT_EQ(Pane().textCursor().position(), 0);
  EXPECT_TRUE(Pane().isReadOnly());
}

TEST_F(OcraReportTab, JobAndTaskStandInIt) {
  Type("Text3(1)", "Packing");
  Type("Text2(1)", "1.255");
  Rename("The task with a very long name");
  ClickTab(2);
  EXPECT_EQ(Line("Analyst"), "Analyst: Ann");
  EXPECT_EQ(Line("Job Name"), "Job Name: Packing");
  EXPECT_EQ(Line("Job Cycle Time"), "Job Cycle Time (min): 1.26");
  EXPECT_TRUE(
      Pane().toPlainText().contains("\nTask ID\tTask Dur. (min)\tAction (#/min)\tForce Level\n"
                                    "The task with a very long\t480.00\t30.0\t0.0\n"))
      << Pane().toPlainText().toStdString();
}

TEST_F(OcraReportTab, EditMenuIsEnabledThereOnly) {
  const auto& edit = The<QMenu>("mnuEdit");
  for (const int tab : {1, 2, 0, 2, 1}) {
    ClickTab(tab);
    EXPECT_EQ(edit.isEnabled(), tab == 2) << tab;
  }
}

TEST_F(OcraReportTab, IndexFollowsForceAnswersAndHours) {
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 1.00");
  for (int i = 0; i < 4; ++i) QTest::keyClick(&Slider("Slider1"), Qt::Key_Right);
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 1.54");
  QTest::keyClick(&Slider("Slider1"), Qt::Key_Home);
  ClickTab(1);
  Pick(2, 2);
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 2.00");
  ClickTab(1);
  Pick(2, 3);
  ClickTab(0);
  SetHours(8);
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 14400000.00");
}

TEST_F(OcraReportTab, TextBoxesAndTicksCount) {
  Type("Text1(2)", "240");
  Type("Text1(5)", "45");
  ClickTab(1);
  // Both ticks of the wrist make 8, whose multiplier is 0.6.
  QTest::keyClick(&The<QWidget>("SSCheck1(0)"), Qt::Key_Space);
  QTest::keyClick(&The<QWidget>("SSCheck1(1)"), Qt::Key_Space);
  ClickTab(2);
  EXPECT_EQ(Line("Total No. Of Actions Observed"), "Total No. Of Actions Observed: 10800.0");
  EXPECT_EQ(Line("Total No. Of Recommended"), "Total No. Of Recommended Actions: 4320.0");
  EXPECT_EQ(Line("OCRA Risk Index"), "OCRA Risk Index: 2.50");
}

TEST_F(OcraReportTab, NineHoursAsTheFirstComputationCountAsNone) {
  SetHours(9);
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 14400000.00");
}

TEST_F(OcraReportTab, NineHoursKeepTheMultiplierOfTheComputationBefore) {
  SetHours(3);
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 1.43");
  SetHours(9);
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 1.43");
  EXPECT_EQ(Module1.OcraRecoveryMultiplier, 0.7);
  // Another showing of the form keeps it too.
  Show();
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 1.43");
}

TEST_F(OcraReportTab, HoursPassedOnTheWayAreNotComputed) {
  SetHours(10);
  EXPECT_EQ(Module1.OcraRecoveryMultiplier, 0);
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 14400000.00");
}

TEST_F(OcraReportTab, NothingIsComputedWhileTheUserTypes) {
  JobState expected = Module1;
  Type("Text1(2)", "100");
  ClickTab(1);
  Pick(5, 1);
  expected.OcraTaskDuration.at(1) = 100;
  expected.OcraComboChoice.at(5) = 1;
  expected.JobDirty = kTrue;
  EXPECT_TRUE(Module1 == expected);
  EXPECT_EQ(Pane().toPlainText(), "");
}

TEST_F(OcraReportTab, StaysAsItIsUntilOpenedAgain) {
  ClickTab(2);
  const QString before = Pane().toPlainText();
  ClickTab(0);
  Type("Text1(5)", "60");
  EXPECT_EQ(Pane().toPlainText(), before);
  ClickTab(1);
  EXPECT_EQ(Pane().toPlainText(), before);
  ClickTab(2);
  EXPECT_EQ(Line("OCRA Risk Index"), "OCRA Risk Index: 2.00");
  EXPECT_EQ(Pane().document()->toRawText().count(QChar(QChar::ObjectReplacementCharacter)), 2);
}

TEST_F(OcraReportTab, JobThatNeverHadATaskHasItsReport) {
  Module1 = JobState{};
  form->load();
  EXPECT_EQ(OpenedIndex(), "OCRA Risk Index: 0.00");
}

TEST_F(OcraReportTab, PrintHasTheLatestValuesAndEndsAtTheStart) {
  ClickTab(2);
  Pane().Select(3, 9);
  // Another input than a key of this form can change the job below it.
  Module1.JobName = "Packing";
  Module1.OcraForceRating.at(1) = 2;
  QString selected;
  platform.WhenPrinted([&] { selected = Pane().SelectedText(); });
  Print();
  ASSERT_EQ(platform.printed().size(), 1);
  EXPECT_TRUE(platform.printed()[0].contains("\nJob Name: Packing\n"));
  EXPECT_TRUE(platform.printed()[0].contains("\nOCRA Risk Index: 1.54\n"));
  EXPECT_EQ(platform.printed()[0], Pane().toPlainText());
  // The two pictures at the end are no text.
  EXPECT_EQ(selected, Pane().toPlainText().chopped(2));
  EXPECT_FALSE(Pane().textCursor().hasSelection());
  EXPECT_EQ(Pane().textCursor().position(), 0);
}

TEST_F(OcraReportTab, PrintWorksFromTheFirstTab) {
  Print();
  ASSERT_EQ(platform.printed().size(), 1);
  EXPECT_TRUE(platform.printed()[0].startsWith("Occupational Repetitive Actions Index\n"));
  EXPECT_EQ(The<QTabWidget>("SSTab1").currentIndex(), 0);
  EXPECT_FALSE(The<QMenu>("mnuEdit").isEnabled());
}

TEST_F(OcraReportTab, PrintWorksWhileTheTabIsDisabled) {
  platform.WillAnswer(Answer::Yes);
  ClickButton("SSCommand1(1)");
  ASSERT_FALSE(The<QTabWidget>("SSTab1").isTabEnabled(2));
  ClickTab(2);
  EXPECT_EQ(The<QTabWidget>("SSTab1").currentIndex(), 0);
  Print();
  ASSERT_EQ(platform.printed().size(), 1);
  EXPECT_TRUE(platform.printed()[0].contains("\nOCRA Risk Index: 0.00\n"));
}

TEST_F(OcraReportTab, CancelledPrintMakesNoReport) {
  const JobState before = Module1;
  platform.WillChoosePrinter(false);
  Choose(*form, "mnuPrint");
  EXPECT_EQ(platform.printed(), QStringList());
  EXPECT_EQ(Pane().toPlainText(), "");
  EXPECT_TRUE(Module1 == before);
}

TEST_F(OcraReportTab, CopyTakesWhatIsSelected) {
  ClickTab(2);
  Pane().Select(0, 12);
  Choose(*form, "mnuEditCopy");
  EXPECT_EQ(platform.clipboard(), (QStringList{"clear", "text: Occupational"}));
  Choose(*form, "mnuEditSelect");
  EXPECT_EQ(Pane().SelectedText(), Pane().toPlainText().chopped(2));
}

TEST_F(OcraReportTab, TotalBeyondANumberEndsTheProgramWithARescueCopy) {
  Module1.JobFileName = folder.File("job.qjt");
  Type("Text1(2)", "1e200");
  Type("Text1(5)", "1e200");
  platform.WillAnswer(Answer::Ok);
  ClickTab(2);
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_TRUE(platform.messages()[0].text.startsWith("Overflow."));
  EXPECT_EQ(platform.ends(), std::vector<int>{1});
  EXPECT_EQ(folder.Names(), "job.rescue.qjt");
}

TEST_F(OcraReportTab, TotalBeyondANumberEndsPrintSilently) {
  Module1.OcraTaskDuration.at(1) = 1E200;
  Module1.OcraActionFrequency.at(1) = 1E200;
  Print();
  EXPECT_EQ(platform.printed(), QStringList());
  EXPECT_TRUE(platform.messages().empty());
  EXPECT_TRUE(platform.ends().empty());
}

}  // namespace
}  // namespace halvane
