#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/job_state.h"

namespace halvane {

/// The marker that the first field of a job file has to be.
inline constexpr std::string_view kJobFileMarker = "qjt";
/// The fields of the first line: the marker and four constants.
inline constexpr std::size_t kMarkerLineFields = 5;

/// The name of a field as messages show it: the field of `JobState` and its subscripts.
struct FieldName {
  std::string_view field;
  int first = -1;   ///< task or element number, -1: none
  int second = -1;  ///< posture slot, -1: none

  /// "Hand", "TaskNames(2)", "CtdLoadHeld(2, 7)".
  [[nodiscard]] std::string text() const;
};

/// One field of a line: its name and the place of the job state that it is written from and read
/// into.
template <typename T>
struct JobField {
  FieldName name;
  T& value;
};

template <typename T>
JobField<T> Named(std::string_view field, T& value, int first = -1, int second = -1) {
  return {{field, first, second}, value};
}

/// Runs `file` over every line of the job file in order; the one description of its layout, for
/// reader and writer alike. The kind of a field in the file is the type of its place in `job`.
///
/// `file.HeaderLine()` is called for the first line, then `file.Line(fields...)` for each further
/// one. A line's subscripts are tested before it is handed over, so task 41 throws
/// `SubscriptOutOfRange` with the lines before its loads already done.
template <typename File>
void VisitJobFields(JobState& job, File& file) {
  file.HeaderLine();
  file.Line(Named("TaskCount", job.TaskCount));
  file.Line(Named("JobDurationPerDay", job.JobDurationPerDay),
            Named("JobCycleTime", job.JobCycleTime), Named("JobFileFlag", job.JobFileFlag));
  file.Line(Named("JobAnalyst", job.JobAnalyst), Named("JobName", job.JobName),
            Named("JobWorkstationId", job.JobWorkstationId), Named("Hand", job.Hand),
            Named("JobDurationPerDay", job.JobDurationPerDay));
  file.Line(Named("HalExertionFrequency", job.HalExertionFrequency),
            Named("HalDutyCycle", job.HalDutyCycle), Named("HalForceRating", job.HalForceRating),
            Named("HalActivityLevel", job.HalActivityLevel));
  for (int i = 0; i < job.RulaControlState.size(); ++i) {
    file.Line(Named("RulaControlState", job.RulaControlState.at(i), i));
  }
  for (int i = 0; i < job.RebaControlState.size(); ++i) {
    file.Line(Named("RebaControlState", job.RebaControlState.at(i), i));
  }
  file.Line(Named("SiExertionMinutes", job.SiExertionMinutes),
            Named("SiDutyObservationMinutes", job.SiDutyObservationMinutes),
            Named("SiExertionCount", job.SiExertionCount),
            Named("SiEffortObservationMinutes", job.SiEffortObservationMinutes),
            Named("SiIntensityPick", job.SiIntensityPick),
            Named("SiPosturePick", job.SiPosturePick), Named("SiSpeedPick", job.SiSpeedPick));
  for (int i = 0; i < job.OcraComboChoice.size(); ++i) {
    file.Line(Named("OcraComboChoice", job.OcraComboChoice.at(i), i));
  }
  file.Line(
      Named("OcraRecoveryHours", job.OcraRecoveryHours),
      Named("OcraWristActions", job.OcraWristActions), Named("OcraWristHold", job.OcraWristHold),
      Named("OcraSameFingers", job.OcraSameFingers), Named("OcraHoldObject", job.OcraHoldObject),
      Named("OcraElbowGesture", job.OcraElbowGesture));
  const double taskCount = job.TaskCount.AsDouble();
  for (int task = 1; task <= taskCount; ++task) VisitTaskFields(job, file, task);
}

/// The 15 lines of one task. Several fields stand more than once; the last copy wins when read.
template <typename File>
void VisitTaskFields(JobState& job, File& file, int task) {
  const auto named = [task](std::string_view field, auto& array) {
    return Named(field, array.at(task), task);
  };
  const auto gripAndWristLine = [&] {
    file.Line(named("CtdGripType", job.CtdGripType),
              named("CtdWristPosition", job.CtdWristPosition),
              named("CtdFlexExtDeviation", job.CtdFlexExtDeviation),
              named("CtdRadUlnDeviation", job.CtdRadUlnDeviation));
  };
  file.Line(named("TaskNames", job.TaskNames), named("TaskActive", job.TaskActive));
  file.Line(named("OcraActionFrequency", job.OcraActionFrequency),
            named("OcraTaskDuration", job.OcraTaskDuration));
  file.Line(named("OcraForceRating", job.OcraForceRating), named("CtdWorkTime", job.CtdWorkTime),
            named("CtdRestTime", job.CtdRestTime), named("TaskSpare", job.TaskSpare),
            named("OcraActionFrequency", job.OcraActionFrequency),
            named("CtdHandSpan", job.CtdHandSpan), named("CtdForceMvc", job.CtdForceMvc));
  gripAndWristLine();
  file.Line(named("CtdWorkTime", job.CtdWorkTime), named("CtdRestTime", job.CtdRestTime),
            named("TaskSpare", job.TaskSpare), named("CtdRepetitions", job.CtdRepetitions),
            named("CtdHandSpan", job.CtdHandSpan), named("CtdForceMvc", job.CtdForceMvc));
  gripAndWristLine();
  file.Line(named("CtdLtShoulderFlexion", job.CtdLtShoulderFlexion),
            named("CtdRtShoulderFlexion", job.CtdRtShoulderFlexion),
            named("CtdLtShoulderAbduction", job.CtdLtShoulderAbduction),
            named("CtdRtShoulderAbduction", job.CtdRtShoulderAbduction),
            named("CtdLtElbowFlexion", job.CtdLtElbowFlexion),
            named("CtdRtElbowFlexion", job.CtdRtElbowFlexion),
            named("CtdBackFlexion", job.CtdBackFlexion),
            named("CtdNeckFlexion", job.CtdNeckFlexion));
  for (int slot = 0; slot < kPostureSlots; ++slot) {
    file.Line(Named("CtdLoadHeld", job.CtdLoadHeld.at(task, slot), task, slot),
              Named("CtdPostureDuration", job.CtdPostureDuration.at(task, slot), task, slot));
  }
}

/// How many fields a job of `taskCount` tasks has, repeated ones included. No reading comes behind
/// task 41, so more tasks count as 41.
std::size_t CountJobFields(double taskCount);

}  // namespace halvane
