#include "widgets/spoken_button.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPushButton>
#include <QRadioButton>

#include "widgets/choice_group.h"
#include "widgets/link_label.h"
#include "widgets/ribbon_button.h"
#include "widgets/spoken.h"

namespace halvane {
namespace {

QString FrameAround(const QWidget& control) {
  for (const QWidget* above = control.parentWidget(); above != nullptr && !above->isWindow();
       above = above->parentWidget()) {
    const auto* frame = qobject_cast<const QGroupBox*>(above);
    if (frame != nullptr && !frame->title().isEmpty()) return SpokenCaption(frame->title());
  }
  return {};
}

/// Whether a window in front of it, such as a message, holds up the window of a control.
bool IsHeldUp(const QWidget& control) {
  for (const QWidget* front = QApplication::activeModalWidget();
       front != nullptr && front != control.window();) {
    const QWidget* behind = front->parentWidget();
    front = behind == nullptr ? nullptr : behind->window();
    if (front == control.window()) return true;
  }
  return false;
}

}  // namespace

SpokenButton::SpokenButton(QAbstractButton& button) : QAccessibleWidget(&button) {}

QAbstractButton& SpokenButton::button() const { return *static_cast<QAbstractButton*>(widget()); }

QAccessible::Role SpokenButton::role() const {
  const QAbstractButton& self = button();
  if (qobject_cast<const LinkLabel*>(&self) != nullptr) return QAccessible::Link;
  if (const auto* group = qobject_cast<const ChoiceGroup*>(self.group())) {
    return group->choice() == Choice::One ? QAccessible::RadioButton : QAccessible::CheckBox;
  }
  if (qobject_cast<const QRadioButton*>(&self) != nullptr) return QAccessible::RadioButton;
  if (qobject_cast<const QCheckBox*>(&self) != nullptr) return QAccessible::CheckBox;
  // A ribbon without a group stays down while its menu is open.
  const bool hasMenu = qobject_cast<const RibbonButton*>(&self) != nullptr;
  return hasMenu ? QAccessible::ButtonMenu : QAccessible::Button;
}

QAccessible::State SpokenButton::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  const QAbstractButton& self = button();
  const QAccessible::Role kind = role();
  const auto* push = qobject_cast<const QPushButton*>(&self);
  state.hasPopup = kind == QAccessible::ButtonMenu;
  state.pressed = self.isDown() || (kind == QAccessible::ButtonMenu && self.isChecked());
  state.checkable = kind == QAccessible::RadioButton || kind == QAccessible::CheckBox;
  state.checked = state.checkable && self.isChecked();
  state.defaultButton = push != nullptr && push->isDefault();
  return state;
}

QString SpokenButton::text(QAccessible::Text kind) const {
  if (kind == QAccessible::Name) return Name();
  if (kind == QAccessible::Description) return Description();
  if (kind == QAccessible::Accelerator) {
    return QKeySequence::mnemonic(button().text()).toString(QKeySequence::NativeText);
  }
  return QAccessibleWidget::text(kind);
}

QString SpokenButton::Name() const {
  const QAbstractButton& self = button();
  const QString given = self.accessibleName();
  const QString own = given.isEmpty() ? WithoutLetters(self.text()) : given;
  const bool isRibbon = qobject_cast<const RibbonButton*>(&self) != nullptr;
  const QString frame = isRibbon ? FrameAround(self) : QString();
  return frame.isEmpty() ? own : frame + ", " + own;
}

QString SpokenButton::Description() const {
  // Most tips are captions, which would be spoken twice.
  const QString tip = QAccessibleWidget::text(QAccessible::Description).trimmed();
  const bool isSaid = tip == WithoutLetters(button().text()) || tip == button().accessibleName();
  return isSaid ? QString() : tip;
}

QString SpokenButton::ActionName() const {
  const QAccessible::Role kind = role();
  if (kind == QAccessible::ButtonMenu) return showMenuAction();
  const bool toggles = kind == QAccessible::RadioButton || kind == QAccessible::CheckBox;
  return toggles ? toggleAction() : pressAction();
}

QStringList SpokenButton::actionNames() const {
  QStringList names;
  if (button().isEnabled()) names.append(ActionName());
  return names + QAccessibleWidget::actionNames();
}

void SpokenButton::doAction(const QString& name) {
  if (name != ActionName()) {
    QAccessibleWidget::doAction(name);
    return;
  }
  // A button may open a window, and come back when that closes.
  const auto press = [target = &button()] {
    if (!target->isVisible() || IsHeldUp(*target)) return;
    // As keys, so that the job is looked after as behind every other input.
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier, " ");
      QCoreApplication::sendEvent(target, &space);
    }
  };
  QMetaObject::invokeMethod(&button(), press, Qt::QueuedConnection);
}

QStringList SpokenButton::keyBindingsForAction(const QString& name) const {
  const QString keys = text(QAccessible::Accelerator);
  if (name != ActionName() || keys.isEmpty()) return {};
  return {keys};
}

}  // namespace halvane
