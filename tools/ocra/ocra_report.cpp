#include "tools/ocra/ocra_report.h"

#include <array>

#include "core/checked_math.h"
#include "core/job_state.h"
#include "core/task_list.h"
#include "tools/ocra/ocra_score.h"
#include "tools/report_charts.h"
#include "tools/report_parts.h"

namespace halvane {
namespace {

using Lines = std::array<std::string_view, 3>;

constexpr std::string_view kZoneLabel = "Zone: ";
constexpr Lines kGreen{"Zone: Green", "Risk Level: ABSENT", "Consequences: None"};
constexpr Lines kYellowGreen{
    "Zone: Yellow/Green",
    "Risk Level: NEGLIGIBLE, predicted Work-related Musculoskeletal Disorders similar to reference "
    "groups.",
    "Consequences: None"};
constexpr Lines kYellow{
    "Zone: Yellow",
    "Risk Level: SLIGHT, slight excess of Work-related Musculoskeletal Disorders predicted (upto 3 "
    "times).",
    "Consequences: "};
constexpr std::array<std::string_view, 2> kYellowDashes{
    "-Health surveillance recommended",
    "-Recommended to seek ways to improve exposure conditions (especially for higher values)"};
constexpr Lines kRed{
    "Zone: Red",
    "Risk Level: PRESENT, significant excess of Work-related Musculoskeletal Disorders predicted.",
    "Consequences: "};
constexpr std::array<std::string_view, 2> kRedDashes{
    "-Redesign of tasks at workstations according to priority.",
    "-Health surveillance plus training/information of exposed subjects."};

constexpr std::array kTableStops{2500, 4500, 6500};
constexpr std::array kZoneStops{200, 700};

void WriteJob(RichText& RichTextBox1) {
  RichTextBox1.Append(kNewLine, HandLine(), kNewLine);
  AppendNames(RichTextBox1);
  RichTextBox1.Append(kNewLine);
  RichTextBox1.Append(kNewLine,
                      "Job Cycle Time (min): ", Format(Module1.JobCycleTime, Pattern::TwoDecimals));
  RichTextBox1.Append(kNewLine, "Numbers Of Hours Without Adequate Recovery: ",
                      Format(Module1.OcraRecoveryHours, Pattern::Whole));
  RichTextBox1.Append(kNewLine);
}

void WriteTaskTable(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  SetStops(RichTextBox1, kTableStops);
  RichTextBox1.Append(kNewLine, "Task ID", kTab, "Task Dur. (min)", kTab, "Action (#/min)", kTab,
                      "Force Level");
  RichTextBox1.SetFont(kPlain);
  for (const int task : ActiveTasks()) {
    // Column by column: where one fails, what stands before it stays in the report.
    RichTextBox1.Append(kNewLine, ShownTaskName(task));
    RichTextBox1.Append(kTab, Format(Module1.OcraTaskDuration.at(task), Pattern::TwoDecimals));
    RichTextBox1.Append(kTab, Format(Module1.OcraActionFrequency.at(task), Pattern::OneDecimal));
    RichTextBox1.Append(kTab, Format(Module1.OcraForceRating.at(task), Pattern::OneDecimal));
  }
  RichTextBox1.Append(kNewLine);
}

void WriteMultiplierTable(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  SetStops(RichTextBox1, kTableStops);
  RichTextBox1.Append(kNewLine, "Task ID", kTab, "Force Multiplier", kTab, "Posture Multiplier",
                      kTab, "Recovery Multiplier");
  RichTextBox1.SetFont(kPlain);
  for (const int task : ActiveTasks()) {
    RichTextBox1.Append(kNewLine, ShownTaskName(task));
    RichTextBox1.Append(kTab, Format(Module1.OcraForceMultiplier.at(task), Pattern::TwoDecimals));
    const double posture = Product(Module1.OcraPostureMultiplier.AsDouble(),
                                   Module1.OcraGripExtraMultiplier.AsDouble());
    RichTextBox1.Append(kTab, Format(posture, Pattern::TwoDecimals));
    RichTextBox1.Append(kTab, Format(Module1.OcraRecoveryMultiplier, Pattern::TwoDecimals));
  }
  RichTextBox1.Append(kNewLine);
}

void WriteZone(RichText& RichTextBox1) {
  RichTextBox1.Append(kNewLine, "Recommendation:");
  SetStops(RichTextBox1, kZoneStops);
  const OcraZone zone = OcraZoneOf(Module1.OcraRiskIndex);
  for (const std::string_view line : zone.lines) RichTextBox1.Append(kNewLine, kTab, line);
  for (const std::string_view line : zone.dashLines) {
    RichTextBox1.Append(kNewLine, kTab, kTab, line);
  }
  RichTextBox1.Append(kNewLine, kNewLine);
}

}  // namespace

std::string_view OcraZone::name() const {
  return lines.empty() ? std::string_view() : lines.front().substr(kZoneLabel.size());
}

OcraZone OcraZoneOf(double riskIndex) {
  if (riskIndex <= 1.0) return {kGreen, {}, ZoneColour::Green};
  if (riskIndex <= 2.0) return {kYellowGreen, {}, ZoneColour::YellowGreen};
  if (riskIndex <= 3.9) return {kYellow, kYellowDashes, ZoneColour::Yellow};
  if (riskIndex >= 4.0) return {kRed, kRedDashes, ZoneColour::Red};
  // Between 3.9 and 4.0 no zone is named, which is wanted.
  return {};
}

void OcraReport(RichText& RichTextBox1) {
  RichTextBox1.SetLocked(false);
  RichTextBox1.Clear();

  RichTextBox1.SetFont(kTitle);
  RichTextBox1.SetAlignment(Alignment::Center);
  RichTextBox1.Append("Occupational Repetitive Actions Index", kNewLine);

  RichTextBox1.SetFont(kPlain);
  RichTextBox1.SetAlignment(Alignment::Left);
  WriteJob(RichTextBox1);
  WriteTaskTable(RichTextBox1);
  WriteMultiplierTable(RichTextBox1);
  RichTextBox1.Append(kNewLine, "Total No. Of Actions Observed: ",
                      Format(Module1.OcraActionsObserved, Pattern::OneDecimal));
  RichTextBox1.Append(kNewLine, "Total No. Of Recommended Actions: ",
                      Format(Module1.OcraActionsRecommended, Pattern::OneDecimal));
  RichTextBox1.Append(kNewLine);

  RichTextBox1.SetFont(kHeading);
  RichTextBox1.Append(kNewLine, "OCRA Risk Index:");
  RichTextBox1.SetFont(kPlain);
  RichTextBox1.Append(" ", Format(Module1.OcraRiskIndex, Pattern::TwoDecimals));
  RichTextBox1.Append(kNewLine);

  WriteZone(RichTextBox1);
  AppendChart(RichTextBox1, "ocra/zones");
  AppendChart(RichTextBox1, "ocra/multipliers");
  RichTextBox1.SetLocked(true);
}

void OcraComputeAndReport(RichText& RichTextBox1) {
  OcraScoreAndCalculate();
  OcraReport(RichTextBox1);
}

}  // namespace halvane
