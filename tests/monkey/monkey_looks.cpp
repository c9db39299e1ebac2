// What has to hold after everything that the monkey does.
#include <QApplication>
#include <QMenuBar>

#include "tests/monkey/allowed_failures.h"
#include "tests/monkey/monkey.h"
#include "widgets/text_box.h"

namespace halvane {

Monkey::Before Monkey::LookBefore() { return {Module1, Hands::KeyTarget()}; }

const WatchedBox* Monkey::Watched(const QObject* widget) const {
  for (const WatchedBox& watched : boxes_) {
    if (watched.box == widget) return &watched;
  }
  return nullptr;
}

void Monkey::Stored(const QObject* box, const char* why) {
  const WatchedBox* watched = Watched(box);
  if (watched == nullptr) return;
  notStored_.erase(box);
  texts_[box] = watched->box->text();
  const QString wrong = watched->wrong();
  if (!wrong.isEmpty()) trace_.Find(wrong + why);
  if (Module1.JobDirty != kTrue) trace_.Find("the job does not count as changed" + QString(why));
}

void Monkey::LookAtRelease(const Before& before, const HeldKey& key) {
  if (failure_ || closedWith_ || showsAnotherJob_ || key.wasLeft || before.target == nullptr)
    return;
  const QWidget* target = before.target;
  if (qobject_cast<const TextBox*>(target) == nullptr || !target->isVisible()) return;
  const bool sameShowing = key.showing == showing_;
  // Ctrl+Tab is the form's, whatever has the focus.
  const bool isForm =
      key.key.modifiers.testFlag(Qt::ControlModifier) && key.key.code == Qt::Key_Tab;
  const bool pressedInBox =
      sameShowing && !isForm && qobject_cast<TextBox*>(key.pressedIn) != nullptr;
  const bool isTab = key.key.code == Qt::Key_Tab || key.key.code == Qt::Key_Backtab;
  if (pressedInBox && key.pressedIn == target) {
    Stored(target, " after a key was pressed and released in it");
  } else if (!pressedInBox && !isTab && !(before.job == Module1)) {
    // A box that was pasted into by the mouse is as it was: no release stored it.
    trace_.Find(QString("the release of %1 in %2 changed the job, though its press was elsewhere")
                    .arg(key.key.name, target->objectName()));
  }
}

void Monkey::LookAtFocus(const QPointer<QWidget>& focusBefore) {
  if (QApplication::activePopupWidget() != nullptr) {
    hands_.LeaveHeldKeys();
    return;
  }
  if (showsAnotherJob_ || focusBefore == nullptr || focusBefore == QApplication::focusWidget())
    return;
  // A look at the menus is no change of the job; a letter that was typed is stored all the same.
  const bool forMenu = qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr;
  for (const HeldKey& key : hands_.held()) {
    if (forMenu && !notStored_.contains(focusBefore)) break;
    if (key.wasLeft || key.showing != showing_ || key.pressedIn != focusBefore) continue;
    // A modifier by itself types nothing that could be lost.
    if (key.key.text.isEmpty() && key.key.modifiers != Qt::NoModifier) continue;
    // A Tab counts in the box that it reaches.
    if (key.key.text == "\t") continue;
    Stored(focusBefore, " after the focus left it with a key down");
  }
  hands_.LeaveHeldKeys();
}

void Monkey::LookAtBoxes() {
  for (const WatchedBox& watched : boxes_) {
    const QString text = watched.box->text();
    if (QString& known = texts_[watched.box]; known != text) {
      // The program itself filled the box.
      known = text;
      notStored_.erase(watched.box);
    }
    if (notStored_.contains(watched.box)) continue;
    const QString wrong = watched.wrong();
    if (!wrong.isEmpty()) trace_.Find(wrong);
  }
}

void Monkey::LookAtFailure() {
  const Situation situation{tool_, IsOdd(), platform_.savedInABadPlace()};
  if (!IsAllowed(*failure_, situation)) {
    trace_.Find("the program ends: " + QString::fromStdString(RuntimeFailure(*failure_).what()));
  }
  StartProgram();
}

void Monkey::LookAfter(const QPointer<QWidget>& focusBefore) {
  if (failure_) return LookAtFailure();
  if (closedWith_) {
    const bool isReload = *closedWith_ == ToolForm::Reload;
    if (!isReload) BetweenShowings();
    if (!failure_) ShowForm();
    if (failure_) return LookAtFailure();
    if (platform_.TakeHasOpened() && isReload) platform_.Loaded();
  } else {
    LookAtFocus(focusBefore);
  }
  if (platform_.TakeHasOpened()) showsAnotherJob_ = true;
  if (showsAnotherJob_) return;
  // A code that names no ribbon leaves the boxes of its task on the CTD form as they were, and they
  // stay so when a click has given the task another code.
  if (tool_ != Tool::Ctd || !IsOdd()) LookAtBoxes();
  const QString wrong = WrongControl(tool_, *form_, IsOdd());
  if (!wrong.isEmpty()) trace_.Find(wrong);
  const double tasks = Module1.TaskCount.AsDouble();
  if (tasks < mostTasks_) trace_.Find("the task count went back");
  mostTasks_ = tasks;
}

}  // namespace halvane
