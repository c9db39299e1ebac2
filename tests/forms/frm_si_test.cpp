#include "tools/strain_index/frm_si.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "core/job_file.h"
#include "core/number_text.h"
#include "shell/frm_hand_main.h"
#include "tests/support/form_support.h"
#include "tools/strain_index/si_score.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

class StrainIndexBoxes : public ShellTest {};
class StrainIndexHand : public ShellTest {};
class StrainIndexLoad : public ShellTest {};
class StrainIndexReport : public ShellTest {};

QLineEdit& Box(const QWidget& form, int index) {
  return Find<QLineEdit>(form, QString("Text1(%1)").arg(index));
}

void Type(QLineEdit& box, const QString& text) {
  box.setFocus();
  box.selectAll();
  QTest::keyClicks(&box, text);
}

void OpenReport(const QWidget& form) { Find<QTabWidget>(form, "SSTab1").setCurrentIndex(1); }

/// A box and the field that it stands for.
struct BoxRow {
  int index;
  const char* field;
  std::function<std::string()> value;
  bool isNumber;
};

std::vector<BoxRow> Boxes() {
  return {
      {0, "SiExertionMinutes", [] { return Module1.SiExertionMinutes.AsText(); }, true},
      {1, "SiDutyObservationMinutes", [] { return Module1.SiDutyObservationMinutes.AsText(); },
       true},
      {2, "SiExertionCount", [] { return Module1.SiExertionCount.AsText(); }, true},
      {3, "SiEffortObservationMinutes",
       [] { return PlainText(Module1.SiEffortObservationMinutes); }, true},
      {4, "JobWorkstationId", [] { return Module1.JobWorkstationId; }, false},
      {5, "JobName", [] { return Module1.JobName.AsText(); }, false},
      {6, "JobAnalyst", [] { return Module1.JobAnalyst.AsText(); }, false},
      {8, "JobDurationPerDay", [] { return Module1.JobDurationPerDay.AsText(); }, true},
  };
}

TEST_F(StrainIndexBoxes, ThereAreEightAndNoSeventh) {
  const auto form = LoadedStrainIndex();
  QStringList names;
  for (const auto* box : form->findChildren<QLineEdit*>()) names.append(box->objectName());
  names.sort();
  EXPECT_EQ(names, (QStringList{"Text1(0)", "Text1(1)", "Text1(2)", "Text1(3)", "Text1(4)",
                                "Text1(5)", "Text1(6)", "Text1(8)"}));
}

TEST_F(StrainIndexBoxes, LoadShowsTheFieldsInPlainText) {
  Module1.SiExertionMinutes = 2.5;
  Module1.SiDutyObservationMinutes = Integer{20};
  Module1.SiExertionCount = "12 or so";
  Module1.SiEffortObservationMinutes = 0.5;
  Module1.JobWorkstationId = "W\xC3\xB6rk 7";
  Module1.JobName = "Packing";
  Module1.JobAnalyst = Integer{7};
  Module1.JobDurationPerDay = 1E+15;
  const auto form = LoadedStrainIndex();
  QStringList shown;
  for (const BoxRow& row : Boxes()) shown.append(Box(*form, row.index).text());
  EXPECT_EQ(shown, (QStringList{"2.5", "20", "12 or so", "0.5", QString::fromUtf8("W\xC3\xB6rk 7"),
                                "Packing", "7", "1E+15"}));
}

TEST_F(StrainIndexBoxes, EveryReleasedKeyStoresInTheBoxsOwnField) {
  const auto form = LoadedStrainIndex();
  for (const BoxRow& row : Boxes()) {
    Module1.JobDirty = kFalse;
    JobState expected = Module1;
    Type(Box(*form, row.index), row.isNumber ? "1.5 h" : " 1.5 h ");
    EXPECT_EQ(row.value(), row.isNumber ? "1.5" : " 1.5 h ") << row.field;
    EXPECT_EQ(Module1.JobDirty, kTrue) << row.field;
    std::vector<std::string> others;
    for (const BoxRow& other : Boxes()) {
      if (other.index != row.index) others.push_back(other.value());
    }
    std::swap(Module1, expected);
    std::size_t at = 0;
    for (const BoxRow& other : Boxes()) {
      if (other.index == row.index) continue;
      EXPECT_EQ(others.at(at++), other.value()) << row.field << " changed " << other.field;
    }
    std::swap(Module1, expected);
  }
}

TEST_F(StrainIndexBoxes, KeyThatChangesNothingMarksTheJobToo) {
  const auto form = LoadedStrainIndex();
  for (const BoxRow& row : Boxes()) {
    Module1.JobDirty = kFalse;
    const std::string before = row.value();
    QTest::keyClick(&Box(*form, row.index), Qt::Key_Shift);
    EXPECT_EQ(Module1.JobDirty, kTrue) << row.field;
    EXPECT_EQ(row.value(), before) << row.field;
  }
}

TEST_F(StrainIndexBoxes, FieldFollowsEveryKey) {
  const auto form = LoadedStrainIndex();
  auto& box = Box(*form, 0);
  box.selectAll();
  QTest::keyClick(&box, Qt::Key_1);
  EXPECT_EQ(Module1.SiExertionMinutes.AsText(), "1");
  QTest::keyPress(&box, Qt::Key_2);
  EXPECT_EQ(Module1.SiExertionMinutes.AsText(), "1");
  QTest::keyRelease(&box, Qt::Key_2);
  EXPECT_EQ(Module1.SiExertionMinutes.AsText(), "12");
}

TEST_F(StrainIndexBoxes, LettersStoreZeroAndStayOnScreen) {
  Module1.SiExertionCount = Integer{9};
  const auto form = LoadedStrainIndex();
  auto& box = Box(*form, 2);
  Type(box, "many");
  EXPECT_EQ(Module1.SiExertionCount.AsText(), "0");
  EXPECT_EQ(box.text(), "many");
}

TEST_F(StrainIndexBoxes, PasteWithTheMouseCountsWithTheNextKey) {
  const auto form = LoadedStrainIndex();
  auto& box = Box(*form, 0);
  Module1.JobDirty = kFalse;
  QApplication::clipboard()->setText("17");
  box.selectAll();
  box.paste();
  EXPECT_EQ(box.text(), "17");
  EXPECT_EQ(Module1.SiExertionMinutes.AsText(), "0");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  QTest::keyClick(&box, Qt::Key_Control);
  EXPECT_EQ(Module1.SiExertionMinutes.AsText(), "17");
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(StrainIndexBoxes, FocusByTabSelectsAll) {
  Module1.JobName = "Packing";
  const auto form = LoadedStrainIndex();
  auto& box = Box(*form, 5);
  Box(*form, 6).setFocus();
  box.deselect();
  QTest::keyClick(&Box(*form, 6), Qt::Key_Tab);
  ASSERT_TRUE(box.hasFocus());
  EXPECT_EQ(box.selectedText(), "Packing");
}

TEST_F(StrainIndexBoxes, FocusByMouseSelectsAll) {
  Module1.JobName = "Packing";
  const auto form = LoadedStrainIndex();
  auto& box = Box(*form, 5);
  Box(*form, 6).setFocus();
  QTest::mouseClick(&box, Qt::LeftButton);
  ASSERT_TRUE(box.hasFocus());
  EXPECT_EQ(box.selectedText(), "Packing");
  // The next click in the box sets the caret, as in any other.
  QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(3, box.height() / 2));
  EXPECT_EQ(box.selectedText(), "");
}

TEST_F(StrainIndexHand, ClickStoresTheOptionAndMarksTheJob) {
  const auto form = LoadedStrainIndex();
  EXPECT_TRUE(Find<QRadioButton>(*form, "SSOption5(0)").isChecked());
  for (const int hand : {1, 0}) {
    Module1.JobDirty = kFalse;
    auto& option = Find<QRadioButton>(*form, QString("SSOption5(%1)").arg(hand));
    QTest::mouseClick(&option, Qt::LeftButton, {}, QPoint(8, option.height() / 2));
    EXPECT_EQ(Module1.Hand, hand);
    EXPECT_EQ(Module1.JobDirty, kTrue);
    EXPECT_TRUE(option.isChecked());
  }
}

TEST_F(StrainIndexHand, ChosenOptionClickedAgainChangesNothing) {
  const auto form = LoadedStrainIndex();
  Module1.JobDirty = kFalse;
  auto& option = Find<QRadioButton>(*form, "SSOption5(0)");
  QTest::mouseClick(&option, Qt::LeftButton, {}, QPoint(8, option.height() / 2));
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

TEST_F(StrainIndexHand, LoadShowsTheSavedOne) {
  Module1.Hand = 1;
  const auto form = LoadedStrainIndex();
  EXPECT_TRUE(Find<QRadioButton>(*form, "SSOption5(1)").isChecked());
  EXPECT_FALSE(Find<QRadioButton>(*form, "SSOption5(0)").isChecked());
}

TEST_F(StrainIndexLoad, MarksTheJobAndStartsOnTheFirstTab) {
  const auto form = LoadedStrainIndex();
  EXPECT_EQ(Module1.JobDirty, kTrue);
  EXPECT_EQ(Find<QTabWidget>(*form, "SSTab1").currentIndex(), 0);
  EXPECT_EQ(Find<RichTextBox>(*form, "RichTextBox1").toPlainText(), "");
}

/// A saved value that names no control of the form.
struct BadValueRow {
  const char* label;
  std::function<void()> set;
};

TEST_F(StrainIndexLoad, ValueThatNamesNoControlEndsTheProgramWithARescueCopy) {
  const std::vector<BadValueRow> rows{
      {"hand 2", [] { Module1.Hand = 2; }},
      {"hand -1", [] { Module1.Hand = -1; }},
      {"intensity 15", [] { Module1.SiIntensityPick = Integer{15}; }},
      {"posture 20", [] { Module1.SiPosturePick = Integer{20}; }},
      {"posture -1", [] { Module1.SiPosturePick = Integer{-1}; }},
      {"speed 10", [] { Module1.SiSpeedPick = 10; }},
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
    QTest::mouseClick(&Find<QWidget>(*window, "SSCommand2(2)"), Qt::LeftButton);
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

TEST_F(StrainIndexReport, TextIsTheReportsOwn) {
  Module1.JobAnalyst = "Ann";
  Module1.JobName = "Packing";
  const auto form = LoadedStrainIndex();
  Type(Box(*form, 0), "10");
  Type(Box(*form, 1), "20");
  OpenReport(*form);
  RichText report;
  SI_Calculate(report);
  ASSERT_GT(report.text().size(), 700U);
  // One character ends a line on screen, two in the report.
  EXPECT_EQ(
      Find<RichTextBox>(*form, "RichTextBox1").document()->toRawText(),
      QString::fromStdString(report.text()).replace("\r\n", QChar(QChar::ParagraphSeparator)));
}

TEST_F(StrainIndexReport, OpenedTwiceHasOnePicture) {
  const auto form = LoadedStrainIndex();
  auto& tabs = Find<QTabWidget>(*form, "SSTab1");
  const auto& pane = Find<RichTextBox>(*form, "RichTextBox1");
  tabs.setCurrentIndex(1);
  const QString once = pane.document()->toRawText();
  tabs.setCurrentIndex(0);
  tabs.setCurrentIndex(1);
  EXPECT_EQ(pane.document()->toRawText(), once);
  EXPECT_EQ(once.count(QChar(QChar::ObjectReplacementCharacter)), 1);
}

TEST_F(StrainIndexReport, ObservationTimeOfZeroIsReplacedInTheFieldAndNotInTheBox) {
  const auto form = LoadedStrainIndex();
  Type(Box(*form, 1), "0");
  Type(Box(*form, 3), "-4");
  OpenReport(*form);
  EXPECT_EQ(Module1.SiDutyObservationMinutes.AsText(), "0.001");
  EXPECT_EQ(PlainText(Module1.SiEffortObservationMinutes), "0.001");
  EXPECT_EQ(Box(*form, 1).text(), "0");
  EXPECT_EQ(Box(*form, 3).text(), "-4");
  form->load();
  EXPECT_EQ(Box(*form, 1).text(), "0.001");
  EXPECT_EQ(Box(*form, 3).text(), "0.001");
}

/// Clicks the report tab, so that a failure passes through the application.
void ClickReportTab(const QWidget& form) {
  auto& bar = *Find<QTabWidget>(form, "SSTab1").tabBar();
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
}

TEST_F(StrainIndexReport, FirstComputationInAGapEndsTheProgram) {
  const auto form = LoadedStrainIndex();
  Module1.JobFileName = folder.File("job.qjt");
  Type(Box(*form, 0), "29.5");
  Type(Box(*form, 1), "100");
  platform.WillAnswer(Answer::Ok);
  ClickReportTab(*form);
  ASSERT_EQ(platform.messages().size(), 1U);
  EXPECT_TRUE(platform.messages()[0].text.startsWith("Subscript out of range."));
  EXPECT_EQ(platform.ends(), std::vector<int>{1});
  EXPECT_EQ(folder.Names(), "job.rescue.qjt");
}

TEST_F(StrainIndexReport, ValueInAGapKeepsTheRatingOfTheLastComputation) {
  const auto form = LoadedStrainIndex();
  Type(Box(*form, 0), "60");
  Type(Box(*form, 1), "100");
  ClickReportTab(*form);
  EXPECT_EQ(Module1.SiDutyRating, 4);
  Find<QTabWidget>(*form, "SSTab1").setCurrentIndex(0);
  Type(Box(*form, 0), "29.5");
  ClickReportTab(*form);
  EXPECT_EQ(Module1.SiDutyRating, 4);
  EXPECT_TRUE(Find<RichTextBox>(*form, "RichTextBox1")
                  .toPlainText()
                  .contains("Duration of exertion (%)   \t29.5\t2.0\n"));
  EXPECT_TRUE(platform.messages().empty());
}

}  // namespace
}  // namespace halvane
