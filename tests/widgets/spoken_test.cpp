// What screen readers find of buttons, frames, sliders and tabs.
#include "widgets/spoken.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "tests/support/form_support.h"
#include "tests/support/spoken_tree.h"
#include "widgets/choice_group.h"
#include "widgets/layout.h"
#include "widgets/link_label.h"
#include "widgets/mouse_slider.h"
#include "widgets/ribbon_button.h"
#include "widgets/tab_strip.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

QAccessibleInterface& Spoken(QObject& object) {
  return *QAccessible::queryAccessibleInterface(&object);
}
QString NameOf(QObject& object) { return Spoken(object).text(QAccessible::Name); }
QString DescriptionOf(QObject& object) { return Spoken(object).text(QAccessible::Description); }

/// Runs the first action of a control, as a screen reader does.
void Act(QObject& object) {
  QAccessibleActionInterface& actions = *Spoken(object).actionInterface();
  actions.doAction(actions.actionNames().value(0));
  QCoreApplication::processEvents();
}

class SpokenControls : public testing::Test {
 protected:
  SpokenControls() : column_(new QVBoxLayout(&window_)) {}

  QGroupBox& AddFrame(const QString& caption) {
    auto* frame = new QGroupBox(caption, &window_);
    new QVBoxLayout(frame);
    column_->addWidget(frame);
    return *frame;
  }

  template <typename Button>
  Button& Add(QGroupBox& frame, Button* button, ChoiceGroup* group = nullptr) {
    button->setCheckable(true);
    frame.layout()->addWidget(button);
    if (group != nullptr) group->Add(*button);
    return *button;
  }

  QWidget window_;
  QVBoxLayout* column_;
};

TEST_F(SpokenControls, AButtonIsWhatItsGroupMakesIt) {
  QGroupBox& frame = AddFrame("Wrist");
  struct Row {
    Choice choice;
    QAccessible::Role role;
  };
  for (const Row& row :
       {Row{Choice::One, QAccessible::RadioButton}, Row{Choice::OneAtMost, QAccessible::CheckBox},
        Row{Choice::Any, QAccessible::CheckBox}}) {
    auto* group = new ChoiceGroup(row.choice, &frame);
    auto& first = Add(frame, new RibbonButton("", "first"), group);
    auto& second = Add(frame, new RibbonButton("", "second"), group);
    second.setChecked(true);
    for (RibbonButton* ribbon : {&first, &second}) {
      const QAccessible::State state = Spoken(*ribbon).state();
      EXPECT_EQ(Spoken(*ribbon).role(), row.role);
      EXPECT_TRUE(state.checkable);
      EXPECT_EQ(state.checked, ribbon == &second);
    }
  }
}

TEST_F(SpokenControls, ButtonsWithoutAGroup) {
  QRadioButton option;
  QCheckBox box;
  QPushButton button("&Add Task");
  LinkLabel link("", "How to", nullptr);
  RibbonButton menu("", "File");
  menu.setToolTip("File Menu");
  EXPECT_EQ(Spoken(option).role(), QAccessible::RadioButton);
  EXPECT_EQ(Spoken(box).role(), QAccessible::CheckBox);
  EXPECT_EQ(Spoken(link).role(), QAccessible::Link);
  EXPECT_EQ(Spoken(button).role(), QAccessible::Button);
  EXPECT_EQ(NameOf(button), "Add Task");
  EXPECT_EQ(Spoken(button).text(QAccessible::Accelerator), "Alt+A");
  EXPECT_EQ(Spoken(menu).role(), QAccessible::ButtonMenu);
  EXPECT_EQ(NameOf(menu), "File");
  EXPECT_EQ(DescriptionOf(menu), "File Menu");
  EXPECT_TRUE(Spoken(menu).state().hasPopup);
  EXPECT_FALSE(Spoken(menu).state().checkable);
}

TEST_F(SpokenControls, ARibbonsNameSaysFrameAndPosture) {
  QGroupBox& frame = AddFrame("Wrist Position:");
  auto& neutral = Add(frame, new RibbonButton("", "Neutral "));
  EXPECT_EQ(NameOf(neutral), "Wrist Position, Neutral");
  EXPECT_EQ(DescriptionOf(neutral), "");
  // A tip that says the caption again is no description.
  neutral.setToolTip("Neutral ");
  EXPECT_EQ(DescriptionOf(neutral), "");
  neutral.setToolTip("Wrist neutral posture");
  EXPECT_EQ(DescriptionOf(neutral), "Wrist neutral posture");
  // A heading between frame and caption.
  neutral.setAccessibleName("Right, Neutral");
  EXPECT_EQ(NameOf(neutral), "Wrist Position, Right, Neutral");
  // An option and a box are found in their frame, which is spoken before them.
  EXPECT_EQ(NameOf(Add(frame, new QRadioButton("Left"))), "Left");
}

TEST_F(SpokenControls, AFrameInAFrameHasItsOwnName) {
  QGroupBox& outer = AddFrame("Wrist ");
  auto* inner = new QGroupBox("Wrist Twist:");
  outer.layout()->addWidget(inner);
  auto* plain = new QWidget;
  outer.layout()->addWidget(plain);
  EXPECT_EQ(NameOf(outer), "Wrist");
  EXPECT_EQ(NameOf(*inner), "Wrist Twist");
  EXPECT_EQ(Spoken(*inner).role(), QAccessible::Grouping);
  EXPECT_TRUE(Spoken(*inner).relations().isEmpty());
  EXPECT_EQ(NameOf(*plain), "");
  EXPECT_EQ(Spoken(*plain).role(), QAccessible::Client);
  plain->setAccessibleName("Body part");
  EXPECT_EQ(Spoken(*plain).role(), QAccessible::Grouping);
}

TEST_F(SpokenControls, WindowsAreWindowsAndDialogs) {
  window_.setWindowTitle("Tools");
  EXPECT_EQ(Spoken(window_).role(), QAccessible::Window);
  EXPECT_EQ(NameOf(window_), "Tools");
  QDialog dialog;
  EXPECT_EQ(Spoken(dialog).role(), QAccessible::Dialog);
}

TEST_F(SpokenControls, AWrappedBoxIsReadOnce) {
  QGroupBox& frame = AddFrame("Neck");
  auto* grid = new QGridLayout;
  static_cast<QVBoxLayout*>(frame.layout())->addLayout(grid);
  QCheckBox* box = AddWrappedCheck(*grid, "SSCheck1(0)", "Neck is twisting");
  ShowActive(window_);
  const auto tree = SpokenTree(window_);
  ASSERT_EQ(tree.size(), 3U) << SpokenLines(tree).toStdString();
  EXPECT_EQ(tree[2].face->object(), box);
  EXPECT_EQ(tree[2].name, "Neck is twisting");
  EXPECT_EQ(tree[2].role(), QAccessible::CheckBox);
  EXPECT_EQ(tree[2].group(), "Neck");
  // The caption is not what is under the mouse either.
  const QLabel& caption = *frame.findChild<QLabel*>();
  const QPoint place = caption.mapToGlobal(caption.rect().center());
  EXPECT_EQ(Spoken(frame).childAt(place.x(), place.y()), nullptr);
}

TEST_F(SpokenControls, ANumberHasItsUnitAsDescription) {
  QGroupBox& frame = AddFrame("Task Duration");
  auto* grid = new QGridLayout;
  static_cast<QVBoxLayout*>(frame.layout())->addLayout(grid);
  TextBox* box = AddNumberWithUnit(*grid, "Text1(2)", "Task Duration", "min");
  box->setText("12");
  EXPECT_EQ(NameOf(*box), "Task Duration");
  EXPECT_EQ(Spoken(*box).text(QAccessible::Value), "12");
  EXPECT_EQ(DescriptionOf(*box), "min");
}

TEST_F(SpokenControls, AListHasItsLabelAsNameAndItsAnswerAsText) {
  QComboBox list(&window_);
  QLabel label("Supination:", &window_);
  label.setBuddy(&list);
  list.addItems({"Not Applicable", "1/3", "2/3"});
  list.setCurrentIndex(1);
  QAccessibleInterface& spoken = Spoken(list);
  EXPECT_EQ(spoken.role(), QAccessible::ComboBox);
  EXPECT_EQ(NameOf(list), "Supination");
  EXPECT_EQ(spoken.text(QAccessible::Value), "1/3");
  EXPECT_EQ(spoken.textInterface()->text(0, spoken.textInterface()->characterCount()), "1/3");
  EXPECT_EQ(spoken.childCount(), 0);
  int start = 1;
  int end = 0;
  EXPECT_EQ(spoken.textInterface()->selectionCount(), 1);
  spoken.textInterface()->selection(0, &start, &end);
  EXPECT_EQ(start, 0);
  EXPECT_EQ(end, 3);
  EXPECT_TRUE(spoken.state().collapsed);
  ShowActive(window_);
  Act(list);
  EXPECT_TRUE(spoken.state().expanded);
  list.hidePopup();
}

TEST_F(SpokenControls, ABoxThatIsReadIsNotEditable) {
  TextBox box("Text1(3)", &window_);
  EXPECT_EQ(Spoken(box).role(), QAccessible::EditableText);
  EXPECT_TRUE(Spoken(box).state().editable);
  EXPECT_FALSE(Spoken(box).state().readOnly);
  box.setReadOnly(true);
  EXPECT_FALSE(Spoken(box).state().editable);
  EXPECT_TRUE(Spoken(box).state().readOnly);
  EXPECT_EQ(Spoken(box).editableTextInterface(), nullptr);
  EXPECT_NE(Spoken(box).textInterface(), nullptr);
}

TEST_F(SpokenControls, ATextFromElsewhereCountsAsTyped) {
  TextBox box("Text1(3)", &window_);
  QStringList told;
  QObject::connect(&box, &TextBox::keyReleased, &window_, [&] { told.append(box.text()); });
  ShowActive(window_);
  Spoken(box).setText(QAccessible::Value, "1.5");
  QAccessibleEditableTextInterface& typed = *Spoken(box).editableTextInterface();
  typed.insertText(1, "2");
  typed.replaceText(0, 2, "345");
  typed.deleteText(1, 3);
  EXPECT_EQ(told, (QStringList{"1.5", "12.5", "345.5", "3.5"}));
  box.setReadOnly(true);
  typed.insertText(0, "9");
  Spoken(box).setText(QAccessible::Value, "9");
  EXPECT_EQ(box.text(), "3.5");
  EXPECT_EQ(told.size(), 4);
}

TEST_F(SpokenControls, ABoxTellsOfItsTextCaretAndSelection) {
  TextBox box("Text1(3)", &window_);
  column_->addWidget(&box);
  box.setText("Line 4 review");
  ShowActive(window_);
  QAccessibleTextInterface& text = *Spoken(box).textInterface();
  int start = 0;
  int end = 0;
  EXPECT_EQ(text.characterCount(), 13);
  EXPECT_EQ(text.text(5, 6), "4");
  EXPECT_EQ(text.textAtOffset(3, QAccessible::LineBoundary, &start, &end), "Line 4 review");
  EXPECT_EQ(end, 13);
  EXPECT_EQ(text.textAtOffset(8, QAccessible::WordBoundary, &start, &end), "review");
  text.setCursorPosition(4);
  EXPECT_EQ(text.cursorPosition(), 4);
  EXPECT_EQ(text.selectionCount(), 0);
  text.setSelection(0, 5, 13);
  EXPECT_EQ(box.selectedText(), "4 review");
  EXPECT_EQ(text.selectionCount(), 1);
  text.selection(0, &start, &end);
  EXPECT_EQ(start, 5);
  EXPECT_EQ(end, 13);
  text.removeSelection(0);
  EXPECT_FALSE(box.hasSelectedText());
  const QRect place = text.characterRect(5);
  EXPECT_EQ(text.offsetAtPoint(place.center() - QPoint(place.width() / 4, 0)), 5);
}

TEST_F(SpokenControls, AMenuItemIsSpokenWithoutTheMarksOfItsLetters) {
  QMenuBar bar(&window_);
  QMenu& menu = *bar.addMenu("&File");
  QAction* save = menu.addAction("&Save &As...");
  menu.addSeparator();
  QMenu& unit = *menu.addMenu("Unit");
  QAction* metric = unit.addAction("Metric");
  metric->setCheckable(true);
  metric->setChecked(true);
  metric->setShortcut(Qt::CTRL | Qt::Key_M);
  int chosen = 0;
  QObject::connect(save, &QAction::triggered, &window_, [&chosen] { ++chosen; });

  QAccessibleInterface& spoken = Spoken(menu);
  EXPECT_EQ(spoken.role(), QAccessible::PopupMenu);
  EXPECT_EQ(spoken.text(QAccessible::Name), "File");
  EXPECT_EQ(spoken.parent()->text(QAccessible::Name), "File");
  EXPECT_EQ(spoken.parent()->role(), QAccessible::MenuItem);
  ASSERT_EQ(spoken.childCount(), 3);
  EXPECT_EQ(spoken.child(0)->text(QAccessible::Name), "Save As...");
  EXPECT_EQ(spoken.child(0)->text(QAccessible::Accelerator), "Alt+S");
  EXPECT_EQ(spoken.child(1)->role(), QAccessible::Separator);
  EXPECT_EQ(spoken.child(2)->text(QAccessible::Name), "Unit");
  EXPECT_TRUE(spoken.child(2)->state().hasPopup);
  EXPECT_EQ(spoken.child(2)->child(0), &Spoken(unit));
  EXPECT_EQ(Spoken(unit).parent(), spoken.child(2));
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(spoken.child(i)->parent(), &spoken);
    EXPECT_EQ(spoken.indexOfChild(spoken.child(i)), i);
  }
  EXPECT_TRUE(Spoken(*metric).state().checked);
  EXPECT_EQ(Spoken(*metric).text(QAccessible::Accelerator), "Ctrl+M");

  ShowActive(window_);
  EXPECT_TRUE(Spoken(*save).state().invisible);
  menu.popup(window_.mapToGlobal(QPoint(0, 0)));
  menu.setActiveAction(save);
  EXPECT_FALSE(Spoken(*save).state().invisible);
  EXPECT_TRUE(Spoken(*save).state().focused);
  EXPECT_TRUE(spoken.rect().contains(Spoken(*save).rect()));
  menu.hide();
  Act(*save);
  EXPECT_EQ(chosen, 1);
  save->setEnabled(false);
  EXPECT_TRUE(Spoken(*save).state().disabled);
  Act(*save);
  EXPECT_EQ(chosen, 1);
}

TEST_F(SpokenControls, AnActionIsAClickAndNotOnlyAnotherLook) {
  QGroupBox& frame = AddFrame("Hand");
  auto* group = new ChoiceGroup(Choice::One, &frame);
  auto* boxes = new ChoiceGroup(Choice::Any, &frame);
  std::vector<QAbstractButton*> buttons{
      &Add(frame, new QRadioButton("Right"), group), &Add(frame, new QRadioButton("Left"), group),
      &Add(frame, new RibbonButton("", "ribbon"), new ChoiceGroup(Choice::One, &frame)),
      &Add(frame, new QCheckBox("box"), boxes), &Add(frame, new QPushButton("push"))};
  QStringList clicked;
  for (QAbstractButton* button : buttons) {
    QObject::connect(button, &QAbstractButton::clicked, &window_,
                     [&clicked, button] { clicked.append(button->text()); });
  }
  ShowActive(window_);
  for (QAbstractButton* button : buttons) Act(*button);
  EXPECT_EQ(clicked, (QStringList{"Right", "Left", "ribbon", "box", "push"}));
  EXPECT_FALSE(buttons[0]->isChecked());
  EXPECT_TRUE(buttons[1]->isChecked());
  clicked.clear();
  buttons[3]->setEnabled(false);
  Act(*buttons[3]);
  EXPECT_EQ(clicked, QStringList());
}

TEST_F(SpokenControls, AnActionDoesNothingBehindAMessage) {
  QPushButton button("push", &window_);
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, &window_, [&clicks] { ++clicks; });
  ShowActive(window_);
  QDialog message(&window_);
  message.setModal(true);
  QPushButton ok("OK", &message);
  QObject::connect(&ok, &QPushButton::clicked, &message, &QDialog::accept);
  ShowActive(message);
  Act(button);
  EXPECT_EQ(clicks, 0);
  Act(ok);
  EXPECT_FALSE(message.isVisible());
  Act(button);
  EXPECT_EQ(clicks, 1);
}

TEST_F(SpokenControls, ASliderSpeaksItsScale) {
  QSlider slider(&window_);
  SetUpSlider(slider, "Slider1", 10, 2);
  slider.setAccessibleName("Force:");
  slider.setToolTip(" ");
  slider.setValue(3);
  QAccessibleValueInterface& value = *Spoken(slider).valueInterface();
  EXPECT_EQ(NameOf(slider), "Force");
  EXPECT_EQ(DescriptionOf(slider), "");
  EXPECT_EQ(value.currentValue(), 3);
  SetSpokenScale(slider, 0.5, {"Nothing", "", "Weak", "", "Strong"});
  EXPECT_EQ(value.currentValue(), 1.5);
  EXPECT_EQ(Spoken(slider).text(QAccessible::Value), "1.5");
  EXPECT_EQ(value.minimumValue(), 0.0);
  EXPECT_EQ(value.maximumValue(), 5.0);
  EXPECT_EQ(value.minimumStepSize(), 0.5);
  EXPECT_EQ(DescriptionOf(slider), "");
  value.setCurrentValue(2.0);
  EXPECT_EQ(slider.value(), 4);
  EXPECT_EQ(DescriptionOf(slider), "Strong");
  EXPECT_FALSE(Spoken(slider).state().readOnly);
}

TEST_F(SpokenControls, ASliderOfTheMouseIsReadAndNotMoved) {
  MouseSlider slider(&window_);
  slider.setValue(5);
  EXPECT_TRUE(Spoken(slider).state().readOnly);
  Spoken(slider).valueInterface()->setCurrentValue(7);
  EXPECT_EQ(slider.value(), 5);
  EXPECT_EQ(Spoken(slider).valueInterface()->currentValue(), 5);
}

TEST_F(SpokenControls, APageIsSpokenByTheNameOfItsTab) {
  TabStrip tabs("SSTab1", &window_);
  auto* page = new QWidget;
  auto* pane = new QLabel("text");
  pane->setAccessibleName("Report");
  tabs.addTab(page, " Task Information");
  tabs.addTab(pane, "Score");
  EXPECT_EQ(NameOf(*page), "Task Information");
  EXPECT_EQ(Spoken(*page).role(), QAccessible::Grouping);
  EXPECT_EQ(NameOf(*pane), "Report");
  ShowActive(window_);
  QStringList names;
  for (const SpokenItem& item : SpokenTree(window_)) {
    if (item.role() == QAccessible::PageTab) names.append(item.name);
  }
  EXPECT_EQ(names, (QStringList{"Task Information", "Score"}));
}

}  // namespace
}  // namespace halvane
