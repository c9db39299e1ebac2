// What every window has to keep: the Tab key follows the eye, the keyboard reaches everything, and
// nothing is cut off.
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QTreeView>
#include <algorithm>

#include "tests/forms/every_window.h"
#include "tools/posture/posture_frame.h"
#include "tools/posture/posture_page.h"
#include "tools/strain_index/frm_si.h"
#include "widgets/choice_group.h"
#include "widgets/mouse_slider.h"
#include "widgets/ribbon_button.h"

namespace halvane {
namespace {

QRect PlaceOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

/// True when `second` is read before `first`: it stands wholly above, or left of it in one row.
bool IsReadBefore(const QRect& second, const QRect& first) {
  const int overlap =
      std::min(first.bottom(), second.bottom()) - std::max(first.top(), second.top());
  const bool oneRow = overlap > std::min(first.height(), second.height()) / 2;
  return oneRow ? second.left() < first.left() : second.top() < first.top();
}

/// The frame or panel that a control stands in, else the control itself.
const QWidget& FrameOf(const QWidget& control) {
  for (const QWidget* parent = control.parentWidget(); parent != nullptr;
       parent = parent->parentWidget()) {
    const bool isPanel = parent->objectName().startsWith("SSPanel");
    if (isPanel || qobject_cast<const QGroupBox*>(parent) != nullptr) return *parent;
  }
  return control;
}

/// The page of frames in two columns that a control stands on, null elsewhere, and which column it
/// is.
struct ColumnPlace {
  const QWidget* page = nullptr;
  bool right = false;
};
ColumnPlace ColumnOf(const QWidget& control) {
  for (const QWidget* frame = &control; frame != nullptr; frame = frame->parentWidget()) {
    const auto* page = qobject_cast<const PosturePage*>(frame->parentWidget());
    if (page == nullptr || qobject_cast<const PostureFrame*>(frame) == nullptr) continue;
    return {page, frame->geometry().center().x() > page->width() / 2};
  }
  return {};
}

/// The same for frames, which may stand in columns: those are read one after the other.
bool IsFrameReadBefore(const QWidget& second, const QWidget& first) {
  const ColumnPlace secondPlace = ColumnOf(second);
  const ColumnPlace firstPlace = ColumnOf(first);
  if (secondPlace.page != nullptr && secondPlace.page == firstPlace.page &&
      secondPlace.right != firstPlace.right) {
    return firstPlace.right;
  }
  return IsReadBefore(PlaceOf(second), PlaceOf(first));
}

/// The stops of the Tab key in order, once round.
std::vector<QWidget*> TabStops(QWidget& window) {
  std::vector<QWidget*> stops;
  QTest::keyClick(&window, Qt::Key_Tab);
  for (QWidget* focus = window.focusWidget();
       focus != nullptr && std::find(stops.begin(), stops.end(), focus) == stops.end();
       focus = window.focusWidget()) {
    stops.push_back(focus);
    QTest::keyClick(focus, Qt::Key_Tab);
  }
  // The round may have begun anywhere; it is told from the stop that is read first.
  const auto first = std::min_element(stops.begin(), stops.end(), [](auto* a, auto* b) {
    return IsFrameReadBefore(FrameOf(*a), FrameOf(*b)) ||
           (&FrameOf(*a) == &FrameOf(*b) && IsReadBefore(PlaceOf(*a), PlaceOf(*b)));
  });
  std::rotate(stops.begin(), first, stops.end());
  return stops;
}

std::string NamesOf(const std::vector<QWidget*>& widgets) {
  std::string names;
  for (const QWidget* widget : widgets) names += widget->objectName().toStdString() + " ";
  return names;
}

void ExpectReadingOrder(const std::vector<QWidget*>& stops) {
  SCOPED_TRACE("stops: " + NamesOf(stops));
  std::vector<const QWidget*> frames;
  for (std::size_t i = 0; i < stops.size(); ++i) {
    const QWidget& frame = FrameOf(*stops[i]);
    const bool sameFrame = !frames.empty() && frames.back() == &frame;
    if (!sameFrame) {
      EXPECT_EQ(std::find(frames.begin(), frames.end(), &frame), frames.end())
          << stops[i]->objectName().toStdString() << " comes back to a frame already left";
      frames.push_back(&frame);
    }
    if (i == 0) continue;
    const QWidget& before = sameFrame ? *stops[i - 1] : FrameOf(*stops[i - 1]);
    const QWidget& after = sameFrame ? *stops[i] : frame;
    EXPECT_FALSE(IsFrameReadBefore(after, before))
        << stops[i]->objectName().toStdString() << " stands before "
        << stops[i - 1]->objectName().toStdString();
  }
}

const ChoiceGroup* GroupOf(const QWidget& control) {
  const auto* button = qobject_cast<const QAbstractButton*>(&control);
  return button != nullptr ? qobject_cast<const ChoiceGroup*>(button->group()) : nullptr;
}

/// The controls that the user can reach with Tab or, within a group of one stop, with arrow keys.
QStringList Reached(const std::vector<QWidget*>& stops) {
  QStringList names;
  for (const QWidget* stop : stops) {
    const ChoiceGroup* group = GroupOf(*stop);
    if (group != nullptr && group->choice() != Choice::Any) {
      for (const auto* member : group->buttons()) names.append(member->objectName());
    } else {
      names.append(stop->objectName());
    }
  }
  names.sort();
  return names;
}

/// The controls of a window that take input now.
QStringList InputsOf(const QWidget& window) {
  QStringList names;
  for (const auto* widget : window.findChildren<QWidget*>()) {
    const bool isInput = qobject_cast<const QLineEdit*>(widget) != nullptr ||
                         qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                         qobject_cast<const QTextEdit*>(widget) != nullptr ||
                         qobject_cast<const QSlider*>(widget) != nullptr ||
                         qobject_cast<const QComboBox*>(widget) != nullptr ||
                         qobject_cast<const QTreeView*>(widget) != nullptr ||
                         qobject_cast<const QTabBar*>(widget) != nullptr;
    const bool isPart = widget->objectName().startsWith("qt_") ||
                        qobject_cast<const QTabBar*>(widget->parentWidget()) != nullptr ||
                        qobject_cast<const QMenuBar*>(widget->parentWidget()) != nullptr;
    const bool isOwn = qobject_cast<const QTabBar*>(widget) != nullptr;
    // This slider is the mouse's; its number is typed beside it.
    const bool isMouses = qobject_cast<const MouseSlider*>(widget) != nullptr;
    if (isInput && (isOwn || !isPart) && !isMouses && widget->isVisible() && widget->isEnabled()) {
      names.append(widget->objectName());
    }
  }
  names.sort();
  return names;
}

TEST(ReadingOrder, RowsFromTheTopEachFromTheLeft) {
  const QRect left(0, 0, 50, 20);
  EXPECT_FALSE(IsReadBefore(QRect(60, 2, 50, 20), left));  // right of it, a little lower
  EXPECT_FALSE(IsReadBefore(QRect(60, -2, 50, 20), left));
  EXPECT_FALSE(IsReadBefore(QRect(0, 30, 50, 20), left));
  EXPECT_TRUE(IsReadBefore(left, QRect(60, -2, 50, 20)));
  EXPECT_TRUE(IsReadBefore(left, QRect(0, 30, 50, 20)));
  EXPECT_TRUE(IsReadBefore(QRect(60, -30, 50, 20), left));
}

TEST_F(EveryWindow, TabKeyFollowsReadingOrder) {
  for (const auto& window : Windows()) {
    ShowActive(*window);
    OnEveryTab(*window, [&window] {
      const auto stops = TabStops(*window);
      EXPECT_FALSE(stops.empty());
      ExpectReadingOrder(stops);
    });
    window->hide();
  }
}

/// The places of computed numbers, which are read and not typed.
QStringList ResultsOf(const QWidget& window) {
  QStringList names;
  for (const auto* box : window.findChildren<QLineEdit*>()) {
    if (box->isReadOnly()) names.append(box->objectName());
  }
  return names;
}

TEST_F(EveryWindow, KeyboardAloneReachesEveryControl) {
  for (const auto& window : Windows()) {
    ShowActive(*window);
    OnEveryTab(*window, [&window] {
      QStringList inputs = InputsOf(*window);
      for (const QString& result : ResultsOf(*window)) inputs.removeAll(result);
      EXPECT_EQ(Reached(TabStops(*window)), inputs);
    });
    window->hide();
  }
}

TEST_F(EveryWindow, EveryRibbonOptionAndBoxOfAToolIsInAGroup) {
  for (const auto& form : ToolForms()) {
    for (const auto* button : form->findChildren<QAbstractButton*>()) {
      if (!button->isCheckable()) continue;
      EXPECT_NE(GroupOf(*button), nullptr)
          << form->objectName().toStdString() << " " << button->objectName().toStdString();
    }
  }
}

/// The groups of a window that the user sees and that have one answer.
std::vector<ChoiceGroup*> ShownGroups(const QWidget& window) {
  std::vector<ChoiceGroup*> groups;
  for (ChoiceGroup* group : window.findChildren<ChoiceGroup*>()) {
    const bool isShown = !group->buttons().isEmpty() && group->buttons().first()->isVisible();
    if (isShown && group->choice() != Choice::Any) groups.push_back(group);
  }
  return groups;
}

TEST_F(EveryWindow, TabKeyEntersAGroupOnceAtItsAnswer) {
  for (const auto& form : ToolForms()) {
    ShowActive(*form);
    OnEveryTab(*form, [&form] {
      // The selector of body parts shows other frames; its answer is the one that is there.
      for (const ChoiceGroup* group : ShownGroups(*form)) {
        const bool isSelector = group->buttons().first()->objectName() == "SSRibbon3(0)" &&
                                form->objectName() == "frmCTD";
        if (!isSelector || group->checkedButton() == nullptr) group->buttons().last()->click();
      }
      const auto stops = TabStops(*form);
      for (const ChoiceGroup* group : ShownGroups(*form)) {
        std::vector<QWidget*> within;
        for (QWidget* stop : stops) {
          if (GroupOf(*stop) == group) within.push_back(stop);
        }
        SCOPED_TRACE("stops: " + NamesOf(within));
        ASSERT_EQ(within.size(), 1U);
        EXPECT_EQ(within.front(), group->checkedButton());
      }
    });
    form->hide();
  }
}

TEST_F(EveryWindow, CtrlTabChangesTheTabFromEveryStop) {
  for (const auto& form : ToolForms()) {
    auto* tabs = form->findChild<QTabWidget*>("SSTab1");
    if (tabs == nullptr) continue;
    ShowActive(*form);
    for (int tab = 0; tab < tabs->count(); ++tab) {
      tabs->setCurrentIndex(tab);
      for (QWidget* stop : TabStops(*form)) {
        const std::string name = NamesOf({form.get(), stop});
        stop->setFocus();
        QTest::keyClick(stop, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), (tab + 1) % tabs->count()) << name;
        QTest::keyClick(form->focusWidget(), Qt::Key_Backtab,
                        Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(tabs->currentIndex(), tab) << name;
      }
    }
    form->hide();
  }
}

TEST_F(EveryWindow, KeyboardAloneOpensEveryMenu) {
  for (const auto& [key, menu] :
       {std::pair{Qt::Key_F, "mnuFile"}, {Qt::Key_E, "mnuEdit"}, {Qt::Key_H, "mnuHelp"}}) {
    // New forms for each menu: one that was closed leaves its bar waiting for another key.
    for (const auto& form : ToolForms()) {
      ShowActive(*form);
      // A form without tabs shows its report at all times.
      if (auto* tabs = form->findChild<QTabWidget*>("SSTab1")) {
        tabs->setCurrentIndex(tabs->count() - 1);
      }
      ModalSteps steps;
      bool opened = false;
      steps.Then<QMenu>(menu, [&](QMenu& popup) {
        opened = true;
        QTest::keyClick(&popup, Qt::Key_Escape);
      });
      QTest::keyClick(form.get(), key, Qt::AltModifier);
      EXPECT_TRUE(QTest::qWaitFor([&] { return opened; })) << menu;
    }
  }
}

TEST_F(EveryWindow, KeyboardAloneOpensTheMenusOfTheMainWindow) {
  const auto window = IdleMainWindow();
  for (const auto& [ribbon, menu] :
       {std::pair{"SSRibbon1(0)", "mnuPopUp1"}, {"SSRibbon1(1)", "mnuPopup2"}}) {
    ModalSteps steps;
    steps.Then<QMenu>(menu, [](QMenu& popup) { QTest::keyClick(&popup, Qt::Key_Escape); });
    auto& button = Find<QAbstractButton>(*window, ribbon);
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_TRUE(button.isChecked()) << ribbon;
  }
}

TEST_F(EveryWindow, EscapeAndReturnDoNotCloseATool) {
  for (const auto& form : ToolForms()) {
    ShowActive(*form);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
      QTest::keyClick(form->focusWidget() == nullptr ? form.get() : form->focusWidget(), key);
      EXPECT_TRUE(form->isVisible()) << key;
    }
    form->hide();
  }
}

TEST_F(EveryWindow, EveryInputHasABuddyOrAName) {
  for (const auto& window : Windows()) {
    window->show();
    QList<QWidget*> buddies;
    for (const auto* label : window->findChildren<QLabel*>()) {
      if (!label->text().isEmpty()) buddies.append(label->buddy());
    }
    OnEveryTab(*window, [&] {
      for (const QString& name : InputsOf(*window)) {
        const auto& input = Find<QWidget>(*window, name);
        const auto* button = qobject_cast<const QAbstractButton*>(&input);
        const bool isNamed = !input.accessibleName().isEmpty() || buddies.contains(&input) ||
                             (button != nullptr && !button->text().isEmpty()) ||
                             qobject_cast<const QTabBar*>(&input) != nullptr;
        EXPECT_TRUE(isNamed) << name.toStdString();
      }
    });
    window->hide();
  }
}

/// The room that a control needs for its text.
QSize NeededBy(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget);
      label != nullptr && label->wordWrap()) {
    return {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
  }
  if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
    // Less than the style's own least width does for a short caption.
    constexpr int kSides = 16;
    const int caption = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
    return {caption + kSides, button->sizeHint().height()};
  }
  const bool shrinks = qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                       qobject_cast<const RibbonButton*>(&widget) != nullptr;
  if (shrinks) return widget.minimumSizeHint();
  return widget.sizeHint();
}

void ExpectNothingClipped(QWidget& window) {
  for (const auto* widget : window.findChildren<QWidget*>()) {
    const bool hasText = qobject_cast<const QLabel*>(widget) != nullptr ||
                         qobject_cast<const QLineEdit*>(widget) != nullptr ||
                         (qobject_cast<const QAbstractButton*>(widget) != nullptr &&
                          !widget->objectName().isEmpty());
    if (!hasText || !widget->isVisible() || widget->objectName().startsWith("qt_")) continue;
    const auto* label = qobject_cast<const QLabel*>(widget);
    const std::string name =
        (label != nullptr ? label->text() : widget->objectName()).toStdString();
    const QSize needed = NeededBy(*widget);
    EXPECT_GE(widget->width(), needed.width()) << name;
    EXPECT_GE(widget->height(), needed.height()) << name;
    for (const QWidget* parent = widget->parentWidget(); parent != nullptr && !widget->isWindow();
         parent = parent->isWindow() ? nullptr : parent->parentWidget()) {
      const QRect place(widget->mapTo(parent, QPoint(0, 0)), widget->size());
      EXPECT_TRUE(parent->rect().contains(place)) << name << " stands out of its parent";
    }
  }
}

TEST_F(EveryWindow, NothingIsClippedInATool) {
  for (const auto& form : ToolForms()) {
    ShowActive(*form);
    const std::vector<QSize> sizes{form->minimumSize(), form->size(), QSize(1280, 720)};
    for (const QSize size : sizes) {
      SCOPED_TRACE(form->objectName().toStdString() + " " + std::to_string(size.width()));
      form->resize(size);
      QCoreApplication::processEvents();
      EXPECT_EQ(form->size(), size);
      OnEveryTab(*form, [&form] {
        QCoreApplication::processEvents();
        ExpectNothingClipped(*form);
      });
    }
    EXPECT_LE(form->minimumSize().width(), 960);
    EXPECT_LE(form->minimumSize().height(), 620);
    form->hide();
  }
}

TEST_F(EveryWindow, NothingIsClippedInTheMainWindowAndTheAboutBox) {
  const auto window = IdleMainWindow();
  ExpectNothingClipped(*window);
  FrmHandMain opening(MakeToolForm);
  ShowActive(opening);
  ExpectNothingClipped(opening);
  FrmAbout about(nullptr);
  ShowActive(about);
  ExpectNothingClipped(about);
}

}  // namespace
}  // namespace halvane
