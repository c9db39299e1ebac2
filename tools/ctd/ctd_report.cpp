#include "tools/ctd/ctd_report.h"

#include <array>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tools/ctd/ctd_input.h"
#include "tools/ctd/ctd_score.h"
#include "tools/report_charts.h"
#include "tools/report_parts.h"

namespace halvane {
namespace {

constexpr CharacterFormat kBold{.size = 10, .bold = true, .underline = false};

using Stops = std::array<int, 4>;

constexpr Stops kRowStops{2500, 4300, 5750, 7200};
// The headings stand on other stops than their rows, which is wanted.
constexpr Stops kFirstHeadingStops{2500, 2500, 2500, 2500};
constexpr Stops kLaterHeadingStops{2500, 4300, 2500, 2500};

constexpr const CtdBox& kHours = kCtdText2[0];
constexpr const CtdBox& kCycleTime = kCtdText2[1];

void WriteJob(RichText& RichTextBox1) {
  RichTextBox1.Append(kNewLine, HandLine());
  RichTextBox1.Append(kNewLine);
  AppendNames(RichTextBox1);
  RichTextBox1.Append(kNewLine, kNewLine);
  const double hours = ValueIn(kHours.field);
  RichTextBox1.Append(kHours.label, " ");
  RichTextBox1.AppendNumber(hours, Pattern::Whole);
  const double cycleTime = ValueIn(kCycleTime.field);
  RichTextBox1.Append(kNewLine, kCycleTime.label, " ");
  RichTextBox1.AppendNumber(cycleTime, Pattern::TwoDecimals);
  RichTextBox1.Append(kNewLine, kNewLine);
}

// A row is appended column by column: where one fails, what stands before it stays in the report.

void AppendColumn(RichText& RichTextBox1, double number, Pattern pattern) {
  RichTextBox1.Append(kTab);
  RichTextBox1.AppendNumber(number, pattern);
}

void WriteEffortTable(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  SetStops(RichTextBox1, kFirstHeadingStops);
  RichTextBox1.Append(kNewLine, "Task ID", kTab, "Task Dur. (min)", kTab, "Action (#/min)", kTab,
                      "Force (%MVC)", kTab, kCtdSpanCaption, " (", CtdSpanUnit(), ")");
  RichTextBox1.SetFont(kPlain);
  for (const int task : ActiveTasks()) {
    SetStops(RichTextBox1, kRowStops);
    RichTextBox1.Append(kNewLine, ShownTaskName(task));
    AppendColumn(RichTextBox1, Module1.CtdWorkTime.at(task).AsDouble(), Pattern::TwoDecimals);
    AppendColumn(RichTextBox1, Module1.CtdRepetitions.at(task), Pattern::OneDecimal);
    AppendColumn(RichTextBox1, Module1.CtdForceMvc.at(task), Pattern::OneDecimal);
    AppendColumn(RichTextBox1, Module1.CtdHandSpan.at(task).AsDouble(), Pattern::OneDecimal);
  }
  RichTextBox1.Append(kNewLine, kNewLine);
}

const CtdGroupRow& GroupRow(CtdGroup group) { return kCtdGroups[static_cast<std::size_t>(group)]; }

std::string_view CodeCaption(CtdGroup group, int task) {
  return CtdRibbonAt(GroupRow(group).ribbons, CtdCodeOf(group, task)).caption;
}

std::string_view CategoryCaption(int slot, int task) {
  return CtdRibbonAt(kCtdSlots[static_cast<std::size_t>(slot)].categories,
                     ToInteger(CtdCategoryOf(slot, task)))
      .caption;
}

void WriteGripTable(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  SetStops(RichTextBox1, kLaterHeadingStops);
  RichTextBox1.Append("Task ID  ", kTab, GroupRow(CtdGroup::Grip).caption, kTab,
                      GroupRow(CtdGroup::Wrist).caption, kTab, "Rad/Uln Dev.", kTab,
                      "Flex/Ext Dev.");
  RichTextBox1.SetFont(kPlain);
  for (const int task : ActiveTasks()) {
    SetStops(RichTextBox1, kRowStops);
    RichTextBox1.Append(kNewLine, ShownTaskName(task));
    for (const CtdGroupRow& row : kCtdGroups) {
      RichTextBox1.Append(kTab, CodeCaption(row.group, task));
    }
  }
  RichTextBox1.Append(kNewLine, kNewLine);
}

void WritePostureRow(RichText& RichTextBox1, int slot, int task) {
  const CtdSlot& row = kCtdSlots[static_cast<std::size_t>(slot)];
  const bool neck = slot == kCtdNeckSlot;
  RichTextBox1.Append(row.reportLabel);
  RichTextBox1.Append(kTab, CategoryCaption(slot, task));
  if (neck) {
    RichTextBox1.Append(kTab, "    ");
  } else {
    AppendColumn(RichTextBox1, Module1.CtdLoadHeld.at(task, row.frameSlot), Pattern::OneDecimal);
  }
  AppendColumn(RichTextBox1, Module1.CtdPostureDuration.at(task, row.frameSlot),
               Pattern::TwoDecimals);
  // The neck's row shows the back's score. It is wanted, as is that the scores are those of the
  // last active task while the rest of the row belongs to the worst one.
  const double score = Module1.CtdPostureScore.at(neck ? slot - 1 : slot).AsDouble();
  AppendColumn(RichTextBox1, score, Pattern::TwoDecimals);
  RichTextBox1.Append(kNewLine);
}

void WritePostureTable(RichText& RichTextBox1) {
  RichTextBox1.SetFont(kHeading);
  SetStops(RichTextBox1, kLaterHeadingStops);
  RichTextBox1.Append("Body Posture        ", kTab, "Angle   ", kTab, kCtdLoad.caption, kTab,
                      "Duration", kTab, "Max. Posture Score");
  RichTextBox1.Append(kNewLine);
  RichTextBox1.SetFont(kPlain);
  SetStops(RichTextBox1, kRowStops);
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    WritePostureRow(RichTextBox1, slot, Module1.CtdPostureFactorTask);
  }
}

void WriteResult(RichText& RichTextBox1, std::string_view label, const TaggedField& value) {
  RichTextBox1.SetFont(kBold);
  RichTextBox1.Append(label);
  RichTextBox1.SetFont(kPlain);
  RichTextBox1.AppendNumber(value.AsDouble(), Pattern::TwoDecimals);
}

}  // namespace

void CTDprint(RichText& RichTextBox1) {
  RichTextBox1.SetLocked(false);
  RichTextBox1.Clear();

  RichTextBox1.SetFont(kHeading);
  RichTextBox1.SetAlignment(Alignment::Center);
  RichTextBox1.Append("Cumulative Trauma Disorders Risk Assessment Model", kNewLine);
  RichTextBox1.SetFont(kPlain);
  RichTextBox1.SetAlignment(Alignment::Left);

  WriteJob(RichTextBox1);
  WriteEffortTable(RichTextBox1);
  WriteGripTable(RichTextBox1);
  WritePostureTable(RichTextBox1);

  RichTextBox1.Append(kNewLine);
  WriteResult(RichTextBox1, "Force Frequency Factor: ", Module1.CtdForceFrequencyFactor);
  RichTextBox1.SetFont(kBold);
  RichTextBox1.Append(kNewLine);
  WriteResult(RichTextBox1, "Posture Factor   : ", Module1.CtdPostureFactor);
  RichTextBox1.Append(kNewLine, kNewLine);
  WriteResult(RichTextBox1, "Grand Score: ", Module1.CtdGrandScore);
  RichTextBox1.Append(kNewLine,
                      "(Note: Grand Score is predicted incidence rate per 200,000 worked hours)");
  RichTextBox1.Append(kNewLine, kNewLine);
  AppendChart(RichTextBox1, "ctd/report");
  RichTextBox1.SetLocked(true);
}

void CtdComputeAndReport(RichText& RichTextBox1) {
  CTDcalculate();
  CTDprint(RichTextBox1);
}

}  // namespace halvane
