#include "tests/monkey/allowed_failures.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/job_state.h"
#include "core/task_list.h"

namespace halvane {
namespace {

/// Numbers of which two can leave a double when they are multiplied or divided.
constexpr double kHuge = 1e100;

bool IsHuge(double number) {
  return std::abs(number) > kHuge || (number != 0 && std::abs(number) < 1 / kHuge);
}

bool HoldsHugeNumber() {
  const JobState& job = Module1;
  for (const double number :
       {job.JobCycleTime, job.JobDurationPerDay.AsDouble(), job.SiExertionMinutes.AsDouble(),
        job.SiDutyObservationMinutes.AsDouble(), job.SiExertionCount.AsDouble(),
        job.SiEffortObservationMinutes, job.HalExertionFrequency.AsDouble(),
        job.HalDutyCycle.AsDouble()}) {
    if (IsHuge(number)) return true;
  }
  for (int task = 0; task <= job.TaskNames.upperBound(); ++task) {
    for (const double number :
         {job.CtdWorkTime.at(task).AsDouble(), job.CtdHandSpan.at(task).AsDouble(),
          job.CtdForceMvc.at(task), job.CtdRepetitions.at(task), job.OcraTaskDuration.at(task),
          job.OcraActionFrequency.at(task).AsDouble()}) {
      if (IsHuge(number)) return true;
    }
    for (int slot = 0; slot < kPostureSlots && task <= kHighestTask; ++slot) {
      if (IsHuge(job.CtdLoadHeld.at(task, slot)) || IsHuge(job.CtdPostureDuration.at(task, slot))) {
        return true;
      }
    }
  }
  return false;
}

bool HoldsNegativeLoad() {
  for (int task = 1; task <= std::min(kHighestTask, Module1.TaskNames.upperBound()); ++task) {
    for (int slot = 0; slot < kPostureSlots; ++slot) {
      if (Module1.CtdLoadHeld.at(task, slot) < 0 || Module1.CtdPostureDuration.at(task, slot) < 0) {
        return true;
      }
    }
  }
  return false;
}

bool HasTask41() { return Module1.TaskCount.AsDouble() > kHighestTask; }

struct AllowedFailure {
  FailureKind kind;
  const char* reason;
  bool (*applies)(const Situation& situation);
};

const std::array kAllowed{
    AllowedFailure{FailureKind::Overflow, "a huge number in a computation",
                   [](const Situation&) { return HoldsHugeNumber(); }},
    AllowedFailure{FailureKind::DivisionByZero, "a tiny number in a computation",
                   [](const Situation&) { return HoldsHugeNumber(); }},
    AllowedFailure{FailureKind::InvalidCall, "Delete on the CTD form without a task in its list",
                   [](const Situation& situation) {
                     // A file that could be read half has its tasks in memory and not in the list.
                     return situation.tool == Tool::Ctd &&
                            (Module1.JobFileOpen || ActiveTasks().empty());
                   }},
    AllowedFailure{FailureKind::InvalidCall, "the power of a negative load in the CTD computation",
                   [](const Situation& situation) {
                     return situation.tool == Tool::Ctd && HoldsNegativeLoad();
                   }},
    AllowedFailure{FailureKind::SubscriptOutOfRange,
                   "the first Strain Index of a run with a value in a gap of its bands",
                   [](const Situation& situation) {
                     return situation.tool == Tool::StrainIndex &&
                            (Module1.SiDutyRating == 0 || Module1.SiEffortsRating == 0);
                   }},
    AllowedFailure{FailureKind::SubscriptOutOfRange,
                   "task 41, which can neither be saved nor have postures",
                   [](const Situation&) { return HasTask41(); }},
    AllowedFailure{FailureKind::SubscriptOutOfRange, "a saved value that names no control",
                   [](const Situation& situation) { return situation.isOdd; }},
    AllowedFailure{FailureKind::Overflow, "a saved value beyond what its control takes",
                   [](const Situation& situation) { return situation.isOdd; }},
    AllowedFailure{FailureKind::DivisionByZero, "a saved code without a strength",
                   [](const Situation& situation) { return situation.isOdd; }},
    AllowedFailure{FailureKind::InvalidCall, "a saved value without a power",
                   [](const Situation& situation) { return situation.isOdd; }},
    AllowedFailure{FailureKind::FileError, "Save to a place that takes no file",
                   [](const Situation& situation) { return situation.savedInABadPlace; }},
    AllowedFailure{FailureKind::FileError, "Save to the place of an odd file that was opened",
                   [](const Situation& situation) { return situation.isOdd; }},
    AllowedFailure{FailureKind::FileAlreadyOpen, "Save while a failure keeps the file open",
                   [](const Situation&) { return Module1.JobFileOpen; }},
};

}  // namespace

bool IsAllowed(FailureKind kind, const Situation& situation) {
  return std::any_of(kAllowed.begin(), kAllowed.end(), [&](const AllowedFailure& allowed) {
    try {
      return allowed.kind == kind && allowed.applies(situation);
    } catch (const RuntimeFailure&) {
      // A field that reads as no double at all.
      return situation.isOdd;
    }
  });
}

}  // namespace halvane
