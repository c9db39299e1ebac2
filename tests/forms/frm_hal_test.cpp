#include "tools/hal/frm_hal.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include "app/tool_forms.h"
#include "tests/support/form_support.h"
#include "tools/hal/hal_report.h"
#include "widgets/printed_scale.h"
#include "widgets/rich_text_box.h"

namespace halvane {
namespace {

class Hal : public ShellTest {
 protected:
  /// Makes the form and opens it on the job.
  void Open() {
    form_ = MakeToolForm(Tool::Hal, nullptr);
    form_->load();
    ShowActive(*form_);
  }

  [[nodiscard]] QLineEdit& Box(int index) const {
    return Find<QLineEdit>(*form_, QString("Text1(%1)").arg(index));
  }
  [[nodiscard]] QLineEdit& Identification(int index) const {
    return Find<QLineEdit>(*form_, QString("Text3(%1)").arg(index));
  }
  [[nodiscard]] QSlider& Level() const { return Find<QSlider>(*form_, "Slider1"); }
  [[nodiscard]] QSlider& Duty() const { return Find<QSlider>(*form_, "Slider3"); }
  [[nodiscard]] RichTextBox& Pane() const { return Find<RichTextBox>(*form_, "RichTextBox1"); }
  [[nodiscard]] QString LabelText(const QString& name) const {
    return Find<QLabel>(*form_, name).text();
  }

  /// What the form shows: both boxes, both sliders, Action Level and Threshold Limit Value.
  [[nodiscard]] QString Shown() const {
    return QString("%1|%2|%3|%4|%5|%6")
        .arg(Box(0).text(), Box(1).text())
        .arg(Duty().value())
        .arg(Level().value())
        .arg(LabelText("Label3(1)"), LabelText("Label3(2)"));
  }
  /// The same fields of the job: frequency, duty cycle, level.
  static QString Stored() {
    return QString::fromStdString(Module1.HalExertionFrequency.AsText() + "|" +
                                  Module1.HalDutyCycle.AsText() + "|" +
                                  Module1.HalActivityLevel.AsText());
  }
  /// The pane has the whole report on the job as it is now.
  void ExpectReportOfTheJob() const {
    RichText report;
    HAL_Print(report);
    EXPECT_EQ(Pane().document()->toRawText(),
              QString::fromStdString(report.text()).replace("\r\n", QChar(0x2029)));
  }

  static void Type(QLineEdit& box, const QString& text) {
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, text);
  }
  /// Draws the handle by `pixels` to the right.
  static void Drag(QSlider& slider, int pixels) {
    const QPoint start = HandleOf(slider).center();
    QTest::mousePress(&slider, Qt::LeftButton, {}, start);
    MoveMouse(slider, start + QPoint(pixels, 0), Qt::LeftButton);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, start + QPoint(pixels, 0));
  }

  std::unique_ptr<ToolForm> form_;
};

using HalScreen = Hal;
using HalLoad = Hal;
using HalBoxes = Hal;
using HalSliders = Hal;
using HalReportPane = Hal;

TEST_F(HalScreen, ControlsHaveTheirCaptions) {
  Open();
  EXPECT_EQ(form_->objectName(), "frmHAL");
  EXPECT_EQ(form_->windowTitle(), "ACGIH: Hand Activity Level");
  EXPECT_EQ(form_->findChild<QTabWidget*>(), nullptr);
  for (const auto& [name, caption] :
       {std::pair{"SSFrame1(8)", "Hand"},
        {"SSFrame1(4)", "Exertion:"},
        {"SSFrame1(3)", "Duty Cycle (% Work Cycle)"},
        {"SSFrame1(2)", "Rate The Hand Activity Level:"},
        {"SSPanel4", "Force Limit (% of maximum strength on a normalized 10-point scale)"},
        {"SSPanel3", "Borg Scale"}}) {
    EXPECT_EQ(Find<QGroupBox>(*form_, name).title(), caption) << name;
  }
  for (const auto& [name, text] :
       {std::pair{"Label2(5)", "no. of exertion per min."},
        {"Label7(0)", "Action Level:"},
        {"Label7(3)", "Threshold Limit Value:"},
        {"Label6",
         "Note: TLV do not include the following factors - Sustained non-neutral postures, contact "
         "stresses, low temperatures and vibration."},
        {"Label4(0)", "0"},
        {"Label4(1)", "2.0"},
        {"Label4(2)", "4.0"},
        {"Label4(3)", "6.0"},
        {"Label4(4)", "8.0"},
        {"Label4(5)", "10"},
        {"Label5(0)", "Handle idle most of the time; no regular exertion"},
        {"Label5(1)", "Consistent conspicuous, long pauses; or very slow motion"},
        {"Label5(2)", "Slow, steady motion/ exertions; frequent brief pauses"},
        {"Label5(3)", "Steady motion/exertion; infrequent pause"},
        {"Label5(4)", "Rapid, steady motion/ exertions; no regular pauses"},
        {"Label5(5)", "Rapid, steady motion/ difficulty keeping up or continuous exertion"}}) {
    EXPECT_EQ(LabelText(name), text) << name;
  }
  for (const auto& [name, text] :
       {std::pair{"SSOption5(0)", "Right Side"}, {"SSOption5(1)", "Left Side"}}) {
    EXPECT_EQ(Find<QRadioButton>(*form_, name).text(), text) << name;
  }
}

TEST_F(HalScreen, SlidersHaveTheirRangesAndSteps) {
  Open();
  EXPECT_EQ(Level().minimum(), 0);
  EXPECT_EQ(Level().maximum(), 10);
  EXPECT_EQ(Level().singleStep(), 1);
  EXPECT_EQ(Level().pageStep(), 2);
  EXPECT_EQ(Level().toolTip(), "Hand Activity Level Scale");
  EXPECT_EQ(Duty().minimum(), 0);
  EXPECT_EQ(Duty().maximum(), 100);
  EXPECT_EQ(Duty().singleStep(), 1);
  EXPECT_EQ(Duty().pageStep(), 5);
}

TEST_F(HalScreen, ForceScaleIsAPictureThatSaysWhatItShows) {
  Open();
  const auto& picture = *Find<QGroupBox>(*form_, "SSPanel3").findChild<PrintedScale*>();
  EXPECT_EQ(picture.numbers(), (QStringList{"0", "1.0", "2.0", "3.0", "4.0", "5.0", "6.0", "7.0",
                                            "8.0", "9.0", "10"}));
  EXPECT_EQ(picture.words(), (QStringList{"Nothing At All", "Very Weak", "Weak (Light)", "Moderate",
                                          "", "Strong (Heavy)", "", "Very Strong", "",
                                          "Extremely Strong (Almost max.)", ""}));
  // The last words hold from 9 to 10.
  const auto placed = picture.PlaceWords(picture.width());
  ASSERT_EQ(placed.size(), 7U);
  EXPECT_NEAR(placed.back().mark, picture.MarkAt(9.5, picture.width()), 1);
  EXPECT_GE(picture.height(), picture.heightForWidth(picture.width()));
  EXPECT_EQ(picture.accessibleName(), "Borg Scale");
  EXPECT_EQ(picture.accessibleDescription(),
            "0 Nothing At All, 1.0 Very Weak, 2.0 Weak (Light), 3.0 Moderate, 5.0 Strong (Heavy), "
            "7.0 Very Strong, 9.0 Extremely Strong (Almost max.)");
}

TEST_F(HalScreen, ReportStandsBesideTheInputsOrBelowThemWhereThatDoesNotFit) {
  platform.SetAvailableArea({0, 0, 1920, 1080});
  Open();
  const auto place = [this](const QWidget& widget) {
    return QRect(widget.mapTo(form_.get(), QPoint()), widget.size());
  };
  const auto& level = Find<QGroupBox>(*form_, "SSFrame1(2)");
  for (const QSize size : {QSize(960, 620), QSize(1120, 700), QSize(1900, 1040)}) {
    form_->resize(size);
    QCoreApplication::processEvents();
    EXPECT_GT(place(Pane()).left(), place(level).right()) << size.width();
    EXPECT_GE(Pane().width(), size.width() * 2 / 5) << size.width();
  }
  form_->setMinimumSize(0, 0);
  form_->resize(640, 480);
  QCoreApplication::processEvents();
  EXPECT_GT(place(Pane()).top(), place(Find<QGroupBox>(*form_, "SSPanel4")).bottom());
  EXPECT_GE(Pane().width(), 400);
  EXPECT_GE(Level().width(), 300);
}

TEST_F(HalScreen, ReportHasRoomForItsColumnsWithALargeFont) {
  platform.SetAvailableArea({0, 0, 1920, 1080});
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSize(20);
  QApplication::setFont(large);
  Open();
  QCoreApplication::processEvents();
  EXPECT_GE(Pane().width(), 55 * QFontMetrics(large).averageCharWidth());
  QApplication::setFont(usual);
}

TEST_F(HalLoad, NewJobStandsAtZeroAndStaysClean) {
  Open();
  EXPECT_EQ(Shown(), "0|0|0|0|5.33|8.00");
  EXPECT_EQ(Stored(), "0|0|0");
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(Module1.HalForceMode, kTrue);
  EXPECT_TRUE(Find<QRadioButton>(*form_, "SSOption5(0)").isChecked());
  EXPECT_TRUE(Identification(0).hasFocus());
  EXPECT_TRUE(Find<QMenu>(*form_, "mnuEdit").isEnabled());
  ExpectReportOfTheJob();
}

TEST_F(HalLoad, JobIsShownAsItStands) {
  Module1.JobAnalyst = "Ann";
  Module1.JobName = "Packing";
  Module1.JobWorkstationId = "W-17";
  Module1.Hand = 1;
  Module1.HalExertionFrequency = "12 or so";
  Module1.HalDutyCycle = 150.5;
  Module1.HalActivityLevel = "3.0";
  JobState expected = Module1;
  Open();
  EXPECT_EQ(Identification(0).text(), "Ann");
  EXPECT_EQ(Identification(1).text(), "Packing");
  EXPECT_EQ(Identification(2).text(), "W-17");
  EXPECT_TRUE(Find<QRadioButton>(*form_, "SSOption5(1)").isChecked());
  EXPECT_EQ(Shown(), "12 or so|150.5|100|3|3.73|5.60");
  ExpectReportOfTheJob();
  // Looking at a job changes nothing in it, not even with the left hand.
  expected.HalForceMode = kTrue;
  expected.HalLimits = Module1.HalLimits;
  EXPECT_EQ(Module1, expected);
}

TEST_F(HalLoad, LevelBeyondTheScaleShowsNoNegativeLimitButPrintsIt) {
  Module1.HalActivityLevel = Integer{11};
  Open();
  EXPECT_EQ(Shown(), "0|0|0|10|0|0");
  EXPECT_TRUE(Pane().toPlainText().endsWith("Action Level: -0.53\nThreshold Limit Value: -0.80"));
  EXPECT_EQ(Module1.HalActivityLevel, TaggedField(Integer{11}));
}

TEST_F(HalLoad, BringsTheFormBackToItsDesignState) {
  Open();
  QTest::keyClick(&Level(), Qt::Key_PageUp);
  Find<QGroupBox>(*form_, "SSFrame1(2)").hide();
  Find<QGroupBox>(*form_, "SSFrame1(3)").hide();
  Find<QGroupBox>(*form_, "SSFrame1(4)").hide();
  Module1 = JobState{};
  form_->load();
  EXPECT_EQ(Shown(), "0|0|0|0|5.33|8.00");
  EXPECT_TRUE(Find<QRadioButton>(*form_, "SSOption5(0)").isChecked());
  for (const char* name : {"SSFrame1(2)", "SSFrame1(3)", "SSFrame1(4)"}) {
    EXPECT_TRUE(Find<QGroupBox>(*form_, name).isVisible()) << name;
  }
  ExpectReportOfTheJob();
}

TEST_F(HalLoad, NewAsksForTheFormAnewAndKeepsTheMark) {
  Open();
  Type(Box(0), "20");
  platform.WillAnswer(Answer::No);
  Choose(*form_, "mnuFileNew");
  EXPECT_EQ(form_->result(), ToolForm::Reload);
  form_->load();
  EXPECT_EQ(Shown(), "0|0|0|0|5.33|8.00");
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(HalLoad, HandThatNamesNoOptionFails) {
  for (const Integer hand : std::array<Integer, 2>{2, -1}) {
    Module1.Hand = hand;
    const auto form = MakeToolForm(Tool::Hal, nullptr);
    EXPECT_EQ(FailureOf([&] { form->load(); }), "SubscriptOutOfRange") << hand;
  }
}

TEST_F(HalLoad, NumberBeyondADoubleFails) {
  Module1.HalActivityLevel = "1E999";
  const auto form = MakeToolForm(Tool::Hal, nullptr);
  EXPECT_EQ(FailureOf([&] { form->load(); }), "Overflow");
}

TEST_F(HalBoxes, FrequencyAndDutyPlaceTheLevel) {
  Open();
  Type(Box(0), "20");
  EXPECT_EQ(Shown(), "20|0|0|3|3.73|5.60");
  Type(Box(1), "50");
  EXPECT_EQ(Shown(), "20|50|50|5|2.67|4.00");
  EXPECT_EQ(Stored(), "20|50|5");
  EXPECT_EQ(Module1.HalExertionFrequency, TaggedField(20.0));
  EXPECT_EQ(Module1.HalDutyCycle, TaggedField(50.0));
  EXPECT_EQ(Module1.HalActivityLevel, TaggedField(Integer{5}));
  EXPECT_EQ(Module1.JobDirty, kTrue);
  ExpectReportOfTheJob();
  EXPECT_TRUE(Pane().toPlainText().contains(
      "\nExertion Frequency: 20.0 (# of exertion per minute)'& CR$\n"
      "Duty Cycle: 50.0 (% of cycle time)'& CR$\nHand Activity Level: 5.0\n"));
}

TEST_F(HalBoxes, AnyKeyThatGoesUpInAnEmptyJobSetsTheFirstLevel) {
  for (const int index : {0, 1}) {
    Module1 = JobState{};
    Open();
    QTest::keyPress(&Box(index), Qt::Key_Shift);
    EXPECT_EQ(Shown(), "0|0|0|0|5.33|8.00") << index;
    QTest::keyRelease(&Box(index), Qt::Key_Shift);
    EXPECT_EQ(Shown(), "0|0|0|1|4.80|7.20") << index;
    EXPECT_EQ(Module1.JobDirty, kTrue) << index;
    ExpectReportOfTheJob();
  }
}

TEST_F(HalBoxes, LettersReadAsZeroAndStayOnScreen) {
  Module1.HalExertionFrequency = 33.0;
  Module1.HalDutyCycle = 90.0;
  Open();
  Type(Box(1), "abc");
  EXPECT_EQ(Shown(), "33|abc|0|4|3.20|4.80");
  Type(Box(0), "xyz");
  EXPECT_EQ(Shown(), "xyz|abc|0|1|4.80|7.20");
  EXPECT_EQ(Stored(), "0|0|1");
}

TEST_F(HalBoxes, DutyAbove100KeepsTheLevelOfASlowJobAndTheFieldKeepsIt) {
  Module1.HalExertionFrequency = 5.0;
  Module1.HalActivityLevel = "7.0";
  Open();
  auto& box = Box(1);
  box.setText("10");
  box.setFocus();
  box.end(false);
  QTest::keyClick(&box, Qt::Key_1);
  EXPECT_EQ(Shown(), "5|101|100|7|1.60|2.40");
  EXPECT_EQ(Stored(), "5|101|7.0");
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_EQ(Shown(), "5|10|10|1|4.80|7.20");
}

TEST_F(HalBoxes, DutySliderTakesTheRoundedNumber) {
  Open();
  Type(Box(1), "60.6");
  EXPECT_EQ(Shown(), "0|60.6|61|1|4.80|7.20");
  EXPECT_EQ(Stored(), "0|60.6|1");
  Type(Box(1), "-3");
  EXPECT_EQ(Shown(), "0|-3|0|1|4.80|7.20");
  EXPECT_EQ(Stored(), "0|-3|1");
}

TEST_F(HalBoxes, FirstKeyReplacesALevelSetByHand) {
  Module1.HalExertionFrequency = 0.0;
  Module1.HalDutyCycle = 0.0;
  Module1.HalActivityLevel = "8.0";
  Open();
  EXPECT_EQ(Shown(), "0|0|0|8|1.07|1.60");
  Type(Box(0), "9");
  EXPECT_EQ(Shown(), "9|0|0|2|4.27|6.40");
}

TEST_F(HalSliders, DutyFollowsTheHeldMouse) {
  Module1.HalExertionFrequency = 20.0;
  Module1.HalDutyCycle = 50.0;
  Module1.HalActivityLevel = Integer{5};
  Open();
  Drag(Duty(), Duty().width() / 4);
  const int duty = Duty().value();
  EXPECT_GT(duty, 60);
  EXPECT_LT(duty, 90);
  EXPECT_EQ(Shown(),
            QString("20|%1|%1|%2").arg(duty).arg(duty > 80 ? "6|2.13|3.20" : "5|2.67|4.00"));
  EXPECT_EQ(Module1.HalDutyCycle, TaggedField(static_cast<double>(duty)));
  EXPECT_EQ(Module1.HalExertionFrequency, TaggedField(20.0));
  EXPECT_EQ(Module1.JobDirty, kTrue);
  ExpectReportOfTheJob();
}

TEST_F(HalSliders, PressOnTheDutyTakesItsValueEvenWhereItStands) {
  Module1.HalDutyCycle = 150.0;
  Module1.HalExertionFrequency = 20.0;
  Open();
  EXPECT_EQ(Shown(), "20|150|100|0|5.33|8.00");
  QTest::mouseClick(&Duty(), Qt::LeftButton, {}, HandleOf(Duty()).center());
  EXPECT_EQ(Shown(), "20|100|100|6|2.13|3.20");
  EXPECT_EQ(Stored(), "20|100|6");
}

TEST_F(HalSliders, DutyWithoutAHeldButtonStoresNothing) {
  Module1.HalDutyCycle = 50.0;
  Open();
  const JobState before = Module1;
  MoveMouse(Duty(), HandleOf(Duty()).center(), Qt::NoButton);
  QTest::keyClick(&Duty(), Qt::Key_Right);
  EXPECT_EQ(Shown(), "0|50|51|0|5.33|8.00");
  EXPECT_EQ(Module1, before);
}

struct KeyRow {
  Qt::Key key;
  int value;
  const char* level;
  const char* shown;
};

TEST_F(HalSliders, LevelMovedByKeysWipesTheBoxesAndLeavesTheDutySlider) {
  for (const KeyRow& row : {KeyRow{Qt::Key_Right, 6, "6.0", "||50|6|2.13|3.20"},
                            KeyRow{Qt::Key_Left, 4, "4.0", "||50|4|3.20|4.80"},
                            KeyRow{Qt::Key_PageUp, 7, "7.0", "||50|7|1.60|2.40"},
                            KeyRow{Qt::Key_PageDown, 3, "3.0", "||50|3|3.73|5.60"},
                            KeyRow{Qt::Key_Home, 0, "0.0", "||50|0|5.33|8.00"},
                            KeyRow{Qt::Key_End, 10, "10.0", "||50|10|0.00|0.00"}}) {
    Module1 = JobState{};
    Module1.HalExertionFrequency = 20.0;
    Module1.HalDutyCycle = 50.0;
    Module1.HalActivityLevel = Integer{5};
    Open();
    QTest::keyClick(&Level(), row.key);
    EXPECT_EQ(Shown(), row.shown);
    EXPECT_EQ(Module1.HalActivityLevel, TaggedField(row.level));
    EXPECT_EQ(Module1.HalExertionFrequency, TaggedField(0.0)) << row.level;
    EXPECT_EQ(Module1.HalDutyCycle, TaggedField(0.0)) << row.level;
    EXPECT_EQ(Module1.JobDirty, kTrue) << row.level;
    EXPECT_EQ(QToolTip::text(), row.level);
    EXPECT_EQ(Level().toolTip(), "Hand Activity Level Scale");
    ExpectReportOfTheJob();
    EXPECT_FALSE(Pane().toPlainText().contains("Exertion Frequency")) << row.level;
  }
}

TEST_F(HalSliders, LevelMovesByMouseAndWheelToo) {
  Open();
  Type(Box(0), "20");
  Type(Box(1), "50");
  Drag(Level(), Level().width() / 5);
  EXPECT_EQ(Shown(), "||50|7|1.60|2.40");
  EXPECT_EQ(Stored(), "0|0|7.0");
  const QPointF middle(Level().rect().center());
  QWheelEvent wheel(middle, Level().mapToGlobal(middle), {}, QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&Level(), &wheel);
  EXPECT_LT(Level().value(), 7);
  EXPECT_EQ(Module1.HalActivityLevel.AsDouble(), Level().value());
}

TEST_F(HalReportPane, HandIsPrintedAtOnceAndMarksNothing) {
  Open();
  for (const int hand : {1, 0}) {
    auto& option = Find<QRadioButton>(*form_, QString("SSOption5(%1)").arg(hand));
    QTest::mouseClick(&option, Qt::LeftButton, {}, QPoint(8, option.height() / 2));
    EXPECT_EQ(Module1.Hand, hand);
    EXPECT_TRUE(option.isChecked());
    EXPECT_TRUE(
        Pane().toPlainText().contains(hand == 1 ? "\nHand: Left Side\n" : "\nHand: Right Side\n"));
    ExpectReportOfTheJob();
  }
  EXPECT_EQ(Module1.JobDirty, kFalse);
  EXPECT_EQ(Shown(), "0|0|0|0|5.33|8.00");
}

TEST_F(HalReportPane, NamesArePrintedAtOnce) {
  Open();
  for (const auto& [index, line] : {std::pair{0, "\nAnalyst: Ann\n"},
                                    {1, "\nJob Name: Ann\n"},
                                    {2, "\nWorkstation ID: Ann\n"}}) {
    Module1.JobDirty = kFalse;
    Type(Identification(index), "Ann");
    EXPECT_TRUE(Pane().toPlainText().contains(line)) << line;
    EXPECT_EQ(Module1.JobDirty, kTrue) << line;
  }
  EXPECT_EQ(Shown(), "0|0|0|0|5.33|8.00") << "the level is not set by these keys";
}

TEST_F(HalReportPane, SelectAllLeavesTheFocus) {
  Open();
  Box(0).setFocus();
  Choose(*form_, "mnuEditSelect");
  EXPECT_TRUE(Box(0).hasFocus());
  EXPECT_EQ(Pane().SelectedText(), Pane().toPlainText());
  EXPECT_GT(Pane().SelectedText().size(), 200);
  EXPECT_TRUE(platform.clipboard().isEmpty());
}

TEST_F(HalReportPane, CopyTakesTheWholeReportAndLeavesTheFocus) {
  Open();
  const QString whole = Pane().toPlainText();
  ASSERT_TRUE(whole.startsWith("ACGIH Hand Activity Level (HAL)\n"));
  for (const int selected : {0, 5}) {
    Pane().Select(3, selected);
    Box(0).setFocus();
    Choose(*form_, "mnuEditCopy");
    EXPECT_TRUE(Box(0).hasFocus()) << selected;
    EXPECT_EQ(platform.clipboard().mid(platform.clipboard().size() - 2),
              (QStringList{"clear", "text: " + whole}));
    EXPECT_EQ(Pane().SelectedText(), whole);
  }
}

TEST_F(HalReportPane, PrintHasTheLatestValues) {
  Open();
  Module1.JobName = "Packing";
  Module1.HalActivityLevel = Integer{8};
  platform.WillChoosePrinter(false);
  Choose(*form_, "mnuPrint");
  EXPECT_EQ(LabelText("Label3(1)"), "5.33");
  platform.WillChoosePrinter(true);
  Choose(*form_, "mnuPrint");
  ASSERT_EQ(platform.printed().size(), 1);
  EXPECT_EQ(platform.printed()[0], Pane().toPlainText());
  EXPECT_TRUE(platform.printed()[0].contains("\nJob Name: Packing\n"));
  EXPECT_TRUE(platform.printed()[0].endsWith("Action Level: 1.07\nThreshold Limit Value: 1.60"));
  EXPECT_EQ(LabelText("Label3(1)"), "1.07");
  EXPECT_EQ(LabelText("Label3(2)"), "1.60");
  EXPECT_FALSE(Pane().textCursor().hasSelection());
}

}  // namespace
}  // namespace halvane
