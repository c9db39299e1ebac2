#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <type_traits>

#include "core/job_state.h"
#include "tests/support/test_platform.h"
#include "tests/support/test_support.h"

/// How GoogleTest shows texts of the toolkit; found by it beside the type itself.
void PrintTo(const QString& text, std::ostream* stream);
void PrintTo(const QStringList& texts, std::ostream* stream);

class QSlider;

namespace halvane {

class FrmHandMain;
class FrmSI;

/// The names of all children of one kind, for the message of a search that found nothing.
std::string NamesOf(const QList<QObject*>& objects);

/// The child of that name. Fails the test, with the names that there are, when there is none.
template <typename T>
T& Find(const QObject& parent, const QString& name) {
  if (T* found = parent.findChild<T*>(name)) return *found;
  QList<QObject*> others;
  for (T* child : parent.findChildren<T*>()) others.append(child);
  throw std::runtime_error("no child " + name.toStdString() + "; there are: " + NamesOf(others));
}

/// Chooses a menu item as an event does: a failure of its handler reaches the application.
void Choose(QAction& item);
/// Chooses the item of that name.
void Choose(const QObject& form, const QString& item);

/// Shows a window and makes it the active one.
void ShowActive(QWidget& window);

/// The place of a slider's handle, within the slider.
QRect HandleOf(const QSlider& slider);
/// Moves the mouse over a widget with these buttons held.
void MoveMouse(QWidget& widget, QPoint to, Qt::MouseButtons buttons);

/// The texts of a menu's items in order, "-" for a separator.
QStringList TextsOf(const QMenu& menu);

/// What the user does in modal windows and popups, whose event loops are nested in the call that
/// opened them. The next step runs once the topmost modal window or popup has the step's name,
/// which is its `objectName` or its class. Fails the test for a step whose window never comes, and
/// then closes whatever is open, so that the test ends.
class ModalSteps {
 public:
  ModalSteps();
  ~ModalSteps();
  ModalSteps(const ModalSteps&) = delete;
  ModalSteps& operator=(const ModalSteps&) = delete;

  template <typename Window = QWidget>
  void Then(const QString& name, std::type_identity_t<std::function<void(Window&)>> step) {
    steps_.push_back({name, [step](QWidget& window) {
                        auto* typed = qobject_cast<Window*>(&window);
                        if (typed == nullptr) throw std::runtime_error("a window of another class");
                        step(*typed);
                      }});
  }

 private:
  struct Step {
    QString window;
    std::function<void(QWidget&)> action;
  };
  void ScheduleTick();
  void Tick();

  std::deque<Step> steps_;
  QObject life_;
  int idleTicks_ = 0;
};

/// The only visible tool form; fails the test when there is another number of them.
QWidget& VisibleToolForm();

/// A test of the shell: a fresh program, a folder for its files, and the platform's double.
class ShellTest : public testing::Test {
 public:
  ~ShellTest() override;

 protected:
  ShellTest();

  /// Path of a file in the test's folder.
  [[nodiscard]] QString File(const char* name) const;
  /// The main window after its opening phase, active.
  std::unique_ptr<FrmHandMain> IdleMainWindow();
  /// The Strain Index form, loaded and active, shown without the main window.
  std::unique_ptr<FrmSI> LoadedStrainIndex();

  TemporaryFolder folder;
  TestPlatform platform;
};

}  // namespace halvane
