// The pages of the Hand Activity Level, of units and of the first job, and the welcome page.
#include <string>

#include "core/job_state.h"
#include "core/task_list.h"
#include "core/units.h"
#include "expected_tables.h"
#include "tools/ctd/ctd_score.h"
#include "tools/hal/hal_controls.h"
#include "tools/hal/hal_headline.h"
#include "tools/hal/hal_score.h"
#include "tools/ocra/ocra_controls.h"
#include "tools/ocra/ocra_headline.h"
#include "tools/ocra/ocra_report.h"
#include "tools/strain_index/si_controls.h"
#include "tools/strain_index/si_headline.h"
#include "tools/strain_index/si_score.h"
#include "tools/tool_table.h"

namespace halvane {
namespace {

constexpr int kPinchGrip = 1;

std::string LevelAt(double frequency, double duty) {
  Module1.HalExertionFrequency = frequency;
  Module1.HalDutyCycle = duty;
  GetExertionLevel();
  return Module1.HalActivityLevel.AsText();
}

void AddHalLevels(ExpectedTables& tables) {
  // Any values inside the five bands tell the bands of the other axis apart.
  constexpr std::array<double, 5> kDuties{10, 30, 50, 70, 90};
  constexpr std::array<double, 5> kFrequencies{5, 10, 20, 45, 70};
  const auto rows = BandsOf(0, 120, 100, [&](double frequency) {
    std::string levels;
    for (const double duty : kDuties) levels += LevelAt(frequency, duty);
    return levels;
  });
  const auto columns = BandsOf(0, 100, 100, [&](double duty) {
    std::string levels;
    for (const double frequency : kFrequencies) levels += LevelAt(frequency, duty);
    return levels;
  });
  std::vector<std::string> headings{"Exertions a minute"};
  for (const Band& column : columns) headings.push_back(column.range);
  headings.at(1).insert(0, "Duty ");
  TableRows& table = AddTable(tables, "hal-level", headings);
  for (const Band& row : rows) {
    std::vector<std::string> cells{row.range};
    for (const char level : row.result) cells.emplace_back(1, level);
    table.push_back(cells);
  }
}

void AddHalLimits(ExpectedTables& tables) {
  const auto two = [](int limit) {
    return Format(Module1.HalLimits.at(limit), Pattern::TwoDecimals);
  };
  TableRows& rows =
      AddTable(tables, "hal-limits", {"Level", "Threshold Limit Value", "Action Level"});
  for (int level = 0; level <= kHalHighestLevel; ++level) {
    Module1.HalActivityLevel = static_cast<Integer>(level);
    HalComputeLimits();
    rows.push_back({PlainText(level), two(kHalThresholdLimitValue), two(kHalActionLevel)});
  }
  OpenSample("packing-line.qjt");
  kHalHeadline.compute();
  GetExertionLevel();
  HalComputeLimits();
  TableRows& example = AddTable(tables, "hal-example", {"Step", "Value"});
  example.push_back(
      {"Exertion Frequency", Format(Module1.HalExertionFrequency.AsDouble(), Pattern::OneDecimal)});
  example.push_back({"Duty Cycle", Format(Module1.HalDutyCycle.AsDouble(), Pattern::OneDecimal)});
  example.push_back(
      {"Hand Activity Level", Format(Module1.HalActivityLevel.AsDouble(), Pattern::OneDecimal)});
  example.push_back({"Action Level", two(kHalActionLevel)});
  example.push_back({"Threshold Limit Value", two(kHalThresholdLimitValue)});
}

/// The job of the page, as far as OCRA goes.
void MakeFirstJob() {
  Module1 = JobState{};
  JobReset();
  Module1.OcraRecoveryHours = Integer{2};
  const int task = AddTaskRecord();
  Module1.OcraTaskDuration.at(task) = 240;
  Module1.OcraActionFrequency.at(task) = 30.0;
  Module1.OcraForceRating.at(task) = 1;
}

void AddFirstJob(ExpectedTables& tables) {
  MakeFirstJob();
  kOcraHeadline.compute();
  TableRows& ocra = AddTable(tables, "first-job-ocra", {"In the report", "Value"});
  ocra.push_back({"Total No. Of Actions Observed",
                  Format(Module1.OcraActionsObserved.AsDouble(), Pattern::OneDecimal)});
  ocra.push_back({"Total No. Of Recommended Actions",
                  Format(Module1.OcraActionsRecommended.AsDouble(), Pattern::OneDecimal)});
  ocra.push_back({"OCRA Risk Index", Format(Module1.OcraRiskIndex, Pattern::TwoDecimals)});
  ocra.push_back({"Zone", std::string(OcraZoneOf(Module1.OcraRiskIndex).name())});

  Module1.SiExertionMinutes = 20.0;
  Module1.SiDutyObservationMinutes = 60.0;
  Module1.SiExertionCount = 240.0;
  Module1.SiEffortObservationMinutes = 60;
  SiControls controls;
  controls.PressRibbon(SiRibbonArray::SSRibbon1, 1);
  controls.PressRibbon(SiRibbonArray::SSRibbon2, 1);
  controls.PressRibbon(SiRibbonArray::SSRibbon3, 2);
  kSiHeadline.compute();
  TableRows& index = AddTable(tables, "first-job-si", {"In the report", "Level", "Multiplier"});
  for (const auto& row : SiResultRows()) index.push_back(row);
}

std::string SpanAfter(double span, const std::vector<LengthUnit>& choices) {
  Module1 = JobState{};
  JobReset();
  Module1.CtdHandSpan.at(AddTaskRecord()) = span;
  for (const LengthUnit unit : choices) ChooseUnits(unit);
  return PlainText(Module1.CtdHandSpan.at(1).AsDouble());
}

double ProductOf(const SiMultiplierRow& row) {
  return row.SiIntensityMultipliers * row.SiDutyMultipliers * row.SiEffortsMultipliers *
         row.SiPostureMultipliers * row.SiSpeedMultipliers * row.SiDurationMultipliers;
}

}  // namespace

ExpectedTables HalTables() {
  ExpectedTables tables;
  Module1 = JobState{};
  JobReset();
  HalLoad();
  TableRows& scale = AddTable(tables, "hal-scale", {"Mark", "Words"});
  for (const HalMark& mark : kHalLevelMarks) {
    scale.push_back({std::string(mark.tick), std::string(mark.words)});
  }
  TableRows& force = AddTable(tables, "hal-force", {"Mark", "Words"});
  for (const HalMark& mark : kHalForceMarks) {
    force.push_back({std::string(mark.tick), std::string(mark.words)});
  }
  AddHalLevels(tables);
  AddHalLimits(tables);
  return tables;
}

ExpectedTables OtherTables() {
  ExpectedTables tables;
  TableRows& tools = AddTable(tables, "welcome-tools", {"Button", "Method", "Window"});
  for (const ToolRow& row : Tools()) {
    if (row.buttonCaption.empty()) continue;
    tools.push_back(
        {std::string(row.buttonCaption), std::string(row.buttonTip), std::string(row.title)});
  }
  AddFirstJob(tables);
  using enum LengthUnit;
  TableRows& units =
      AddTable(tables, "units-example", {"Start, cm", "English, in", "Metric again, cm"});
  for (const double span : {20.0, 8.5, 7.0, 25.4}) {
    units.push_back(
        {PlainText(span), SpanAfter(span, {English}), SpanAfter(span, {English, Metric})});
  }
  return tables;
}

std::map<std::string, std::string> ExpectedMarks() {
  MakeFirstJob();
  Module1.OcraComboChoice.at(kPinchGrip) = 2;
  kOcraHeadline.compute();
  return {
      {"ctd-metric-power", PlainText(CtdSpanStrength(0, 0))},
      {"si-least", PlainText(ProductOf(kSiMultipliers.front()))},
      {"si-most", PlainText(ProductOf(kSiMultipliers.back()))},
      {"first-job-pinch", Format(Module1.OcraRiskIndex, Pattern::TwoDecimals)},
      {"units-twice", SpanAfter(25.4, {LengthUnit::English, LengthUnit::English})},
  };
}

}  // namespace halvane
