#include <string>

#include "core/job_state.h"
#include "core/task_list.h"
#include "expected_tables.h"
#include "tools/ocra/ocra_controls.h"
#include "tools/ocra/ocra_headline.h"
#include "tools/ocra/ocra_report.h"
#include "tools/ocra/ocra_score.h"

namespace halvane {
namespace {

std::string Number(const TaggedField& field) { return PlainText(field.AsDouble()); }

void Compute() {
  OcraScoreLists();
  OcraCalculate();
}

void AddInputs(ExpectedTables& tables) {
  TableRows& lists = AddTable(tables, "ocra-lists",
                              {"Frame", "List", std::string(kOcraAnswers[0]),
                               std::string(kOcraAnswers[1]), std::string(kOcraAnswers[2])});
  TableRows& ticks = AddTable(tables, "ocra-ticks", {"Frame", "Box", "Score when ticked"});
  for (const OcraFrame& frame : kOcraFrames) {
    const std::string caption(frame.caption);
    for (const int index : frame.lists) {
      const OcraList& list = kOcraLists.at(static_cast<std::size_t>(index));
      lists.push_back({caption, std::string(list.caption), PlainText(int{list.scores[0]}),
                       PlainText(int{list.scores[1]}), PlainText(int{list.scores[2]})});
    }
    for (const int index : frame.ticks) {
      ticks.push_back({caption, std::string(kOcraTicks.at(static_cast<std::size_t>(index)).caption),
                       PlainText(int{kOcraTicked})});
    }
  }
}

void AddForce(ExpectedTables& tables) {
  TableRows& rows =
      AddTable(tables, "ocra-force", {"Mark on the scale", "Words", "Force multiplier"});
  for (std::size_t mark = 0; mark < kOcraForceMarks.size(); ++mark) {
    Module1 = JobState{};
    JobReset();
    Module1.OcraForceRating.at(AddTaskRecord()) = OcraRatingAt(static_cast<int>(mark));
    Compute();
    rows.push_back({std::string(kOcraForceMarks[mark].tick),
                    std::string(kOcraForceMarks[mark].word),
                    Number(Module1.OcraForceMultiplier.at(1))});
  }
}

/// The multiplier that a score of the elbow has.
std::string PostureMultiplier(double score) {
  Module1.OcraElbowGesture = static_cast<Integer>(score);
  Compute();
  return Number(Module1.OcraPostureMultiplier);
}

std::string GripExtraMultiplier(double score) {
  Module1.OcraHoldObject = static_cast<Integer>(score);
  Compute();
  return Number(Module1.OcraGripExtraMultiplier);
}

void AddBands(ExpectedTables& tables) {
  Module1 = JobState{};
  JobReset();
  TableRows& posture = AddTable(tables, "ocra-posture", {"Score of the region", "Multiplier"});
  for (const Band& band : BandsOf(0, 60, 1, PostureMultiplier)) {
    posture.push_back({band.range, band.result});
  }
  TableRows& extra = AddTable(tables, "ocra-grip-extra", {"Score", "Multiplier"});
  for (const Band& band : BandsOf(0, 30, 1, GripExtraMultiplier)) {
    extra.push_back({band.range, band.result});
  }
}

void AddRecovery(ExpectedTables& tables) {
  constexpr double kUntouched = -1;
  TableRows& rows = AddTable(tables, "ocra-recovery", {"Hours", "Recovery multiplier"});
  for (int hours = 0; hours <= 10; ++hours) {
    Module1.OcraRecoveryHours = static_cast<Integer>(hours);
    Module1.OcraRecoveryMultiplier = kUntouched;
    Compute();
    const double multiplier = Module1.OcraRecoveryMultiplier;
    rows.push_back(
        {PlainText(hours), multiplier == kUntouched ? "as before" : PlainText(multiplier)});
  }
}

void AddZones(ExpectedTables& tables) {
  const auto zoneText = [](double index) {
    const OcraZone zone = OcraZoneOf(index);
    std::string text = zone.lines.empty() ? "none" : std::string(zone.name());
    text += '\n';
    for (std::size_t line = 1; line < zone.lines.size(); ++line) {
      text += std::string(zone.lines[line]) + " ";
    }
    for (const std::string_view line : zone.dashLines) text += std::string(line) + " ";
    return text;
  };
  TableRows& rows = AddTable(tables, "ocra-zones", {"Index", "Zone", "What the report says"});
  for (const Band& band : BandsOf(0, 20, 100, zoneText)) {
    const std::size_t end = band.result.find('\n');
    const std::string said = Simplified(band.result.substr(end + 1));
    rows.push_back({band.range, band.result.substr(0, end), said.empty() ? "nothing" : said});
  }
}

void AddExample(ExpectedTables& tables) {
  OpenSample("packing-line.qjt");
  kOcraHeadline.compute();
  TableRows& tasks = AddTable(tables, "ocra-example-tasks",
                              {"Task", "Minutes", "Actions a minute", "Observed", "Force Level",
                               "Force multiplier", "Recommended"});
  for (const int task : ActiveTasks()) {
    const double minutes = Module1.OcraTaskDuration.at(task);
    const double force = Module1.OcraForceMultiplier.at(task).AsDouble();
    const double frequency = Module1.OcraActionFrequency.at(task).AsDouble();
    const double recommended =
        kOcraReferenceActions * force * Module1.OcraPostureMultiplier.AsDouble() *
        Module1.OcraGripExtraMultiplier.AsDouble() * minutes * Module1.OcraRecoveryMultiplier;
    tasks.push_back({Module1.TaskNames.at(task), PlainText(minutes), PlainText(frequency),
                     Format(minutes * frequency, Pattern::OneDecimal),
                     Format(Module1.OcraForceRating.at(task), Pattern::OneDecimal),
                     PlainText(force), Format(recommended, Pattern::OneDecimal)});
  }
  AddTable(tables, "ocra-example", {"Step", "Value"});
  TableRows& rows = tables["ocra-example"];
  const auto& sums = Module1.OcraPostureSums;
  rows.push_back({"Score of the elbow", PlainText(int{sums.at(1)})});
  rows.push_back({"Score of the wrist", PlainText(int{sums.at(2)})});
  rows.push_back({"Score of the grip", PlainText(int{sums.at(3)})});
  rows.push_back(
      {"Posture multiplier, from the worst of the three", Number(Module1.OcraPostureMultiplier)});
  rows.push_back(
      {"Score of the wide grip and the finger boxes", Number(Module1.OcraGripScores.at(5))});
  rows.push_back({"Grip multiplier", Number(Module1.OcraGripExtraMultiplier)});
  rows.push_back({"Recovery multiplier for " + Module1.OcraRecoveryHours.AsText() + " hours",
                  PlainText(Module1.OcraRecoveryMultiplier)});
  rows.push_back(
      {"Total No. Of Actions Observed", Format(Module1.OcraActionsObserved, Pattern::OneDecimal)});
  rows.push_back({"Total No. Of Recommended Actions",
                  Format(Module1.OcraActionsRecommended, Pattern::OneDecimal)});
  rows.push_back({"OCRA Risk Index", Format(Module1.OcraRiskIndex, Pattern::TwoDecimals)});
  rows.push_back({"Zone", std::string(OcraZoneOf(Module1.OcraRiskIndex).name())});
}

}  // namespace

ExpectedTables OcraTables() {
  ExpectedTables tables;
  AddInputs(tables);
  AddForce(tables);
  AddBands(tables);
  AddRecovery(tables);
  AddZones(tables);
  AddExample(tables);
  return tables;
}

}  // namespace halvane
