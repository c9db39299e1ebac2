// The second tab of the CTD Risk Index form: body parts, posture frames, loads and durations.
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "core/number_text.h"
#include "core/task_list.h"
#include "tests/forms/ctd_form_support.h"
#include "tools/ctd/ctd_controls.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

/// The form on a job of two tasks, the second on the form, with the posture tab open.
class CtdPostureTest : public CtdFormTest {
 protected:
  void OpenPostures() {
    AddTaskRecord();
    AddTaskRecord();
    Load();
    OpenTab(1);
  }
  void ClickPart(int part) const { Click(ElementName("SSRibbon3", part)); }
  /// The posture frames that show, from the top.
  [[nodiscard]] QStringList ShownFrames() const {
    std::map<int, QString> frames;
    for (int i = 0; i < kCtdSlotCount; ++i) {
      const auto& frame = Control<QGroupBox>(ElementName("SSFrame3", i));
      if (frame.isVisible()) frames[frame.y()] = frame.title();
    }
    QStringList names;
    for (const auto& [top, name] : frames) names.append(name);
    return names;
  }
  /// The posture frame with that caption.
  [[nodiscard]] QGroupBox& FrameOf(const QString& caption) const {
    for (int i = 0; i < kCtdSlotCount; ++i) {
      auto& frame = Control<QGroupBox>(ElementName("SSFrame3", i));
      if (frame.title() == caption) return frame;
    }
    throw std::runtime_error("no frame " + caption.toStdString());
  }
};

class CtdBodyParts : public CtdPostureTest {};
class CtdPostures : public CtdPostureTest {};
class CtdHeldLoads : public CtdPostureTest {};

struct PartRow {
  const char* caption;
  QStringList frames;
};

const std::vector<PartRow>& Parts() {
  static const std::vector<PartRow> rows{
      {"Shoulder Flexion/Extension",
       {"Left Shoulder Flexion/Extension", "Right Shoulder Flextion/Extension"}},
      {"Shoulder Abduction", {"Left Shoulder Abduction", "Right Shoulder Abduction"}},
      {"Elbow Flexion/Extension",
       {"Left Elbow Flextion/Extension", "Right Elbow Flexion/Extension"}},
      {"Neck + Back", {"Back Flexion", "Neck Flexion"}},
  };
  return rows;
}

TEST_F(CtdBodyParts, RibbonsHaveTheirCaptionsOneBelowTheOther) {
  OpenPostures();
  int top = -1;
  for (int part = 0; part < 4; ++part) {
    const auto& ribbon = Control<RibbonButton>(ElementName("SSRibbon3", part));
    EXPECT_EQ(ribbon.text(), Parts()[static_cast<std::size_t>(part)].caption);
    EXPECT_TRUE(Control("SSPanel2").isAncestorOf(&ribbon));
    EXPECT_GT(ribbon.y(), top);
    top = ribbon.y();
  }
}

TEST_F(CtdBodyParts, RibbonsAreHiddenUntilTheJobHasHadATask) {
  Load();
  const auto visible = [this] {
    OpenTab(1);
    std::string shown;
    for (int part = 0; part < 4; ++part) {
      shown += Control(ElementName("SSRibbon3", part)).isVisible() ? '1' : '0';
    }
    OpenTab(0);
    return shown;
  };
  EXPECT_EQ(visible(), "0000");
  Click("SSCommand1(0)");
  EXPECT_EQ(visible(), "1111");
  platform.WillAnswer(Answer::Yes);
  Click("SSCommand1(1)");
  EXPECT_EQ(visible(), "1111") << "the task was deleted";
}

TEST_F(CtdBodyParts, NoFrameShowsUntilOneIsChosen) {
  OpenPostures();
  EXPECT_EQ(ShownFrames(), QStringList());
  EXPECT_EQ(Down("SSRibbon3"), "");
}

TEST_F(CtdBodyParts, EachShowsItsTwoFramesAloneAndMarksTheJob) {
  OpenPostures();
  for (int part = 0; part < 4; ++part) {
    Module1.JobDirty = kFalse;
    ClickPart(part);
    EXPECT_EQ(ShownFrames(), Parts()[static_cast<std::size_t>(part)].frames);
    EXPECT_TRUE(Control(ElementName("SSFrame3", 2 * part)).isVisible()) << part;
    EXPECT_TRUE(Control(ElementName("SSFrame3", 2 * part + 1)).isVisible()) << part;
    EXPECT_EQ(Down("SSRibbon3"), std::to_string(part));
    EXPECT_EQ(Module1.JobDirty, kTrue) << part;
  }
}

TEST_F(CtdBodyParts, ClickedAgainStaysDown) {
  OpenPostures();
  ClickPart(2);
  Module1.CtdLoadHeld.at(2, 4) = 3.5;
  ClickPart(2);
  EXPECT_EQ(Down("SSRibbon3"), "2");
  EXPECT_EQ(ShownFrames(), Parts()[2].frames);
  EXPECT_EQ(TextOf("Text3(4)"), "3.5") << "filled again";
}

/// Numbers of task `task` in `slot` that no other slot has.
double LoadOf(int task, int slot) { return 10 * task + slot + 0.5; }
double DurationOf(int task, int slot) { return task + slot / 10.0; }

void FillPostures(int task, Integer category) {
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    StoreCtdCategory(slot, task, category);
    if (slot < 7) Module1.CtdLoadHeld.at(task, slot) = LoadOf(task, slot);
    Module1.CtdPostureDuration.at(task, slot) = DurationOf(task, slot);
  }
}

TEST_F(CtdBodyParts, EachFillsItsTwoFramesFromTheTask) {
  OpenPostures();
  FillPostures(1, 1);
  FillPostures(2, 2);
  const std::vector<CtdArrayRow> arrays = CtdPostureArrays();
  for (int part = 0; part < 4; ++part) {
    ClickPart(part);
    for (int slot = 0; slot < kCtdSlotCount; ++slot) {
      SCOPED_TRACE("part " + std::to_string(part) + ", slot " + std::to_string(slot));
      const bool filled = slot / 2 <= part;
      EXPECT_EQ(Down(arrays[static_cast<std::size_t>(slot)].array), filled ? "2" : "0");
      const auto shown = [filled](double number) {
        return filled ? QString::fromStdString(PlainText(number)) : QString();
      };
      EXPECT_EQ(TextOf(ElementName("Text4", slot)), shown(DurationOf(2, slot)));
      if (slot == 7) continue;
      EXPECT_EQ(TextOf(ElementName("Text3", slot)), shown(LoadOf(2, slot)));
    }
  }
}

TEST_F(CtdBodyParts, BoxesAreFilledWithPlainText) {
  OpenPostures();
  Module1.CtdLoadHeld.at(2, 6) = 1E-05;
  Module1.CtdPostureDuration.at(2, 6) = 1.0 / 3;
  ClickPart(3);
  EXPECT_EQ(TextOf("Text3(6)"), "1E-05");
  EXPECT_EQ(TextOf("Text4(6)"), "0.333333333333333");
  EXPECT_EQ(TextOf("Text4(7)"), "0");
}

TEST_F(CtdBodyParts, OneIsRememberedForTheNextTask) {
  OpenPostures();
  FillPostures(1, 1);
  FillPostures(2, 2);
  ClickPart(2);
  EXPECT_EQ(TextOf("Text3(4)"), "24.5");
  SelectNode(0);
  EXPECT_EQ(ShownFrames(), Parts()[2].frames);
  EXPECT_EQ(Down("SSRibbon3"), "2");
  EXPECT_EQ(Down("SSctdLtElbowFlexT"), "1");
  EXPECT_EQ(Down("SSctdRtElbowFlexT"), "1");
  EXPECT_EQ(TextOf("Text3(4)"), "14.5");
  EXPECT_EQ(TextOf("Text4(5)"), "1.5");
  Click("SSCommand1(0)");
  EXPECT_EQ(Down("SSRibbon3"), "2");
  EXPECT_EQ(Down("SSctdLtElbowFlexT"), "0");
  EXPECT_EQ(TextOf("Text3(4)"), "0");
}

TEST_F(CtdBodyParts, TabHidesTheFramesUntilTheNextTaskIsShown) {
  OpenPostures();
  for (const int other : {0, 2}) {
    ClickPart(1);
    OpenTab(other);
    OpenTab(1);
    EXPECT_EQ(ShownFrames(), QStringList()) << other;
    EXPECT_EQ(Down("SSRibbon3"), "") << other;
    SelectNode(0);
    EXPECT_EQ(ShownFrames(), Parts()[1].frames) << other;
    EXPECT_EQ(Down("SSRibbon3"), "1") << other;
  }
}

TEST_F(CtdBodyParts, LoadForgetsIt) {
  OpenPostures();
  ClickPart(1);
  Load();
  OpenTab(1);
  EXPECT_EQ(ShownFrames(), QStringList());
  SelectNode(0);
  EXPECT_EQ(ShownFrames(), QStringList());
  EXPECT_EQ(Down("SSRibbon3"), "");
}

/// A frame, its ribbons and its boxes.
struct FrameRow {
  const char* frame;
  const char* array;
  QStringList boxes;
};

TEST_F(CtdPostures, FramesHoldTheirRibbonsAndBoxesWithTheShouldersCrossed) {
  OpenPostures();
  const std::vector<FrameRow> rows{
      {"Right Shoulder Flextion/Extension", "SSctdRtShoulFlexT", {"Text3(0)", "Text4(0)"}},
      {"Left Shoulder Flexion/Extension", "SSctdLtShoulFlexT", {"Text3(1)", "Text4(1)"}},
      {"Right Shoulder Abduction", "SSctdRtShoulABD", {"Text3(2)", "Text4(2)"}},
      {"Left Shoulder Abduction", "SSctdLtShoulABD", {"Text3(3)", "Text4(3)"}},
      {"Left Elbow Flextion/Extension", "SSctdLtElbowFlexT", {"Text3(4)", "Text4(4)"}},
      {"Right Elbow Flexion/Extension", "SSctdRtElbowFlexT", {"Text3(5)", "Text4(5)"}},
      {"Back Flexion", "SSctdBack", {"Text3(6)", "Text4(6)"}},
      {"Neck Flexion", "SSctdNeck", {"Text4(7)"}},
  };
  for (const FrameRow& row : rows) {
    const QGroupBox& frame = FrameOf(row.frame);
    QStringList boxes;
    for (const auto* box : frame.findChildren<QLineEdit*>()) boxes.append(box->objectName());
    EXPECT_EQ(boxes, row.boxes) << row.frame;
    for (const auto* ribbon : frame.findChildren<RibbonButton*>()) {
      EXPECT_TRUE(ribbon->objectName().startsWith(QString(row.array) + "(")) << row.frame;
    }
  }
}

TEST_F(CtdPostures, LoadInTheFrameOfTheRightShoulderIsStoredForTheSlotOfTheLeft) {
  OpenPostures();
  ClickPart(0);
  auto& right = FrameOf("Right Shoulder Flextion/Extension");
  QTest::mouseClick(&Find<RibbonButton>(right, "SSctdRtShoulFlexT(3)"), Qt::LeftButton);
  const auto boxes = right.findChildren<QLineEdit*>();
  ASSERT_EQ(boxes.size(), 2);
  Type(boxes[0]->objectName(), "4");
  Type(boxes[1]->objectName(), "0.5");
  EXPECT_EQ(CtdCategoryOf(1, 2), 3) << "the category is the right shoulder's";
  EXPECT_EQ(CtdCategoryOf(0, 2), 0);
  EXPECT_EQ(Module1.CtdLoadHeld.at(2, 0), 4) << "the load is the left shoulder's";
  EXPECT_EQ(Module1.CtdLoadHeld.at(2, 1), 0);
  EXPECT_EQ(Module1.CtdPostureDuration.at(2, 0), 0.5);
  EXPECT_EQ(Module1.CtdPostureDuration.at(2, 1), 0);
}

TEST_F(CtdPostures, RibbonsHaveTheirIndexCaptionAndTip) {
  OpenPostures();
  int slot = 0;
  for (const CtdArrayRow& row : CtdPostureArrays()) {
    SCOPED_TRACE(row.array);
    ClickPart(slot++ / 2);
    QCoreApplication::processEvents();
    const QGroupBox& frame = FrameOf(row.frame);
    EXPECT_EQ(frame.findChildren<RibbonButton*>().size(),
              static_cast<qsizetype>(row.ribbons.size()));
    int left = -1;
    for (const auto& [index, caption] : row.ribbons) {
      const auto& ribbon = Find<RibbonButton>(frame, ElementName(row.array, index));
      EXPECT_EQ(ribbon.text(), caption);
      EXPECT_EQ(ribbon.toolTip(), caption);
      EXPECT_GT(ribbon.x(), left);
      left = ribbon.x();
    }
  }
}

TEST_F(CtdPostures, EveryRibbonStoresItsIndexInTheFieldOfItsSlot) {
  OpenPostures();
  int slot = 0;
  for (const CtdArrayRow& row : CtdPostureArrays()) {
    ClickPart(slot / 2);
    EXPECT_EQ(Down(row.array), "0");
    for (std::size_t i = 1; i <= row.ribbons.size(); ++i) {
      // The one with code 0 is down at first, so it comes last.
      const int index = row.ribbons[i % row.ribbons.size()].first;
      SCOPED_TRACE(std::string(row.array) + " " + std::to_string(index));
      Module1.JobDirty = kFalse;
      JobState expected = Module1;
      std::swap(Module1, expected);
      StoreCtdCategory(slot, 2, static_cast<Integer>(index));
      Module1.JobDirty = kTrue;
      std::swap(Module1, expected);
      Click(ElementName(row.array, index));
      EXPECT_TRUE(Module1 == expected);
      EXPECT_EQ(Down(row.array), std::to_string(index));
    }
    ++slot;
  }
  EXPECT_EQ(slot, kCtdSlotCount);
}

TEST_F(CtdPostures, FieldsAreTheSlotsOwn) {
  OpenPostures();
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    ClickPart(slot / 2);
    const CtdArrayRow row = CtdPostureArrays()[static_cast<std::size_t>(slot)];
    Click(ElementName(row.array, 1 + slot % 2));
  }
  EXPECT_EQ(Module1.CtdLtShoulderFlexion.at(2), TaggedField(Integer{1}));
  EXPECT_EQ(Module1.CtdRtShoulderFlexion.at(2), TaggedField(Integer{2}));
  EXPECT_EQ(Module1.CtdLtShoulderAbduction.at(2), TaggedField(Integer{1}));
  EXPECT_EQ(Module1.CtdRtShoulderAbduction.at(2), TaggedField(Integer{2}));
  EXPECT_EQ(Module1.CtdLtElbowFlexion.at(2), TaggedField(Integer{1}));
  EXPECT_EQ(Module1.CtdRtElbowFlexion.at(2), TaggedField(Integer{2}));
  EXPECT_EQ(Module1.CtdBackFlexion.at(2), TaggedField(Integer{1}));
  EXPECT_EQ(Module1.CtdNeckFlexion.at(2), 2);
}

TEST_F(CtdPostures, CategoryWithoutARibbonEndsTheProgramWhenItsPartIsChosen) {
  OpenPostures();
  Module1.CtdBackFlexion.at(2) = Integer{4};
  EndedOn("Subscript out of range", [this] { ClickPart(3); });
}

TEST_F(CtdPostures, CategoryWithoutARibbonEndsTheShowingOfItsTaskQuietly) {
  OpenPostures();
  FillPostures(1, 1);
  FillPostures(2, 2);
  Module1.CtdNeckFlexion.at(1) = 4;
  ClickPart(3);
  SelectNode(0);
  EXPECT_EQ(CurrentTask(), 1);
  EXPECT_EQ(Down("SSctdBack"), "1");
  EXPECT_EQ(Down("SSctdNeck"), "2") << "as the task before had it";
  EXPECT_EQ(TextOf("Text3(6)"), "26.5");
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(CtdHeldLoads, EveryBoxStoresInItsSlotAndMarksTheJob) {
  OpenPostures();
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    ClickPart(slot / 2);
    for (const char* array : {"Text3", "Text4"}) {
      const bool isLoad = array == std::string("Text3");
      if (isLoad && slot == 7) continue;
      SCOPED_TRACE(array + std::to_string(slot));
      Module1.JobDirty = kFalse;
      JobState expected = Module1;
      expected.JobDirty = kTrue;
      (isLoad ? expected.CtdLoadHeld : expected.CtdPostureDuration).at(2, slot) = 1.5;
      Type(ElementName(array, slot), "1.5 of it");
      EXPECT_TRUE(Module1 == expected);
      Type(ElementName(array, slot), "none");
      (isLoad ? expected.CtdLoadHeld : expected.CtdPostureDuration).at(2, slot) = 0;
      EXPECT_TRUE(Module1 == expected) << "no number";
    }
  }
}

TEST_F(CtdHeldLoads, FocusSelectsAll) {
  OpenPostures();
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    ClickPart(slot / 2);
    for (const QString& name : {ElementName("Text3", slot), ElementName("Text4", slot)}) {
      if (name == "Text3(7)") continue;
      auto& box = Control<QLineEdit>(name);
      QTest::mouseClick(&box, Qt::LeftButton);
      EXPECT_EQ(box.selectedText(), "0") << name.toStdString();
    }
  }
}

TEST_F(CtdHeldLoads, LoadsAreInKilogramsAndDurationsInMinutesWhateverTheUnits) {
  for (const Integer units : {Integer{1}, Integer{0}}) {
    Module1 = JobState{};
    Module1.Units = units;
    OpenPostures();
    std::map<QString, int> frames;
    for (int i = 0; i < kCtdSlotCount; ++i) {
      const auto& posture = Control<QGroupBox>(ElementName("SSFrame3", i));
      for (const auto* frame : posture.findChildren<QGroupBox*>()) {
        const auto labels = frame->findChildren<QLabel*>();
        ASSERT_EQ(labels.size(), 1);
        ++frames[frame->title() + ": " + labels[0]->text()];
      }
    }
    EXPECT_EQ(frames,
              (std::map<QString, int>{{"Load Held: kg", 7}, {"Duration Posture Held: min", 8}}));
  }
  EXPECT_EQ(Control("Text3(0)").parentWidget()->property("title").toString(), "Load Held");
  EXPECT_EQ(Control("Text4(0)").parentWidget()->property("title").toString(),
            "Duration Posture Held");
}

/// The form on task 41 with the frames of a body part that was chosen at task 40.
class CtdTask41 : public CtdPostureTest {
 protected:
  void SetUp() override {
    for (int i = 0; i < 40; ++i) AddTaskRecord();
    Module1.CtdLoadHeld.at(40, 0) = 7;
    Load();
    OpenTab(1);
    ClickPart(0);
    Click("SSCommand1(0)");
  }
  /// Types a digit into a box, which has to end the program with the tasks that a file can hold.
  void ExpectEndAt(const QString& box) {
    Control(box).setFocus();
    const std::string copy = EndedOn("Subscript out of range",
                                     [this, &box] { QTest::keyClick(&Control(box), Qt::Key_5); });
    EXPECT_NE(copy.find("\"Task 40\",1\r\n"), std::string::npos);
    EXPECT_EQ(copy.find("\"Task 41\""), std::string::npos);
  }
};

TEST_F(CtdTask41, IsShownQuietlyWithTheBoxesOfTheTaskBefore) {
  EXPECT_EQ(CurrentTask(), 41);
  EXPECT_EQ(SelectedNode(), "Task 41");
  EXPECT_EQ(ShownFrames(), Parts()[0].frames);
  EXPECT_EQ(TextOf("Text3(0)"), "7");
  EXPECT_TRUE(platform.messages().empty());
}

TEST_F(CtdTask41, LoadAndDurationEndTheProgram) {
  ExpectEndAt("Text3(0)");
  ExpectEndAt("Text4(1)");
}

TEST_F(CtdTask41, BodyPartEndsTheProgram) {
  EndedOn("Subscript out of range", [this] { ClickPart(3); });
}

TEST_F(CtdTask41, ReportEndsTheProgram) {
  EndedOn("Subscript out of range", [this] { OpenTab(2); });
}

TEST_F(CtdTask41, ItsPosturesAndEffortCanBeEntered) {
  Click("SSctdLtShoulFlexT(2)");
  EXPECT_EQ(CtdCategoryOf(0, 41), 2);
  OpenTab(0);
  Type("Text1(2)", "0.5");
  EXPECT_EQ(Module1.CtdWorkTime.at(41), TaggedField(0.5));
  EXPECT_TRUE(platform.messages().empty());
}

}  // namespace
}  // namespace halvane
