#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "core/job_state.h"
#include "core/task_list.h"
#include "tools/ctd/ctd_controls.h"

namespace halvane {

/// What a task of the CTD Risk Index holds.
struct TaskRow {
  double workTime, repetitions, force, span;
  int grip, wrist, radialUlnar, flexionExtension;
  std::string_view categories;  ///< by slot
  std::array<double, 7> loads;
  std::array<double, 8> durations;
  bool active;
};

/// An English job of 8 hours and a cycle of one minute, without tasks.
inline void StartJob() {
  Module1 = JobState{};
  Module1.Units = 1;
  Module1.JobCycleTime = 1;
}

/// Adds the task to the job; gives its number.
inline int AddTask(const TaskRow& row) {
  const int task = AddTaskRecord();
  Module1.TaskActive.at(task) = static_cast<Integer>(row.active ? 1 : 0);
  Module1.CtdWorkTime.at(task) = row.workTime;
  Module1.CtdRepetitions.at(task) = row.repetitions;
  Module1.CtdForceMvc.at(task) = row.force;
  Module1.CtdHandSpan.at(task) = row.span;
  Module1.CtdGripType.at(task) = static_cast<Integer>(row.grip);
  Module1.CtdWristPosition.at(task) = static_cast<Integer>(row.wrist);
  Module1.CtdRadUlnDeviation.at(task) = row.radialUlnar;
  Module1.CtdFlexExtDeviation.at(task) = static_cast<Integer>(row.flexionExtension);
  for (int slot = 0; slot < kCtdSlotCount; ++slot) {
    const auto i = static_cast<std::size_t>(slot);
    StoreCtdCategory(slot, task, static_cast<Integer>(row.categories[i] - '0'));
    if (i < row.loads.size()) Module1.CtdLoadHeld.at(task, slot) = row.loads[i];
    Module1.CtdPostureDuration.at(task, slot) = row.durations[i];
  }
  return task;
}

}  // namespace halvane
