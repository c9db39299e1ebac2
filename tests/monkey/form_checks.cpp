#include "tests/monkey/form_checks.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QSlider>
#include <algorithm>
#include <array>

#include "core/job_state.h"
#include "core/number_text.h"
#include "tools/ctd/ctd_controls.h"
#include "tools/hal/hal_controls.h"
#include "tools/ocra/ocra_controls.h"
#include "tools/task_list/task_tree.h"
#include "widgets/layout.h"
#include "widgets/ribbon_button.h"
#include "widgets/text_box.h"

namespace halvane {
namespace {

constexpr int kTicked = 4;
constexpr double kReplacedObservation = 0.001;

double ReadsAsOrZero(const QString& text) {
  try {
    return ReadsAs(text.toStdString());
  } catch (const RuntimeFailure&) {
    return 0;
  }
}

QString Differs(const TextBox& box, const std::string& field) {
  return QString("%1 shows '%2' and its field holds '%3'")
      .arg(box.objectName(), box.text().left(60), QString::fromStdString(field).left(60));
}

/// A box whose field takes the number that its text reads as.
QString WrongNumber(const TextBox& box, const TaggedField& field) {
  const std::string held = field.AsText();
  if (box.text().toStdString() == held) return {};
  const double shown = ReadsAsOrZero(box.text());
  const double number = ReadsAsOrZero(QString::fromStdString(held));
  return PlainText(shown) == PlainText(number) ? QString() : Differs(box, held);
}

QString WrongText(const TextBox& box, const TaggedField& field) {
  return box.text().toStdString() == field.AsText() ? QString() : Differs(box, field.AsText());
}

/// What the controls of a form are found by.
class Look {
 public:
  explicit Look(const ToolForm& form) : form_(form) {}

  template <typename T>
  [[nodiscard]] T* The(const QString& name) const {
    return form_.findChild<T*>(name);
  }
  /// The index of the element that is on; -1 for none.
  [[nodiscard]] int On(const QString& array, int first, int count) const {
    for (int i = first; i < first + count; ++i) {
      const auto* button = The<QAbstractButton>(ElementName(array, i));
      if (button != nullptr && button->isChecked()) return i;
    }
    return -1;
  }

 private:
  const ToolForm& form_;
};

/// The task whose controls are shown; nothing while there is none, or none that the fixed arrays
/// have room for.
std::optional<int> ShownTask(const TaskTree* tree) {
  if (tree == nullptr || tree->isEmpty()) return std::nullopt;
  const int task = tree->SelectedTask();
  return task > kHighestTask ? std::nullopt : std::optional(task);
}

/// Whether each code of the task names a ribbon; the form shows nothing of a task from the first
/// that does not on.
bool NamesRibbons(int task) {
  try {
    for (std::size_t group = 0; group < kCtdGroups.size(); ++group) {
      CtdRibbonAt(kCtdGroups[group].ribbons, CtdCodeOf(static_cast<CtdGroup>(group), task));
    }
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

class BoxList {
 public:
  explicit BoxList(const ToolForm& form) : form_(form) {}

  void Add(const QString& name, QString (*differs)(const TextBox&, const TaggedField&),
           std::function<std::optional<TaggedField>()> field) {
    auto* box = form_.findChild<TextBox*>(name);
    if (box == nullptr) return;
    boxes.push_back({box, [box, differs, field = std::move(field)] {
                       try {
                         const std::optional<TaggedField> held = field();
                         return held ? differs(*box, *held) : QString();
                       } catch (const RuntimeFailure&) {
                         // A field of an odd file, which reads as no double.
                         return QString();
                       }
                     }});
  }
  [[nodiscard]] const ToolForm& form() const { return form_; }
  void AddNames(const std::array<const char*, 3>& names) {
    Add(names[0], WrongText, [] { return Module1.JobAnalyst; });
    Add(names[1], WrongText, [] { return Module1.JobName; });
    Add(names[2], WrongText, [] { return TaggedField(Module1.JobWorkstationId); });
  }

  std::vector<WatchedBox> boxes;

 private:
  const ToolForm& form_;
};

using Field = std::optional<TaggedField>;

/// The CTD computation leaves 0 for a duration below 0 and for the value that it guards its
/// divisions with, which is wanted; the box stays as typed.
QString WrongDuration(const TextBox& box, const TaggedField& field) {
  constexpr double kGuard = 0.01;
  const double shown = ReadsAsOrZero(box.text());
  if (field.AsDouble() == 0 && (shown <= 0 || shown == kGuard)) return {};
  return WrongNumber(box, field);
}

void AddOcraBoxes(BoxList& list, const TaskTree* tree) {
  const auto ofTask = [tree](auto field) {
    return [tree, field]() -> Field {
      const std::optional<int> task = ShownTask(tree);
      return task ? Field(TaggedField(field(*task))) : Field();
    };
  };
  list.Add("Text2(1)", WrongNumber, [] { return TaggedField(Module1.JobCycleTime); });
  list.Add("Text1(2)", WrongNumber,
           ofTask([](int task) { return Module1.OcraTaskDuration.at(task); }));
  list.Add("Text1(5)", WrongNumber,
           ofTask([](int task) { return Module1.OcraActionFrequency.at(task); }));
}

void AddCtdBoxes(BoxList& list, const TaskTree* tree) {
  const auto ofTask = [tree](auto field) {
    return [tree, field]() -> Field {
      const std::optional<int> task = ShownTask(tree);
      return task && NamesRibbons(*task) ? Field(TaggedField(field(*task))) : Field();
    };
  };
  list.Add("Text2(0)", WrongDuration, [] { return Module1.JobDurationPerDay; });
  list.Add("Text2(1)", WrongDuration, [] { return TaggedField(Module1.JobCycleTime); });
  list.Add("Text1(2)", WrongDuration,
           ofTask([](int task) { return Module1.CtdWorkTime.at(task); }));
  list.Add("Text1(5)", WrongNumber,
           ofTask([](int task) { return Module1.CtdRepetitions.at(task); }));
  list.Add("Text1(6)", WrongNumber, ofTask([](int task) { return Module1.CtdHandSpan.at(task); }));
  list.Add("Text5", WrongNumber, ofTask([](int task) { return Module1.CtdForceMvc.at(task); }));
  for (int slot = 0; slot < kPostureSlots; ++slot) {
    const auto shownIn = [&](const QString& name, auto field) {
      const auto* box = list.form().findChild<TextBox*>(name);
      return
          [box, value = ofTask(field)]() -> Field { return box->isVisible() ? value() : Field(); };
    };
    const QString load = ElementName("Text3", slot);
    list.Add(load, WrongNumber,
             shownIn(load, [slot](int task) { return Module1.CtdLoadHeld.at(task, slot); }));
    const QString time = ElementName("Text4", slot);
    list.Add(time, WrongNumber,
             shownIn(time, [slot](int task) { return Module1.CtdPostureDuration.at(task, slot); }));
  }
}

/// An observation time that a computation replaced stays in its box as it was typed.
QString WrongObservation(const TextBox& box, const TaggedField& field) {
  if (field.AsDouble() == kReplacedObservation && ReadsAsOrZero(box.text()) <= 0) return {};
  return WrongNumber(box, field);
}

void AddStrainIndexBoxes(BoxList& list) {
  list.Add("Text1(0)", WrongNumber, [] { return Module1.SiExertionMinutes; });
  list.Add("Text1(1)", WrongObservation, [] { return Module1.SiDutyObservationMinutes; });
  list.Add("Text1(2)", WrongNumber, [] { return Module1.SiExertionCount; });
  list.Add("Text1(3)", WrongObservation,
           [] { return TaggedField(Module1.SiEffortObservationMinutes); });
  list.Add("Text1(8)", WrongNumber, [] { return Module1.JobDurationPerDay; });
}

QString Compare(const QString& control, double shown, double held) {
  if (shown == held) return {};
  return QString("%1 shows %2 and its field holds %3").arg(control).arg(shown).arg(held);
}

QString WrongOcraControl(const Look& look) {
  for (int list = 0; list < kOcraListCount; ++list) {
    const QString name = ElementName("Combo1", list);
    const QString wrong =
        Compare(name, look.The<QComboBox>(name)->currentIndex(), Module1.OcraComboChoice.at(list));
    if (!wrong.isEmpty()) return wrong;
  }
  const std::array<double, 5> ticks{
      Module1.OcraWristActions.AsDouble(), static_cast<double>(Module1.OcraWristHold),
      Module1.OcraSameFingers.AsDouble(), static_cast<double>(Module1.OcraHoldObject),
      static_cast<double>(Module1.OcraElbowGesture)};
  for (int i = 0; i < 5; ++i) {
    const QString name = ElementName("SSCheck1", i);
    const bool ticked = ticks.at(static_cast<std::size_t>(i)) == kTicked;
    const QString wrong = Compare(name, look.The<QCheckBox>(name)->isChecked(), ticked);
    if (!wrong.isEmpty()) return wrong;
  }
  QString wrong = Compare("Slider2", look.The<QSlider>("Slider2")->value(),
                          OcraRecoverySliderAt(Module1.OcraRecoveryHours.AsDouble()));
  const auto* tree = look.The<TaskTree>("TreeView1");
  if (const std::optional<int> task = ShownTask(tree); task && wrong.isEmpty()) {
    wrong = Compare("Slider1", look.The<QSlider>("Slider1")->value(),
                    OcraSliderAt(Module1.OcraForceRating.at(*task)));
  }
  return wrong;
}

QString WrongCtdControl(const Look& look) {
  const std::optional<int> task = ShownTask(look.The<TaskTree>("TreeView1"));
  if (!task || !NamesRibbons(*task)) return {};
  for (std::size_t group = 0; group < kCtdGroups.size(); ++group) {
    const QString array = ScreenText(kCtdGroups[group].objectName);
    const QString wrong =
        Compare(array, look.On(array, 0, 9), CtdCodeOf(static_cast<CtdGroup>(group), *task));
    if (!wrong.isEmpty()) return wrong;
  }
  return {};
}

QString WrongTask(const TaskTree* tree) {
  if (tree == nullptr || tree->isEmpty()) return {};
  return Compare("the task list", tree->SelectedTask(), Module1.CurrentTask.AsDouble());
}

/// The ribbons of one rating are down together, and the one that was picked is among them.
QString WrongStrainIndexControl(const Look& look) {
  const std::array<std::pair<const char*, double>, 3> picks{
      {{"SSRibbon1", Module1.SiIntensityPick.AsDouble()},
       {"SSRibbon2", Module1.SiPosturePick.AsDouble()},
       {"SSRibbon3", static_cast<double>(Module1.SiSpeedPick)}}};
  for (const auto& [array, pick] : picks) {
    const int rating = static_cast<int>(pick) % 5;
    for (int column = 0; look.The<QAbstractButton>(ElementName(array, column * 5)) != nullptr;
         ++column) {
      const QString name = QString("column %1 of %2").arg(column).arg(array);
      const QString wrong = Compare(name, look.On(array, column * 5, 5) - column * 5, rating);
      if (!wrong.isEmpty()) return wrong;
    }
  }
  return {};
}

struct StateRibbons {
  const char* array;
  int count;
  int state;
};

template <std::size_t N, typename State>
QString WrongRibbons(const Look& look, const std::array<StateRibbons, N>& rows,
                     const State& state) {
  for (const StateRibbons& row : rows) {
    const QString wrong = Compare(row.array, look.On(row.array, 0, row.count), state.at(row.state));
    if (!wrong.isEmpty()) return wrong;
  }
  return {};
}

QString WrongRulaControl(const Look& look) {
  constexpr std::array<StateRibbons, 6> kRows{{{"SSRibbon1", 5, 0},
                                               {"SSRibbon2", 2, 4},
                                               {"SSRibbon3", 5, 6},
                                               {"SSRibbon4", 4, 9},
                                               {"SSRibbon5", 4, 12},
                                               {"SSOption3", 4, 17}}};
  return WrongRibbons(look, kRows, Module1.RulaControlState);
}

QString WrongRebaControl(const Look& look) {
  constexpr std::array<StateRibbons, 6> kRows{{{"SSRibbon1", 5, 0},
                                               {"SSRibbon2", 3, 4},
                                               {"SSRibbon3", 3, 6},
                                               {"SSRibbon4", 3, 9},
                                               {"SSRibbon5", 6, 12},
                                               {"SSOption1", 4, 19}}};
  const QString wrong = WrongRibbons(look, kRows, Module1.RebaControlState);
  if (!wrong.isEmpty()) return wrong;
  return Compare("Combo2", look.The<QComboBox>("Combo2")->currentIndex(),
                 Module1.RebaControlState.at(17));
}

}  // namespace

std::vector<WatchedBox> WatchedBoxesOf(Tool tool, const ToolForm& form) {
  BoxList list(form);
  const auto* tree = form.findChild<TaskTree*>("TreeView1");
  switch (tool) {
    case Tool::Ocra:
      list.AddNames({"Text3(0)", "Text3(1)", "Text3(2)"});
      AddOcraBoxes(list, tree);
      break;
    case Tool::Ctd:
      list.AddNames({"Text1(8)", "Text1(7)", "Text1(4)"});
      AddCtdBoxes(list, tree);
      break;
    case Tool::StrainIndex:
      list.AddNames({"Text1(6)", "Text1(5)", "Text1(4)"});
      AddStrainIndexBoxes(list);
      break;
    case Tool::Reba:
    case Tool::Rula: list.AddNames({"Text1(0)", "Text1(1)", "Text1(2)"}); break;
    case Tool::Hal:
      list.AddNames({"Text3(0)", "Text3(1)", "Text3(2)"});
      list.Add("Text1(0)", WrongNumber, [] { return Module1.HalExertionFrequency; });
      list.Add("Text1(1)", WrongNumber, [] { return Module1.HalDutyCycle; });
      break;
  }
  return std::move(list.boxes);
}

QString WrongControl(Tool tool, const ToolForm& form, bool isOdd) {
  const Look look(form);
  QString wrong = WrongTask(look.The<TaskTree>("TreeView1"));
  if (!wrong.isEmpty() || isOdd) return wrong;
  const QString options = tool == Tool::Ocra || tool == Tool::Ctd ? "SSOption1" : "SSOption5";
  wrong = Compare("Hand", look.On(options, 0, 2), Module1.Hand);
  if (!wrong.isEmpty()) return wrong;
  switch (tool) {
    case Tool::Ocra: return WrongOcraControl(look);
    case Tool::Ctd: return WrongCtdControl(look);
    case Tool::StrainIndex: return WrongStrainIndexControl(look);
    case Tool::Rula: return WrongRulaControl(look);
    case Tool::Reba: return WrongRebaControl(look);
    case Tool::Hal:
      return Compare("Slider1", look.The<QSlider>("Slider1")->value(), HalLevelSlider());
  }
  return {};
}

}  // namespace halvane
