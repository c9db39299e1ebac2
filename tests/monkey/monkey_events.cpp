// What the monkey does.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QMenu>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QTextEdit>
#include <array>

#include "tests/monkey/monkey.h"
#include "tests/support/form_support.h"
#include "tools/task_list/task_tree.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

constexpr std::array<const char*, 12> kTexts{"480",  "1e400", "-3.5",  "0", "Line \"4\"", "包装",
                                             "  7 ", ".5",    "1e308", "x", "100",        "1E-310"};

const std::array<Key, 30> kKeys{{
    {Qt::Key_4, {}, "4", "4"},
    {Qt::Key_8, {}, "8", "8"},
    {Qt::Key_N, {}, "n", "n"},
    {Qt::Key_E, {}, "e", "e"},
    {Qt::Key_Period, {}, ".", "point"},
    {Qt::Key_Minus, {}, "-", "minus"},
    {Qt::Key_Space, {}, " ", "space"},
    {Qt::Key_QuoteDbl, Qt::ShiftModifier, "\"", "quote"},
    {Qt::Key_Shift, Qt::ShiftModifier, "", "Shift"},
    {Qt::Key_Control, Qt::ControlModifier, "", "Ctrl"},
    {Qt::Key_Backspace, {}, "\b", "Backspace"},
    {Qt::Key_Delete, {}, "\x7f", "Delete"},
    {Qt::Key_Left, {}, "", "Left"},
    {Qt::Key_Right, {}, "", "Right"},
    {Qt::Key_Up, {}, "", "Up"},
    {Qt::Key_Down, {}, "", "Down"},
    {Qt::Key_PageUp, {}, "", "Page Up"},
    {Qt::Key_Home, {}, "", "Home"},
    {Qt::Key_End, {}, "", "End"},
    {Qt::Key_Tab, {}, "\t", "Tab"},
    {Qt::Key_Backtab, Qt::ShiftModifier, "\t", "Shift+Tab"},
    {Qt::Key_Return, {}, "\r", "Return"},
    {Qt::Key_Escape, {}, "\x1b", "Escape"},
    {Qt::Key_F2, {}, "", "F2"},
    {Qt::Key_A, Qt::ControlModifier, "\x01", "Ctrl+A"},
    {Qt::Key_V, Qt::ControlModifier, "\x16", "Ctrl+V"},
    {Qt::Key_X, Qt::ControlModifier, "\x18", "Ctrl+X"},
    {Qt::Key_Z, Qt::ControlModifier, "\x1a", "Ctrl+Z"},
    {Qt::Key_Tab, Qt::ControlModifier, "\t", "Ctrl+Tab"},
    {Qt::Key_Insert, {}, "", "Insert"},
}};

/// Menus and buttons by their letters.
const std::array<Key, 6> kAltKeys{{
    {Qt::Key_Alt, Qt::AltModifier, "", "Alt"},
    {Qt::Key_F, Qt::AltModifier, "f", "Alt+F"},
    {Qt::Key_E, Qt::AltModifier, "e", "Alt+E"},
    {Qt::Key_H, Qt::AltModifier, "h", "Alt+H"},
    {Qt::Key_A, Qt::AltModifier, "a", "Alt+A"},
    {Qt::Key_D, Qt::AltModifier, "d", "Alt+D"},
}};

constexpr std::size_t kMostHeldKeys = 3;

Key KeyOf(QChar letter) {
  const int code = letter.unicode() < 0x80 ? letter.toUpper().unicode() : 0;
  return {code, {}, QString(letter), "letter"};
}

QString NameOf(const QWidget& widget) {
  return QString("%1 %2").arg(widget.metaObject()->className(), widget.objectName());
}

}  // namespace

void Monkey::ChooseEvent() {
  if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr && !dice_.OneIn(4)) {
    UsePopup(*popup);
    return;
  }
  if (elsewhere_->isActiveWindow() && dice_.OneIn(4)) {
    LeaveAndComeBack();
    return;
  }
  if (!hands_.held().empty() && dice_.OneIn(2)) {
    ReleaseSomeKey();
    return;
  }
  if (hands_.buttons() != Qt::NoButton && dice_.OneIn(2)) {
    trace_.Add("the mouse lets go");
    hands_.LetMouseGo();
    return;
  }
  const int choice = dice_.Below(100);
  if (choice < 30) return PressSomeKey();
  if (choice < 50) return TypeText();
  if (choice < 76) return UseMouse();
  if (choice < 82) return UseTaskList();
  if (choice < 86) return OpenTab();
  if (choice < 89) return DragSlider();
  if (choice < 92) return ChooseMenuItem();
  if (choice < 94) return LeaveAndComeBack();
  if (choice < 95) {
    QGuiApplication::clipboard()->setText(dice_.Of(kTexts));
    trace_.Add("something is copied elsewhere");
    return;
  }
  trace_.Add("time passes");
  hands_.LetTimePass();
}

void Monkey::PressSomeKey() {
  if (hands_.held().size() >= kMostHeldKeys) return ReleaseSomeKey();
  const Key& key = dice_.OneIn(12) ? dice_.Of(kAltKeys) : dice_.Of(kKeys);
  const QWidget* target = Hands::KeyTarget();
  trace_.Add(QString("press %1 in %2").arg(key.name, target ? NameOf(*target) : "nothing"));
  hands_.Press(key);
}

void Monkey::ReleaseSomeKey() {
  const auto place = static_cast<std::size_t>(dice_.Below(static_cast<int>(hands_.held().size())));
  const QString name = hands_.held()[place].key.name;
  if (dice_.OneIn(6)) {
    trace_.Add("repeat " + name);
    hands_.Repeat(place);
    return;
  }
  const QWidget* target = Hands::KeyTarget();
  trace_.Add(QString("release %1 in %2").arg(name, target ? NameOf(*target) : "nothing"));
  const Before before = LookBefore();
  const HeldKey key = hands_.held()[place];
  hands_.Release(place);
  LookAtRelease(before, key);
}

void Monkey::TypeText() {
  const QString text = dice_.Of(kTexts);
  const QWidget* target = Hands::KeyTarget();
  trace_.Add(QString("type '%1' in %2").arg(text, target ? NameOf(*target) : "nothing"));
  for (const QChar letter : text) {
    const Key next = KeyOf(letter);
    // A fast typist has the next key down before this one is up.
    while (hands_.held().size() > (dice_.OneIn(4) ? 1U : 0U) || hands_.IsDown(next)) {
      const Before before = LookBefore();
      const HeldKey key = hands_.held().front();
      hands_.Release(0);
      LookAtRelease(before, key);
    }
    hands_.Press(next);
    if (failure_ || closedWith_) return;
  }
}

void Monkey::ChooseMenuItem() {
  QList<QAction*> items;
  for (auto* item : form_->findChildren<QAction*>()) {
    if (item->objectName().startsWith("mnu") && item->isEnabled() && item->menu() == nullptr) {
      items.append(item);
    }
  }
  QAction* item = dice_.Of(items);
  trace_.Add("menu " + item->objectName());
  QMetaObject::invokeMethod(
      item, [item] { item->trigger(); }, Qt::QueuedConnection);
  Hands::Settle();
}

QWidget* Monkey::SomeControl() {
  for (int tries = 0; tries < 30; ++tries) {
    QWidget* control = dice_.Of(controls_);
    if (control != nullptr && control->isVisible() && control->isEnabled()) return control;
  }
  return nullptr;
}

QPoint Monkey::SomePlaceIn(const QWidget& control) {
  // An option takes a click on its circle and words only.
  if (qobject_cast<const QRadioButton*>(&control) != nullptr) return {8, control.height() / 2};
  return {dice_.Below(std::max(control.width(), 1)), dice_.Below(std::max(control.height(), 1))};
}

void Monkey::UseMouse() {
  QWidget* control = SomeControl();
  if (control == nullptr) return;
  // A click brings its window to the front.
  if (!control->window()->isActiveWindow()) control->window()->activateWindow();
  ClickControl(*control);
}

void Monkey::ClickControl(QWidget& control) {
  const QPoint place = SomePlaceIn(control);
  const int choice = dice_.Below(12);
  const QString where = QString("%1 at %2, %3").arg(NameOf(control)).arg(place.x()).arg(place.y());
  if (choice < 6) {
    trace_.Add("click " + where);
    hands_.Click(control, place);
  } else if (choice < 8) {
    trace_.Add("right click " + where);
    hands_.Click(control, place, Qt::RightButton);
  } else if (choice < 9) {
    trace_.Add("double click " + where);
    hands_.DoubleClick(control, place);
  } else if (choice < 11) {
    trace_.Add("wheel on " + where);
    hands_.TurnWheel(control, dice_.OneIn(2) ? 1 : -1);
  } else if (hands_.buttons() == Qt::NoButton) {
    trace_.Add("press the mouse on " + where);
    hands_.PressMouse(control, place, Qt::LeftButton);
  }
}

void Monkey::UsePopup(QWidget& popup) {
  const int choice = dice_.Below(6);
  if (choice < 3) {
    const std::array<Key, 4> keys{{{Qt::Key_Down, {}, "", "Down"},
                                   {Qt::Key_Return, {}, "\r", "Return"},
                                   {Qt::Key_Escape, {}, "\x1b", "Escape"},
                                   {Qt::Key_Right, {}, "", "Right"}}};
    const Key& key = dice_.Of(keys);
    trace_.Add(QString("press %1 in the popup %2").arg(key.name, NameOf(popup)));
    hands_.Press(key);
  } else if (choice < 5) {
    const QPoint place(dice_.Below(popup.width()), dice_.Below(popup.height()));
    trace_.Add("click into the popup " + NameOf(popup));
    hands_.MoveMouse(popup, place);
    if (QApplication::activePopupWidget() != nullptr) {
      hands_.Click(*QApplication::activePopupWidget(), place);
    }
  } else {
    trace_.Add("click beside the popup " + NameOf(popup));
    hands_.Click(popup, QPoint(-40, -40));
  }
}

void Monkey::UseTaskList() {
  auto* tree = form_->findChild<TaskTree*>("TreeView1");
  if (tree == nullptr) return UseMouse();
  if (tree->topLevelItemCount() > 0 && dice_.OneIn(2)) {
    const int place = dice_.Below(tree->topLevelItemCount());
    const QRect node = tree->visualItemRect(tree->topLevelItem(place));
    trace_.Add(QString("click task %1").arg(place));
    if (tree->isVisible()) hands_.Click(*tree->viewport(), node.center());
    return;
  }
  // More adding than deleting while there are few.
  const int index = dice_.Below(tree->topLevelItemCount() < 2 ? 2 : 3);
  auto* button = form_->findChild<QAbstractButton*>(
      QString("SSCommand1(%1)").arg(index == 1 ? dice_.Below(3) : index));
  if (!button->isVisible()) return;
  trace_.Add("task button " + button->objectName());
  hands_.Click(*button, button->rect().center());
}

void Monkey::OpenTab() {
  auto* bar = form_->findChild<QTabBar*>();
  if (bar == nullptr) return UseMouse();
  const int tab = dice_.Below(bar->count());
  trace_.Add(QString("tab %1").arg(tab));
  hands_.Click(*bar, bar->tabRect(tab).center());
}

void Monkey::DragSlider() {
  QList<QSlider*> sliders;
  for (auto* slider : form_->findChildren<QSlider*>()) {
    if (slider->isVisible() && slider->isEnabled()) sliders.append(slider);
  }
  if (sliders.isEmpty()) return UseMouse();
  const QPointer<QSlider> slider = dice_.Of(sliders);
  trace_.Add("drag " + slider->objectName());
  hands_.PressMouse(*slider, HandleOf(*slider).center(), Qt::LeftButton);
  for (int step = 0; step < 3 && slider != nullptr; ++step) {
    hands_.MoveMouse(*slider, SomePlaceIn(*slider));
  }
  if (dice_.OneIn(4)) return;  // the button stays down
  hands_.LetMouseGo();
}

void Monkey::LeaveAndComeBack() {
  // A popup has keyboard and mouse to itself; nobody leaves it for another window.
  if (QApplication::activePopupWidget() != nullptr) return;
  if (!form_->isActiveWindow() || form_->isMinimized()) {
    trace_.Add("the form is active again");
    if (form_->isMinimized()) form_->showNormal();
    form_->activateWindow();
  } else if (dice_.OneIn(3)) {
    trace_.Add("the form is minimised");
    form_->showMinimized();
    elsewhere_->activateWindow();
  } else {
    trace_.Add("another window is active");
    elsewhere_->activateWindow();
  }
  Hands::Settle();
}

void Monkey::StandDialog(QWidget* parent) {
  {
    QDialog dialog(parent);
    dialog.setObjectName("dialog");
    dialog.setModal(true);
    dialog.show();
    dialog.activateWindow();
    Hands::Settle();
    hands_.LeaveHeldKeys();
    // The key that answers is often still down when the dialog is gone.
    while (!hands_.held().empty() && !dice_.OneIn(3)) hands_.Release(0);
    if (dice_.OneIn(2)) hands_.Press(dice_.OneIn(2) ? kKeys[2] : kKeys[21]);
    dialog.close();
  }
  if (parent != nullptr && !dice_.OneIn(20)) parent->activateWindow();
  Hands::Settle();
}

}  // namespace halvane
