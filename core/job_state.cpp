#include "core/job_state.h"

#include <cmath>
#include <thread>

namespace halvane {
namespace {

constexpr Integer kNoEntry = 0;
constexpr Integer kActive = 1;
constexpr Integer kNotApplicable = 3;

/// The upper bound that `TaskCount` gives, tested before any memory is asked for.
Integer TaskUpperBound() {
  const double bound = std::nearbyint(Module1.TaskCount.AsDouble());
  if (bound < 0) throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
  return ToInteger(bound);
}

/// Runs `action` on every array that has one element a task.
template <typename Action>
void ForEachTaskArray(JobState& job, const Action& action) {
  action(job.TaskNames);
  action(job.TaskActive);
  action(job.TaskSpare);
  action(job.OcraActionFrequency);
  action(job.OcraTaskDuration);
  action(job.OcraForceRating);
  action(job.CtdWorkTime);
  action(job.CtdRestTime);
  action(job.CtdHandSpan);
  action(job.CtdGripType);
  action(job.CtdWristPosition);
  action(job.CtdFlexExtDeviation);
  action(job.CtdRadUlnDeviation);
  action(job.CtdForceMvc);
  action(job.CtdLtShoulderFlexion);
  action(job.CtdRtShoulderFlexion);
  action(job.CtdLtShoulderAbduction);
  action(job.CtdRtShoulderAbduction);
  action(job.CtdLtElbowFlexion);
  action(job.CtdRtElbowFlexion);
  action(job.CtdBackFlexion);
  action(job.CtdNeckFlexion);
  action(job.CtdRepetitions);
  action(job.OcraForceMultiplier);
  action(job.CtdTaskPostureScore);
}

// What is of a thread is gone before what was registered for the program's end is called, so the
// job of the first thread is no such thing.
JobState firstJob;
const std::thread::id kFirstThread = std::this_thread::get_id();

JobState& JobOfThisThread() {
  if (std::this_thread::get_id() == kFirstThread) return firstJob;
  static thread_local JobState job;
  return job;
}

}  // namespace

thread_local JobState& Module1 = JobOfThisThread();

FixedArray<Integer, 14> JobState::AllThree() {
  FixedArray<Integer, 14> choices;
  choices.fill(kNotApplicable);
  return choices;
}

void JobReset() {
  Module1.JobFileName.clear();
  Module1.JobInNoFile = false;
  Module1.JobDurationPerDay = Integer{8};
  Module1.JobAnalyst = "";
  Module1.JobName = "";
  Module1.JobWorkstationId.clear();
  Module1.Hand = 0;
  Module1.TaskCount = kNoEntry;
  Module1.JobCycleTime = 0;

  Module1.OcraRecoveryHours = kNoEntry;
  Module1.HalExertionFrequency = kNoEntry;
  Module1.HalDutyCycle = kNoEntry;
  Module1.HalForceRating = kNoEntry;
  Module1.HalActivityLevel = kNoEntry;

  Module1.RulaControlState.fill(0);
  Module1.RebaControlState.fill(0);

  Module1.SiExertionMinutes = kNoEntry;
  Module1.SiDutyObservationMinutes = kNoEntry;
  Module1.SiExertionCount = kNoEntry;
  Module1.SiEffortObservationMinutes = 0;
  Module1.SiIntensityPick = kNoEntry;
  Module1.SiPosturePick = kNoEntry;
  Module1.SiSpeedPick = 0;

  // The answer that the 14 lists show on an empty job.
  Module1.OcraComboChoice.fill(kNotApplicable);
  Module1.OcraWristActions = kNoEntry;
  Module1.OcraWristHold = 0;
  Module1.OcraSameFingers = kNoEntry;
  Module1.OcraHoldObject = 0;
  Module1.OcraElbowGesture = 0;

  ResizeTaskArrays();
}

void ResizeTaskArrays() {
  const Integer upperBound = TaskUpperBound();
  ForEachTaskArray(Module1, [upperBound](auto& array) { array.Redimension(upperBound); });
  // Row 0 is never a task and is left alone.
  Module1.CtdLoadHeld.FillBehindRow0(0);
  Module1.CtdPostureDuration.FillBehindRow0(0);
}

void NewTaskRecord() {
  const Integer task = TaskUpperBound();
  ForEachTaskArray(Module1, [task](auto& array) { array.RedimensionKeeping(task); });
  Module1.TaskNames.at(task) = "Task " + PlainText(task);
  Module1.TaskActive.at(task) = kActive;
  Module1.TaskSpare.at(task) = 0;
  Module1.OcraActionFrequency.at(task) = kNoEntry;
  Module1.CtdWorkTime.at(task) = kNoEntry;
  Module1.CtdRestTime.at(task) = kNoEntry;
  Module1.CtdHandSpan.at(task) = kNoEntry;
  Module1.CtdGripType.at(task) = kNoEntry;
  Module1.CtdWristPosition.at(task) = 0;
  Module1.CtdFlexExtDeviation.at(task) = kNoEntry;
  Module1.CtdRadUlnDeviation.at(task) = 0;
}

}  // namespace halvane
