// The life of the form: a program that starts, a form that is loaded, shown, closed and shown
// again.
#include "tests/monkey/monkey.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QSlider>
#include <QTabBar>
#include <QTextEdit>

#include "app/tool_forms.h"
#include "core/units.h"
#include "tools/task_list/task_tree.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

/// Painting takes most of the time, and little can go wrong in it.
constexpr int kShowingsToOnePainted = 12;
constexpr int kEventsOfOneRun = 600;

}  // namespace

Monkey::Monkey(Tool tool, Dice& dice, Trace& trace, RandomPlatform& platform)
    : tool_(tool),
      dice_(dice),
      trace_(trace),
      platform_(platform),
      elsewhere_(std::make_unique<QWidget>()) {
  elsewhere_->setObjectName("elsewhere");
  elsewhere_->show();
  platform_.SetDialog([this](QWidget* parent) { StandDialog(parent); });
  StartProgram();
}

Monkey::~Monkey() = default;

void Monkey::StartProgram() {
  trace_.Add("a fresh start");
  hands_.LetMouseGo();
  form_.reset();
  Module1 = JobState{};
  platform_.Forget();
  failure_.reset();
  closedWith_.reset();
  mostTasks_ = 0;
  form_ = MakeToolForm(tool_, nullptr);
  QObject::connect(form_.get(), &QDialog::finished, form_.get(),
                   [this](int result) { closedWith_ = result; });
  controls_.clear();
  for (QWidget* widget : form_->findChildren<QWidget*>()) {
    const bool isControl =
        qobject_cast<QAbstractButton*>(widget) != nullptr ||
        qobject_cast<TextBox*>(widget) != nullptr || qobject_cast<QSlider*>(widget) != nullptr ||
        qobject_cast<QComboBox*>(widget) != nullptr || qobject_cast<QTabBar*>(widget) != nullptr;
    if (isControl) controls_.emplace_back(widget);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) {
      controls_.emplace_back(area->viewport());
    }
  }
  boxes_ = WatchedBoxesOf(tool_, *form_);
  for (const WatchedBox& watched : boxes_) {
    QObject::connect(watched.box, &QLineEdit::textEdited, form_.get(),
                     [this, box = watched.box](const QString& text) {
                       texts_[box] = text;
                       notStored_.insert(box);
                     });
  }
  ShowForm();
}

void Monkey::ShowForm() {
  closedWith_.reset();
  hands_.SetShowing(++showing_);
  try {
    form_->load();
  } catch (const RuntimeFailure& failure) {
    Failed(failure.kind());
    return;
  }
  mostTasks_ = Module1.TaskCount.AsDouble();
  showsAnotherJob_ = false;
  notStored_.clear();
  texts_.clear();
  for (const WatchedBox& watched : boxes_) texts_[watched.box] = watched.box->text();
  form_->setUpdatesEnabled(showing_ % kShowingsToOnePainted == 0);
  form_->show();
  form_->activateWindow();
  Hands::Settle();
}

void Monkey::BetweenShowings() {
  try {
    if (dice_.OneIn(3)) {
      trace_.Add("other units");
      ChooseUnits(dice_.OneIn(2) ? LengthUnit::English : LengthUnit::Metric);
    }
    if (dice_.OneIn(6)) {
      trace_.Add("a new job");
      JobReset();
    }
  } catch (const RuntimeFailure& failure) {
    Failed(failure.kind());
  }
}

void Monkey::Act() {
  trace_.NextEvent();
  if (dice_.OneIn(kEventsOfOneRun)) StartProgram();
  // The window manager brings back what stood below a dialog.
  if (QGuiApplication::focusWindow() == nullptr && form_->isVisible()) {
    form_->activateWindow();
    Hands::Settle();
  }
  const QPointer<QWidget> focusBefore = QApplication::focusWidget();
  if (!failure_) ChooseEvent();
  LookAfter(focusBefore);
}

}  // namespace halvane
