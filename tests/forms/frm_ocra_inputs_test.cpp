// What each input of the OCRA form stores when the user moves, types or clicks.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>

#include "core/number_text.h"
#include "core/task_list.h"
#include "tests/forms/ocra_form_support.h"

namespace halvane {
namespace {

class OcraBoxes : public OcraFormTest {};
class OcraHand : public OcraFormTest {};
class OcraSliders : public OcraFormTest {};
class OcraLists : public OcraFormTest {};
class OcraTicks : public OcraFormTest {};

/// A box and the field that it stands for.
struct BoxRow {
  const char* box;
  std::function<std::string()> value;
  bool isNumber;
};

std::vector<BoxRow> Boxes() {
  return {
      {"Text3(0)", [] { return Module1.JobAnalyst.AsText(); }, false},
      {"Text3(1)", [] { return Module1.JobName.AsText(); }, false},
      {"Text3(2)", [] { return Module1.JobWorkstationId; }, false},
      {"Text2(1)", [] { return PlainText(Module1.JobCycleTime); }, true},
      {"Text1(2)", [] { return PlainText(Module1.OcraTaskDuration.at(2)); }, true},
      {"Text1(5)", [] { return Module1.OcraActionFrequency.at(2).AsText(); }, true},
  };
}

std::vector<std::string> ValuesOfBoxes() {
  std::vector<std::string> values;
  for (const BoxRow& row : Boxes()) values.push_back(row.value());
  return values;
}

/// Two tasks on screen, of which the second is selected.
class OcraBoxesOfTaskTwo : public OcraBoxes {
 protected:
  void SetUp() override {
    AddTaskOf(10, 1, 0.5);
    AddTaskOf(20, 2, 1);
    Show();
    ClickNode(1);
    Module1.JobDirty = kFalse;
  }
};

TEST_F(OcraBoxesOfTaskTwo, ThereAreSixAndNoMore) {
  QStringList names;
  for (const auto* box : form->findChildren<QLineEdit*>()) names.append(box->objectName());
  names.sort();
  EXPECT_EQ(names,
            (QStringList{"Text1(2)", "Text1(5)", "Text2(1)", "Text3(0)", "Text3(1)", "Text3(2)"}));
}

TEST_F(OcraBoxesOfTaskTwo, EveryReleasedKeyStoresInTheBoxsOwnField) {
  std::size_t at = 0;
  for (const BoxRow& row : Boxes()) {
    SCOPED_TRACE(row.box);
    Module1.JobDirty = kFalse;
    std::vector<std::string> expected = ValuesOfBoxes();
    Type(row.box, row.isNumber ? "1.5 h" : " 1.5 h ");
    expected.at(at++) = row.isNumber ? "1.5" : " 1.5 h ";
    EXPECT_EQ(ValuesOfBoxes(), expected);
    EXPECT_EQ(Module1.JobDirty, kTrue);
  }
  EXPECT_EQ(Module1.OcraTaskDuration.at(1), 10);
  EXPECT_EQ(Module1.OcraActionFrequency.at(1), TaggedField(1.0));
  EXPECT_EQ(Module1.OcraActionFrequency.at(2), TaggedField(1.5)) << "a number, not a text";
  EXPECT_EQ(Module1.JobAnalyst, TaggedField(" 1.5 h "));
}

TEST_F(OcraBoxesOfTaskTwo, KeyThatChangesNothingMarksTheJobToo) {
  for (const BoxRow& row : Boxes()) {
    Module1.JobDirty = kFalse;
    const std::vector<std::string> before = ValuesOfBoxes();
    QTest::keyClick(&Box(row.box), Qt::Key_Shift);
    EXPECT_EQ(Module1.JobDirty, kTrue) << row.box;
    EXPECT_EQ(ValuesOfBoxes(), before) << row.box;
  }
}

TEST_F(OcraBoxesOfTaskTwo, FieldFollowsEveryKeyThatIsReleased) {
  Box("Text1(2)").selectAll();
  QTest::keyClick(&Box("Text1(2)"), Qt::Key_1);
  EXPECT_EQ(Module1.OcraTaskDuration.at(2), 1);
  QTest::keyPress(&Box("Text1(2)"), Qt::Key_2);
  EXPECT_EQ(Module1.OcraTaskDuration.at(2), 1);
  QTest::keyRelease(&Box("Text1(2)"), Qt::Key_2);
  EXPECT_EQ(Module1.OcraTaskDuration.at(2), 12);
}

TEST_F(OcraBoxesOfTaskTwo, TextThatIsNoNumberIsZeroAndStaysOnScreen) {
  Module1.JobCycleTime = 9;
  for (const BoxRow& row : Boxes()) {
    if (!row.isNumber) continue;
    Type(row.box, "many");
    EXPECT_EQ(row.value(), "0") << row.box;
    EXPECT_EQ(Box(row.box).text(), "many");
  }
}

TEST_F(OcraBoxesOfTaskTwo, NumbersHaveNoLimit) {
  Type("Text1(2)", "-1e9");
  EXPECT_EQ(Module1.OcraTaskDuration.at(2), -1E9);
  Type("Text2(1)", "1e300");
  EXPECT_EQ(Module1.JobCycleTime, 1E300);
}

TEST_F(OcraBoxesOfTaskTwo, FocusSelectsTheWholeText) {
  for (const BoxRow& row : Boxes()) {
    QLineEdit& box = Box(row.box);
    box.setText("some text");
    Tree().setFocus();
    box.deselect();
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_EQ(box.selectedText(), "some text") << row.box;
  }
  QTest::keyClick(&Box("Text1(5)"), Qt::Key_Tab, Qt::ShiftModifier);
  ASSERT_TRUE(Box("Text1(2)").hasFocus());
  EXPECT_EQ(Box("Text1(2)").selectedText(), "some text");
}

TEST_F(OcraBoxes, TypedBeforeAnyTaskChangeNoTask) {
  Show();
  Type("Text1(2)", "5");
  Type("Text1(5)", "6");
  QTest::keyClick(&Slider("Slider1"), Qt::Key_End);
  EXPECT_EQ(Module1.JobDirty, kTrue);
  ClickButton("SSCommand1(0)");
  EXPECT_EQ(Module1.OcraTaskDuration.at(1), 0);
  EXPECT_EQ(Module1.OcraActionFrequency.at(1), TaggedField(Integer{0}));
  EXPECT_EQ(Module1.OcraForceRating.at(1), 0);
  EXPECT_EQ(Box("Text1(2)").text(), "0");
  EXPECT_EQ(Slider("Slider1").value(), 0);
}

TEST_F(OcraHand, ClickAndArrowKeyStoreTheOptionAndMarkTheJob) {
  Show();
  for (const int hand : {1, 0}) {
    Module1.JobDirty = kFalse;
    auto& option = The<QRadioButton>(QString("SSOption1(%1)").arg(hand));
    QTest::mouseClick(&option, Qt::LeftButton, {}, QPoint(8, option.height() / 2));
    EXPECT_EQ(Module1.Hand, hand);
    EXPECT_EQ(Module1.JobDirty, kTrue);
    EXPECT_TRUE(option.isChecked());
  }
  Module1.JobDirty = kFalse;
  The<QRadioButton>("SSOption1(0)").setFocus();
  QTest::keyClick(&The<QRadioButton>("SSOption1(0)"), Qt::Key_Right);
  EXPECT_EQ(Module1.Hand, 1);
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(OcraHand, ChosenOptionClickedAgainChangesNothing) {
  Show();
  auto& option = The<QRadioButton>("SSOption1(0)");
  QTest::mouseClick(&option, Qt::LeftButton, {}, QPoint(8, option.height() / 2));
  EXPECT_TRUE(Module1 == JobState{});
}

/// A key and where it moves a slider to.
struct KeyRow {
  Qt::Key key;
  int position;
};

TEST_F(OcraSliders, RecoverySliderMovesByItsStepsAndStoresWholeHours) {
  Show();
  const std::vector<KeyRow> rows{
      {Qt::Key_Right, 1}, {Qt::Key_PageUp, 6},   {Qt::Key_Left, 5},
      {Qt::Key_End, 10},  {Qt::Key_PageDown, 5}, {Qt::Key_Home, 0},
      {Qt::Key_Up, 1},    {Qt::Key_PageUp, 6},   {Qt::Key_PageUp, 10},
  };
  for (const KeyRow& row : rows) {
    Module1.JobDirty = kFalse;
    QTest::keyClick(&Slider("Slider2"), row.key);
    EXPECT_EQ(Slider("Slider2").value(), row.position);
    EXPECT_EQ(Module1.OcraRecoveryHours, TaggedField(static_cast<Integer>(row.position)));
    EXPECT_EQ(Module1.JobDirty, kTrue);
    EXPECT_EQ(LabelsIn("SSFrame1(0)"), QStringList{QString::number(row.position)});
  }
}

TEST_F(OcraSliders, ForceSliderMovesByItsStepsAndStoresHalves) {
  AddTaskOf(10, 1, 0);
  Show();
  const std::vector<KeyRow> rows{
      {Qt::Key_Right, 1}, {Qt::Key_PageUp, 3},   {Qt::Key_PageUp, 5}, {Qt::Key_Left, 4},
      {Qt::Key_End, 10},  {Qt::Key_PageDown, 8}, {Qt::Key_Home, 0},
  };
  for (const KeyRow& row : rows) {
    Module1.JobDirty = kFalse;
    QTest::keyClick(&Slider("Slider1"), row.key);
    EXPECT_EQ(Slider("Slider1").value(), row.position);
    EXPECT_EQ(Module1.OcraForceRating.at(1), row.position / 2.0);
    EXPECT_EQ(Module1.JobDirty, kTrue);
  }
}

TEST_F(OcraSliders, EveryMarkOfTheForceSliderHasItsRatingAsTipAndReadout) {
  AddTaskOf(10, 1, 0);
  Show();
  EXPECT_EQ(Slider("Slider1").toolTip(), " ");
  const QStringList ratings{"0.5", "1.0", "1.5", "2.0", "2.5", "3.0", "3.5", "4.0", "4.5", "5.0"};
  for (const QString& rating : ratings) {
    QTest::keyClick(&Slider("Slider1"), Qt::Key_Right);
    EXPECT_EQ(Slider("Slider1").toolTip(), rating);
    EXPECT_EQ(LabelsIn("SSFrame1(4)"), QStringList{rating});
    EXPECT_EQ(Module1.OcraForceRating.at(1), ReadsAs(rating.toStdString()));
  }
  QTest::keyClick(&Slider("Slider1"), Qt::Key_Home);
  EXPECT_EQ(Slider("Slider1").toolTip(), "0.0");
}

/// Clicks the groove of a slider near its right end.
void ClickGroove(QSlider& slider) {
  QStyleOptionSlider option;
  option.initFrom(&slider);
  option.orientation = slider.orientation();
  option.tickPosition = slider.tickPosition();
  option.minimum = slider.minimum();
  option.maximum = slider.maximum();
  const QRect groove =
      slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, &slider);
  QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(groove.right() - 4, groove.center().y()));
}

TEST_F(OcraSliders, ClickInTheGrooveMovesByTheLargeStep) {
  AddTaskOf(10, 1, 0);
  Show();
  ClickGroove(Slider("Slider2"));
  EXPECT_EQ(Module1.OcraRecoveryHours, TaggedField(Integer{5}));
  ClickGroove(Slider("Slider1"));
  EXPECT_EQ(Module1.OcraForceRating.at(1), 1);
}

TEST_F(OcraSliders, KeyThatMovesNothingLeavesTheJobClean) {
  AddTaskOf(10, 1, 0);
  Show();
  QTest::keyClick(&Slider("Slider1"), Qt::Key_Home);
  QTest::keyClick(&Slider("Slider2"), Qt::Key_Left);
  EXPECT_EQ(Module1.JobDirty, kFalse);
}

constexpr std::array kPartners{-1, -1, -1, -1, -1, -1, 7, 6, 9, 8, 11, 10, 13, 12};

TEST_F(OcraLists, PickedAnswerIsStoredAndMakesThePartnerNotApplicable) {
  for (int list = 0; list < 14; ++list) {
    for (int answer = 0; answer < 4; ++answer) {
      ShowAnswered(1);
      Module1.JobDirty = kFalse;
      Pick(list, answer);
      std::vector<int> expected(14, 1);
      expected.at(static_cast<std::size_t>(list)) = answer;
      const int partner = kPartners.at(static_cast<std::size_t>(list));
      // "Not Applicable" leaves the partner alone.
      if (partner >= 0 && answer != 3) expected.at(static_cast<std::size_t>(partner)) = 3;
      EXPECT_EQ(SavedAnswers(), expected) << "list " << list << ", answer " << answer;
      EXPECT_EQ(Module1.JobDirty, kTrue);
      for (int shown = 0; shown < 14; ++shown) {
        EXPECT_EQ(Combo(shown).currentIndex(), expected.at(static_cast<std::size_t>(shown)))
            << "list " << shown << " after list " << list << ", answer " << answer;
      }
    }
  }
}

TEST_F(OcraLists, SupinationSetsAnsweredPronationToNotApplicable) {
  Module1.OcraComboChoice.at(7) = 1;
  Show();
  ClickTab(1);
  EXPECT_EQ(Combo(7).currentText(), "2/3 of cycle/task time");
  Pick(6, 0);
  EXPECT_EQ(Combo(6).currentText(), "1/3 of cycle/task time");
  EXPECT_EQ(Combo(7).currentText(), "Not Applicable");
}

TEST_F(OcraLists, KeysOnAClosedListPickAnswersToo) {
  ShowAnswered(3);
  Combo(2).setFocus();
  QTest::keyClick(&Combo(2), Qt::Key_Up);
  EXPECT_EQ(Module1.OcraComboChoice.at(2), 2);
  QTest::keyClick(&Combo(2), Qt::Key_Home);
  EXPECT_EQ(Module1.OcraComboChoice.at(2), 0);
  QTest::keyClick(&Combo(2), Qt::Key_Down);
  EXPECT_EQ(Module1.OcraComboChoice.at(2), 1);
  QTest::keyClick(&Combo(2), Qt::Key_N);
  EXPECT_EQ(Module1.OcraComboChoice.at(2), 3);
  EXPECT_EQ(Module1.JobDirty, kTrue);
}

TEST_F(OcraLists, ListThatIsOpenedAndLeftChangesNothing) {
  ShowAnswered(3);
  const JobState before = Module1;
  QTest::keyClick(&Combo(6), Qt::Key_F4);
  QTest::keyClick(Combo(6).view(), Qt::Key_Home);
  QTest::keyClick(Combo(6).view(), Qt::Key_Escape);
  EXPECT_EQ(Combo(6).currentIndex(), 3);
  EXPECT_TRUE(Module1 == before);
}

/// The fields of the five tick boxes, by index of the box.
std::vector<TaggedField> TickFields() {
  return {Module1.OcraWristActions, Module1.OcraWristHold, Module1.OcraSameFingers,
          Module1.OcraHoldObject, Module1.OcraElbowGesture};
}

class OcraTickBoxes : public OcraTicks {
 protected:
  void SetUp() override {
    Show();
    ClickTab(1);
  }
  [[nodiscard]] QCheckBox& Check(int index) const {
    return The<QCheckBox>(QString("SSCheck1(%1)").arg(index));
  }
  /// The caption beside the box.
  [[nodiscard]] QLabel& CaptionOf(const QCheckBox& box) const {
    for (auto* label : form->findChildren<QLabel*>()) {
      if (label->text() == box.accessibleName()) return *label;
    }
    throw std::runtime_error("a box without a caption");
  }
  /// Expects that `act` ticks the box and that doing it again clears it, each time marking the job.
  void ExpectTicksAndClears(int index, const std::function<void()>& act) const {
    SCOPED_TRACE(index);
    for (const Integer value : {Integer{4}, Integer{0}}) {
      Module1.JobDirty = kFalse;
      std::vector<TaggedField> expected(5, Integer{0});
      expected.at(static_cast<std::size_t>(index)) = value;
      act();
      EXPECT_EQ(TickFields(), expected);
      EXPECT_EQ(Check(index).isChecked(), value == 4);
      EXPECT_EQ(Module1.JobDirty, kTrue);
    }
  }
};

TEST_F(OcraTickBoxes, ClickOnTheBoxStoresFourAndZero) {
  for (int i = 0; i < 5; ++i) {
    ExpectTicksAndClears(i, [&] {
      QTest::mouseClick(&Check(i), Qt::LeftButton, {}, QPoint(8, Check(i).height() / 2));
    });
  }
}

TEST_F(OcraTickBoxes, SpaceStoresFourAndZero) {
  for (int i = 0; i < 5; ++i) {
    ExpectTicksAndClears(i, [&] { QTest::keyClick(&Check(i), Qt::Key_Space); });
  }
}

TEST_F(OcraTickBoxes, ClickOnTheCaptionStoresFourAndZero) {
  for (int i = 0; i < 5; ++i) {
    ExpectTicksAndClears(i, [&] { QTest::mouseClick(&CaptionOf(Check(i)), Qt::LeftButton); });
  }
}

TEST_F(OcraTickBoxes, OtherButtonOrReleaseBesideTheCaptionTicksNothing) {
  QLabel& caption = CaptionOf(Check(0));
  QTest::mouseClick(&caption, Qt::RightButton);
  QTest::mousePress(&caption, Qt::LeftButton);
  QTest::mouseRelease(&caption, Qt::LeftButton, {}, QPoint(5, caption.height() + 20));
  EXPECT_FALSE(Check(0).isChecked());
  EXPECT_TRUE(Module1 == JobState{});
}

}  // namespace
}  // namespace halvane
