#include <cmath>
#include <string>

#include "core/job_state.h"
#include "core/task_list.h"
#include "core/units.h"
#include "expected_tables.h"
#include "tools/ctd/ctd_controls.h"
#include "tools/ctd/ctd_headline.h"
#include "tools/ctd/ctd_score.h"

namespace halvane {
namespace {

// The codes of the ribbons, in the order of the tables' columns.
constexpr std::array kGrips{0, 2, 3, 4};
constexpr std::array kWrists{1, 0, 3};

struct CodeClass {
  const char* name;
  double code;
};
constexpr std::array kRadialUlnar{CodeClass{"neutral", 0}, CodeClass{"5-15", 2},
                                  CodeClass{"over 15", 1}};
constexpr std::array kFlexionExtension{CodeClass{"neutral", 0}, CodeClass{"5-15", 6},
                                       CodeClass{"over 35", 5}};

std::string Caption(CtdGroup group, int code) {
  return std::string(
      CtdRibbonAt(kCtdGroups[static_cast<std::size_t>(group)].ribbons, code).caption);
}
std::string Percent(double value) { return Format(value, Pattern::OneDecimal); }

void AddStrength(ExpectedTables& tables) {
  std::vector<std::string> headings{"Radial/ulnar", "Flexion/extension"};
  for (const int wrist : kWrists) headings.push_back(Caption(CtdGroup::Wrist, wrist));
  TableRows& power = AddTable(tables, "ctd-power", headings);
  headings.resize(2);
  for (std::size_t i = 1; i < kGrips.size(); ++i) {
    headings.push_back(Caption(CtdGroup::Grip, kGrips.at(i)));
  }
  TableRows& pinch = AddTable(tables, "ctd-pinch", headings);
  for (const auto& [deviation, deviationCode] : kRadialUlnar) {
    for (const auto& [bending, bendingCode] : kFlexionExtension) {
      std::vector<std::string> row{deviation, bending};
      for (const int wrist : kWrists) {
        row.push_back(Percent(CtdRelativeStrength(0, wrist, deviationCode, bendingCode)));
      }
      power.push_back(row);
      row.resize(2);
      for (std::size_t i = 1; i < kGrips.size(); ++i) {
        row.push_back(Percent(CtdRelativeStrength(kGrips.at(i), 0, deviationCode, bendingCode)));
      }
      pinch.push_back(row);
    }
  }
}

void AddSpan(ExpectedTables& tables) {
  std::vector<std::string> headings{"Hand span"};
  for (const int grip : kGrips) headings.push_back(Caption(CtdGroup::Grip, grip));
  TableRows& rows = AddTable(tables, "ctd-span", headings);
  const auto addRow = [&rows](const std::string& name, double centimetres) {
    std::vector<std::string> row{name};
    for (const int grip : kGrips) row.push_back(Percent(CtdSpanStrength(grip, centimetres)));
    rows.push_back(row);
  };
  addRow("any, in cm", 0);
  for (int half = 1; half <= 8; ++half) {
    addRow(PlainText(half / 2.0) + " in", half / 2.0 * kCentimetresPerInch);
  }
}

void AddCategories(ExpectedTables& tables) {
  TableRows& rows =
      AddTable(tables, "ctd-categories", {"Frame", "1st picture", "2nd", "3rd", "4th"});
  for (const CtdSlot& slot : kCtdSlots) {
    std::vector<std::string> row{std::string(slot.frameCaption)};
    for (const CtdRibbon& category : slot.categories) row.emplace_back(category.caption);
    row.resize(5);
    rows.push_back(row);
  }
}

/// The capacity of one posture of a single task, 480 minutes a shift and a cycle of one minute.
double CapacityOf(int slot, Integer category, double minutesHeld) {
  Module1 = JobState{};
  JobReset();
  Module1.JobCycleTime = 1;
  const int task = AddTaskRecord();
  StoreCtdCategory(slot, task, category);
  Module1.CtdPostureDuration.at(task, slot) = minutesHeld;
  CTDcalculate();
  return Module1.CtdPostureCapacity.at(slot).AsDouble();
}

void AddMultipliers(ExpectedTables& tables) {
  constexpr int kNeck = 7;
  struct Joint {
    const char* name;
    std::vector<int> slots;
  };
  const std::array joints{Joint{"Shoulders and back", {0, 1, 2, 3, 6}}, Joint{"Elbows", {4, 5}}};
  TableRows& rows = AddTable(tables, "ctd-multipliers", {"Joint", "2nd picture", "3rd", "4th"});
  for (const auto& [name, slots] : joints) {
    const std::size_t before = rows.size();
    for (const int slot : slots) {
      std::vector<std::string> row{name};
      const auto categories = kCtdSlots.at(static_cast<std::size_t>(slot)).categories.size();
      for (std::size_t category = 1; category < categories; ++category) {
        // Nothing is strained by a posture that takes no time.
        row.push_back(PlainText(CapacityOf(slot, static_cast<Integer>(category), 0) / 100));
      }
      row.resize(4);
      // All slots of a joint have to agree; one that does not gets a row of its own.
      if (rows.size() == before || rows.back() != row) rows.push_back(row);
    }
  }
  rows.push_back({"Neck", PlainText(CapacityOf(kNeck, 1, 0) / 100),
                  PlainText(CapacityOf(kNeck, 2, 0) / 100),
                  PlainText(CapacityOf(kNeck, 3, 0) / 100)});

  TableRows& neck = AddTable(tables, "ctd-neck", {"Neck Flexion", "Load base"});
  const double held = 0.5;
  for (const CtdRibbon& category : kCtdSlots[kNeck].categories) {
    if (category.index == 0) continue;
    const double capacity = CapacityOf(kNeck, static_cast<Integer>(category.index), held);
    // The load base is what the strain has beside its other terms.
    const double others = 1.099646 * std::pow(held, 0.733872) * std::pow(1 - held, -0.412773) *
                          std::pow(480, 0.48053);
    const double base = std::pow((1 - capacity / 100) / others, 1 / 1.862633);
    neck.push_back({std::string(category.caption), PlainText(std::round(base * 1e6) / 1e6)});
  }
}

void AddExample(ExpectedTables& tables) {
  OpenSample("packing-line.qjt");
  kCtdHeadline.compute();
  TableRows& tasks = AddTable(tables, "ctd-example-tasks",
                              {"Task", "Strength of the grip, %", "Strength at the span, %",
                               "Force required, %", "Mean posture score"});
  for (const int task : ActiveTasks()) {
    const double grip = CtdCodeOf(CtdGroup::Grip, task);
    const double strength = CtdRelativeStrength(grip, CtdCodeOf(CtdGroup::Wrist, task),
                                                CtdCodeOf(CtdGroup::RadialUlnar, task),
                                                CtdCodeOf(CtdGroup::FlexionExtension, task));
    const double span = CtdSpanStrength(grip, 0);
    const double required = Module1.CtdForceMvc.at(task) * 100 / (strength * span / 100);
    tasks.push_back({Module1.TaskNames.at(task), Percent(strength), Percent(span),
                     Percent(required),
                     Format(Module1.CtdTaskPostureScore.at(task), Pattern::TwoDecimals)});
  }
  const auto two = [](double value) { return Format(value, Pattern::TwoDecimals); };
  const auto grandScore = [&two] { return two(Module1.CtdGrandScore.AsDouble()); };
  AddTable(tables, "ctd-example", {"Step", "Value"});
  TableRows& steps = tables["ctd-example"];
  steps.push_back({"No. Of Cycles", two(Module1.CtdCyclesPerShift)});
  steps.push_back({"Force Frequency Factor", two(Module1.CtdForceFrequencyFactor)});
  steps.push_back({"Posture Factor", two(Module1.CtdPostureFactor)});
  steps.push_back({"Task that gave it", Module1.TaskNames.at(Module1.CtdPostureFactorTask)});
  steps.push_back({"Grand Score", grandScore()});

  TableRows& units = AddTable(tables, "ctd-example-units",
                              {"Units of measure", "Force Frequency Factor", "Grand Score"});
  units.push_back({"Metric", two(Module1.CtdForceFrequencyFactor), grandScore()});
  ChooseUnits(LengthUnit::English);
  CTDcalculate();
  units.push_back({"English", two(Module1.CtdForceFrequencyFactor), grandScore()});
}

}  // namespace

ExpectedTables CtdTables() {
  ExpectedTables tables;
  AddStrength(tables);
  AddSpan(tables);
  AddCategories(tables);
  AddMultipliers(tables);
  AddExample(tables);
  return tables;
}

}  // namespace halvane
