#pragma once

#include <QPointer>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "core/job_state.h"
#include "shell/tool_form.h"
#include "tests/monkey/dice.h"
#include "tests/monkey/form_checks.h"
#include "tests/monkey/hands.h"
#include "tests/monkey/random_platform.h"
#include "tests/monkey/trace.h"

namespace halvane {

/// A user without a plan in front of one form: does one thing after another and looks after each
/// whether the form and the job are as they have to be.
class Monkey {
 public:
  Monkey(Tool tool, Dice& dice, Trace& trace, RandomPlatform& platform);
  ~Monkey();

  /// One event of the user and the look at what came of it. What is wrong is in the trace.
  void Act();
  /// Begins anew with a program just started.
  void StartProgram();
  /// A failure that no command caught.
  void Failed(FailureKind kind) {
    if (!failure_) failure_ = kind;
  }

 private:
  // What the user does; `monkey_events.cpp`.
  void ChooseEvent();
  void PressSomeKey();
  void ReleaseSomeKey();
  void TypeText();
  void ChooseMenuItem();
  void UseMouse();
  void ClickControl(QWidget& control);
  void UsePopup(QWidget& popup);
  void UseTaskList();
  void OpenTab();
  void DragSlider();
  void LeaveAndComeBack();
  void StandDialog(QWidget* parent);
  QWidget* SomeControl();
  QPoint SomePlaceIn(const QWidget& control);

  // The life of the form.
  void ShowForm();
  void BetweenShowings();

  // What has to hold; `monkey_looks.cpp`.
  struct Before {
    JobState job;
    QPointer<QWidget> target;  ///< what the keys went to
  };
  [[nodiscard]] static Before LookBefore();
  void LookAfter(const QPointer<QWidget>& focusBefore);
  void LookAtRelease(const Before& before, const HeldKey& key);
  void LookAtFocus(const QPointer<QWidget>& focusBefore);
  void LookAtBoxes();
  void LookAtFailure();
  [[nodiscard]] const WatchedBox* Watched(const QObject* widget) const;
  /// The box has to hold what it shows, since a release stored it.
  void Stored(const QObject* box, const char* why);
  [[nodiscard]] bool IsOdd() const { return platform_.openedAnOddJob(); }

  Tool tool_;
  Dice& dice_;
  Trace& trace_;
  RandomPlatform& platform_;
  Hands hands_;
  std::unique_ptr<QWidget> elsewhere_;  ///< a window of another program
  std::unique_ptr<ToolForm> form_;
  std::vector<QPointer<QWidget>> controls_;
  std::vector<WatchedBox> boxes_;
  std::set<const QObject*> notStored_;  ///< boxes whose text no release of a key has stored
  std::map<const QObject*, QString> texts_;
  std::optional<FailureKind> failure_;
  std::optional<int> closedWith_;
  double mostTasks_ = 0;
  int showing_ = 0;
  /// A file was opened and failed half way: the job is a part of it, and the form shows the old
  /// one.
  bool showsAnotherJob_ = false;
};

}  // namespace halvane
