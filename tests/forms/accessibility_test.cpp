// What every window has to be for a screen reader: each control is found, once, with its role,
// name, group, description, value and state.
#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSlider>
#include <QTreeWidget>
#include <map>
#include <set>

#include "core/units.h"
#include "tests/forms/every_window.h"
#include "tests/support/spoken_tree.h"
#include "widgets/choice_group.h"
#include "widgets/mouse_slider.h"
#include "widgets/rich_text_box.h"
#include "widgets/spoken.h"
#include "widgets/tab_strip.h"

namespace halvane {
namespace {

class Accessibility : public EveryWindow {
 protected:
  /// Runs `check` with what is found on each page of each window.
  template <typename Check>
  void OnEveryPage(const Check& check) {
    for (const auto& window : Windows()) {
      window->show();
      OnEveryTab(*window, [&] {
        QCoreApplication::processEvents();
        check(*window, SpokenTree(*window));
      });
      window->hide();
    }
  }
};

QWidget* WidgetOf(const SpokenItem& item) { return qobject_cast<QWidget*>(item.face->object()); }

/// Whether it only holds others, which a screen reader passes over where it has no name.
bool IsHolder(QAccessible::Role role) {
  constexpr std::array kHolders{QAccessible::Client,   QAccessible::LayeredPane,
                                QAccessible::MenuBar,  QAccessible::ScrollBar,
                                QAccessible::Splitter, QAccessible::Separator};
  return std::find(kHolders.begin(), kHolders.end(), role) != kHolders.end();
}

std::string Line(const SpokenItem& item) { return SpokenLines({item}).trimmed().toStdString(); }

TEST_F(Accessibility, EverythingHasANameAsItIsSpoken) {
  OnEveryPage([](QWidget& /*window*/, const std::vector<SpokenItem>& tree) {
    for (const SpokenItem& item : tree) {
      SCOPED_TRACE(Line(item));
      EXPECT_TRUE(IsHolder(item.role()) || !item.name.isEmpty());
      EXPECT_EQ(item.name, item.name.trimmed());
      EXPECT_FALSE(item.name.contains('&'));
      EXPECT_EQ(item.description, item.description.trimmed());
      EXPECT_NE(item.role(), QAccessible::NoRole);
    }
  });
}

TEST_F(Accessibility, NoDescriptionIsTheNameAgain) {
  int described = 0;
  OnEveryPage([&described](QWidget& /*window*/, const std::vector<SpokenItem>& tree) {
    for (const SpokenItem& item : tree) {
      if (item.description.isEmpty()) continue;
      ++described;
      EXPECT_NE(item.description, item.name) << Line(item);
      EXPECT_FALSE(item.name.endsWith(", " + item.description)) << Line(item);
    }
  });
  EXPECT_GT(described, 50);
}

/// The names of the frames around a control and its own: the way to it.
QString WayTo(const SpokenItem& item) {
  QString way = RoleName(item.role()) + ": " + item.name;
  for (QAccessibleInterface* above = item.face->parent(); above != nullptr;
       above = above->parent()) {
    if (above->role() == QAccessible::Grouping) way = above->text(QAccessible::Name) + " / " + way;
  }
  return way;
}

TEST_F(Accessibility, NoTwoControlsOfAPageAreSpokenAlike) {
  OnEveryPage([](QWidget& /*window*/, const std::vector<SpokenItem>& tree) {
    std::set<QString> ways;
    for (const SpokenItem& item : tree) {
      if (IsHolder(item.role()) || item.role() == QAccessible::StaticText) continue;
      EXPECT_TRUE(ways.insert(WayTo(item)).second) << WayTo(item).toStdString();
    }
  });
}

TEST_F(Accessibility, EveryControlThatShowsIsFoundOnce) {
  OnEveryPage([](QWidget& window, const std::vector<SpokenItem>& tree) {
    std::map<const QWidget*, int> found;
    for (const SpokenItem& item : tree) ++found[WidgetOf(item)];
    for (const auto* control : window.findChildren<QWidget*>()) {
      const bool isControl = qobject_cast<const QAbstractButton*>(control) != nullptr ||
                             qobject_cast<const QLineEdit*>(control) != nullptr ||
                             qobject_cast<const QComboBox*>(control) != nullptr ||
                             qobject_cast<const QSlider*>(control) != nullptr ||
                             qobject_cast<const QGroupBox*>(control) != nullptr ||
                             qobject_cast<const RichTextBox*>(control) != nullptr ||
                             qobject_cast<const QTreeWidget*>(control) != nullptr;
      // What the toolkit makes for itself has names of its own.
      if (!isControl || !control->isVisible() || control->objectName().startsWith("qt_")) continue;
      if (qobject_cast<const QComboBox*>(control->parentWidget()) != nullptr) continue;
      if (control->inherits("QToolButton")) continue;
      EXPECT_EQ(found[control], 1) << control->objectName().toStdString();
    }
  });
}

TEST_F(Accessibility, EveryTextIsReadOnce) {
  OnEveryPage([](QWidget& window, const std::vector<SpokenItem>& tree) {
    std::map<const QWidget*, int> found;
    for (const SpokenItem& item : tree) ++found[WidgetOf(item)];
    for (const auto* label : window.findChildren<QLabel*>()) {
      if (!label->isVisible()) continue;
      SCOPED_TRACE(label->text().toStdString());
      EXPECT_EQ(found[label], IsUnspoken(*label) ? 0 : 1);
      if (!IsUnspoken(*label) || label->text().isEmpty()) continue;
      // What is kept unspoken is the name of a control beside it.
      int names = 0;
      for (const SpokenItem& item : tree) names += item.name == label->text() ? 1 : 0;
      EXPECT_EQ(names, 1);
    }
  });
}

/// The caption of the frame that a control stands in; nothing where it stands in none.
QString FrameOf(const QWidget& control) {
  for (const QWidget* above = control.parentWidget(); above != nullptr;
       above = above->parentWidget()) {
    const auto* frame = qobject_cast<const QGroupBox*>(above);
    if (frame != nullptr) return SpokenCaption(frame->title());
  }
  return {};
}

TEST_F(Accessibility, GroupsOfWhichOneIsDownAreOptionsAndOthersBoxes) {
  int options = 0;
  int boxes = 0;
  OnEveryPage([&](QWidget& /*window*/, const std::vector<SpokenItem>& tree) {
    for (const SpokenItem& item : tree) {
      const auto* button = qobject_cast<QAbstractButton*>(item.face->object());
      const auto* group =
          button == nullptr ? nullptr : qobject_cast<const ChoiceGroup*>(button->group());
      if (group == nullptr) continue;
      SCOPED_TRACE(Line(item));
      const bool isOption = group->choice() == Choice::One;
      ++(isOption ? options : boxes);
      EXPECT_EQ(item.role(), isOption ? QAccessible::RadioButton : QAccessible::CheckBox);
      EXPECT_TRUE(item.state().checkable);
      EXPECT_EQ(item.state().checked, button->isChecked());
      EXPECT_EQ(item.state().disabled, !button->isEnabled());
      EXPECT_TRUE(item.state().focusable);
      const QString frame = FrameOf(*button);
      EXPECT_EQ(item.group(), frame.isEmpty() ? "Body part" : frame);
      const bool isRibbon = qobject_cast<const RibbonButton*>(button) != nullptr;
      if (!isRibbon) continue;
      EXPECT_TRUE(item.name.startsWith(frame.isEmpty() ? frame : frame + ", "));
      EXPECT_TRUE(item.name.endsWith(button->text().trimmed()));
    }
  });
  EXPECT_GT(options, 150);
  EXPECT_GT(boxes, 20);
}

TEST_F(Accessibility, FramesHaveTheirOwnNames) {
  int inside = 0;
  OnEveryPage([&inside](QWidget& /*window*/, const std::vector<SpokenItem>& tree) {
    for (const SpokenItem& item : tree) {
      const auto* frame = qobject_cast<QGroupBox*>(item.face->object());
      if (frame == nullptr) continue;
      EXPECT_EQ(item.role(), QAccessible::Grouping) << Line(item);
      EXPECT_EQ(item.name, SpokenCaption(frame->title())) << Line(item);
      inside += FrameOf(*frame).isEmpty() ? 0 : 1;
    }
  });
  EXPECT_GT(inside, 10);
}

TEST_F(Accessibility, InputsHaveTheirValues) {
  std::set<QAccessible::Role> roles;
  OnEveryPage([&roles](QWidget& /*window*/, const std::vector<SpokenItem>& tree) {
    for (const SpokenItem& item : tree) {
      SCOPED_TRACE(Line(item));
      QWidget* control = WidgetOf(item);
      if (const auto* box = qobject_cast<const QLineEdit*>(control)) {
        EXPECT_EQ(item.role(), QAccessible::EditableText);
        EXPECT_EQ(item.value, box->text());
        EXPECT_EQ(item.state().readOnly, box->isReadOnly());
        EXPECT_EQ(item.state().editable, !box->isReadOnly());
      } else if (const auto* list = qobject_cast<const QComboBox*>(control)) {
        EXPECT_EQ(item.role(), QAccessible::ComboBox);
        EXPECT_EQ(item.value, list->currentText());
        QAccessibleTextInterface& text = *item.face->textInterface();
        EXPECT_EQ(text.text(0, text.characterCount()), list->currentText());
      } else if (const auto* slider = qobject_cast<const QSlider*>(control)) {
        EXPECT_EQ(item.role(), QAccessible::Slider);
        EXPECT_FALSE(item.value.isEmpty());
        EXPECT_EQ(item.state().readOnly, qobject_cast<const MouseSlider*>(slider) != nullptr);
      } else if (const auto* pane = qobject_cast<const RichTextBox*>(control)) {
        EXPECT_EQ(item.role(), QAccessible::EditableText);
        EXPECT_EQ(item.name, "Report");
        EXPECT_GT(item.value.size(), 100);
        EXPECT_EQ(item.state().readOnly, pane->isReadOnly());
      } else {
        continue;
      }
      roles.insert(item.role());
    }
  });
  EXPECT_EQ(roles.size(), 3U);
}

/// The only thing of that object name on a page.
const SpokenItem& The(const std::vector<SpokenItem>& tree, const QString& objectName) {
  const SpokenItem* found = nullptr;
  for (const SpokenItem& item : tree) {
    if (item.objectName == objectName) found = &item;
  }
  if (found == nullptr) throw std::runtime_error("nothing is " + objectName.toStdString());
  return *found;
}

/// What is spoken of a control by its object name: group, label, description.
struct Spoken {
  const char* objectName;
  const char* group;
  const char* label;
  const char* description;
};

class ToolSpoken : public Accessibility {
 protected:
  std::vector<SpokenItem> Open(Tool tool, int tab) {
    if (Module1.TaskCount.AsDouble() == 0) AddTaskRecord();
    form_ = MakeToolForm(tool, nullptr);
    form_->load();
    form_->show();
    if (auto* tabs = form_->findChild<QTabWidget*>("SSTab1")) tabs->setCurrentIndex(tab);
    return SpokenTree(*form_);
  }

  void ExpectSpoken(Tool tool, int tab, std::initializer_list<Spoken> rows) {
    const auto tree = Open(tool, tab);
    for (const Spoken& row : rows) {
      const SpokenItem& item = The(tree, row.objectName);
      SCOPED_TRACE(Line(item));
      EXPECT_EQ(item.group(), row.group);
      EXPECT_EQ(item.name, row.label);
      EXPECT_EQ(item.description, row.description);
    }
  }

  std::unique_ptr<ToolForm> form_;
};

TEST_F(ToolSpoken, Ocra) {
  ExpectSpoken(Tool::Ocra, 0,
               {{"SSOption1(0)", "Hand", "Right Side", ""},
                {"Text2(1)", "Job Cycle Time", "Job Cycle Time", "min"},
                {"Text1(5)", "Action Frequency", "Action Frequency", "no. of action per min"},
                {"Slider1", "Rate Each Action According To The Following Force Level",
                 "Rate Each Action According To The Following Force Level", "Nothing At All"},
                {"SSCommand1(0)", "Task Information", "Add Task", ""}});
  ExpectSpoken(Tool::Ocra, 1,
               {{"Combo1(6)", "Elbow Posture", "Supination (>60 deg)", ""},
                {"SSCheck1(4)", "Lack of variation",
                 "Performs work gestures of the same type involving the elbow for at least 50% of "
                 "the cyle",
                 ""}});
}

TEST_F(ToolSpoken, Ctd) {
  ExpectSpoken(Tool::Ctd, 0,
               {{"SSRibbon2(0)", "Wrist Position", "Wrist Position, Mid-Position (Neutral)", ""},
                {"SSRibbon4(3)", "Radial/Ulnar Deviation Angle",
                 "Radial/Ulnar Deviation Angle, Ulnar Deviation >15 deg.", ""},
                {"Text1(6)", "Hand Span", "Hand Span", "cm"}});
  (void)Open(Tool::Ctd, 1);
  Find<RibbonButton>(*form_, "SSRibbon3(1)").click();
  const auto tree = SpokenTree(*form_);
  EXPECT_EQ(The(tree, "SSRibbon3(1)").group(), "Body part");
  EXPECT_TRUE(The(tree, "SSRibbon3(1)").state().checked);
  EXPECT_EQ(The(tree, "SSctdLtShoulABD(1)").name, "Left Shoulder Abduction, Greater Than 30");
  EXPECT_EQ(The(tree, "Text3(3)").group(), "Load Held");
  EXPECT_EQ(The(tree, "Text3(3)").description, "kg");
  EXPECT_EQ(WayTo(The(tree, "Text4(2)")),
            "Body Posture Factors / Right Shoulder Abduction / Duration Posture Held / "
            "EditableText: Duration Posture Held");
}

TEST_F(ToolSpoken, TheUnitOfTheHandSpanFollowsTheUnits) {
  Module1.Units = static_cast<Integer>(LengthUnit::English);
  const auto tree = Open(Tool::Ctd, 0);
  EXPECT_EQ(The(tree, "Text1(6)").description, The(tree, "Label2(1)").name);
  EXPECT_NE(The(tree, "Text1(6)").description, "cm");
}

TEST_F(ToolSpoken, StrainIndex) {
  ExpectSpoken(Tool::StrainIndex, 0,
               {{"SSRibbon1(0)", "Intensity of Exertion",
                 "Intensity of Exertion, % Maximal Strength, < 10%", ""},
                {"Text1(1)", "Duration of Exertion", "Total Observation time (min.)", ""}});
}

TEST_F(ToolSpoken, RulaAndReba) {
  ExpectSpoken(Tool::Rula, 0,
               {{"SSRibbon1(4)", "Upper Arms", "Upper Arms, >+90",
                 "Upper arm greater than 90 deg. (Flexion)"},
                {"SSRibbon3(5)", "Wrist", "Wrist, Side Bent", "Ulnar/Radial deviation"},
                {"SSOption4(0)", "Wrist Twist", "In mid-range of wrist twisting range", ""},
                {"SSCheck1(1)", "Upper Arms", "Upper arm abducted", ""}});
  ExpectSpoken(Tool::Reba, 0,
               {{"SSOption5(0)", "Hand", "Right Side", ""},
                {"Combo2", "Force or Load", "Force or Load", "Force or external load level"}});
}

TEST_F(ToolSpoken, Hal) {
  ExpectSpoken(Tool::Hal, 0,
               {{"Text1(0)", "Exertion", "Exertion Frequency", "no. of exertion per min."},
                {"Slider1", "Rate The Hand Activity Level", "Rate The Hand Activity Level",
                 "Handle idle most of the time; no regular exertion"}});
  // Both limits have what stands before them as their label.
  const auto tree = SpokenTree(*form_);
  for (const auto& [value, caption] :
       {std::pair{"Label3(1)", "Action Level:"}, {"Label3(2)", "Threshold Limit Value:"}}) {
    QStringList labels;
    for (const auto& [label, relation] : The(tree, value).face->relations(QAccessible::Label)) {
      labels.append(label->text(QAccessible::Name));
    }
    EXPECT_TRUE(labels.contains(caption)) << value;
  }
}

TEST_F(ToolSpoken, AReportReadsItsParagraphsAndNamesItsPictures) {
  for (const auto& [tool, tab, pictures] :
       {std::tuple{Tool::Ocra, 2,
                   QStringList{"Zones of the OCRA index: ", "Force and recovery multipliers: "}},
        {Tool::Ctd, 2, QStringList{"From two factors to the Grand Score: "}},
        {Tool::StrainIndex, 1, QStringList{"Strain Index score and risk: "}},
        {Tool::Rula, 1, QStringList{}}}) {
    const auto tree = Open(tool, tab);
    SCOPED_TRACE(form_->objectName().toStdString());
    const SpokenItem& pane = The(tree, "RichTextBox1");
    EXPECT_FALSE(pane.value.contains(QChar::ObjectReplacementCharacter));
    qsizetype at = 0;
    int child = 0;
    for (const QString& picture : pictures) {
      at = pane.value.indexOf(picture, at);
      EXPECT_GE(at, 0) << picture.toStdString();
      EXPECT_TRUE(pane.face->child(child++)->text(QAccessible::Name).startsWith(picture));
    }
    EXPECT_EQ(pane.face->childCount(), pictures.size());
    int start = 0;
    int end = 0;
    const QString title =
        pane.face->textInterface()->textAtOffset(1, QAccessible::ParagraphBoundary, &start, &end);
    EXPECT_EQ(title.trimmed(), pane.value.section('\n', 0, 0).trimmed());
    EXPECT_FALSE(title.trimmed().isEmpty());
  }
}

TEST_F(ToolSpoken, AnEmptyTaskListSaysWhatToDo) {
  form_ = MakeToolForm(Tool::Ctd, nullptr);
  form_->load();
  form_->show();
  EXPECT_EQ(The(SpokenTree(*form_), "TreeView1").description, "Add a task to begin");
  Find<QAbstractButton>(*form_, "SSCommand1(0)").click();
  const auto tree = SpokenTree(*form_);
  EXPECT_EQ(The(tree, "TreeView1").description, "");
  const auto isTask = [](const SpokenItem& item) {
    return item.role() == QAccessible::TreeItem && item.name == "Task 1";
  };
  EXPECT_EQ(std::count_if(tree.begin(), tree.end(), isTask), 1);
}

/// A screen reader's own press changes the job as the mouse does.
TEST_F(ToolSpoken, AnActionChangesTheJob) {
  for (const Tool tool : {Tool::Rula, Tool::Ocra, Tool::Hal}) {
    Module1 = JobState{};
    const auto tree = Open(tool, 0);
    const char* left = tool == Tool::Ocra ? "SSOption1(1)" : "SSOption5(1)";
    EXPECT_EQ(Module1.Hand, 0);
    QAccessibleActionInterface& actions = *The(tree, left).face->actionInterface();
    actions.doAction(actions.actionNames().value(0));
    QCoreApplication::processEvents();
    EXPECT_EQ(Module1.Hand, 1) << left;
    form_.reset();
  }
}

}  // namespace
}  // namespace halvane
