#include "tools/ctd/ctd_input.h"

#include <algorithm>
#include <optional>

#include "core/checked_math.h"
#include "core/task_list.h"
#include "core/units.h"

namespace halvane {
bool CtdOpen() {
  CtdControls controls;
  controls.Load();
  return CtdEverHadTasks();
}

bool CtdEverHadTasks() { return Module1.TaskCount.AsDouble() != 0; }

void CtdTyped(const CtdBox& box, std::string_view text) {
  Module1.JobDirty = kTrue;
  if (!box.isComputed) NumberTyped(box.field, text);
}

void CtdTyped(const CtdSlotBox& box, int slot, std::string_view text) {
  Module1.JobDirty = kTrue;
  if (const std::optional<int> task = TaskOnScreen()) {
    (Module1.*box.field).at(*task, slot) = TypedNumber(text);
  }
}

void ComputeCtdRestTime(int task) {
  const double worked =
      Product(Module1.CtdRepetitions.at(task), Module1.CtdWorkTime.at(task).AsDouble());
  Module1.CtdRestTime.at(task) = std::max(Finite(Module1.JobCycleTime - worked), 0.0);
}

double ComputeCtdCyclesPerShift() {
  if (Module1.JobCycleTime <= 0) return 0;
  Module1.CtdCyclesPerShift = Quotient(
      Product(Module1.JobDurationPerDay.AsDouble(), kMinutesPerHour), Module1.JobCycleTime);
  return Module1.CtdCyclesPerShift;
}

std::string CtdRestTimeText() {
  const std::optional<int> task = TaskOnScreen();
  if (!task) return Format(0.0, Pattern::TwoDecimals);
  ComputeCtdRestTime(*task);
  return Format(Module1.CtdRestTime.at(*task), Pattern::TwoDecimals);
}

std::string CtdCyclesText() {
  const double cycles = ComputeCtdCyclesPerShift();
  return Module1.JobCycleTime > 0 ? Format(cycles, Pattern::TwoDecimals) : "0";
}

std::string CtdSlotText(const CtdSlotBox& box, int slot) {
  const std::optional<int> task = TaskOnScreen();
  return task ? PlainText((Module1.*box.field).at(*task, slot)) : "";
}

std::string_view CtdSpanUnit() {
  return Module1.Units == static_cast<Integer>(LengthUnit::English) ? "in" : "cm";
}

}  // namespace halvane
